#include "support/dialog_driver.h"

#include <atomic>
#include <thread>

#include <gtest/gtest.h>

#include <winternl.h>

#include "support/watchdog.h"

namespace {

constexpr UINT kSettled = WM_APP + 1;
constexpr UINT kSettledInput = WM_APP + 2;
constexpr DWORD kPatienceMs = 10000;
constexpr POINT kFarAway{1270, 1015};

DWORD g_testedThread = 0;
HWND g_signalWindow = nullptr;

BOOL CALLBACK PaintOne(HWND window, LPARAM) {
    ::RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    return TRUE;
}

LRESULT CALLBACK SignalProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case kSettledInput:
            // A posted message overtakes the pointer's moves and presses; a timer waits for them.
            ::SetTimer(window, wParam, USER_TIMER_MINIMUM, nullptr);
            return 0;
        case WM_TIMER:
            ::KillTimer(window, wParam);
            [[fallthrough]];
        case kSettled:
            // Painting comes after all messages, so it is asked for.
            ::EnumThreadWindows(::GetCurrentThreadId(), PaintOne, 0);
            ::SetEvent(reinterpret_cast<HANDLE>(wParam));
            return 0;
        default:
            return ::DefWindowProcW(window, message, wParam, lParam);
    }
}

struct DialogSearch {
    HWND other;
    HWND found;
};

BOOL CALLBACK IsDialogSearched(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<DialogSearch*>(parameter);
    wchar_t name[16] = {};
    ::GetClassNameW(window, name, 16);
    if (window == search.other || !::IsWindowVisible(window) || std::wstring(name) != L"#32770") return TRUE;
    search.found = window;
    return FALSE;
}

BOOL CALLBACK CountOne(HWND, LPARAM counter) {
    ++*reinterpret_cast<int*>(counter);
    return TRUE;
}

