#include "effects/effect_dialogs.h"

#include "effects/effect_dlg.h"
#include "effects/effect_makers.h"

namespace {

/// An effect whose own controls do not exist yet: frame, preview and filter link only.
class CBareEffectDlg : public CEffectDlg<IUnknown, const EffectSettingsRecord> {
public:
    explicit CBareEffectDlg(EffectId id) : CEffectDlg(id, {.previewId = id == EffectId::AudioChorus ? 21U : 11U}) {}
};

}  // namespace

std::unique_ptr<CDialog> MakeEffectDialog(EffectId id) {
    switch (id) {
        case EffectId::GammaCorrection:
            return MakeGammaCorrectionDlg();
        default:
            return std::make_unique<CBareEffectDlg>(id);
    }
}
