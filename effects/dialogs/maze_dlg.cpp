// Maze: the picture as a crystal maze.
#include "effects/parts/area_dlg.h"

namespace {

class CMazeDlg : public CAreaDlg<EffectId::Maze> {
    bool CreateControls() override {
        return AddSlider(
                   &Settings::divisions, Row(320),
                   {11, L"Divisions(%d-%d):", kMazeDivisions, L"Controls the number of divisions of the maze."}) &&
               AddRadioPair(&Settings::breakKind, {{20, 346}, {130, 130}},
                            {{14, 0, L"Center break", L"If selected, the maze breaks up from the center of the frame."},
                             {15, 1, L"Distorted break", L"If selected, the maze breaks up in a distorted way."}}) &&
               AddArea(374);
    }
};

}  // namespace

const EffectInfo EffectTraits<EffectId::Maze>::kInfo = {
    L"Maze Settings", 500, 540, 456, L"Enable Video Maze Effect, will distorts the video into a crystal maze."};
std::unique_ptr<CDialog> MakeMazeDlg() { return std::make_unique<CMazeDlg>(); }
