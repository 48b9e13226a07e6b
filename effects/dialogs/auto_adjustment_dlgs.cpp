// Auto Contrast, Auto Intensity and Auto Level: a switch and nothing more.
#include "effects/parts/effect_dlg.h"

namespace {

template <EffectId Id>
class CAutoAdjustmentDlg : public CEffectDlg<Id> {
    void ResetToDefaults() override {}  // The switch stays as the user left it.
};

}  // namespace

const EffectInfo EffectTraits<EffectId::AutoContrast>::kInfo = {
    L"Auto Contrast Setting", 500, 420, 325,
    L"Enable Auto Contrast Effect, will performs color leveling at the luminance (grayscale) level, makes "
    L"the dark values darker and the light values lighter, which automatically enhances shadows and "
    L"brightens."};
std::unique_ptr<CDialog> MakeAutoContrastDlg() {
    return std::make_unique<CAutoAdjustmentDlg<EffectId::AutoContrast>>();
}
const EffectInfo EffectTraits<EffectId::AutoIntensity>::kInfo = {
    L"Auto Intensity Setting", 500, 430, 325,
    L"Enable Auto Intensity Effect, will performs color leveling on the RGB channel(the sum of the R, G, "
    L"and B channels), makes the dark values darker and the light values lighter, which automatically "
    L"enhances shadows and brightens."};
std::unique_ptr<CDialog> MakeAutoIntensityDlg() {
    return std::make_unique<CAutoAdjustmentDlg<EffectId::AutoIntensity>>();
}
const EffectInfo EffectTraits<EffectId::AutoLevel>::kInfo = {
    L"Auto Level Setting", 500, 430, 325,
    L"Enable Auto Level Effect, will performs color leveling on the individual R, G and B channels, "
    L"treating each of the R, G and B channels as a separate entity, makes the dark values darker and the "
    L"light values lighter, which automatically enhances shadows and brightens."};
std::unique_ptr<CDialog> MakeAutoLevelDlg() { return std::make_unique<CAutoAdjustmentDlg<EffectId::AutoLevel>>(); }
