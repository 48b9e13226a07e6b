// Takes pictures of all dialogs of a library in every state that the mouse and the Tab key lead to.
// Usage: pictures LIBRARY FOLDER. scripts/compare-pictures compares two such folders.
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include <windows.h>

#include "benchmarks/opened_dialog.h"
#include "benchmarks/stub_host.h"
#include "effect_settings/effect_settings.h"
#include "skin/gdi_plus.h"

namespace {

constexpr int kControlsTop = 283;  // Above are the title and the preview.
constexpr int kGridX = 24;
constexpr int kGridY = 10;
constexpr int kBelow = 120;  // How far drop-down lists reach out of a dialog.
constexpr int kMostTabs = 60;
constexpr POINT kEnableBox = {40, 305};
constexpr POINT kEmptyPlace = {4, 290};

using ShowFunction = decltype(&ShowSettingsDialog);
using Pixels = std::vector<std::uint32_t>;

StubHost g_host;
std::wstring g_folder;
int g_failures = 0;

/// What a dialog and the pop-ups over it look like, out of the windows themselves: the screen may lag behind.
class Picture {
public:
    explicit Picture(HWND dialog) {
        ::GetWindowRect(dialog, &m_place);
        m_place.bottom += kBelow;
        const BITMAPINFO format{{sizeof(BITMAPINFOHEADER), Width(), -Height(), 1, 32, BI_RGB, 0, 0, 0, 0, 0}, {}};
        void* bits = nullptr;
        m_dc = ::CreateCompatibleDC(nullptr);
        m_bitmap = ::CreateDIBSection(nullptr, &format, DIB_RGB_COLORS, &bits, nullptr, 0);
        m_previous = ::SelectObject(m_dc, m_bitmap);
        HideCaretWhile([&] {
            Take(dialog);
            ::EnumThreadWindows(::GetCurrentThreadId(), &TakePopUp, reinterpret_cast<LPARAM>(this));
        });
        ::GdiFlush();
        m_pixels.assign(static_cast<std::uint32_t*>(bits),
                        static_cast<std::uint32_t*>(bits) + static_cast<std::ptrdiff_t>(Width()) * Height());
    }
    ~Picture() {
        ::SelectObject(m_dc, m_previous);
        ::DeleteObject(m_bitmap);
        ::DeleteDC(m_dc);
    }
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    const Pixels& Content() const { return m_pixels; }

    void Save(const std::wstring& name) const {
        constexpr CLSID kPng = {0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
        Gdiplus::Bitmap bitmap(m_bitmap, nullptr);
        if (bitmap.Save((g_folder + L"\\" + name + L".png").c_str(), &kPng, nullptr) != Gdiplus::Ok) ++g_failures;
    }

private:
    int Width() const { return m_place.right - m_place.left; }
    int Height() const { return m_place.bottom - m_place.top; }

    void Take(HWND window) {
        m_dialog = m_dialog ? m_dialog : window;
        RECT place;
        ::GetWindowRect(window, &place);
        const HDC source = ::GetWindowDC(window);
        ::BitBlt(m_dc, place.left - m_place.left, place.top - m_place.top, place.right - place.left,
                 place.bottom - place.top, source, 0, 0, SRCCOPY);
        ::ReleaseDC(window, source);
    }
    static BOOL CALLBACK TakePopUp(HWND window, LPARAM self) {
        if ((::GetWindowLongW(window, GWL_STYLE) & WS_POPUP) && ::IsWindowVisible(window)) {
            reinterpret_cast<Picture*>(self)->TakeOther(window);
        }
        return TRUE;
    }

    void TakeOther(HWND window) {
        if (window != m_dialog) Take(window);
    }

    static void HideCaretWhile(const std::function<void()>& take) {
        GUITHREADINFO thread{};
        thread.cbSize = sizeof(thread);
        ::GetGUIThreadInfo(::GetCurrentThreadId(), &thread);
        if (thread.hwndCaret) ::HideCaret(thread.hwndCaret);
        take();
        if (thread.hwndCaret) ::ShowCaret(thread.hwndCaret);
    }

    RECT m_place{};
    HDC m_dc;
    HBITMAP m_bitmap;
    HGDIOBJ m_previous;
    HWND m_dialog = nullptr;
    Pixels m_pixels;
};

/// Leads one dialog through its states. Every step posts the next one, so that neither timers nor the real pointer come
/// between: the same library gives the same pictures.
class Walk {
public:
    Walk(HWND dialog, std::wstring name) : m_dialog(dialog), m_name(std::move(name)) {
        RECT client;
        ::GetClientRect(dialog, &client);
        m_points.push_back({client.right - 15, 15});
        for (int y = kControlsTop; y < client.bottom; y += kGridY) {
            for (int x = kGridX / 2; x < client.right; x += kGridX) m_points.push_back({x, y});
        }
    }

