// A skinned dialog and its controls as screen readers see them (IAccessible).
#pragma once

#include <afxwin.h>

#include <oleacc.h>
#include <wrl/client.h>

class CSkinControl;
class CSkinDialog;

/// Gives accessible objects out. They may outlive the dialog, in whoever asked for them; then all they say is that they
/// are not connected any more.
class CAccessibility {
public:
    explicit CAccessibility(CSkinDialog& dialog);
    ~CAccessibility();
    CAccessibility(const CAccessibility&) = delete;
    CAccessibility& operator=(const CAccessibility&) = delete;

    /// Numbers the controls in the order of the screen, once: a number stays the same while the dialog is open.
    void NumberControls();
    /// The control's own name, or else its label's.
    CString NameOf(const CSkinControl& control) const;
    /// Tells of something that has happened to a control.
    void Notify(const CSkinControl& control, DWORD event) const;
    /// The answer to WM_GETOBJECT for the dialog (null) or a control that has a window of its own; 0 leaves it to the
    /// system.
    LRESULT ObjectFor(CSkinControl* control, WPARAM wParam);
    /// Cuts all objects off, also for clients in other apartments and processes.
    void Disconnect();

private:
    class CElement;
    struct Link;

    Microsoft::WRL::ComPtr<Link> m_link;
};
