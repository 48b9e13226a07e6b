#include "effects/parts/area_controls.h"

namespace {

struct EdgeSetup {
    LPCWSTR label;
    int labelWidth;
    LPCWSTR help;
    LONG RECT::*edge;
};

constexpr std::array<EdgeSetup, 4> kEdges = {{
    {L"Left", 30, L"Left boundary of the effect area.", &RECT::left},
    {L"Top", 30, L"Top boundary of the effect area.", &RECT::top},
    {L"Right", 38, L"Right boundary of the effect area.", &RECT::right},
    {L"Bottom", 50, L"Bottom boundary of the effect area.", &RECT::bottom},
}};

}  // namespace

bool CAreaControls::Create(CSkinDialog& dialog, bool on, const RECT& area, const Texts& texts) {
    m_switch.SetChecked(on);
    if (!dialog.AddLabel(m_heading, texts.heading) ||
        !dialog.AddItem(m_switch, L"Enable Effect Area", kSwitchId, texts.switchHelp)) {
        return false;
    }
    for (std::size_t index = 0; index < kEdges.size(); ++index) {
        const EdgeSetup& setup = kEdges[index];
        Edge& edge = m_edges[index];
        if (!dialog.AddLabel(edge.label, setup.label) ||
            !edge.edit.Create(dialog, kEdgeIds[index], area.*setup.edge, setup.help)) {
            return false;
        }
    }
    return true;
}

void CAreaControls::Place(CPoint at, int width) {
    constexpr int kRowHeight = 20;
    constexpr int kGap = 14;
    int labels = 0;
    for (const EdgeSetup& setup : kEdges) labels += setup.labelWidth;
    const int editWidth = (width - labels - 3 * kGap) / 4;

    m_heading.SetRect(CRect(at.x, at.y, at.x + width, at.y + kRowHeight));
    m_switch.SetRect(CRect(at.x, at.y + 24, at.x + 140, at.y + 24 + kRowHeight));
    int x = at.x;
    const int bottom = at.y + kHeight;
    for (std::size_t index = 0; index < kEdges.size(); ++index) {
        Edge& edge = m_edges[index];
        const int editLeft = x + kEdges[index].labelWidth;
        edge.label.SetRect(CRect(x, bottom - kRowHeight, editLeft, bottom));
        edge.edit.SetRect(CRect(editLeft, bottom - kRowHeight, editLeft + editWidth, bottom));
        x = editLeft + editWidth + kGap;
    }
}

RECT CAreaControls::Typed() const {
    RECT area{};
    for (std::size_t index = 0; index < kEdges.size(); ++index) area.*kEdges[index].edge = m_edges[index].edit.Value();
    return area;
}

void CAreaControls::Set(bool on, const RECT& area) {
    m_switch.SetChecked(on);
    for (std::size_t index = 0; index < kEdges.size(); ++index) {
        m_edges[index].edit.SetValue(static_cast<int>(area.*kEdges[index].edge));
    }
}

void CAreaControls::SetEnabled(bool enabled) {
    m_switch.SetEnabled(enabled);
    SetEdgesEnabled(enabled && IsOn());
}

void CAreaControls::SetEdgesEnabled(bool enabled) {
    for (Edge& edge : m_edges) edge.edit.SetEnabled(enabled);
}
