// Measures the Gamma Correction dialog against a dialog of the same controls from the system, in one run.
// What counts are the ratios: below 1 the skinned dialog is the faster one.
#include <algorithm>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include <windows.h>

#include <commctrl.h>

#include "benchmarks/filters.h"
#include "benchmarks/stub_host.h"
#include "effect_settings/effect_settings.h"

namespace {

constexpr int kRounds = 21;
constexpr int kDragSteps = 200;
constexpr UINT kSliderId = 13;
constexpr UINT kNumberId = 14;

double NowMs() {
    LARGE_INTEGER now;
    LARGE_INTEGER frequency;
    ::QueryPerformanceCounter(&now);
    ::QueryPerformanceFrequency(&frequency);
    return 1000.0 * static_cast<double>(now.QuadPart) / static_cast<double>(frequency.QuadPart);
}

double Median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2), values.end());
    return values[values.size() / 2];
}

StubHost g_host;

// --- one opening, watched from outside, alike for both dialogs ---

struct Opening {
    double started = 0;
    double painted = 0;
    double perStep = 0;
    bool drag = false;
    HWND dialog = nullptr;
};
Opening g_opening;
HWND g_hostWindow = nullptr;
double g_pushesPerStep = 0;

/// Drags the slider's thumb to and fro; each step ends when the number beside it is painted.
double DragStepMs(HWND dialog) {
    const HWND slider = ::GetDlgItem(dialog, kSliderId);
    RECT client;
    ::GetClientRect(slider, &client);
    const auto send = [&](UINT message, WPARAM flags, int x) {
        ::SendMessageW(slider, message, flags, MAKELPARAM(x, client.bottom / 2));
    };
    RECT thumb{};
    const bool isTrackbar = ::SendMessageW(slider, TBM_GETRANGEMAX, 0, 0) != 0;
    if (isTrackbar) ::SendMessageW(slider, TBM_GETTHUMBRECT, 0, reinterpret_cast<LPARAM>(&thumb));
    // The skinned slider stands at its lowest value, with its thumb at the left edge.
    const int start = isTrackbar ? (thumb.left + thumb.right) / 2 : 3;
    send(WM_LBUTTONDOWN, MK_LBUTTON, start);
    const int pushesBefore = g_host.filter.pushes;
    const double began = NowMs();
    for (int step = 1; step <= kDragSteps; ++step) {
        send(WM_MOUSEMOVE, MK_LBUTTON, start + step);
        ::RedrawWindow(dialog, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    }
    const double took = NowMs() - began;
    send(WM_LBUTTONUP, 0, start + kDragSteps);
    g_pushesPerStep = static_cast<double>(g_host.filter.pushes - pushesBefore) / kDragSteps;
    return took / kDragSteps;
}

constexpr UINT kDialogShown = WM_APP;
constexpr ULONG_PTR kDialogClassAtom = 32770;

LRESULT CALLBACK WatchShowing(int code, WPARAM wParam, LPARAM lParam) {
    const auto* done = reinterpret_cast<const CWPRETSTRUCT*>(lParam);
    if (code == HC_ACTION && done->message == WM_SHOWWINDOW && done->wParam && !g_opening.dialog &&
        ::GetClassLongPtrW(done->hwnd, GCW_ATOM) == kDialogClassAtom) {
        g_opening.dialog = done->hwnd;
        ::PostMessageW(g_hostWindow, kDialogShown, 0, 0);
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

LRESULT CALLBACK HostProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != kDialogShown) return ::DefWindowProcW(window, message, wParam, lParam);
    ::RedrawWindow(g_opening.dialog, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    ::GdiFlush();
    g_opening.painted = NowMs();
    if (g_opening.drag) g_opening.perStep = DragStepMs(g_opening.dialog);
    ::PostMessageW(g_opening.dialog, WM_COMMAND, IDCANCEL, 0);
    return 0;
}

Opening Watch(bool drag, const std::function<void()>& openDialog) {
    g_opening = {};
    g_opening.drag = drag;
    const HHOOK hook = ::SetWindowsHookExW(WH_CALLWNDPROCRET, WatchShowing, nullptr, ::GetCurrentThreadId());
    g_opening.started = NowMs();
    openDialog();
    ::UnhookWindowsHookEx(hook);
    return g_opening;
}

// --- the skinned dialog ---

void OpenSkinned() {
    IMediaHost* host = &g_host;
    GammaCorrectionSettings settings{1, 1};
    ShowSettingsDialog(&host, EffectId::GammaCorrection, 640, 480, 640, 480, &settings);
}

// --- the same dialog of the system's controls ---

INT_PTR CALLBACK StockProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_INITDIALOG: {
            const auto add = [dialog](LPCWSTR type, LPCWSTR text, DWORD style, int x, int y, int w, int h, UINT id) {
                return ::CreateWindowExW(0, type, text, WS_CHILD | WS_VISIBLE | style, x, y, w, h, dialog,
                                         reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), nullptr, nullptr);
            };
            ::SetWindowPos(dialog, nullptr, 100, 100, 500, 460, SWP_NOZORDER);
            ::SetWindowTextW(dialog, L"Gamma Correction Settings");
            add(L"BUTTON", L"x", BS_PUSHBUTTON, 475, 5, 20, 20, IDCANCEL);
            add(L"BUTTON", L"Cancel", BS_PUSHBUTTON, 350, 431, 65, 19, IDCANCEL);
            add(L"BUTTON", L"OK", BS_PUSHBUTTON, 425, 431, 65, 19, IDOK);
            add(L"BUTTON", L"Set as default", BS_PUSHBUTTON, 10, 431, 130, 19, 3);
            add(L"STATIC", L"", SS_BLACKRECT, 1, 35, 497, 240, 11);
            add(L"BUTTON", L"Enable", BS_AUTOCHECKBOX, 10, 295, 70, 20, 10);
            add(L"STATIC", L"Gamma factor (1 - 500):", SS_LEFT, 20, 325, 150, 20, 99);
            const HWND slider = add(TRACKBAR_CLASSW, L"", TBS_NOTICKS, 20, 350, 430, 20, kSliderId);
            ::SendMessageW(slider, TBM_SETRANGE, FALSE, MAKELPARAM(1, 500));
            add(L"STATIC", L"1", SS_LEFT, 460, 350, 50, 20, kNumberId);
            ::CheckDlgButton(dialog, 10, BST_CHECKED);
            g_host.filter.SetGammaParams({1, 1, 0, 0});
            return TRUE;
        }
        case WM_HSCROLL: {
            const auto value = static_cast<int>(::SendMessageW(reinterpret_cast<HWND>(lParam), TBM_GETPOS, 0, 0));
            ::SetDlgItemInt(dialog, kNumberId, static_cast<UINT>(value), TRUE);
            g_host.filter.SetGammaParams({value, 1, 0, 0});
            return TRUE;
        }
        case WM_COMMAND:
            if (LOWORD(wParam) == IDCANCEL) ::EndDialog(dialog, IDCANCEL);
            return TRUE;
        default:
            return FALSE;
    }
}

