// The controls of an effect's area: a heading, the switch and the four edges.
#pragma once

#include <array>

#include "effects/parts/number_edit.h"
#include "skin/skin_check_box.h"
#include "skin/skin_dialog.h"
#include "skin/skin_heading.h"

class CAreaControls {
public:
    static constexpr UINT kSwitchId = 16;
    static constexpr std::array<UINT, 4> kEdgeIds = {17, 18, 19, 20};
    static constexpr int kHeight = 72;

    struct Texts {
        LPCWSTR heading = L"Enable Effect on below Area:";
        LPCWSTR switchHelp = L"Enables the effect on below video area.";
    };

    bool Create(CSkinDialog& dialog, bool on, const RECT& area, const Texts& texts);
    void Place(CPoint at, int width);

    bool IsOn() const { return m_switch.IsChecked(); }
    RECT Typed() const;
    void Set(bool on, const RECT& area);

    /// The edges can be changed while the area is on as well.
    void SetEnabled(bool enabled);
    void SetEdgesEnabled(bool enabled);

private:
    struct Edge {
        CSkinStatic label;
        CNumberEdit edit;
    };

    CSkinHeading m_heading;
    CSkinCheckBox m_switch;
    std::array<Edge, 4> m_edges;  // Left, top, right, bottom.
};
