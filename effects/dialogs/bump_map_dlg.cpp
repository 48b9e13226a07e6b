// Bump Map: the texture of the frames under a directional light.
#include <algorithm>

#include "effects/parts/area_dlg.h"

namespace {

class CBumpMapDlg : public CAreaDlg<EffectId::BumpMap> {
    bool CreateControls() override {
        return AddEnable() &&
               AddSlider(m_lightAngle, &BumpMapSettings::lightAngle,
                         {11, L"Light Angle(%d - %d):", 0, 360,
                          L"Controls the light angle on a horizontal plane(0-360 degree)."}) &&
               AddSlider(m_elevation, &BumpMapSettings::elevation,
                         {12, L"Elevation(%d - %d):", 0, 90,
                          L"Controls the light angle on a vertical plane(0-90 degree)."}) &&
               AddSlider(m_depth, &BumpMapSettings::depth,
                         {13, L"Depth(%d - %d):", 1, 65,
                          L"Controls the depth of the object, which will affect the shadow. 0 creates "
                          L"no shadow, higher values create deeper shadows."}) &&
               AddSlider(m_ambient, &BumpMapSettings::ambient,
                         {22, L"Ambient(%d - %d):", 0, 255,
                          L"Controls the relative strength of a directional light, used to control "
                          L"the shadow intensity. A higher value results in less shadow."}) &&
               AddOffset(m_xOffset, {23, L"X offset(%d - %d)", m_video.cx, &BumpMapSettings::xOffset,
                                     L"Horizontal offset of the resulting frames. Negative values shift to the left, "
                                     L"positive values shift to the right."}) &&
               AddOffset(m_yOffset, {24, L"Y offset(%d - %d)", m_video.cy, &BumpMapSettings::yOffset,
                                     L"Vertical offset of the resulting frames. Negative values shift down, positive "
                                     L"values shift up."}) &&
               AddCheckBox(
                   m_invert, &BumpMapSettings::invert, {14, L"Invert", L"If checked, invert shadow and light."}) &&
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
        Put(&IEffectBumpMap::put_Enable, m_enable);
        Put(&IEffectBumpMap::put_Invert, m_invert);
        Put(&IEffectBumpMap::put_LightAngle, m_lightAngle);
        Put(&IEffectBumpMap::put_Elevation, m_elevation);
        Put(&IEffectBumpMap::put_Depth, m_depth);
        Put(&IEffectBumpMap::put_Ambient, m_ambient);
        Put(&IEffectBumpMap::put_XOffset, m_xOffset.Sent());
        Put(&IEffectBumpMap::put_YOffset, m_yOffset.Sent());
        PutArea(InvalidArea::SendAsIs, AreaSwitch::AfterEdges);
    }

    struct Offset {
        UINT id;
        LPCWSTR label;
        int videoSize;
        SettingsField field;
        LPCWSTR help;
    };

    /// Shifts by up to the video's size less one pixel, either way.
    bool AddOffset(CValueSlider& slider, const Offset& offset) {
        const int farthest = (std::max)(offset.videoSize, 1) - 1;
        CString label;
        label.Format(offset.label, -farthest, farthest);
        return AddSlider(
            slider, offset.field,
            {offset.id, label, -farthest, (std::max)(farthest, 1), offset.help, CValueSlider::Number::Sent});
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

const EffectInfo EffectTraits<EffectId::BumpMap>::kInfo = {
    L"Bump Map Settings", 500, 680,
    L"Enable Video Bumpmap Effect, will embeds the texture of an image or frame into the movie frames."};
std::unique_ptr<CDialog> MakeBumpMapDlg() { return std::make_unique<CBumpMapDlg>(); }