void OpenStock() {
    const struct {
        DLGTEMPLATE header;
        WORD empty[3];
    } dialogTemplate{{WS_POPUP | WS_VISIBLE | WS_DLGFRAME, 0, 0, 0, 0, 0, 0}, {}};
    ::DialogBoxIndirectParamW(::GetModuleHandleW(nullptr), &dialogTemplate.header, ::GetActiveWindow(), StockProc, 0);
}

void Report(const char* what, double skinned, double stock, double aim) {
    std::printf(
        "%-28s %8.3f ms %8.3f ms   ratio %5.2f   (aim: below %.1f)\n", what, skinned, stock, skinned / stock, aim);
}

}  // namespace

int main(int count, char** arguments) {
    if (count == 2 && std::string(arguments[1]) == "--filters") {
        MeasureFilters();
        return 0;
    }
    const INITCOMMONCONTROLSEX controls{sizeof(controls), ICC_BAR_CLASSES};
    ::InitCommonControlsEx(&controls);
    g_hostWindow = ::CreateWindowExW(
        0, L"STATIC", L"Bench", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200, 100, nullptr, nullptr, nullptr, nullptr);
    ::SetWindowLongPtrW(g_hostWindow, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&HostProc));
    ::SetForegroundWindow(g_hostWindow);

    std::vector<double> opening[2];
    std::vector<double> step[2];
    double pushes[2]{};
    // The two take turns, so that whatever else the machine does hits both; the first rounds warm up.
    for (int round = -3; round < kRounds; ++round) {
        for (const bool drag : {false, true}) {
            for (const int kind : {0, 1}) {
                const Opening seen = Watch(drag, kind == 0 ? OpenSkinned : OpenStock);
                if (round < 0) continue;
                if (drag) {
                    step[kind].push_back(seen.perStep);
                    pushes[kind] = g_pushesPerStep;
                } else {
                    opening[kind].push_back(seen.painted - seen.started);
                }
            }
        }
    }
    std::printf("%-28s %11s %11s\n", "median", "skinned", "stock");
    Report("opening the dialog", Median(opening[0]), Median(opening[1]), 1.0);
    Report("one drag step", Median(step[0]), Median(step[1]), 1.0);
    std::printf("calls of the filter a step: %.2f skinned, %.2f stock\n", pushes[0], pushes[1]);
    ::DestroyWindow(g_hostWindow);
    return 0;
}
