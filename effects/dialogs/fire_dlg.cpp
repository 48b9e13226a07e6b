// Fire: flames around what moves, in the directions of a compass.
#include <algorithm>
#include <array>

#include "effects/parts/motion_dlg.h"

namespace {

struct Direction {
    FlameDirection bit;
    UINT id;
    LPCWSTR caption;
    int x;
    int y;
    LPCWSTR help;
};

// A compass, with the glow in its middle.
constexpr std::array<Direction, 9> kDirections = {{
    {kFlameNorthWest, 20, L"NW", 30, 451, L"Flames to the North-West."},
    {kFlameWest, 21, L"W", 30, 481, L"Flames to the West."},
    {kFlameSouthWest, 22, L"SW", 30, 511, L"Flames to the South-West."},
    {kFlameNorth, 23, L"N", 80, 451, L"Flames to the North."},
    {kFlameGlow, 24, L"G", 80, 481, L"Flames all around the object, giving a glowing effect."},
    {kFlameSouth, 25, L"S", 80, 511, L"Flames to the South."},
    {kFlameNorthEast, 26, L"NE", 130, 451, L"Flames to the North-East."},
    {kFlameEast, 27, L"E", 130, 481, L"Flames to the East."},
    {kFlameSouthEast, 29, L"SE", 130, 511, L"Flames to the South-East."},
}};

class CFireDlg : public CMotionDlg<EffectId::Fire> {
    bool CreateControls() override {
        return AddSlider(&Settings::gradientLevel, Row(320, 150),
                         {15, L"Gradient Level(%d - %d):", kFireGradientLevel,
                          L"A percentage value that controls the colors graduation. For example 0 will result in "
                          L"a very small number of colors used to draw the flame. Higher values result in more "
                          L"colors used to draw the flames gradient color."}) &&
               AddSlider(&Settings::colorsOffset, Row(345, 150),
                         {16, L"Colors Offset(%d - %d):", kFireColorsOffset,
                          L"Changes the colors used in generating the fire flames to another set of colors."}) &&
               AddSlider(&Settings::decay, Row(370),
                         {18, L"Decay(%d - %d):", kFireDecay,
                          L"Controls the spread and height of the flames. A lower decay value will "
                          L"result in a greater spread of fire and higher flames."}) &&
               AddThreshold(
                   Row(395), kFireThreshold,
                   L"Value used to control an object's detection level. A lower threshold provides stronger object "
                   L"detection. ") &&
               AddNoReference(At(300, 486, 140)) && AddFirstFrame(At(300, 511, 180)) &&
               AddCheckBox(&Settings::showBackground, At(300, 461, 140),
                           {17, L"Show background",
                            L"If checked, the background of the moving object will be "
                            L"displayed. Otherwise, a black background is displayed."}) &&
               AddCheckBox(&Settings::entireObject, At(300, 436, 50),
                           {19, L"Fire", L"If checked, the entire object will be covered in flames."}) &&
               AddText(At(20, 426, 150), L"Flame Direction:") && AddDirections();
    }

    bool AddDirections() {
        SetDirections(m_settings->flameDirection);
        Bind(&Settings::flameDirection,
             {.get = [this] { return Directions(); },
              .set = [this](int bits) { SetDirections(bits); },
              .enable =
                  [this](bool on) {
                      for (CSkinCheckBox& direction : m_directions) direction.SetEnabled(on);
                  }});
        for (std::size_t index = 0; index < kDirections.size(); ++index) {
            const Direction& direction = kDirections[index];
            HearClicks(direction.id, Of(&Settings::flameDirection));
            if (!AddItem(m_directions[index], direction.caption, direction.id, direction.help,
                         At(direction.x, direction.y, 40))) {
                return false;
            }
        }
        return true;
    }

    void OnClicked(UINT id) override {
        const auto clicked = std::find_if(
            kDirections.begin(), kDirections.end(), [id](const Direction& direction) { return direction.id == id; });
        // There is no fire without a direction: the last one that goes turns into a glow.
        if (clicked != kDirections.end() && Directions() == 0) SetDirections(kFlameGlow);
        CMotionDlg::OnClicked(id);
    }

    int Directions() const {
        int bits = 0;
        for (std::size_t index = 0; index < kDirections.size(); ++index) {
            if (m_directions[index].IsChecked()) bits |= kDirections[index].bit;
        }
        return bits;
    }

    void SetDirections(int bits) {
        for (std::size_t index = 0; index < kDirections.size(); ++index) {
            m_directions[index].SetChecked((bits & kDirections[index].bit) != 0);
        }
    }

    std::array<CSkinCheckBox, kDirections.size()> m_directions;
};

}  // namespace

const EffectInfo EffectTraits<EffectId::Fire>::kInfo = {
    L"Fire Settings", 560, 645, 541,
    L"Enable Video Fire Effect, will draws flames around a moving object on the video."};
std::unique_ptr<CDialog> MakeFireDlg() { return std::make_unique<CFireDlg>(); }
