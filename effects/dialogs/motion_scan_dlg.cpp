// Motion Scan: one line per frame is scanned and drawn.
#include <algorithm>

#include "effects/parts/area_dlg.h"

namespace {

class CMotionScanDlg : public CAreaDlg<EffectId::MotionScan> {
    bool CreateControls() override {
        const int mostLines = (std::max)(m_video.cy, 2L) - 1;  // One position at least, whatever the video's size.
        return AddEnable() &&
               AddSlider(m_lineIncrement, &MotionScanSettings::lineIncrement,
                         {11, L"Line Increment(%d - %d):", 1, mostLines,
                          L"Controls how many lines the scan moves on from frame to frame."}) &&
               AddCheckBox(m_showScanLine, &MotionScanSettings::showScanLine,
                           {14, L"Show scan line", L"If checked, the line that is scanned is shown on the video."}) &&
               AddArea();
    }

    void LayoutControls() override {
        CAreaDlg::LayoutControls();
        m_lineIncrement.Place(Row(320));
        m_showScanLine.SetRect(At(20, 346, 200));
        PlaceArea(374);
    }

    void ApplyToFilter() override {
        Put(&IEffectMotionScan::put_Enable, m_enable);
        Put(&IEffectMotionScan::put_ShowScanLine, m_showScanLine);
        Put(&IEffectMotionScan::put_LineIncrement, m_lineIncrement);
        PutArea(InvalidArea::SendAsIs, AreaSwitch::BeforeEdges);
    }

    CValueSlider m_lineIncrement;
    CSkinCheckBox m_showScanLine;
};

}  // namespace

const EffectInfo EffectTraits<EffectId::MotionScan>::kInfo = {
    L"Motion Scan Settings", 500, 540,
    L"Enable Video Motion Scan Effect, will scan one line per frame and draw it to the destination on the "
    L"video."};
std::unique_ptr<CDialog> MakeMotionScanDlg() { return std::make_unique<CMotionScanDlg>(); }
