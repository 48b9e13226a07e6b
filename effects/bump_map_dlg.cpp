// Bump Map: the texture of the frames under a directional light.
#include <algorithm>

#include "effects/area_dlg.h"
#include "effects/effect_makers.h"

namespace {

class CBumpMapDlg : public CAreaDlg<IEffectBumpMap, BumpMapSettings> {
public:
    CBumpMapDlg() : CAreaDlg(EffectId::BumpMap) {}

private:
    bool CreateControls() override {
        return AddEnable(m_settings->enabled) &&
               AddSlider(m_lightAngle,
                         {.id = 11,
                          .label = L"Light Angle(0 - 360):",
                          .min = 0,
                          .max = 360,
                          .field = &m_settings->lightAngle,
                          .standard = 135,
                          .help = L"Controls the light angle on a horizontal plane(0-360 degree)."}) &&
               AddSlider(m_elevation,
                         {.id = 12,
                          .label = L"Elevation(0 - 90):",
                          .min = 0,
                          .max = 90,
                          .field = &m_settings->elevation,
                          .standard = 45,
                          .help = L"Controls the light angle on a vertical plane(0-90 degree)."}) &&
               AddSlider(m_depth, {.id = 13,
                                   .label = L"Depth(1 - 65):",
                                   .min = 1,
                                   .max = 65,
                                   .field = &m_settings->depth,
                                   .standard = 3,
                                   .help = L"Controls the depth of the object, which will affect the shadow. 0 creates "
                                           L"no shadow, higher values create deeper shadows."}) &&
               AddSlider(m_ambient,
                         {.id = 22,
                          .label = L"Ambient(0 - 255):",
                          .min = 0,
                          .max = 255,
                          .field = &m_settings->ambient,
                          .standard = 0,
                          .help = L"Controls the relative strength of a directional light, used to control "
                                  L"the shadow intensity. A higher value results in less shadow."}) &&
               AddOffset(m_xOffset, {23, L"X offset(%d - %d)", g_VideoWidth, &m_settings->xOffset,
                                     L"Horizontal offset of the resulting frames. Negative values shift to the left, "
                                     L"positive values shift to the right."}) &&
               AddOffset(m_yOffset, {24, L"Y offset(%d - %d)", g_VideoHeight, &m_settings->yOffset,
                                     L"Vertical offset of the resulting frames. Negative values shift down, positive "
                                     L"values shift up."}) &&
               AddCheckBox(m_invert, {.id = 14,
                                      .text = L"Invert",
                                      .field = &m_settings->invert,
                                      .standard = 0,
                                      .help = L"If checked, invert shadow and light."}) &&
               AddArea({.switchHelp = L"Enable Effect on below Area:"});
    }

    void LayoutControls() override {
        CAreaDlg::LayoutControls();
        m_lightAngle.Place(Row(320));
        m_elevation.Place(Row(345));
        m_depth.Place(Row(370));
        m_ambient.Place(Row(395));
        m_xOffset.Place(Row(420));
        m_yOffset.Place(Row(445));
        m_invert.SetRect(At(20, 471, 100));
        PlaceArea(499);
    }

    void ApplyToFilter() override {
        Put(&IEffectBumpMap::put_Enable, AutomationBool(m_enable));
        Put(&IEffectBumpMap::put_Invert, AutomationBool(m_invert));
        Put(&IEffectBumpMap::put_LightAngle, m_lightAngle.Value());
        Put(&IEffectBumpMap::put_Elevation, m_elevation.Value());
        Put(&IEffectBumpMap::put_Depth, m_depth.Value());
        Put(&IEffectBumpMap::put_Ambient, m_ambient.Value());
        Put(&IEffectBumpMap::put_XOffset, m_xOffset.Sent());
        Put(&IEffectBumpMap::put_YOffset, m_yOffset.Sent());
        PutArea(InvalidArea::SendAsIs, AreaSwitch::AfterEdges);
    }

    struct Offset {
        UINT id;
        LPCWSTR label;
        int videoSize;
        std::int32_t* field;
        LPCWSTR help;
    };

    /// Shifts by up to the video's size less one pixel, either way.
    bool AddOffset(CValueSlider& slider, const Offset& offset) {
        const int farthest = (std::max)(offset.videoSize, 1) - 1;
        CString label;
        label.Format(offset.label, -farthest, farthest);
        return AddSlider(
            slider,
            {.id = offset.id,
             .label = label,
             .min = -farthest,
             .max = (std::max)(farthest, 1),
             .offset = farthest,
             .field = offset.field,
             .standard = 0,
             .help = offset.help,
             .number = CValueSlider::Number::Sent});
    }

    CValueSlider m_lightAngle;
    CValueSlider m_elevation;
    CValueSlider m_depth;
    CValueSlider m_ambient;
    CValueSlider m_xOffset;
    CValueSlider m_yOffset;
    CSkinCheckBox m_invert;
};

}  // namespace

std::unique_ptr<CDialog> MakeBumpMapDlg() { return std::make_unique<CBumpMapDlg>(); }
