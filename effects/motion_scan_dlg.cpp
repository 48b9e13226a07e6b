// Motion Scan: one line per frame is scanned and drawn.
#include <algorithm>

#include "effects/area_dlg.h"
#include "effects/effect_makers.h"

namespace {

class CMotionScanDlg : public CAreaDlg<IEffectMotionScan, MotionScanSettings> {
public:
    CMotionScanDlg() : CAreaDlg(EffectId::MotionScan) {}

private:
    bool CreateControls() override {
        const int mostLines = (std::max)(g_VideoHeight, 2) - 1;  // One position at least, whatever the video's size.
        CString label;
        label.Format(L"Line Increment(1 - %d):", mostLines);
        return AddEnable(m_settings->enabled) &&
               AddSlider(m_lineIncrement,
                         {.id = 11,
                          .label = label,
                          .min = 1,
                          .max = mostLines,
                          .field = &m_settings->lineIncrement,
                          .standard = 1,
                          .help = L"Controls how many lines the scan moves on from frame to frame."}) &&
               AddCheckBox(m_showScanLine, {.id = 14,
                                            .text = L"Show scan line",
                                            .field = &m_settings->showScanLine,
                                            .standard = 1,
                                            .help = L"If checked, the line that is scanned is shown on the video."}) &&
               AddArea();
    }

    void LayoutControls() override {
        CAreaDlg::LayoutControls();
        m_lineIncrement.Place(Row(320));
        m_showScanLine.SetRect(At(20, 346, 200));
        PlaceArea(374);
    }

    void ApplyToFilter() override {
        Put(&IEffectMotionScan::put_Enable, AutomationBool(m_enable));
        Put(&IEffectMotionScan::put_ShowScanLine, AutomationBool(m_showScanLine));
        Put(&IEffectMotionScan::put_LineIncrement, m_lineIncrement.Value());
        PutArea(InvalidArea::SendAsIs, AreaSwitch::BeforeEdges);
    }

    CValueSlider m_lineIncrement;
    CSkinCheckBox m_showScanLine;
};

}  // namespace

std::unique_ptr<CDialog> MakeMotionScanDlg() { return std::make_unique<CMotionScanDlg>(); }
