// The module object: GDI+ lives from the library's load to its unload.
#include <afxwin.h>

#include "skin/fonts.h"
#include "skin/gdi_plus.h"

namespace {

class CEffectSettingsApp : public CWinApp {
public:
    BOOL InitInstance() override {
        StartGdiPlus();
        return CWinApp::InitInstance();
    }

    int ExitInstance() override {
        ReleaseSharedDrawing();
        StopGdiPlus();
        return CWinApp::ExitInstance();
    }
};

CEffectSettingsApp g_app;

}  // namespace
