// Deblocking: which algorithm smooths the edges of blocks, where they lie and how strongly.
#include "effects/parts/effect_dlg.h"
#include "effects/parts/frame_scale.h"
#include "skin/combo_list_box.h"

namespace {

class CDeblockingDlg : public CEffectDlg<EffectId::Deblocking> {
    bool CreateControls() override {
        if (!AddEnable() || !AddLabel(m_algorithmLabel, L"Deblocking Algorithm:") ||
            !m_algorithm.Create(this, CRect(0, 0, 0, 0), 12)) {
            return false;
        }
        AddControl(m_algorithm, L"Select one of the supported deblocking algorithms.");
        m_algorithm.AddString(L"Two Line Algorithm");
        m_algorithm.AddString(L"Four Line Algorithm");
        m_algorithm.SetCurrentIndex(m_settings->algorithm);
        Bind(&DeblockingSettings::algorithm,
             {.get = [this] { return m_algorithm.CurrentIndex(); },
              .set = [this](int index) { m_algorithm.SetCurrentIndex(index); },
              .enable = [this](bool on) { m_algorithm.SetEnabled(on); },
              .control = &m_algorithm});
        return AddLabel(m_offsetLabel, L"First Block Offset:") && AddLabel(m_xLabel, L"X") &&
               AddLabel(m_yLabel, L"Y") && AddLabel(m_sizeLabel, L"Block Size:") && AddLabel(m_widthLabel, L"Width") &&
               AddLabel(m_heightLabel, L"Height") &&
               AddNumberEdit(m_offsetX, &DeblockingSettings::blockOffsetX, 13,
                             L"Offset from the beginning of the sample buffer to the actual horizontal start.") &&
               AddNumberEdit(m_offsetY, &DeblockingSettings::blockOffsetY, 14,
                             L"Offset from the beginning of the sample buffer to the actual vertical start.") &&
               AddNumberEdit(m_width, &DeblockingSettings::blockWidth, 15, L"The expected block width.") &&
               AddNumberEdit(m_height, &DeblockingSettings::blockHeight, 16, L"The expected block height.") &&
               AddSlider(m_edgeThreshold, &DeblockingSettings::edgeThreshold,
                         {17, L"Edge Threshold(Preserve to Smooth):", 0, 255,
                          L"A value of 0 preserves all the edges in the original video, while a value of 255 "
                          L"will smooth all the edges."});
    }

    void LayoutControls() override {
        CEffectDlg::LayoutControls();
        m_algorithmLabel.SetRect(At(20, 320, 150));
        m_algorithm.SetRect(At(170, 320, 180));
        m_offsetLabel.SetRect(At(20, 350, 120));
        m_xLabel.SetRect(At(150, 350, 20));
        m_offsetX.SetRect(At(170, 350, 40));
        m_yLabel.SetRect(At(290, 350, 20));
        m_offsetY.SetRect(At(310, 350, 40));
        m_sizeLabel.SetRect(At(20, 380, 100));
        m_widthLabel.SetRect(At(130, 380, 40));
        m_width.SetRect(At(170, 380, 40));
        m_heightLabel.SetRect(At(260, 380, 50));
        m_height.SetRect(At(310, 380, 40));
        m_edgeThreshold.Place({.label = At(20, 410, 300), .slider = At(20, 435, 400), .number = At(430, 435, 50)});
        m_helpRect = HelpRectBelow(465);
    }

    void SyncControls() override {
        CEffectDlg::SyncControls();
        m_edgeThreshold.Enable(m_enable.IsChecked() && UsesThreshold());
    }

    void OnPicked(const void* list) override {
        if (list != &m_algorithm) return;
        m_edgeThreshold.Enable(UsesThreshold());
        ApplyToFilter();
    }

    void ApplyToFilter() override {
        Put(&IEffectDeblocking::put_Enable, m_enable);
        Put(&IEffectDeblocking::put_Algorithm, m_algorithm.CurrentIndex());
        Put(&IEffectDeblocking::put_BlockOffsetX, ScaleToFrame(m_offsetX.Value(), m_video.cx, m_frame.cx));
        Put(&IEffectDeblocking::put_BlockOffsetY, ScaleToFrame(m_offsetY.Value(), m_video.cy, m_frame.cy));
        Put(&IEffectDeblocking::put_BlockWidth, ScaleToFrame(m_width.Value(), m_video.cx, m_frame.cx));
        Put(&IEffectDeblocking::put_BlockHeight, ScaleToFrame(m_height.Value(), m_video.cy, m_frame.cy));
        Put(&IEffectDeblocking::put_EdgeThreshold, m_edgeThreshold);
    }

    /// The threshold applies to the four-line algorithm alone.
    bool UsesThreshold() const { return m_algorithm.CurrentIndex() == 1; }

    CSkinStatic m_algorithmLabel;
    CVelComboListBox m_algorithm;
    CSkinStatic m_offsetLabel;
    CSkinStatic m_xLabel;
    CNumberEdit m_offsetX;
    CSkinStatic m_yLabel;
    CNumberEdit m_offsetY;
    CSkinStatic m_sizeLabel;
    CSkinStatic m_widthLabel;
    CNumberEdit m_width;
    CSkinStatic m_heightLabel;
    CNumberEdit m_height;
    CValueSlider m_edgeThreshold;
};

}  // namespace

const EffectInfo EffectTraits<EffectId::Deblocking>::kInfo = {
    L"Deblocking Settings", 500, 580, L"Enable Video Deblocking Effect, will performs deblocking on the video."};
std::unique_ptr<CDialog> MakeDeblockingDlg() { return std::make_unique<CDeblockingDlg>(); }
