// Dizzy: frames that rotate, zoom and blur.
#include "effects/parts/area_dlg.h"

namespace {

class CDizzyDlg : public CAreaDlg<EffectId::Dizzy> {
    bool CreateControls() override {
        return AddSlider(&Settings::zoomLevel, Row(320),
                         {11, L"Zoom Level(%d-%d):", kDizzyZoomLevel,
                          L"Controls how far the frames are zoomed. Higher values result in a stronger zoom."}) &&
               AddSlider(&Settings::rotationSpeed, Row(345),
                         {12, L"Rotation Speed(%d-%d):", kDizzyRotationSpeed,
                          L"Controls how fast the frames rotate. Higher values result in a faster rotation."}) &&
               AddArea(375);
    }
};

}  // namespace

const EffectInfo EffectTraits<EffectId::Dizzy>::kInfo = {
    L"Dizzy Settings", 500, 585, 457,
    L"Enable Video Dizzy Effect, will rotates, zooms and blurs video frames to create a dizziness-like "
    L"effect."};
std::unique_ptr<CDialog> MakeDizzyDlg() { return std::make_unique<CDizzyDlg>(); }
