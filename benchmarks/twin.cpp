#include "benchmarks/twin.h"

#include <cstdio>

#include <commctrl.h>

#include "benchmarks/opened_dialog.h"

namespace {

constexpr int kCornerDiameter = 5;  // As the kit's dialogs have it.
constexpr wchar_t kPreviewClass[] = L"BenchPreview";

struct StockControl {
    LPCWSTR type;
    DWORD style;
};

StockControl StockOf(TwinKind kind) {
    switch (kind) {
        case TwinKind::PushButton:
        case TwinKind::ColorField:
            return {L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP};
        case TwinKind::CheckBox:
            return {L"BUTTON", BS_AUTOCHECKBOX | WS_TABSTOP};
        case TwinKind::RadioButton:
            return {L"BUTTON", BS_AUTORADIOBUTTON | WS_TABSTOP};
        case TwinKind::Edit:
            return {L"EDIT", ES_NUMBER | ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP};
        case TwinKind::DropDownList:
            return {L"COMBOBOX", CBS_DROPDOWNLIST | WS_TABSTOP};
        case TwinKind::Slider:
            return {TRACKBAR_CLASSW, TBS_NOTICKS | WS_TABSTOP};
        case TwinKind::Preview:
            return {kPreviewClass, 0};
        case TwinKind::Label:
            break;
    }
    return {L"STATIC", SS_LEFT};
}

struct Running {
    const Twin& twin;
    const std::function<void(int)>& push;
};

void CreateControls(HWND dialog, const Twin& twin) {
    for (const TwinControl& control : twin.controls) {
        const StockControl stock = StockOf(control.kind);
        const int height = control.kind == TwinKind::DropDownList ? 200 : control.place.bottom - control.place.top;
        const HWND window = ::CreateWindowExW(
            0, stock.type, control.text, WS_CHILD | WS_VISIBLE | stock.style | (control.enabled ? 0 : WS_DISABLED),
            control.place.left, control.place.top, control.place.right - control.place.left, height, dialog,
            reinterpret_cast<HMENU>(static_cast<UINT_PTR>(control.id)), nullptr, nullptr);
        if (control.kind == TwinKind::Slider) ::SendMessageW(window, TBM_SETRANGE, FALSE, MAKELPARAM(1, 500));
        if (control.checked) ::SendMessageW(window, BM_SETCHECK, BST_CHECKED, 0);
        if (control.kind == TwinKind::DropDownList) {
            ::SendMessageW(window, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(control.text));
            ::SendMessageW(window, CB_SETCURSEL, 0, 0);
        }
    }
}

INT_PTR CALLBACK TwinProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_INITDIALOG: {
            const auto& twin = reinterpret_cast<const Running*>(lParam)->twin;
            ::SetWindowLongPtrW(dialog, DWLP_USER, lParam);
            ::SetWindowLongW(dialog, GWL_EXSTYLE, ::GetWindowLongW(dialog, GWL_EXSTYLE) | WS_EX_LAYERED);
            ::SetLayeredWindowAttributes(dialog, 0, 255, LWA_ALPHA);
            CreateControls(dialog, twin);
            ::SetWindowPos(dialog, nullptr, 100, 100, twin.size.cx, twin.size.cy, SWP_NOZORDER);
            ::SetWindowRgn(
                dialog, ::CreateRoundRectRgn(0, 0, twin.size.cx, twin.size.cy, kCornerDiameter, kCornerDiameter), TRUE);
            ::SetWindowTextW(dialog, L"Settings");
            DialogOpens(dialog);
            return TRUE;
        }
        case WM_HSCROLL: {
            const auto slider = reinterpret_cast<HWND>(lParam);
            const auto value = static_cast<int>(::SendMessageW(slider, TBM_GETPOS, 0, 0));
            wchar_t text[16];
            ::wsprintfW(text, L"%d", value);
            ::SetWindowTextW(::GetWindow(slider, GW_HWNDNEXT), text);
            const auto* running = reinterpret_cast<const Running*>(::GetWindowLongPtrW(dialog, DWLP_USER));
            if (running->push) running->push(value);
            return TRUE;
        }
        case WM_COMMAND:
            if (LOWORD(wParam) == IDCANCEL) ::EndDialog(dialog, IDCANCEL);
            return TRUE;
        default:
            return FALSE;
    }
}

void RegisterPreview() {
    static const bool registered = [] {
        WNDCLASSW preview{};
        preview.lpfnWndProc = ::DefWindowProcW;
        preview.hbrBackground = static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH));
        preview.lpszClassName = kPreviewClass;
        ::RegisterClassW(&preview);
        // Not imported: the helper program has to come without it.
        const HMODULE library = ::LoadLibraryW(L"comctl32.dll");
        const auto initialize = reinterpret_cast<decltype(&::InitCommonControlsEx)>(
            reinterpret_cast<void*>(::GetProcAddress(library, "InitCommonControlsEx")));
        const INITCOMMONCONTROLSEX controls{sizeof(controls), ICC_BAR_CLASSES};
        return initialize && initialize(&controls);
    }();
    static_cast<void>(registered);
}

}  // namespace

void Twin::Show(const std::function<void(int)>& push) const {
    RegisterPreview();
    const struct {
        DLGTEMPLATE header;
        WORD empty[3];
    } dialogTemplate{{WS_POPUP | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN, 0, 0, 0, 0, 0, 0}, {}};
    const Running running{*this, push};
    ::DialogBoxIndirectParamW(::GetModuleHandleW(nullptr), &dialogTemplate.header, ::GetActiveWindow(), TwinProc,
                              reinterpret_cast<LPARAM>(&running));
}

bool Twin::Write(const wchar_t* file) const {
    FILE* out = ::_wfopen(file, L"wb");
    if (!out) return false;
    const std::size_t count = controls.size();
    const bool written =
        std::fwrite(&size, sizeof(size), 1, out) == 1 && std::fwrite(&count, sizeof(count), 1, out) == 1 &&
        std::fwrite(controls.data(), sizeof(TwinControl), count, out) == count;
    return std::fclose(out) == 0 && written;
}

bool Twin::Read(const wchar_t* file) {
    FILE* in = ::_wfopen(file, L"rb");
    if (!in) return false;
    std::size_t count = 0;
    bool read = std::fread(&size, sizeof(size), 1, in) == 1 && std::fread(&count, sizeof(count), 1, in) == 1;
    controls.resize(read ? count : 0);
    read = read && std::fread(controls.data(), sizeof(TwinControl), count, in) == count;
    std::fclose(in);
    return read;
}
