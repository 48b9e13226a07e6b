// Lens: the picture through a fish eye.
#include "effects/parts/area_dlg.h"

namespace {

class CLensDlg : public CAreaDlg<EffectId::Lens> {
    bool CreateControls() override {
        return AddEnable() &&
               AddSlider(
                   m_refraction, &LensSettings::refraction,
                   {11, L"Refraction(%d - %d):", 10, 160,
                    L"Controls how strongly the lens bends the light. Higher values result in more distortion."}) &&
               AddCheckBox(
                   m_keepSurroundings, &LensSettings::keepSurroundings,
                   {14, L"Keep original surroundings", L"If checked, the video around the lens is kept as it is."}) &&
               AddArea();
    }

    void LayoutControls() override {
        CAreaDlg::LayoutControls();
        m_refraction.Place(Row(320));
        m_keepSurroundings.SetRect(At(20, 346, 200));
        PlaceArea(374);
    }

    void ApplyToFilter() override {
        Put(&IEffectLens::put_Enable, m_enable);
        Put(&IEffectLens::put_Refraction, m_refraction);
        Put(&IEffectLens::put_KeepSurroundings, m_keepSurroundings);
        PutArea(InvalidArea::SendAsIs, AreaSwitch::BeforeEdges);
    }

    CValueSlider m_refraction;
    CSkinCheckBox m_keepSurroundings;
};

}  // namespace

const EffectInfo EffectTraits<EffectId::Lens>::kInfo = {
    L"Lens Settings", 500, 540, L"Enable Video Lens Effect, will adds a fish eye-like effect on the video."};
std::unique_ptr<CDialog> MakeLensDlg() { return std::make_unique<CLensDlg>(); }
