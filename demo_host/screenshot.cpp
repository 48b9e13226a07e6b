#include "demo_host/screenshot.h"

#include <objidl.h>

#include "skin/drawing.h"

namespace {

constexpr CLSID kPngEncoder = {0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

}  // namespace

bool SaveScreenOf(HWND window, const std::wstring& file) {
    CRect place;
    ::GetWindowRect(window, place);
    const CBorrowedDC screen(nullptr);
    const CBitmapHandle picture{::CreateCompatibleBitmap(screen, place.Width(), place.Height())};
    {
        const CMemoryDC dc(screen, picture.Get());
        ::BitBlt(dc, 0, 0, place.Width(), place.Height(), screen, place.left, place.top, SRCCOPY);
    }
    Gdiplus::Bitmap bitmap(picture.Get(), nullptr);
    return bitmap.Save(file.c_str(), &kPngEncoder, nullptr) == Gdiplus::Ok;
}
