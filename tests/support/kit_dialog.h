// A skinned dialog with whatever controls a test puts into it.
#pragma once

#include <functional>
#include <vector>

#include <afxwin.h>

#include "skin/combo_list_box.h"
#include "skin/skin_dialog.h"
#include "support/dialog_driver.h"

class CKitDialog : public CSkinDialog {
public:
    explicit CKitDialog(std::function<void(CKitDialog&)> build) : m_build(std::move(build)) {}

    /// Runs it with a script.
    void Run(const std::function<void(DialogDriver&)>& script) {
        RunDialog([&] { DoModal(); }, script);
    }
    /// Lets the dialog's own thread do something.
    void Do(std::function<void()> action) { SendMessage(kDo, 0, reinterpret_cast<LPARAM>(&action)); }

    /// Lets it begin something that goes on for longer than the call, as a dialog does.
    void Start(std::function<void()>& action) {
        ::SendNotifyMessageW(m_hWnd, kDo, 0, reinterpret_cast<LPARAM>(&action));
    }

    std::vector<UINT> commands;      ///< Ids that arrived, without notifications of windows.
    std::vector<UINT> changes;       ///< Ids of edits that changed.
    std::vector<const void*> picks;  ///< Drop-down lists that were picked from.

protected:
    static constexpr UINT kDo = WM_APP + 10;

    bool CreateControls() override {
        m_build(*this);
        return true;
    }
    BOOL OnOpening() override {
        PlaceWindow(400, 400, L"Kit");
        return FALSE;
    }
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        if (lParam == 0) {
            commands.push_back(LOWORD(wParam));
        } else if (HIWORD(wParam) == EN_CHANGE) {
            changes.push_back(LOWORD(wParam));
        }
        return CSkinDialog::OnCommand(wParam, lParam);
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == kDo) (*reinterpret_cast<std::function<void()>*>(lParam))();
        if (message == WM_SKIN_COMBO_SELECT) picks.push_back(reinterpret_cast<const void*>(wParam));
        return CSkinDialog::WindowProc(message, wParam, lParam);
    }

private:
    std::function<void(CKitDialog&)> m_build;
};

/// Creates an item in a dialog.
template <typename Item>
void Put(CKitDialog& dialog, Item& item, LPCWSTR text, const CRect& rect, UINT id) {
    item.Create(text, &dialog, rect, id);
    dialog.AddControl(item);
}
