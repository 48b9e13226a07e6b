// What a skinned dialog asks of each of its controls, be they drawn by it or windows of their own.
#pragma once

#include <afxwin.h>

class CSkinControl {
public:
    /// Hands over the dialog's painted background, which shows behind the control. Borrowed until the next call.
    virtual void SetBackground(HBITMAP background) = 0;
    /// The control's rectangle in the dialog's client coordinates.
    virtual CRect Bounds() const = 0;
    /// Draws a windowless control onto the dialog. Child windows are painted by the system.
    virtual void Draw() {}
    /// Receives the dialog's mouse messages with the point in client coordinates.
    virtual void HandleMouse(UINT /*message*/, CPoint /*point*/) {}

protected:
    ~CSkinControl() = default;
};
