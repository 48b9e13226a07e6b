// Maze: the picture as a crystal maze.
#include "effects/area_dlg.h"
#include "effects/effect_makers.h"

namespace {

class CMazeDlg : public CAreaDlg<IEffectMaze, MazeSettings> {
public:
    CMazeDlg() : CAreaDlg(EffectId::Maze) {}

private:
    bool CreateControls() override {
        return AddEnable(m_settings->enabled) &&
               AddSlider(m_divisions,
                         {.id = 11,
                          .label = L"Divisions(0-64):",
                          .min = 0,
                          .max = 64,
                          .field = &m_settings->divisions,
                          .standard = 8,
                          .help = L"Controls the number of divisions of the maze."}) &&
               AddRadioGroup(
                   m_breakKind,
                   {.field = &m_settings->breakKind,
                    .value = m_settings->breakKind != 0,
                    .standard = 0,
                    .choices =
                        {{14, 0, L"Center break", L"If selected, the maze breaks up from the center of the frame."},
                         {15, 1, L"Distorted break", L"If selected, the maze breaks up in a distorted way."}}}) &&
               AddArea();
    }

    void LayoutControls() override {
        CAreaDlg::LayoutControls();
        m_divisions.Place(Row(320));
        m_breakKind.Place({20, 346}, {130, 130});
        PlaceArea(374);
    }

    void ApplyToFilter() override {
        Put(&IEffectMaze::put_Enable, AutomationBool(m_enable));
        Put(&IEffectMaze::put_Divisions, m_divisions.Value());
        Put(&IEffectMaze::put_BreakKind, m_breakKind.Value().value_or(0));
        // With an invalid area this filter gets no switch at all, on purpose.
        PutArea(InvalidArea::SendAsIs, AreaSwitch::BeforeValidEdgesOnly);
    }

    CValueSlider m_divisions;
    CRadioGroup m_breakKind;
};

}  // namespace

std::unique_ptr<CDialog> MakeMazeDlg() { return std::make_unique<CMazeDlg>(); }
