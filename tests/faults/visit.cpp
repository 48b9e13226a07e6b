#include "visit.h"

#include <algorithm>
#include <utility>

#include "area_dialog_rows.h"
#include "cases.h"
#include "plain_dialog_rows.h"
#include "support/dialog_driver.h"
#include "support/expected_calls.h"

namespace {

constexpr UINT kTickMs = 1;  // The system makes it its shortest.
constexpr int kMaxTicks = 500;
constexpr std::size_t kPageSize = 4096;
constexpr UINT_PTR kPreviewTimer = 1;  // The dialogs' own.

thread_local HWND g_owner = nullptr;
HWND g_lastDialog = nullptr;

/// The user of the innermost dialog.
struct Hands {
    const std::vector<Action>& actions;
    const Action& answerBox;
    std::size_t done = 0;
    int ticks = 0;
    int unseen = 0;  ///< Ticks in a row without a visible dialog.
};
thread_local Hands* g_hands = nullptr;

// Dialogs that show no sign of life, because showing them failed or a message hid them, are closed after so many ticks.
constexpr int kPatience = 100;

BOOL CALLBACK AddDialog(HWND window, LPARAM dialogs) {
    wchar_t name[16] = {};
    ::GetClassNameW(window, name, 16);
    if (std::wstring(name) == L"#32770" && ::IsWindowEnabled(window)) {
        reinterpret_cast<std::vector<HWND>*>(dialogs)->push_back(window);
    }
    return TRUE;
}

void Close(HWND dialog) {
    // What hears nothing else: an edit's menu, and the dragging of a window.
    ::EndMenu();
    ::PostMessageW(dialog, WM_LBUTTONUP, 0, 0);
    ::PostMessageW(dialog, WM_CLOSE, 0, 0);
}

void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD) {
    if (!g_hands) return;
    Hands& hands = *g_hands;
    std::vector<HWND> dialogs;
    ::EnumThreadWindows(::GetCurrentThreadId(), AddDialog, reinterpret_cast<LPARAM>(&dialogs));
    const auto seen = std::find_if(dialogs.begin(), dialogs.end(), ::IsWindowVisible);
    // A box that was answered stays, hidden, until those that came up after it are gone.
    hands.unseen = seen != dialogs.end() ? 0 : hands.unseen + 1;
    if (dialogs.empty() || (hands.unseen && hands.unseen <= kPatience)) return;
    const HWND dialog = hands.unseen ? dialogs.front() : *seen;
    if (++hands.ticks > kMaxTicks) {
        Check(false, "does not close");
        ::DestroyWindow(dialog);
    } else if (::GetDlgItem(dialog, 0xFFFF)) {
        hands.answerBox(dialog);  // That is its text.
    } else if (hands.done < hands.actions.size()) {
        hands.actions[hands.done++](dialog);
    } else if (hands.unseen) {
        // Which of the hidden ones came up last is not to be seen; the others wait for it.
        std::for_each(dialogs.begin(), dialogs.end(), Close);
    } else {
        Close(dialog);
    }
}

void MakeOwner() {
    ::EnableWindow(g_owner, TRUE);
    if (::IsWindow(g_owner)) return;
    g_owner = ::CreateWindowExW(
        0, L"STATIC", L"Owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 40, 40, 400, 300, nullptr, nullptr, nullptr, nullptr);
    ::SetForegroundWindow(g_owner);
    ::SetActiveWindow(g_owner);
}

}  // namespace

PageEndRecord::PageEndRecord(const Record& values)
    : m_pages(static_cast<unsigned char*>(::VirtualAlloc(nullptr, 2 * kPageSize, MEM_RESERVE, PAGE_NOACCESS))),
      m_values(nullptr),
      m_count(values.size()) {
    void* page = ::VirtualAlloc(m_pages, kPageSize, MEM_COMMIT, PAGE_READWRITE);
    m_values = reinterpret_cast<std::int32_t*>(static_cast<unsigned char*>(page) + kPageSize) - m_count;
    std::copy(values.begin(), values.end(), m_values);
}

PageEndRecord::~PageEndRecord() { ::VirtualFree(m_pages, 0, MEM_RELEASE); }

void Click(HWND dialog, int x, int y) {
    for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP}) ::SendMessageW(dialog, message, 0, MAKELPARAM(x, y));
}

void ClickEnable(HWND dialog) { Click(dialog, 40, 305); }

