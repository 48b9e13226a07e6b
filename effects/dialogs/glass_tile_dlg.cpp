// Glass Tile: the picture behind stained glass.
#include "effects/parts/area_dlg.h"

namespace {

class CGlassTileDlg : public CAreaDlg<EffectId::GlassTile> {
    bool CreateControls() override {
        return AddEnable() &&
               AddSlider(m_tileWidth, &GlassTileSettings::tileWidth,
                         {11, L"Tile Width(%d-%d):", 2, 50, L"Controls the width of the glass tiles, in pixels."}) &&
               AddSlider(m_tileHeight, &GlassTileSettings::tileHeight,
                         {12, L"Tile Height(%d-%d):", 2, 50, L"Controls the height of the glass tiles, in pixels."}) &&
               AddSlider(m_refraction, &GlassTileSettings::refraction,
                         {13, L"Refraction(%d-%d):", 2, 10,
                          L"Controls how strongly the glass bends the light. Higher values result in more "
                          L"distortion."}) &&
               AddArea();
    }

    void LayoutControls() override {
        CAreaDlg::LayoutControls();
        m_tileWidth.Place(Row(320));
        m_tileHeight.Place(Row(345));
        m_refraction.Place(Row(370));
        PlaceArea(400);
    }

    void ApplyToFilter() override {
        Put(&IEffectGlassTile::put_Enable, m_enable);
        Put(&IEffectGlassTile::put_TileWidth, m_tileWidth);
        Put(&IEffectGlassTile::put_TileHeight, m_tileHeight);
        Put(&IEffectGlassTile::put_Refraction, m_refraction);
        // With an invalid area this filter gets no switch at all, on purpose.
        PutArea(InvalidArea::SendAsIs, AreaSwitch::BeforeValidEdgesOnly);
    }

    CValueSlider m_tileWidth;
    CValueSlider m_tileHeight;
    CValueSlider m_refraction;
};

}  // namespace

const EffectInfo EffectTraits<EffectId::GlassTile>::kInfo = {
    L"Glass Tile Settings", 500, 560,
    L"Enable Video Glass Tile Effect, will create a stained glass effect on the video."};
std::unique_ptr<CDialog> MakeGlassTileDlg() { return std::make_unique<CGlassTileDlg>(); }
