// Dizzy: frames that rotate, zoom and blur.
#include "effects/parts/area_dlg.h"

namespace {

class CDizzyDlg : public CAreaDlg<EffectId::Dizzy> {
    bool CreateControls() override {
        return AddEnable() &&
               AddSlider(m_zoomLevel, &DizzySettings::zoomLevel,
                         {11, L"Zoom Level(%d-%d):", 0, 1000,
                          L"Controls how far the frames are zoomed. Higher values result in a stronger zoom."}) &&
               AddSlider(m_rotationSpeed, &DizzySettings::rotationSpeed,
                         {12, L"Rotation Speed(%d-%d):", 0, 1000,
                          L"Controls how fast the frames rotate. Higher values result in a faster rotation."}) &&
               AddArea();
    }

    void LayoutControls() override {
        CAreaDlg::LayoutControls();
        m_zoomLevel.Place(Row(320));
        m_rotationSpeed.Place(Row(345));
        PlaceArea(375);
    }

    void ApplyToFilter() override {
        Put(&IEffectDizzy::put_Enable, m_enable);
        Put(&IEffectDizzy::put_ZoomLevel, m_zoomLevel);
        Put(&IEffectDizzy::put_RotationSpeed, m_rotationSpeed);
        PutArea(InvalidArea::ReplaceThenConvert, AreaSwitch::BeforeEdges);
    }

    CValueSlider m_zoomLevel;
    CValueSlider m_rotationSpeed;
};

}  // namespace

const EffectInfo EffectTraits<EffectId::Dizzy>::kInfo = {
    L"Dizzy Settings", 500, 585,
    L"Enable Video Dizzy Effect, will rotates, zooms and blurs video frames to create a dizziness-like "
    L"effect."};
std::unique_ptr<CDialog> MakeDizzyDlg() { return std::make_unique<CDizzyDlg>(); }
