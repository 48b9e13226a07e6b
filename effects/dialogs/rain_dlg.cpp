// Rain: drops that fall on the picture.
#include "effects/parts/area_dlg.h"

namespace {

class CRainDlg : public CAreaDlg<EffectId::Rain> {
    bool CreateControls() override {
        return AddSlider(&Settings::waveSpeed, Row(320),
                         {11, L"Wave Speed(%d - %d):", kRainWaveSpeed,
                          L"Controls how fast the waves of the rain drops spread."}) &&
               AddSlider(&Settings::density, Row(345),
                         {12, L"Density(%d - %d):", kRainDensity,
                          L"Controls the density of the rain drops. Higher values result in more drops."}) &&
               AddCheckBox(&Settings::customRainDrops, At(20, 371, 200),
                           {14, L"Custom Rain Drops", L"If checked, custom rain drops are added to the video."}) &&
               AddArea(399);
    }
};

}  // namespace

const EffectInfo EffectTraits<EffectId::Rain>::kInfo = {
    L"Rain Settings", 500, 560, 481, L"Enable Video Rain Effect, will adds rain drops to the video."};
std::unique_ptr<CDialog> MakeRainDlg() { return std::make_unique<CRainDlg>(); }
