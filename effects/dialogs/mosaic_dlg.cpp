// Mosaic: the picture in squares of one colour each.
#include "effects/parts/area_dlg.h"

namespace {

class CMosaicDlg : public CAreaDlg<EffectId::Mosaic> {
    bool CreateControls() override {
        return AddEnable() &&
               AddSlider(m_mosaicSize, &MosaicSettings::mosaicSize,
                         {11, L"Mosaic Size(%d-%d):", 1, 64, L"Controls the size of the mosaic squares, in pixels."}) &&
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

const EffectInfo EffectTraits<EffectId::Mosaic>::kInfo = {
    L"Mosaic Settings", 500, 520, L"Enable Video Mosaic Effect to be applied to a selected area."};
std::unique_ptr<CDialog> MakeMosaicDlg() { return std::make_unique<CMosaicDlg>(); }
