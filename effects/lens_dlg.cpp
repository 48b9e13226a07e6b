// Lens: the picture through a fish eye.
#include "effects/area_dlg.h"
#include "effects/effect_makers.h"

namespace {

class CLensDlg : public CAreaDlg<IEffectLens, LensSettings> {
public:
    CLensDlg() : CAreaDlg(EffectId::Lens) {}

private:
    bool CreateControls() override {
        return AddEnable(m_settings->enabled) &&
               AddSlider(
                   m_refraction,
                   {.id = 11,
                    .label = L"Refraction(10 - 160):",
                    .min = 10,
                    .max = 160,
                    .field = &m_settings->refraction,
                    .standard = 20,
                    .help =
                        L"Controls how strongly the lens bends the light. Higher values result in more distortion."}) &&
               AddCheckBox(m_keepSurroundings,
                           {.id = 14,
                            .text = L"Keep original surroundings",
                            .field = &m_settings->keepSurroundings,
                            .standard = 1,
                            .help = L"If checked, the video around the lens is kept as it is."}) &&
               AddArea();
    }

    void LayoutControls() override {
        CAreaDlg::LayoutControls();
        m_refraction.Place(Row(320));
        m_keepSurroundings.SetRect(At(20, 346, 200));
        PlaceArea(374);
    }

    void ApplyToFilter() override {
        Put(&IEffectLens::put_Enable, AutomationBool(m_enable));
        Put(&IEffectLens::put_Refraction, m_refraction.Value());
        Put(&IEffectLens::put_KeepSurroundings, AutomationBool(m_keepSurroundings));
        PutArea(InvalidArea::SendAsIs, AreaSwitch::BeforeEdges);
    }

    CValueSlider m_refraction;
    CSkinCheckBox m_keepSurroundings;
};

}  // namespace

std::unique_ptr<CDialog> MakeLensDlg() { return std::make_unique<CLensDlg>(); }
