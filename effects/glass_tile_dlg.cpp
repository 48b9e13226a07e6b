// Glass Tile: the picture behind stained glass.
#include "effects/area_dlg.h"
#include "effects/effect_makers.h"

namespace {

class CGlassTileDlg : public CAreaDlg<IEffectGlassTile, GlassTileSettings> {
public:
    CGlassTileDlg() : CAreaDlg(EffectId::GlassTile) {}

private:
    bool CreateControls() override {
        return AddEnable(m_settings->enabled) &&
               AddSlider(m_tileWidth,
                         {.id = 11,
                          .label = L"Tile Width(2-50):",
                          .min = 2,
                          .max = 50,
                          .field = &m_settings->tileWidth,
                          .standard = 20,
                          .help = L"Controls the width of the glass tiles, in pixels."}) &&
               AddSlider(m_tileHeight,
                         {.id = 12,
                          .label = L"Tile Height(2-50):",
                          .min = 2,
                          .max = 50,
                          .field = &m_settings->tileHeight,
                          .standard = 20,
                          .help = L"Controls the height of the glass tiles, in pixels."}) &&
               AddSlider(m_refraction,
                         {.id = 13,
                          .label = L"Refraction(2-10):",
                          .min = 2,
                          .max = 10,
                          .field = &m_settings->refraction,
                          .standard = 2,
                          .help = L"Controls how strongly the glass bends the light. Higher values result in more "
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
        Put(&IEffectGlassTile::put_Enable, AutomationBool(m_enable));
        Put(&IEffectGlassTile::put_TileWidth, m_tileWidth.Value());
        Put(&IEffectGlassTile::put_TileHeight, m_tileHeight.Value());
        Put(&IEffectGlassTile::put_Refraction, m_refraction.Value());
        // With an invalid area this filter gets no switch at all, on purpose.
        PutArea(InvalidArea::SendAsIs, AreaSwitch::BeforeValidEdgesOnly);
    }

    CValueSlider m_tileWidth;
    CValueSlider m_tileHeight;
    CValueSlider m_refraction;
};

}  // namespace

std::unique_ptr<CDialog> MakeGlassTileDlg() { return std::make_unique<CGlassTileDlg>(); }
