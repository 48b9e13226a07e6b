// A skinned dialog and its controls as screen readers see them (IAccessible).
#pragma once

#include <afxwin.h>

#include <oleacc.h>
#include <wrl/client.h>

class CSkinDialog;

/// Gives accessible objects out. They may outlive the dialog, in whoever asked for them; then all they say is that they
/// are not connected any more.
class CAccessibility {
public:
    explicit CAccessibility(CSkinDialog& dialog);
    ~CAccessibility();
    CAccessibility(const CAccessibility&) = delete;
    CAccessibility& operator=(const CAccessibility&) = delete;

    /// The answer to WM_GETOBJECT for the dialog (0) or the control of a number; 0 without the system's oleacc.
    LRESULT ObjectFor(LONG child, WPARAM wParam);
    /// Cuts all objects off, also for clients in other apartments and processes.
    void Disconnect();

private:
    class CElement;
    struct Link;

    Microsoft::WRL::ComPtr<Link> m_link;
};
