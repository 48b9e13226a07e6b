#include "demo_host/photographer.h"

#include "demo_host/device_contexts.h"
#include "demo_host/gdi_plus.h"
#include "demo_host/messages.h"

namespace {

constexpr CLSID kPngEncoder = {0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
constexpr int kFramesBefore = 60;  // Rain, fire and blur have built up by then.

bool SavePicture(HWND window, const std::wstring& file) {
    RECT place;
    ::GetWindowRect(window, &place);
    const int width = place.right - place.left;
    const int height = place.bottom - place.top;
    const CWindowDC from(window, CWindowDC::Part::Whole);  // Not the screen's: that may not have caught up yet.
    CBitmapDC copy(from, width, height);
    ::BitBlt(copy, 0, 0, width, height, from, 0, 0, SRCCOPY);
    const GdiOwner<HBITMAP> picture = copy.Take();
    Gdiplus::Bitmap bitmap(picture.get(), nullptr);
    return bitmap.Save(file.c_str(), &kPngEncoder, nullptr) == Gdiplus::Ok;
}

}  // namespace

CPhotographer::CPhotographer(CPlayer& player, HWND window, std::wstring file)
    : m_player(player), m_file(std::move(file)) {
    ::SetCursorPos(::GetSystemMetrics(SM_CXSCREEN) - 1, ::GetSystemMetrics(SM_CYSCREEN) - 1);
    m_player.Seek(0);
    m_player.SetPlaying(window != nullptr);  // A preview starts it.
    m_player.OnPlayed([this, window](HWND dialog, int frames) { OnPlayed(window ? window : dialog, frames); });
}

CPhotographer::~CPhotographer() { m_player.OnPlayed(nullptr); }

void CPhotographer::OnPlayed(HWND window, int frames) {
    if (!window || frames < kFramesBefore || m_state != State::Waiting) return;
    m_state = SavePicture(window, m_file) ? State::Saved : State::Failed;
    ::PostMessageW(window, WM_CLOSE, 0, 0);
}

bool CPhotographer::Succeeded() const {
    if (m_state == State::Waiting) Complain("no picture was taken for '" + Utf8(m_file) + "'");
    if (m_state == State::Failed) Complain("the picture can't be written to '" + Utf8(m_file) + "'");
    return m_state == State::Saved;
}
