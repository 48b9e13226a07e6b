// The typed part of an effect dialog: its filter's property interface and its record.
#pragma once

#include <type_traits>

#include <afxwin.h>

#include "effect_settings/effect_filters.h"
#include "effect_settings/effect_settings.h"
#include "effects/effect_catalogue.h"
#include "effects/record_dlg.h"
#include "entry/session.h"
#include "host/com_ptr.h"

/// A check box's state as filters take it.
inline VARIANT_BOOL AutomationBool(const CSkinCheckBox& box) { return box.IsChecked() ? VARIANT_TRUE : VARIANT_FALSE; }

template <typename Filter, typename Settings>
class CEffectDlg : public CRecordDlg {
protected:
    explicit CEffectDlg(EffectId id, const EffectDialogOptions& options = {})
        : CRecordDlg(EffectInfoOf(id), options), m_settings(static_cast<Settings*>(g_Settings)) {}

    void ConnectFilter(IUnknown& processor) override {
        void* filter = nullptr;
        if (SUCCEEDED(processor.QueryInterface(Info().propertyInterface, &filter))) {
            *m_filter.ReleaseAndGetAddressOf() = static_cast<Filter*>(filter);
        }
    }
    void ReleaseFilter() override { m_filter.Reset(); }

    /// One call of a push. It does nothing without a filter: before the attach, and once the window is gone, which may
    /// happen inside any of these calls. A filter that throws counts as one that fails: neither is looked at.
    template <typename Interface, typename Parameter>
    void Put(HRESULT (STDMETHODCALLTYPE Interface::*setter)(Parameter), std::type_identity_t<Parameter> value) {
        const ComPtr<Filter> filter = m_filter;
        if (!filter) return;
        try {
            (static_cast<Interface*>(filter.Get())->*setter)(value);
        } catch (...) {
        }
    }

    Settings* const m_settings;

private:
    ComPtr<Filter> m_filter;  // Null until attached, without a host, and once the window is gone.
};
