// Fire: flames around what moves, in the directions of a compass.
#include <algorithm>
#include <array>

#include "effects/effect_makers.h"
#include "effects/motion_dlg.h"

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

class CFireDlg : public CMotionDlg<IEffectFire, FireSettings> {
public:
    CFireDlg() : CMotionDlg(EffectId::Fire) {}

private:
    bool CreateControls() override {
        SetDirections(m_settings->flameDirection);
        return AddEnable(m_settings->enabled) &&
               AddSlider(
                   m_gradientLevel,
                   {.id = 15,
                    .label = L"Gradient Level(0 - 100):",
                    .min = 0,
                    .max = 100,
                    .field = &m_settings->gradientLevel,
                    .standard = 50,
                    .help = L"A percentage value that controls the colors graduation. For example 0 will result in "
                            L"a very small number of colors used to draw the flame. Higher values result in more "
                            L"colors used to draw the flames gradient color."}) &&
               AddSlider(
                   m_colorsOffset,
                   {.id = 16,
                    .label = L"Colors Offset(0 - 1000):",
                    .min = 0,
                    .max = 1000,
                    .field = &m_settings->colorsOffset,
                    .standard = 660,
                    .help = L"Changes the colors used in generating the fire flames to another set of colors."}) &&
               AddSlider(m_decay, {.id = 18,
                                   .label = L"Decay(1 - 100):",
                                   .min = 1,
                                   .max = 100,
                                   .field = &m_settings->decay,
                                   .standard = 15,
                                   .help = L"Controls the spread and height of the flames. A lower decay value will "
                                           L"result in a greater spread of fire and higher flames."}) &&
               AddThreshold(
                   L"Value used to control an object's detection level. A lower threshold provides stronger object "
                   L"detection. ") &&
               AddNoReference() && AddFirstFrame() &&
               AddCheckBox(m_showBackground,
                           {.id = 17,
                            .text = L"Show background",
                            .field = &m_settings->showBackground,
                            .standard = 0,
                            .help = L"If checked, the background of the moving object will be "
                                    L"displayed. Otherwise, a black background is displayed."}) &&
               AddCheckBox(m_entireObject, {.id = 19,
                                            .text = L"Fire",
                                            .field = &m_settings->entireObject,
                                            .standard = 1,
                                            .help = L"If checked, the entire object will be covered in flames."}) &&
               AddLabel(m_directionLabel, L"Flame Direction:") && AddDirections();
    }

    bool AddDirections() {
        for (std::size_t index = 0; index < kDirections.size(); ++index) {
            const Direction& direction = kDirections[index];
            Hear(direction.id);
            if (!AddItem(m_directions[index], direction.caption, direction.id, direction.help)) return false;
        }
        return true;
    }

    void LayoutControls() override {
        CMotionDlg::LayoutControls();
        m_gradientLevel.Place(Row(320, 150));
        m_colorsOffset.Place(Row(345, 150));
        m_decay.Place(Row(370));
        m_threshold.Place(Row(395));
        m_directionLabel.SetRect(At(20, 426, 150));
        for (std::size_t index = 0; index < kDirections.size(); ++index) {
            m_directions[index].SetRect(At(kDirections[index].x, kDirections[index].y, 40));
        }
        m_entireObject.SetRect(At(kRightColumn, 436, 50));
        m_showBackground.SetRect(At(kRightColumn, 461, 140));
        m_noReference.SetRect(At(kRightColumn, 486, 140));
        m_firstFrame.SetRect(At(kRightColumn, 511, 180));
        m_helpRect = HelpRectBelow(541);
    }

    void SyncControls() override {
        CMotionDlg::SyncControls();
        for (CSkinCheckBox& direction : m_directions) direction.SetEnabled(m_enable.IsChecked());
    }

    void OnClicked(UINT id) override {
        const auto clicked = std::find_if(
            kDirections.begin(), kDirections.end(), [id](const Direction& direction) { return direction.id == id; });
        // There is no fire without a direction: the last one that goes turns into a glow.
        if (clicked != kDirections.end() && Directions() == 0) SetDirections(kFlameGlow);
        CMotionDlg::OnClicked(id);
    }

    void ApplyToFilter() override {
        Put(&IEffectFire::put_Enable, AutomationBool(m_enable));
        Put(&IEffectFire::put_GradientLevel, m_gradientLevel.Value());
        Put(&IEffectFire::put_ColorsOffset, m_colorsOffset.Value());
        Put(&IEffectFire::put_Decay, m_decay.Value());
        Put(&IEffectFire::put_Threshold, m_threshold.Value());
        Put(&IEffectFire::put_FlameDirection, Directions());
        Put(&IEffectFire::put_EntireObject, AutomationBool(m_entireObject));
        Put(&IEffectFire::put_ShowBackground, AutomationBool(m_showBackground));
        PutReference();
    }

    void SaveSettings() override {
        CMotionDlg::SaveSettings();
        m_settings->flameDirection = Directions();
    }

    void SetDefaults() override {
        CMotionDlg::SetDefaults();
        SetDirections(kFlameNorth);
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

    static constexpr int kRightColumn = 300;

    CValueSlider m_gradientLevel;
    CValueSlider m_colorsOffset;
    CValueSlider m_decay;
    CSkinStatic m_directionLabel;
    std::array<CSkinCheckBox, kDirections.size()> m_directions;
    CSkinCheckBox m_entireObject;
    CSkinCheckBox m_showBackground;
};

}  // namespace

std::unique_ptr<CDialog> MakeFireDlg() { return std::make_unique<CFireDlg>(); }
