// The horizontal slider. It proposes values to its dialog and never moves itself: the dialog decides and
// sets the position.
#pragma once

#include <afxwin.h>

#include "skin/guarded.h"
#include "skin/skin_control.h"

class CSkinSlider;

/// Sent by a slider to its parent: WPARAM is the address of a SliderChangeInfo that lives during the call,
/// LPARAM is 0.
inline constexpr UINT WM_SKIN_SLIDER = WM_USER + 666;

enum class SliderCode : int { Dragged = 0, TrackClicked = 3 };

struct SliderChangeInfo {
    CSkinSlider* sender;
    SliderCode code;
    double proposed;
    int flag;  ///< Always 1.
};

class CSkinSlider : public CGuarded<CWnd>, public CSkinControl {
public:
    BOOL Create(DWORD style, const CRect& rect, CWnd* parent, UINT id);
    /// A maximum below the minimum becomes the minimum plus 1.
    void SetMaximum(double maximum);
    /// Raises a lower position along. The maximum is not looked at, so set that first.
    void SetMinimum(double minimum);
    /// Clamps to the range and redraws; a position that is less than 1e-5 away changes nothing.
    void SetPosition(double position);
    double Position() const { return m_position; }
    void Enable(bool enable);
    /// Renews what stands beside the slider for its position. The dialog calls it after every change that a slider
    /// proposed, also when the position stayed where it was.
    virtual void ShowPosition() {}

    void SetBackground(HDC background) override { m_background = background; }
    CRect Bounds() const override;
    void SetBounds(const CRect& bounds) override { MoveWindow(bounds); }

    // The window itself handles no keys: the dialog, which has them, calls these.
    bool TakesFocus() const override;
    HWND OwnWindow() const override { return m_hWnd; }
    /// Proposes the number that a key leads to, as a drag would; nothing where that number stands already.
    void HandleKey(UINT key) override;
    ControlFacts Facts() const override;
    bool SetValueText(LPCWSTR text) override;

protected:
    /// The number that stands beside the slider; one step of a key changes it by 1.
    virtual int ShownNumber() const;
    /// The position less the number that it stands for.
    virtual int Offset() const { return 0; }

    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg BOOL OnEraseBkgnd(CDC*) { return TRUE; }  // Painting covers everything.
    afx_msg void OnPaint();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point) { OnLButtonDown(flags, point); }  // A fast press.
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* other);
    afx_msg LRESULT OnAskForObject(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    enum class State { Idle, OverThumb, Dragging };

    void Paint(HDC target);
    void Propose(SliderCode code, double value);
    void ProposeNumber(double number);
    State StateAt(CPoint point) const;
    bool IsFixed() const { return m_maximum == m_minimum; }  // A range of one position.

    State m_state = State::Idle;
    int m_dragOffset = 0;  // From the pointer to the thumb's right edge.
    HDC m_background = nullptr;
    double m_position = 0.0;
    double m_maximum = 100.0;
    double m_minimum = 0.0;
    CRect m_thumb{0, 0, 0, 0};
    CRect m_track{0, 0, 0, 0};
};
