// Dizzy: frames that rotate, zoom and blur.
#include "effects/area_dlg.h"
#include "effects/effect_makers.h"

namespace {

class CDizzyDlg : public CAreaDlg<IEffectDizzy, DizzySettings> {
public:
    CDizzyDlg() : CAreaDlg(EffectId::Dizzy) {}

private:
    bool CreateControls() override {
        return AddEnable(m_settings->enabled) &&
               AddSlider(
                   m_zoomLevel,
                   {.id = 11,
                    .label = L"Zoom Level(0-1000):",
                    .min = 0,
                    .max = 1000,
                    .field = &m_settings->zoomLevel,
                    .standard = 10,
                    .help = L"Controls how far the frames are zoomed. Higher values result in a stronger zoom."}) &&
               AddSlider(
                   m_rotationSpeed,
                   {.id = 12,
                    .label = L"Rotation Speed(0-1000):",
                    .min = 0,
                    .max = 1000,
                    .field = &m_settings->rotationSpeed,
                    .standard = 20,
                    .help = L"Controls how fast the frames rotate. Higher values result in a faster rotation."}) &&
               AddArea();
    }

    void LayoutControls() override {
        CAreaDlg::LayoutControls();
        m_zoomLevel.Place(Row(320));
        m_rotationSpeed.Place(Row(345));
        PlaceArea(375);
    }

    void ApplyToFilter() override {
        Put(&IEffectDizzy::put_Enable, AutomationBool(m_enable));
        Put(&IEffectDizzy::put_ZoomLevel, m_zoomLevel.Value());
        Put(&IEffectDizzy::put_RotationSpeed, m_rotationSpeed.Value());
        PutArea(InvalidArea::ReplaceThenConvert, AreaSwitch::BeforeEdges);
    }

    CValueSlider m_zoomLevel;
    CValueSlider m_rotationSpeed;
};

}  // namespace

std::unique_ptr<CDialog> MakeDizzyDlg() { return std::make_unique<CDizzyDlg>(); }
