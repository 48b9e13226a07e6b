#include <afxwin.h>  // Before windows.h.

#include "benchmarks/dialog_parts.h"

#include <array>
#include <cstdint>

#include "benchmarks/opened_dialog.h"
#include "benchmarks/stub_host.h"
#include "skin/color_swatch.h"
#include "skin/combo_list_box.h"
#include "skin/fonts.h"
#include "skin/gdi_plus.h"
#include "skin/skin_check_box.h"
#include "skin/skin_dialog.h"
#include "skin/skin_edit.h"
#include "skin/skin_radio_button.h"
#include "skin/skin_slider.h"
#include "skin/skin_static.h"

namespace {

/// The list is the dialogs' own business otherwise.
struct Opened : CSkinDialog {
    static const auto& ControlsOf(CSkinDialog& dialog) { return (dialog.*(&Opened::Controls))(); }
};

CSkinDialog* DialogOf(HWND window) { return dynamic_cast<CSkinDialog*>(CWnd::FromHandlePermanent(window)); }

TwinKind KindOf(const CSkinItem& item) {
    if (dynamic_cast<const CSkinRadioButton*>(&item)) return TwinKind::RadioButton;
    if (dynamic_cast<const CSkinCheckBox*>(&item)) return TwinKind::CheckBox;
    if (dynamic_cast<const CSkinEdit*>(&item)) return TwinKind::Edit;
    if (dynamic_cast<const CVelComboListBox*>(&item)) return TwinKind::DropDownList;
    if (dynamic_cast<const CSkinStatic*>(&item)) return TwinKind::Label;
    if (dynamic_cast<const CSkinButton*>(&item)) return TwinKind::PushButton;
    return TwinKind::ColorField;
}

TwinControl TwinOf(CSkinControl& control) {
    TwinControl twin{TwinKind::Slider, control.Bounds(), 99, true, false, {}};
    if (const auto* item = dynamic_cast<CSkinItem*>(&control)) {
        twin.kind = KindOf(*item);
        twin.id = item->Id();
        twin.enabled = item->IsEnabled();
        const auto* edit = dynamic_cast<const CSkinEdit*>(item);
        ::lstrcpynW(twin.text, edit ? edit->Text() : item->Text(), static_cast<int>(std::size(twin.text)));
        const auto* box = dynamic_cast<const CSkinCheckBox*>(item);
        twin.checked = box && box->IsChecked();
    } else if (const auto* slider = dynamic_cast<CSkinSlider*>(&control)) {
        twin.id = static_cast<UINT>(slider->GetDlgCtrlID());
        twin.enabled = slider->IsWindowEnabled() != FALSE;
    }
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
        const auto* label = dynamic_cast<const CSkinStatic*>(entry.control);
        if (label && afterSlider) return std::wstring(label->Text());
        afterSlider = dynamic_cast<const CSkinSlider*>(entry.control) != nullptr;
    }
    return {};
}
