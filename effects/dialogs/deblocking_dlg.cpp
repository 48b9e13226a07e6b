// Deblocking: which algorithm smooths the edges of blocks, where they lie and how strongly.
#include "effects/parts/effect_dlg.h"
#include "skin/combo_list_box.h"

namespace {

class CDeblockingDlg : public CEffectDlg<EffectId::Deblocking> {
    bool CreateControls() override {
        return AddText(At(20, 320, 150), L"Deblocking Algorithm:") && AddAlgorithm() &&
               AddText(At(20, 350, 120), L"First Block Offset:") && AddText(At(150, 350, 20), L"X") &&
               AddText(At(290, 350, 20), L"Y") && AddText(At(20, 380, 100), L"Block Size:") &&
               AddText(At(130, 380, 40), L"Width") && AddText(At(260, 380, 50), L"Height") &&
               AddNumberEdit(&Settings::blockWidth, At(170, 380, 40), 15, L"The expected block width.") &&
               AddNumberEdit(&Settings::blockHeight, At(310, 380, 40), 16, L"The expected block height.") &&
               AddNumberEdit(&Settings::blockOffsetX, At(170, 350, 40), 13,
                             L"Offset from the beginning of the sample buffer to the actual horizontal start.") &&
               AddNumberEdit(&Settings::blockOffsetY, At(310, 350, 40), 14,
                             L"Offset from the beginning of the sample buffer to the actual vertical start.") &&
               // The threshold applies to the four-line algorithm alone.
               AddSlider(&Settings::edgeThreshold, {At(20, 410, 300), At(20, 435, 400), At(430, 435, 50)},
                         {17, L"Edge Threshold(Preserve to Smooth):", kDeblockingEdgeThreshold,
                          L"A value of 0 preserves all the edges in the original video, while a value of 255 "
                          L"will smooth all the edges."},
                         {{&Settings::algorithm, 1}});
    }

    bool AddAlgorithm() {
        if (!m_algorithm.Create(this, kNoPlace, 12)) return false;
        AddControl(m_algorithm, L"Select one of the supported deblocking algorithms.", At(170, 320, 180));
        m_algorithm.AddString(L"Two Line Algorithm");
        m_algorithm.AddString(L"Four Line Algorithm");
        m_algorithm.SetCurrentIndex(m_settings->algorithm);
        Bind(&Settings::algorithm,
             {.get = [this] { return m_algorithm.CurrentIndex(); },
              .set = [this](int index) { m_algorithm.SetCurrentIndex(index); },
              .enable = [this](bool on) { m_algorithm.SetEnabled(on); },
              .control = &m_algorithm});
        return true;
    }

    void OnPicked(const void* list) override {
        if (list != &m_algorithm) return;
        FollowNeedsOf(m_settings->algorithm);
        ApplyToFilter();
    }

    std::vector<const std::int32_t*> FirstDefaults() const override {
        return {&m_settings->enabled,      &m_settings->algorithm,  &m_settings->blockOffsetX,
                &m_settings->blockOffsetY, &m_settings->blockWidth, &m_settings->blockHeight};
    }

    CVelComboListBox m_algorithm;
};

}  // namespace

const EffectInfo EffectTraits<EffectId::Deblocking>::kInfo = {
    L"Deblocking Settings", 500, 580, 465, L"Enable Video Deblocking Effect, will performs deblocking on the video."};
std::unique_ptr<CDialog> MakeDeblockingDlg() { return std::make_unique<CDeblockingDlg>(); }