    void Start() {
        Redraw(0);
        Take(L"opened");
        Redraw(RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
        Take(L"repainted");
        Then([this] { HoverNext(); });
    }

private:
    void Then(std::function<void()> step) { PostCall(std::move(step)); }
    void Redraw(UINT flags) const {
        ::RedrawWindow(m_dialog, nullptr, nullptr, flags | RDW_UPDATENOW | RDW_ALLCHILDREN);
    }

    /// Saves what the dialog looks like now, unless it looked so before.
    bool Take(const std::wstring& state) {
        Redraw(0);
        const Picture picture(m_dialog);
        if (!m_seen.insert(picture.Content()).second) return false;
        picture.Save(m_name + L"-" + state);
        return true;
    }

    std::wstring At(LPCWSTR state, POINT point) const {
        return std::wstring(state) + L"-" + std::to_wstring(point.x) + L"-" + std::to_wstring(point.y);
    }

    /// To the window under the point, through the message loop, with the real pointer there.
    void PostMouse(UINT message, POINT point, WPARAM buttons = 0) const {
        POINT screen = point;
        ::ClientToScreen(m_dialog, &screen);
        ::SetCursorPos(screen.x, screen.y);
        const HWND child = ::ChildWindowFromPointEx(m_dialog, point, CWP_SKIPINVISIBLE | CWP_SKIPDISABLED);
        const HWND window = child ? child : m_dialog;
        if (window != m_dialog) {
            ::PostMessageW(m_dialog, WM_MOUSELEAVE, 0, 0);
            ::MapWindowPoints(m_dialog, window, &point, 1);
        }
        ::PostMessageW(window, message, buttons, MAKELPARAM(point.x, point.y));
    }

    void HoverNext() {
        if (m_next == m_points.size()) {
            TurnOff();
            return;
        }
        const POINT point = m_points[m_next++];
        PostMouse(WM_MOUSEMOVE, point);
        Then([this, point] {
            if (Take(At(L"hovered", point))) {
                Press(point);
            } else {
                HoverNext();
            }
        });
    }

    void Press(POINT point) {
        PostMouse(WM_LBUTTONDOWN, point, MK_LBUTTON);
        Then([this, point] {
            Take(At(L"pressed", point));
            // Let go elsewhere: nothing was clicked.
            const HWND holder = ::GetCapture();
            for (const HWND window : {holder, m_dialog}) {
                if (window) ::PostMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(kEmptyPlace.x, kEmptyPlace.y));
            }
            Then([this] { HoverNext(); });
        });
    }

    void TurnOff() {
        PostMouse(WM_LBUTTONDOWN, kEnableBox, MK_LBUTTON);
        PostMouse(WM_LBUTTONUP, kEnableBox);
        PostMouse(WM_MOUSEMOVE, kEmptyPlace);
        // The click's own message comes after what was posted here.
        Then([this] {
            Then([this] {
                Take(L"off");
                PostMouse(WM_LBUTTONDOWN, kEnableBox, MK_LBUTTON);
                PostMouse(WM_LBUTTONUP, kEnableBox);
                PostMouse(WM_MOUSEMOVE, kEmptyPlace);
                Then([this] { Then([this] { Tab(0); }); });
            });
        });
    }

    void Tab(int count) {
        Take(L"focus-" + std::to_wstring(count));
        if (count == kMostTabs) {
            ::PostMessageW(m_dialog, WM_COMMAND, IDCANCEL, 0);
            return;
        }
        const HWND focus = ::GetFocus();
        ::PostMessageW(focus ? focus : m_dialog, WM_KEYDOWN, VK_TAB, 0);
        Then([this, count] { Tab(count + 1); });
    }

    HWND m_dialog;
    std::wstring m_name;
    std::vector<POINT> m_points;
    std::size_t m_next = 0;
    std::set<Pixels> m_seen;
};

}  // namespace

int wmain(int count, wchar_t** arguments) {
    if (count != 3) {
        std::fputs("usage: pictures LIBRARY FOLDER\n", stderr);
        return 2;
    }
    g_folder = arguments[2];
    const HMODULE library = ::LoadLibraryW(arguments[1]);
    const auto show =
        library
            ? reinterpret_cast<ShowFunction>(reinterpret_cast<void*>(::GetProcAddress(library, "ShowSettingsDialog")))
            : nullptr;
    ULONG_PTR gdiplus = 0;
    const Gdiplus::GdiplusStartupInput input;
    if (!show || Gdiplus::GdiplusStartup(&gdiplus, &input, nullptr) != Gdiplus::Ok) {
        std::fputs("pictures: the library can't be loaded\n", stderr);
        return 1;
    }
    for (std::int32_t id = kFirstEffectId; id <= kLastEffectId; ++id) {
        std::array<std::int32_t, 64> record;
        record.fill(1);
        std::optional<Walk> walk;
        IMediaHost* host = &g_host;
        const auto open = [&] {
            const std::int32_t result = show(&host, static_cast<EffectId>(id), 640, 480, 640, 480, record.data());
            if (result != kSettingsCancelled) ++g_failures;
        };
        WithDialog(open, [&](HWND dialog) {
            walk.emplace(dialog, (id < 10 ? L"0" : L"") + std::to_wstring(id));
            walk->Start();
        });
        if (!walk) ++g_failures;
    }
    Gdiplus::GdiplusShutdown(gdiplus);
    ::FreeLibrary(library);
    if (g_failures) std::fprintf(stderr, "pictures: %d things failed\n", g_failures);
    return g_failures ? 1 : 0;
}
