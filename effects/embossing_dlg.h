// What the dialogs of the two embossing effects share: the light, the depth, and emboss or bump map.
#pragma once

#include "effects/record_dlg.h"

/// @tparam Dialog  The family that the effect belongs to otherwise.
template <typename Dialog>
class CEmbossingDlg : public Dialog {
protected:
    using Dialog::Dialog;

    /// Three sliders with ids that follow each other.
    bool AddLightAndDepth(UINT firstId, int standardDepth) {
        auto& settings = *this->m_settings;
        return this->AddSlider(
                   m_lightAngle,
                   {.id = firstId,
                    .label = L"Light Angle(0-360):",
                    .min = 0,
                    .max = 360,
                    .field = &settings.lightAngle,
                    .standard = 180,
                    .help = L"The direction of the light, in degrees."}) &&
               this->AddSlider(
                   m_elevation,
                   {.id = firstId + 1,
                    .label = L"Elevation(0-180):",
                    .min = 0,
                    .max = 180,
                    .field = &settings.elevation,
                    .standard = 90,
                    .help = L"Elevation angle. 0 will cause outer embossing, and 180 will cause inner embossing."}) &&
               this->AddSlider(
                   m_depth, {.id = firstId + 2,
                             .label = L"Depth(1-100):",
                             .min = 1,
                             .max = 100,
                             .field = &settings.depth,
                             .standard = standardDepth,
                             .help = L"Depth of the emboss effect."});
    }

    /// The field holds `emboss` or the other of 0 and 1; any other number counts as 1. "Emboss" is the default.
    bool AddMode(UINT firstId, std::int32_t& field, int emboss) {
        return this->AddRadioGroup(
            m_mode, {.field = &field,
                     .value = field != 0,
                     .standard = emboss,
                     .choices = {{firstId, emboss, L"Emboss", L"If selected, emboss without a bump map."},
                                 {firstId + 1, 1 - emboss, L"Bumpmap", L"If selected, emboss with a bump map."}}});
    }

    CValueSlider m_lightAngle;
    CValueSlider m_elevation;
    CValueSlider m_depth;
    CRadioGroup m_mode;
};
