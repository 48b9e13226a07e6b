#include "effects/effect_dialogs.h"

#include "effects/effect_dlg.h"
#include "effects/effect_makers.h"

namespace {

/// An effect whose own controls do not exist yet: frame, preview and filter link only.
class CBareEffectDlg : public CEffectDlg<IUnknown, const EffectSettingsRecord> {
public:
    explicit CBareEffectDlg(EffectId id) : CEffectDlg(id) {}
};

}  // namespace

std::unique_ptr<CDialog> MakeEffectDialog(EffectId id) {
    switch (id) {
        case EffectId::AutoContrast:
            return MakeAutoContrastDlg();
        case EffectId::AutoIntensity:
            return MakeAutoIntensityDlg();
        case EffectId::AutoLevel:
            return MakeAutoLevelDlg();
        case EffectId::Brightness:
            return MakeBrightnessDlg();
        case EffectId::Deblocking:
            return MakeDeblockingDlg();
        case EffectId::EdgeEnhance:
            return MakeEdgeEnhanceDlg();
        case EffectId::Fire:
            return MakeFireDlg();
        case EffectId::Hologram:
            return MakeHologramDlg();
        case EffectId::Lightning:
            return MakeLightningDlg();
        case EffectId::MotionBlur:
            return MakeMotionBlurDlg();
        case EffectId::MotionEmboss:
            return MakeMotionEmbossDlg();
        case EffectId::MotionMosaic:
            return MakeMotionMosaicDlg();
        case EffectId::Particles:
            return MakeParticlesDlg();
        case EffectId::Streak:
            return MakeStreakDlg();
        case EffectId::Wave:
            return MakeWaveDlg();
        case EffectId::GammaCorrection:
            return MakeGammaCorrectionDlg();
        case EffectId::UnsharpMask:
            return MakeUnsharpMaskDlg();
        case EffectId::VideoRotation:
            return MakeVideoRotationDlg();
        case EffectId::AudioChorus:
            return MakeAudioChorusDlg();
        default:
            return std::make_unique<CBareEffectDlg>(id);
    }
}
