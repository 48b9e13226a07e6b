// Emboss: whole frames are embossed or become a bump map.
#include "effects/parts/area_dlg.h"
#include "effects/parts/embossing_dlg.h"

namespace {

class CEmbossDlg : public CEmbossingDlg<CAreaDlg<EffectId::Emboss>> {
    bool CreateControls() override {
        return AddLightAndDepth(11, {Row(320), Row(345), Row(370)}) &&
               AddMode(&Settings::emboss, {{20, 396}, {130, 130}}, 14) && AddArea(424);
    }
};

}  // namespace

const EffectInfo EffectTraits<EffectId::Emboss>::kInfo = {
    L"Emboss Settings", 500, 600, 506, L"Enable Video Emboss Effect."};
std::unique_ptr<CDialog> MakeEmbossDlg() { return std::make_unique<CEmbossDlg>(); }
