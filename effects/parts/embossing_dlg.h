// What the dialogs of the two embossing effects share: the light, the depth, and emboss or bump map.
#pragma once

#include "effects/parts/record_dlg.h"

/// @tparam Dialog  The family that the effect belongs to otherwise.
template <typename Dialog>
class CEmbossingDlg : public Dialog {
protected:
    using Dialog::Dialog;

    using typename Dialog::Settings;
    using typename Dialog::SettingsField;

    /// Three sliders with ids that follow each other, one below the other.
    bool AddLightAndDepth(UINT firstId, const CValueSlider::Places (&rows)[3]) {
        return this->AddSlider(
                   &Settings::lightAngle, rows[0],
                   {firstId, L"Light Angle(%d-%d):", kEmbossLightAngle, L"The direction of the light, in degrees."}) &&
               this->AddSlider(
                   &Settings::elevation, rows[1],
                   {firstId + 1, L"Elevation(%d-%d):", kEmbossElevation,
                    L"Elevation angle. 0 will cause outer embossing, and 180 will cause inner embossing."}) &&
               this->AddSlider(&Settings::depth, rows[2],
                               {firstId + 2, L"Depth(%d-%d):", kEmbossDepth, L"Depth of the emboss effect."});
    }

    /// "Emboss" stands for the field's default, 0 or 1, and "Bumpmap" for the other of the two.
    bool AddMode(SettingsField field, const CRadioGroup::Places& places, UINT firstId) {
        const std::int32_t emboss = this->kDefaults.*field;
        return this->AddRadioPair(field, places,
                                  {{firstId, emboss, L"Emboss", L"If selected, emboss without a bump map."},
                                   {firstId + 1, 1 - emboss, L"Bumpmap", L"If selected, emboss with a bump map."}});
    }
};
