// The module object: GDI+ lives from the library's load to its unload.
#include <afxwin.h>

#include "skin/fonts.h"
#include "skin/gdi_plus.h"

namespace {

class CEffectSettingsApp : public CWinApp {
public:
    BOOL InitInstance() override {
        const Gdiplus::GdiplusStartupInput input;
        Gdiplus::GdiplusStartup(&m_gdiplusToken, &input, nullptr);
        return CWinApp::InitInstance();
    }

    int ExitInstance() override {
        ReleaseSharedDrawing();
        Gdiplus::GdiplusShutdown(m_gdiplusToken);
        return CWinApp::ExitInstance();
    }

private:
    ULONG_PTR m_gdiplusToken = 0;
};

CEffectSettingsApp g_app;

}  // namespace
