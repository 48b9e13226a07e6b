// What the dialogs of the two embossing effects share: the light, the depth, and emboss or bump map.
#pragma once

#include "effects/parts/record_dlg.h"

/// @tparam Dialog  The family that the effect belongs to otherwise.
template <typename Dialog>
class CEmbossingDlg : public Dialog {
protected:
    using Dialog::Dialog;

    using SettingsField = typename Dialog::SettingsField;
    using Settings = typename Dialog::Settings;

    /// Three sliders with ids that follow each other.
    bool AddLightAndDepth(UINT firstId) {
        return this->AddSlider(m_lightAngle, &Settings::lightAngle,
                               {firstId, L"Light Angle(%d-%d):", 0, 360, L"The direction of the light, in degrees."}) &&
               this->AddSlider(
                   m_elevation, &Settings::elevation,
                   {firstId + 1, L"Elevation(%d-%d):", 0, 180,
                    L"Elevation angle. 0 will cause outer embossing, and 180 will cause inner embossing."}) &&
               this->AddSlider(
                   m_depth, &Settings::depth, {firstId + 2, L"Depth(%d-%d):", 1, 100, L"Depth of the emboss effect."});
    }

    /// "Emboss" stands for the field's default, 0 or 1, and "Bumpmap" for the other of the two.
    bool AddMode(UINT firstId, SettingsField field) {
        const std::int32_t emboss = this->kDefaults.*field;
        return this->AddRadioPair(m_mode, field,
                                  {{firstId, emboss, L"Emboss", L"If selected, emboss without a bump map."},
                                   {firstId + 1, 1 - emboss, L"Bumpmap", L"If selected, emboss with a bump map."}});
    }

    CValueSlider m_lightAngle;
    CValueSlider m_elevation;
    CValueSlider m_depth;
    CRadioGroup m_mode;
};
