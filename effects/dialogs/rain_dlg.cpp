// Rain: drops that fall on the picture.
#include "effects/parts/area_dlg.h"

namespace {

class CRainDlg : public CAreaDlg<EffectId::Rain> {
    bool CreateControls() override {
        return AddEnable() &&
               AddSlider(
                   m_waveSpeed, &RainSettings::waveSpeed,
                   {11, L"Wave Speed(%d - %d):", 1, 10, L"Controls how fast the waves of the rain drops spread."}) &&
               AddSlider(m_density, &RainSettings::density,
                         {12, L"Density(%d - %d):", 1, 100,
                          L"Controls the density of the rain drops. Higher values result in more drops."}) &&
               AddCheckBox(m_customRainDrops, &RainSettings::customRainDrops,
                           {14, L"Custom Rain Drops", L"If checked, custom rain drops are added to the video."}) &&
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
        Put(&IEffectRain::put_Enable, m_enable);
        Put(&IEffectRain::put_CustomRainDrops, m_customRainDrops);
        Put(&IEffectRain::put_WaveSpeed, m_waveSpeed);
        Put(&IEffectRain::put_Density, m_density);
        PutArea(InvalidArea::SendAsIs, AreaSwitch::BeforeEdges);
    }

    CValueSlider m_waveSpeed;
    CValueSlider m_density;
    CSkinCheckBox m_customRainDrops;
};

}  // namespace

const EffectInfo EffectTraits<EffectId::Rain>::kInfo = {
    L"Rain Settings", 500, 560, L"Enable Video Rain Effect, will adds rain drops to the video."};
std::unique_ptr<CDialog> MakeRainDlg() { return std::make_unique<CRainDlg>(); }
