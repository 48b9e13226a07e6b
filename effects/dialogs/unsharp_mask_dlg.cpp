// Unsharp Mask: a switch, amount, radius and threshold.
#include "effects/parts/effect_dlg.h"

namespace {

class CUnsharpMaskDlg : public CEffectDlg<EffectId::UnsharpMask> {
public:
    CUnsharpMaskDlg() : CEffectDlg({.firstSync = FirstSync::OnFirstClick}) {}

private:
    bool CreateControls() override {
        return AddEnable() &&
               AddSlider(m_amount, &UnsharpMaskSettings::amount,
                         {15, L"Amount(%d - %d):", 0, 500, L"Sets the amount of sharpening."}) &&
               AddSlider(m_radius, &UnsharpMaskSettings::radius,
                         {16, L"Radius(%d - %d):", 1, 100,
                          L"Sets the radius value. This value indicates the size of the neighborhood "
                          L"used for blurring each pixel of the video."}) &&
               AddSlider(m_threshold, &UnsharpMaskSettings::threshold,
                         {12, L"Threshold(%d - %d):", 0, 255,
                          L"Sets the threshold value. This value indicates the threshold for modifying the "
                          L"original value of the pixel."});
    }

    void LayoutControls() override {
        CEffectDlg::LayoutControls();
        m_amount.Place(Row(320));
        m_radius.Place(Row(345));
        m_threshold.Place(Row(370));
        m_helpRect = HelpRectBelow(401);
    }

    void ApplyToFilter() override {
        Put(&IEffectUnsharpMask::put_Enable, m_enable);
        Put(&IEffectUnsharpMask::put_Amount, m_amount);
        Put(&IEffectUnsharpMask::put_Radius, m_radius);
        Put(&IEffectUnsharpMask::put_Threshold, m_threshold);
    }

    CValueSlider m_amount;
    CValueSlider m_radius;
    CValueSlider m_threshold;
};

}  // namespace

const EffectInfo EffectTraits<EffectId::UnsharpMask>::kInfo = {
    L"Unsharp Mask Settings", 560, 500,
    L"Enable Video Unsharp Mask Effect will performs a sharpening effect on the video."};
std::unique_ptr<CDialog> MakeUnsharpMaskDlg() { return std::make_unique<CUnsharpMaskDlg>(); }
