// The typed part of an effect dialog: its filter's property interface and its record.
#pragma once

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
        processor.QueryInterface(Info().propertyInterface, reinterpret_cast<void**>(m_filter.GetAddressOf()));
    }
    void ReleaseFilter() override { m_filter.Reset(); }

    Settings* const m_settings;
    ComPtr<Filter> m_filter;  ///< Null until attached, and without a host.
};
