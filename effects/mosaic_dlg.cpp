// Mosaic: the picture in squares of one colour each.
#include "effects/area_dlg.h"
#include "effects/effect_makers.h"

namespace {

class CMosaicDlg : public CAreaDlg<IEffectMosaic, MosaicSettings> {
public:
    CMosaicDlg() : CAreaDlg(EffectId::Mosaic) {}

private:
    bool CreateControls() override {
        return AddEnable(m_settings->enabled) &&
               AddSlider(m_mosaicSize,
                         {.id = 11,
                          .label = L"Mosaic Size(1-64):",
                          .min = 1,
                          .max = 64,
                          .field = &m_settings->mosaicSize,
                          .standard = 1,
                          .help = L"Controls the size of the mosaic squares, in pixels."}) &&
               AddArea();
    }

    void LayoutControls() override {
        CAreaDlg::LayoutControls();
        m_mosaicSize.Place(Row(320));
        PlaceArea(350);
    }

    void ApplyToFilter() override {
        Put(&IEffectMosaic::SetMosaicParams,
            {.mosaicSize = m_mosaicSize.Value(), .enabled = m_enable.IsChecked(), .reserved1 = 0, .reserved2 = 0});
        Put(&IEffectMosaic::SetAreaParams, AreaStructure());
    }

    CValueSlider m_mosaicSize;
};

}  // namespace

std::unique_ptr<CDialog> MakeMosaicDlg() { return std::make_unique<CMosaicDlg>(); }
