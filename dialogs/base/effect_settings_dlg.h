// The base of all effect dialogs: the life of the filter link from opening to closing, the preview panel,
// the help panel, "Enable" and "Set as default". CEffectDlg (effects/effect_dlg.h) adds the types.
#pragma once

#include <climits>
#include <cstdint>
#include <utility>
#include <vector>

#include <afxwin.h>

#include "dialogs/base/effect_info.h"
#include "effect_settings/apply_settings.h"
#include "host/com_ptr.h"
#include "skin/combo_list_box.h"
#include "skin/skin_check_box.h"
#include "skin/skin_dialog.h"
#include "skin/skin_slider.h"

/// When the enable rules first run. What the user then does runs them in any case.
enum class FirstSync { BeforeAttach, AfterAttach, OnFirstClick };

/// In what the families of effects differ; what is not named is as most have it.
struct EffectDialogOptions {
    FirstSync firstSync = FirstSync::AfterAttach;
    UINT previewId = 11;
    bool titleHasSize = false;  ///< The source video's size follows the title.
};

class CEffectSettingsDlg : public CSkinDialog {
protected:
    /// @param propertyInterface  What the filter is asked for; a static object.
    CEffectSettingsDlg(const EffectInfo& info, const CLSID& filterClass, const IID& propertyInterface,
                       const EffectDialogOptions& options);

    // What a dialog states of its own: CreateControls, then these.

    virtual void SyncControls() {}            ///< The enable rules.
    virtual void ApplyToFilter() {}           ///< One push of all values; does nothing without a filter.
    virtual bool Validate() { return true; }  ///< Whether OK may save and close; tells the user when not.
    virtual void SaveSettings() {}            ///< Writes the caller's record.
    virtual void ResetToDefaults() {}         ///< "Set as default": back to the effect's defaults, and a push.
    virtual void OnEnableClicked() { SyncAndApply(); }
    virtual void OnClicked(UINT /*id*/) {}          ///< One of the effect's own boxes and buttons.
    virtual void OnPicked(const void* /*list*/) {}  ///< A row of a drop-down list.

    /// The filter's property interface; null until attached, without a host, and once the window is gone.
    const ComPtr<IUnknown>& PropertyInterface() const { return m_filter; }

    /// Binds the clicks of a control to OnClicked, or the changes of an edit (EN_CHANGE) to a push. Commands of all
    /// other controls do nothing.
    void Hear(UINT id, UINT notification = BN_CLICKED) { m_heard.emplace_back(notification, id); }

    /// Creates the check box that every effect has first, with the effect's description as its help.
    bool CreateEnable(std::int32_t checked);
    void SyncAndApply();
    int Width() const { return m_info.width; }
    const effect_settings::Sizes& VideoSizes() const { return m_sizes; }

    static constexpr int kRowHeight = 20;
    /// A rectangle as tall as a row of controls, in client coordinates.
    static CRect At(int x, int y, int width) { return CRect(x, y, x + width, y + kRowHeight); }

    void LayoutControls() override;
    void PaintControls(const CRect& area) override;
    bool CreateStandardControls() override;
    BOOL OnOpening() override;
    void OnOK() override;
    BOOL PreTranslateMessage(MSG* message) override;
    void OnFocusMoved(CSkinControl& control) override;

    afx_msg void OnDestroy();
    afx_msg void OnTimer(UINT_PTR timer);
    afx_msg void OnEnableCommand() { OnEnableClicked(); }
    afx_msg void OnOwnCommand(UINT id);
    afx_msg void OnEditChange(UINT id);
    afx_msg LRESULT OnSliderChange(WPARAM info, LPARAM);
    afx_msg LRESULT OnComboSelect(WPARAM list, LPARAM) {
        OnPicked(reinterpret_cast<const void*>(list));
        return 0;
    }
    DECLARE_MESSAGE_MAP()

    CSkinCheckBox m_enable;

private:
    bool AttachFilter();
    bool Hears(UINT notification, UINT id) const;
    void ShowHelpAt(CPoint point);
    void ShowHelp(LPCWSTR help);

    const EffectInfo& m_info;
    const IID& m_propertyInterface;
    const EffectDialogOptions m_options;
    const effect_settings::Sizes m_sizes;
    const CBstr m_moniker;  // Made at construction: closing must not need memory.
    IMediaHost* m_host;     // Null without a host, and once the window is gone.
    ComPtr<IUnknown> m_filter;
    CWnd m_preview;
    CSkinButton m_defaultButton;
    CRect m_helpRect{0, 0, 0, 0};  // An empty one shows no help.
    CString m_helpText;
    std::vector<std::pair<UINT, UINT>> m_heard;  // Notification and id.
    CPoint m_pointer{LONG_MIN, LONG_MIN};        // Where the pointer was last seen, on the screen.
    bool m_loading = true;  // Until the dialog is fully open; edits that are filled meanwhile push nothing.
};
