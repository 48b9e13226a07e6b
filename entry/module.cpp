// The module object: GDI+ lives from the library's load to its unload.
#include <afxwin.h>

#include "skin/fonts.h"
#include "skin/gdi_plus.h"
#include "skin/system_library.h"

namespace {

class CEffectSettingsApp : public CWinApp {
public:
    BOOL InitInstance() override {
        StartGdiPlus();
        return CWinApp::InitInstance();
    }

    int ExitInstance() override {
        ReleaseSharedDrawing();
        ReleaseSystemLibraries();
        StopGdiPlus();
        return CWinApp::ExitInstance();
    }
};

CEffectSettingsApp g_app;

}  // namespace
