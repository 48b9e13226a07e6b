// Glass Tile: the picture behind stained glass.
#include "effects/parts/area_dlg.h"

namespace {

class CGlassTileDlg : public CAreaDlg<EffectId::GlassTile> {
    bool CreateControls() override {
        return AddSlider(&Settings::tileWidth, Row(320),
                         {11, L"Tile Width(%d-%d):", kGlassTileWidth,
                          L"Controls the width of the glass tiles, in pixels."}) &&
               AddSlider(&Settings::tileHeight, Row(345),
                         {12, L"Tile Height(%d-%d):", kGlassTileHeight,
                          L"Controls the height of the glass tiles, in pixels."}) &&
               AddSlider(&Settings::refraction, Row(370),
                         {13, L"Refraction(%d-%d):", kGlassTileRefraction,
                          L"Controls how strongly the glass bends the light. Higher values result in more "
                          L"distortion."}) &&
               AddArea(400);
    }
};

}  // namespace

const EffectInfo EffectTraits<EffectId::GlassTile>::kInfo = {
    L"Glass Tile Settings", 500, 560, 482,
    L"Enable Video Glass Tile Effect, will create a stained glass effect on the video."};
std::unique_ptr<CDialog> MakeGlassTileDlg() { return std::make_unique<CGlassTileDlg>(); }