void ClickSetAsDefault(HWND dialog) {
    RECT client{};
    ::GetClientRect(dialog, &client);
    Click(dialog, 60, client.bottom - 19);
}

void StartPreview(HWND dialog) { ::SendMessageW(dialog, WM_TIMER, kPreviewTimer, 0); }
void PressOk(HWND dialog) { ::PostMessageW(dialog, WM_COMMAND, IDOK, 0); }
void PressCancel(HWND dialog) { ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0); }

std::vector<Action> UsualActions() {
    return {StartPreview, ClickEnable, [](HWND) {}, ClickSetAsDefault, [](HWND) {}, PressOk};
}

unsigned PictureOf(HWND dialog) {
    RECT client{};
    ::GetClientRect(dialog, &client);
    ::RedrawWindow(dialog, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    BITMAPINFO info{};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), client.right, client.bottom, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* pixels = nullptr;
    const HDC source = ::GetDC(dialog);
    const HDC memory = ::CreateCompatibleDC(source);
    const HBITMAP bitmap = ::CreateDIBSection(source, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
    const HGDIOBJ previous = ::SelectObject(memory, bitmap);
    ::BitBlt(memory, 0, 0, client.right, client.bottom, source, 0, 0, SRCCOPY);
    unsigned sum = 0;
    const auto* pixel = static_cast<const unsigned*>(pixels);
    for (LONG index = 0; index < client.right * client.bottom; ++index) sum = sum * 31 + (pixel[index] & 0xFFFFFF);
    ::SelectObject(memory, previous);
    ::DeleteObject(bitmap);
    ::DeleteDC(memory);
    ::ReleaseDC(dialog, source);
    return sum;
}

HWND DialogOf(const RecordingHost& host) {
    if (const HWND panel = host.PreviewWindow()) g_lastDialog = ::GetAncestor(panel, GA_ROOT);
    return g_lastDialog;
}

std::ptrdiff_t ClosingsIn(const Lines& calls) { return std::count(calls.begin(), calls.end(), kPreviewStop); }

HWND OwnerWindow() { return g_owner; }

Outcome Visit::Run() const {
    MakeOwner();
    ::SetCursorPos(0, 0);  // In the middle of the screen, where it begins, a control would be under it.
    const int windows = CountWindows();
    Outcome outcome;
    const PageEndRecord memory(record);
    RecordingHost host(effect, options);
    int call = 0;
    if (onCall) {
        // The preview's start, which may come by its timer, is not counted: slow openings would have other numbers.
        host.Calls().onCall = [&](const std::string& line) {
            return onCall(host, line == kPreviewStart ? kPreviewCall : call++, line);
        };
    }
    IMediaHost* pointer = hasHost ? &host : nullptr;
    Hands hands{actions, answerBox};
    Hands* outer = std::exchange(g_hands, &hands);
    const UINT_PTR timer = ::SetTimer(nullptr, 0, kTickMs, Tick);
    outcome.result = show(&pointer, effect, video.cx, video.cy, frame.cx, frame.cy, memory.Address());
    ::KillTimer(nullptr, timer);
    g_hands = outer;
    host.Calls().onCall = nullptr;

    outcome.record = memory.Values();
    const Lines lines = host.Calls().Take();
    const auto closing = std::find(lines.begin(), lines.end(), kPreviewStop);
    Check(std::find(closing, lines.end(), kPreviewStart) == lines.end(), "RefreshPreview comes after StopPreview");
    outcome.calls = WithoutRefresh(lines);
    outcome.openReferences = host.OpenReferences();
    outcome.activeCount = host.ActiveCount();
    outcome.ticks = hands.ticks;
    if (!outer) {
        // What was posted and never handled, a request to quit among it, would meet the next opening.
        MSG message;
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (message.message != WM_QUIT) ::DispatchMessageW(&message);
        }
        outcome.windowsLeft = CountWindows() + (::IsWindow(g_owner) ? 0 : 1) - windows;
    }
    return outcome;
}

const std::vector<EffectRecords>& AllEffects() {
    static const std::vector<EffectRecords> effects = [] {
        std::vector<EffectRecords> all;
        for (const auto& rows : {PlainDialogRows(), AreaDialogRows()}) {
            for (const DialogRow& row : rows) {
                EffectRecords& effect = all.emplace_back(EffectRecords{row.effect.id, {}});
                for (const Opening& opening : row.openings) effect.records.push_back(opening.record);
            }
        }
        return all;
    }();
    return effects;
}
