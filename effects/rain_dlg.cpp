// Rain: drops that fall on the picture.
#include "effects/area_dlg.h"
#include "effects/effect_makers.h"

namespace {

class CRainDlg : public CAreaDlg<IEffectRain, RainSettings> {
public:
    CRainDlg() : CAreaDlg(EffectId::Rain) {}

private:
    bool CreateControls() override {
        return AddEnable(m_settings->enabled) &&
               AddSlider(m_waveSpeed,
                         {.id = 11,
                          .label = L"Wave Speed(1 - 10):",
                          .min = 1,
                          .max = 10,
                          .field = &m_settings->waveSpeed,
                          .standard = 2,
                          .help = L"Controls how fast the waves of the rain drops spread."}) &&
               AddSlider(m_density,
                         {.id = 12,
                          .label = L"Density(1 - 100):",
                          .min = 1,
                          .max = 100,
                          .field = &m_settings->density,
                          .standard = 8,
                          .help = L"Controls the density of the rain drops. Higher values result in more drops."}) &&
               AddCheckBox(m_customRainDrops,
                           {.id = 14,
                            .text = L"Custom Rain Drops",
                            .field = &m_settings->customRainDrops,
                            .standard = 0,
                            .help = L"If checked, custom rain drops are added to the video."}) &&
               AddArea();
    }

    void LayoutControls() override {
        CAreaDlg::LayoutControls();
        m_waveSpeed.Place(Row(320));
        m_density.Place(Row(345));
        m_customRainDrops.SetRect(At(20, 371, 200));
        PlaceArea(399);
    }

    void ApplyToFilter() override {
        Put(&IEffectRain::put_Enable, AutomationBool(m_enable));
        Put(&IEffectRain::put_CustomRainDrops, AutomationBool(m_customRainDrops));
        Put(&IEffectRain::put_WaveSpeed, m_waveSpeed.Value());
        Put(&IEffectRain::put_Density, m_density.Value());
        PutArea(InvalidArea::SendAsIs, AreaSwitch::BeforeEdges);
    }

    CValueSlider m_waveSpeed;
    CValueSlider m_density;
    CSkinCheckBox m_customRainDrops;
};

}  // namespace

std::unique_ptr<CDialog> MakeRainDlg() { return std::make_unique<CRainDlg>(); }
