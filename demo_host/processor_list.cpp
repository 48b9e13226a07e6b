#include "demo_host/processor_list.h"

#include "demo_host/effects.h"
#include "demo_host/trace.h"

HRESULT CProcessorList::GetItem(LONG index, IUnknown** item) {
    Trace(m_name + ".GetItem(" + std::to_string(index) + ")");
    *item = nullptr;
    if (!Holds(index)) return E_INVALIDARG;
    *item = m_processors[static_cast<std::size_t>(index)].Get();
    (*item)->AddRef();
    return S_OK;
}

HRESULT CProcessorList::FindByMoniker(BSTR moniker, LONG* index) {
    *index = -1;
    std::string found = "unknown";
    for (const Effect& effect : AllEffects()) {
        if (effect.Moniker() == moniker) found = effect.name;
    }
    for (std::size_t place = 0; place < m_processors.size(); ++place) {
        if (EffectOf(m_processors[place]->Effect()).name == found) *index = static_cast<LONG>(place);
    }
    Trace(m_name + ".FindByMoniker(" + found + ") -> " + std::to_string(*index));
    return S_OK;
}

HRESULT CProcessorList::RemoveAt(LONG index) {
    Trace(m_name + ".RemoveAt(" + std::to_string(index) + ")");
    if (!Holds(index)) return E_INVALIDARG;
    m_processors.erase(m_processors.begin() + index);
    return S_OK;
}

HRESULT CProcessorList::Add(IUnknown* item, LONG option) {
    ComPtr<IDemoFilter> processor;
    if (!item || FAILED(item->QueryInterface(IID_IDemoFilter, reinterpret_cast<void**>(processor.GetAddressOf())))) {
        return E_INVALIDARG;
    }
    Trace(m_name + ".Add(" + EffectOf(processor->Effect()).name + ", " + std::to_string(option) + ")");
    m_processors.push_back(processor);
    return S_OK;
}
