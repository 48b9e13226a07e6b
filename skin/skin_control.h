// What a skinned dialog asks of each of its controls, be they drawn by it or windows of their own.
#pragma once

#include <afxwin.h>

#include <oleacc.h>

class CSkinControl;

/// What a screen reader is told of a control.
struct ControlFacts {
    LONG role = ROLE_SYSTEM_STATICTEXT;
    LONG state = 0;   ///< Without what follows from the focus.
    CString name;     ///< Empty for a control that its label names.
    CString caption;  ///< The name as far as it is drawn on the control.
    CString value;
    LPCWSTR action = nullptr;  ///< What Activate does; null where that is nothing.
};

/// The dialog that a control was added to, as the control sees it.
class CControlSite {
public:
    virtual void ControlDrawn(const CRect& area) = 0;
    /// @param event  EVENT_OBJECT_STATECHANGE or EVENT_OBJECT_VALUECHANGE.
    virtual void ControlChanged(CSkinControl& control, DWORD event) = 0;
    /// Tab was pressed in a window that a control has opened: the focus goes on from the control.
    virtual void LeaveControl(CSkinControl& control) = 0;
    /// The answer to WM_GETOBJECT of a control's own window; 0 leaves it to the system.
    virtual LRESULT ControlObject(CSkinControl& control, WPARAM wParam) = 0;
    /// What a screen reader calls a control.
    virtual CString ControlName(const CSkinControl& control) const = 0;

protected:
    ~CControlSite() = default;
};

class CSkinControl {
public:
    /// Hands over the dialog's painted background, in a memory device context, which shows behind the control. Borrowed
    /// until the next call.
    virtual void SetBackground(HDC background) = 0;
    /// The control's rectangle in the dialog's client coordinates.
    virtual CRect Bounds() const = 0;
    virtual void SetBounds(const CRect& bounds) = 0;
    /// Draws a windowless control onto the dialog. Child windows are painted by the system.
    virtual void Draw() {}
    /// Receives the dialog's mouse messages with the point in client coordinates.
    virtual void HandleMouse(UINT /*message*/, CPoint /*point*/) {}

    /// Whether the focus can come here now.
    virtual bool TakesFocus() const { return false; }
    /// The window that the system's focus goes to; null for a control that the dialog hands its keys to.
    virtual HWND FocusWindow() const { return nullptr; }
    /// The control's own window; null for one that is drawn on the dialog.
    virtual HWND OwnWindow() const { return FocusWindow(); }
    /// What Space does.
    virtual void Activate() {}
    /// What one of the keys that move does (arrows, Page Up and Down, Home, End, F4), and a notch of the wheel: an arrow.
    virtual void HandleKey(UINT /*key*/) {}
    /// What a typed letter does; false where that is nothing.
    virtual bool HandleLetter(wchar_t /*letter*/) { return false; }
    /// Controls of one group are one stop of Tab, and the arrows choose among them. Null for none.
    virtual const void* Group() const { return nullptr; }
    virtual ControlFacts Facts() const = 0;
    /// Takes a value as the user would type it; false where there is none to set.
    virtual bool SetValueText(LPCWSTR /*text*/) { return false; }

    void SetSite(CControlSite* site) { m_site = site; }

protected:
    ~CSkinControl() = default;

    CControlSite* Site() const { return m_site; }
    /// Of a window in its parent's client coordinates.
    static CRect BoundsOf(HWND window) {
        CRect bounds;
        ::GetWindowRect(window, bounds);
        ::MapWindowPoints(nullptr, ::GetParent(window), reinterpret_cast<POINT*>(&bounds), 2);
        return bounds;
    }
    /// The answer to WM_GETOBJECT of the control's own window; 0 leaves it to the system.
    LRESULT AskedForObject(WPARAM wParam, LPARAM lParam) {
        return m_site && static_cast<LONG>(lParam) == OBJID_CLIENT ? m_site->ControlObject(*this, wParam) : 0;
    }
    void Changed(DWORD event) {
        if (m_site) m_site->ControlChanged(*this, event);
    }

private:
    CControlSite* m_site = nullptr;
};
