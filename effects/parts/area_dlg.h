// A dialog of an effect that can be limited to a rectangle of the video.
#pragma once

#include "effects/parts/effect_dlg.h"
#include "skin/skin_message_box.h"

template <EffectId Id>
class CAreaDlg : public CEffectDlg<Id> {
protected:
    using typename CEffectDlg<Id>::Settings;
    using typename CEffectDlg<Id>::SettingsField;

    struct AreaTexts {
        LPCWSTR heading = L"Enable Effect on below Area:";
        LPCWSTR switchHelp = L"Enables the effect on below video area.";
    };

    /// The record's area is mended here, before anything is shown. Sliders have the preview panel's usual id.
    CAreaDlg() : CEffectDlg<Id>({.firstSync = FirstSync::BeforeAttach, .previewId = 21, .titleHasSize = true}) {
        effect_settings::MendArea(*this->m_settings, this->VideoSizes().video);
    }

    /// Adds the heading, the switch and the four edges, over the width of a column.
    bool AddArea(CPoint at, int width, const AreaTexts& texts = {}) {
        constexpr UINT kSwitchId = 16;
        constexpr int kSwitchTop = 24;
        constexpr int kEdgesTop = 52;
        constexpr int kGap = 14;
        const struct {
            SettingsField field;
            UINT id;
            LPCWSTR label;
            int labelWidth;
            LPCWSTR help;
        } edges[] = {{&Settings::left, 17, L"Left", 30, L"Left boundary of the effect area."},
                     {&Settings::top, 18, L"Top", 30, L"Top boundary of the effect area."},
                     {&Settings::right, 19, L"Right", 38, L"Right boundary of the effect area."},
                     {&Settings::bottom, 20, L"Bottom", 50, L"Bottom boundary of the effect area."}};
        int labels = 0;
        for (const auto& edge : edges) labels += edge.labelWidth;
        const int editWidth = (width - labels - 3 * kGap) / 4;

        if (!this->AddHeading(CRect(at, CSize(width, this->kRowHeight)), texts.heading) ||
            !this->AddCheckBox(&Settings::areaEnabled, this->At(at.x, at.y + kSwitchTop, 140),
                               {kSwitchId, L"Enable Effect Area", texts.switchHelp})) {
            return false;
        }
        int x = at.x;
        const int y = at.y + kEdgesTop;
        for (const auto& edge : edges) {
            const int editLeft = x + edge.labelWidth;
            // A click on the switch looks at the switch alone, not at "Enable", on purpose.
            if (!this->AddText(this->At(x, y, edge.labelWidth), edge.label) ||
                !this->AddNumberEdit(
                    edge.field, this->At(editLeft, y, editWidth), edge.id, edge.help, {{&Settings::areaEnabled, 1}})) {
                return false;
            }
            x = editLeft + editWidth + kGap;
        }
        return true;
    }
    /// Below the other controls, over the whole width.
    bool AddArea(int y, const AreaTexts& texts = {}) { return AddArea({20, y}, this->Width() - 40, texts); }

    CValueSlider::Places Row(int y) const { return CRecordDlg::Row(y, 155, 180, 50); }

    bool Validate() override {
        const RECT typed = {this->Shown(&Settings::left), this->Shown(&Settings::top), this->Shown(&Settings::right),
                            this->Shown(&Settings::bottom)};
        if (!this->Shown(&Settings::areaEnabled) ||
            effect_settings::ValidateEffectArea(typed, this->VideoSizes().video)) {
            return true;
        }
        CSkinMessageBox(L"Error!", L"Invalid effect area, please input and try again!").DoModal();
        return false;
    }
};
