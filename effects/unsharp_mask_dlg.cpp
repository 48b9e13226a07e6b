// Unsharp Mask: a switch, amount, radius and threshold.
#include "effects/effect_dlg.h"
#include "effects/effect_makers.h"

namespace {

class CUnsharpMaskDlg : public CEffectDlg<IEffectUnsharpMask, UnsharpMaskSettings> {
public:
    CUnsharpMaskDlg() : CEffectDlg(EffectId::UnsharpMask, {.firstSync = FirstSync::OnFirstClick}) {}

private:
    bool CreateControls() override {
        return AddEnable(m_settings->enabled) &&
               AddSlider(m_amount, {.id = 15,
                                    .label = L"Amount(0 - 500):",
                                    .min = 0,
                                    .max = 500,
                                    .field = &m_settings->amount,
                                    .standard = 250,
                                    .help = L"Sets the amount of sharpening."}) &&
               AddSlider(m_radius, {.id = 16,
                                    .label = L"Radius(1 - 100):",
                                    .min = 1,
                                    .max = 100,
                                    .field = &m_settings->radius,
                                    .standard = 1,
                                    .help = L"Sets the radius value. This value indicates the size of the neighborhood "
                                            L"used for blurring each pixel of the video."}) &&
               AddSlider(m_threshold,
                         {.id = 12,
                          .label = L"Threshold(0 - 255):",
                          .min = 0,
                          .max = 255,
                          .field = &m_settings->threshold,
                          .standard = 0,
                          .help = L"Sets the threshold value. This value indicates the threshold for modifying the "
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
        Put(&IEffectUnsharpMask::put_Enable, AutomationBool(m_enable));
        Put(&IEffectUnsharpMask::put_Amount, m_amount.Value());
        Put(&IEffectUnsharpMask::put_Radius, m_radius.Value());
        Put(&IEffectUnsharpMask::put_Threshold, m_threshold.Value());
    }

    CValueSlider m_amount;
    CValueSlider m_radius;
    CValueSlider m_threshold;
};

}  // namespace

std::unique_ptr<CDialog> MakeUnsharpMaskDlg() { return std::make_unique<CUnsharpMaskDlg>(); }
