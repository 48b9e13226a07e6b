// Maze: the picture as a crystal maze.
#include "effects/parts/area_dlg.h"

namespace {

class CMazeDlg : public CAreaDlg<EffectId::Maze> {
    bool CreateControls() override {
        return AddEnable() &&
               AddSlider(m_divisions, &MazeSettings::divisions,
                         {11, L"Divisions(%d-%d):", 0, 64, L"Controls the number of divisions of the maze."}) &&
               AddRadioPair(m_breakKind, &MazeSettings::breakKind,
                            {{14, 0, L"Center break", L"If selected, the maze breaks up from the center of the frame."},
                             {15, 1, L"Distorted break", L"If selected, the maze breaks up in a distorted way."}}) &&
               AddArea();
    }

    void LayoutControls() override {
        CAreaDlg::LayoutControls();
        m_divisions.Place(Row(320));
        m_breakKind.Place({20, 346}, {130, 130});
        PlaceArea(374);
    }

    void ApplyToFilter() override {
        Put(&IEffectMaze::put_Enable, m_enable);
        Put(&IEffectMaze::put_Divisions, m_divisions);
        Put(&IEffectMaze::put_BreakKind, m_breakKind.Value().value_or(0));
        // With an invalid area this filter gets no switch at all, on purpose.
        PutArea(InvalidArea::SendAsIs, AreaSwitch::BeforeValidEdgesOnly);
    }

    CValueSlider m_divisions;
    CRadioGroup m_breakKind;
};

}  // namespace

const EffectInfo EffectTraits<EffectId::Maze>::kInfo = {
    L"Maze Settings", 500, 540, L"Enable Video Maze Effect, will distorts the video into a crystal maze."};
std::unique_ptr<CDialog> MakeMazeDlg() { return std::make_unique<CMazeDlg>(); }