HWND TopDialog(HWND other) {
    DialogSearch search{other, nullptr};
    ::EnumThreadWindows(g_testedThread, IsDialogSearched, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

void WaitForSignal(UINT message) {
    const HANDLE settled = ::CreateEventW(nullptr, FALSE, FALSE, nullptr);
    ::PostMessageW(g_signalWindow, message, reinterpret_cast<WPARAM>(settled), 0);
    if (::WaitForSingleObject(settled, kPatienceMs) != WAIT_OBJECT_0) ADD_FAILURE() << "the dialog's thread hangs";
    ::CloseHandle(settled);
    ReportProgress();
}

void CloseWhateverIsOpen() {
    DialogDriver::WaitFor([] {
        const HWND dialog = TopDialog(nullptr);
        if (dialog) ::PostMessageW(dialog, WM_CLOSE, 0, 0);
        return !dialog;
    });
}

}  // namespace

void DialogDriver::Settle() const { WaitForSignal(kSettled); }

void DialogDriver::SettleInput() const { WaitForSignal(kSettledInput); }

void DialogDriver::Send(UINT message, WPARAM wParam, LPARAM lParam) const {
    ::PostMessageW(m_dialog, message, wParam, lParam);
    Settle();
}

void DialogDriver::Mouse(UINT message, POINT at, HWND window, WPARAM buttons) const {
    ::PostMessageW(window ? window : m_dialog, message, buttons, MAKELPARAM(at.x, at.y));
    Settle();
    Settle();  // What the message made the dialog post is handled too.
}

GUITHREADINFO DialogDriver::Thread() const {
    GUITHREADINFO info{};
    info.cbSize = sizeof(info);
    ::GetGUIThreadInfo(::GetWindowThreadProcessId(m_dialog, nullptr), &info);
    return info;
}

HWND DialogDriver::Focus() const {
    const HWND focus = Thread().hwndFocus;
    return focus ? focus : m_dialog;
}

void DialogDriver::Click(POINT at, HWND window) {
    Move(at, window);
    Press(at, window);
    Release(at, window);
}

void DialogDriver::PointAt(POINT at) {
    ::ClientToScreen(m_dialog, &at);
    ::SetCursorPos(at.x, at.y);
    SettleInput();
}

bool DialogDriver::PointUntil(POINT at, const std::function<bool()>& condition) {
    LONG offset = 1;
    return WaitFor([&] {
        offset = 1 - offset;
        PointAt({at.x + offset, at.y});
        return condition();
    });
}

void DialogDriver::Key(WPARAM key) {
    ::PostMessageW(m_dialog, WM_KEYDOWN, key, 1);
    ::PostMessageW(m_dialog, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    Settle();
}

COLORREF DialogDriver::Pixel(int x, int y, HWND window) const {
    const HWND source = window ? window : m_dialog;
    const HDC dc = ::GetDC(source);
    const COLORREF color = ::GetPixel(dc, x, y);
    ::ReleaseDC(source, dc);
    return color;
}

std::wstring DialogDriver::Title() const {
    wchar_t text[128] = {};
    ::GetWindowTextW(m_dialog, text, 128);
    return text;
}

RECT DialogDriver::ClientRect(HWND window) const {
    RECT rect{};
    ::GetClientRect(window ? window : m_dialog, &rect);
    return rect;
}

unsigned long DialogDriver::PixelSum(const RECT& rect) const {
    const HDC dc = ::GetDC(m_dialog);
    unsigned long sum = 0;
    for (int y = rect.top; y < rect.bottom; ++y) {
        for (int x = rect.left; x < rect.right; ++x) sum = sum * 31 + ::GetPixel(dc, x, y);
    }
    ::ReleaseDC(m_dialog, dc);
    return sum;
}

bool DialogDriver::HasText(const RECT& rect, COLORREF background) const {
    for (int y = rect.top; y < rect.bottom; ++y) {
        for (int x = rect.left; x < rect.right; ++x) {
            if (Pixel(x, y) != background) return true;
        }
    }
    return false;
}

bool DialogDriver::WaitFor(const std::function<bool()>& condition) {
    const DWORD start = ::GetTickCount();
    while (!condition()) {
        if (::GetTickCount() - start > kPatienceMs) return false;
        ::Sleep(5);
    }
    return true;
}

HWND DialogDriver::WaitForDialog(HWND other) {
    HWND found = nullptr;
    WaitFor([&] {
        found = TopDialog(other);
        return found != nullptr;
    });
    return found;
}

void RunDialog(const std::function<void()>& open, const std::function<void(DialogDriver&)>& script) {
    g_testedThread = ::GetCurrentThreadId();
    g_signalWindow = ::CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    ::SetWindowLongPtrW(g_signalWindow, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&SignalProc));
    ::SetCursorPos(kFarAway.x, kFarAway.y);

    std::atomic<bool> done = false;
    std::thread hands([&] {
        if (const HWND dialog = DialogDriver::WaitForDialog()) {
            DialogDriver driver(dialog);
            driver.Settle();
            script(driver);
            CloseWhateverIsOpen();
        } else {
            ADD_FAILURE() << "no dialog came up";
        }
        done = true;
        ::PostMessageW(g_signalWindow, WM_NULL, 0, 0);
    });
    open();
    // The script may still wait for messages of a dialog that it has closed.
    MSG message;
    while (!done && ::GetMessageW(&message, nullptr, 0, 0)) ::DispatchMessageW(&message);
    hands.join();
    ::DestroyWindow(g_signalWindow);
}

int CountGdiObjects() {
    // The process's table of GDI handles, which hangs off its environment block: 65536 entries of 24 bytes, live
    // where the byte at offset 14 is not 0.
    constexpr std::size_t kTablePointer = sizeof(void*) == 8 ? 0xF8 : 0x94;
    PROCESS_BASIC_INFORMATION process{};
    ::NtQueryInformationProcess(::GetCurrentProcess(), ProcessBasicInformation, &process, sizeof(process), nullptr);
    const auto* block = reinterpret_cast<const unsigned char*>(process.PebBaseAddress);
    const auto* table = *reinterpret_cast<const unsigned char* const*>(block + kTablePointer);
    int count = 0;
    for (std::size_t entry = 0; entry < 65536; ++entry) count += table[entry * 24 + 14] != 0;
    return count;
}

int CountHeapBlocks() {
    HANDLE heaps[64] = {};
    const DWORD known = ::GetProcessHeaps(64, heaps);
    int count = 0;
    for (DWORD index = 0; index < known; ++index) {
        PROCESS_HEAP_ENTRY entry{};
        while (::HeapWalk(heaps[index], &entry)) count += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0;
    }
    return count;
}

int CountWindows() {
    int count = 0;
    ::EnumThreadWindows(::GetCurrentThreadId(), CountOne, reinterpret_cast<LPARAM>(&count));
    return count;
}
