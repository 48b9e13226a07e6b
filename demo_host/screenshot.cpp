#include "demo_host/screenshot.h"

#include "demo_host/gdi_plus.h"

namespace {

constexpr CLSID kPngEncoder = {0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

}  // namespace

bool SaveScreenOf(HWND window, const std::wstring& file) {
    RECT place{};
    ::GetWindowRect(window, &place);
    const int width = place.right - place.left;
    const int height = place.bottom - place.top;
    Gdiplus::Bitmap bitmap(width, height, PixelFormat32bppRGB);
    {
        Gdiplus::Graphics graphics(&bitmap);
        const HDC picture = graphics.GetHDC();
        const HDC screen = ::GetDC(nullptr);
        ::BitBlt(picture, 0, 0, width, height, screen, place.left, place.top, SRCCOPY);
        ::ReleaseDC(nullptr, screen);
        graphics.ReleaseHDC(picture);
    }
    return bitmap.Save(file.c_str(), &kPngEncoder, nullptr) == Gdiplus::Ok;
}
