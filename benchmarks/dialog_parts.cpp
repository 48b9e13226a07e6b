#include <afxwin.h>  // Before windows.h.

#include "benchmarks/dialog_parts.h"

#include <array>
#include <cstdint>

#include "benchmarks/opened_dialog.h"
#include "benchmarks/stub_host.h"
#include "skin/fonts.h"
#include "skin/gdi_plus.h"
#include "skin/skin_dialog.h"
#include "skin/skin_slider.h"

namespace {

/// The list is the dialogs' own business otherwise.
struct Opened : CSkinDialog {
    static const auto& ControlsOf(CSkinDialog& dialog) { return (dialog.*(&Opened::Controls))(); }
};

CSkinDialog* DialogOf(HWND window) { return static_cast<CSkinDialog*>(CWnd::FromHandlePermanent(window)); }

TwinKind KindOf(LONG role) {
    switch (role) {
        case ROLE_SYSTEM_SLIDER:
            return TwinKind::Slider;
        case ROLE_SYSTEM_RADIOBUTTON:
            return TwinKind::RadioButton;
        case ROLE_SYSTEM_CHECKBUTTON:
            return TwinKind::CheckBox;
        case ROLE_SYSTEM_TEXT:
            return TwinKind::Edit;
        case ROLE_SYSTEM_COMBOBOX:
            return TwinKind::DropDownList;
        case ROLE_SYSTEM_STATICTEXT:
            return TwinKind::Label;
        case ROLE_SYSTEM_PUSHBUTTON:
            return TwinKind::PushButton;
        default:
            return TwinKind::ColorField;
    }
}

TwinControl TwinOf(const CSkinControl& control) {
    const ControlFacts facts = control.Facts();
    TwinControl twin{KindOf(facts.role), control.Bounds(), 99, true, false, {}};
    twin.enabled = (facts.state & STATE_SYSTEM_UNAVAILABLE) == 0;
    twin.checked = (facts.state & STATE_SYSTEM_CHECKED) != 0;
    if (twin.kind == TwinKind::Slider) {
        twin.id = static_cast<UINT>(static_cast<const CSkinSlider&>(control).GetDlgCtrlID());
        return twin;
    }
    const auto& item = static_cast<const CSkinItem&>(control);
    twin.id = item.Id();
    ::lstrcpynW(twin.text, facts.value.IsEmpty() ? item.Text() : facts.value, static_cast<int>(std::size(twin.text)));
    return twin;
}

Twin TwinOf(HWND window) {
    Twin twin;
    RECT client;
    ::GetClientRect(window, &client);
    twin.size = {client.right, client.bottom};
    twin.controls.push_back({TwinKind::Preview, {1, 35, client.right - 2, 275}, 11, true, false, {}});
    for (const auto& entry : Opened::ControlsOf(*DialogOf(window))) twin.controls.push_back(TwinOf(*entry.control));
    return twin;
}

}  // namespace

LinkedLibrary::LinkedLibrary() { StartGdiPlus(); }

LinkedLibrary::~LinkedLibrary() {
    ReleaseSharedDrawing();
    StopGdiPlus();
}

void ShowLinked(IMediaHost& host, EffectId effect) {
    std::array<std::int32_t, 64> record;
    record.fill(1);
    IMediaHost* player = &host;
    ShowSettingsDialog(&player, effect, 640, 480, 640, 480, record.data());
}

Twin TwinOf(EffectId effect) {
    static StubHost host;
    Twin twin;
    WithDialog([&] { ShowLinked(host, effect); },
               [&](HWND dialog) {
                   twin = TwinOf(dialog);
                   ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
               });
    return twin;
}

std::wstring NumberShownBy(HWND dialog) {
    bool afterSlider = false;
    for (const auto& entry : Opened::ControlsOf(*DialogOf(dialog))) {
        const ControlFacts facts = entry.control->Facts();
        if (afterSlider && KindOf(facts.role) == TwinKind::Label) return std::wstring(facts.name);
        afterSlider = KindOf(facts.role) == TwinKind::Slider;
    }
    return {};
}
