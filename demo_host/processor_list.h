// The host's lists of processors: those that can be used, and the chain of those that are.
#pragma once

#include <string>
#include <vector>

#include "demo_host/filters/com_object.h"
#include "demo_host/filters/filter.h"
#include "effect_settings/media_host.h"

class CProcessorList : public CComObject<IProcessorList> {
public:
    /// @param name  What the trace calls the list.
    explicit CProcessorList(std::string name) : m_name(std::move(name)) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        return Answer(object, iid == IID_IUnknown || iid == IID_IDispatch ? this : nullptr);
    }
    HRESULT STDMETHODCALLTYPE GetItem(LONG index, IUnknown** item) override;
    HRESULT STDMETHODCALLTYPE FindByMoniker(BSTR moniker, LONG* index) override;
    HRESULT STDMETHODCALLTYPE RemoveAt(LONG index) override;
    HRESULT STDMETHODCALLTYPE Add(IUnknown* item, LONG option) override;

    void Clear() { m_processors.clear(); }
    void Append(ComPtr<IDemoFilter> processor) { m_processors.push_back(std::move(processor)); }
    const std::vector<ComPtr<IDemoFilter>>& Processors() const { return m_processors; }

private:
    bool Holds(LONG index) const { return index >= 0 && static_cast<std::size_t>(index) < m_processors.size(); }

    std::string m_name;
    std::vector<ComPtr<IDemoFilter>> m_processors;
};
