#include "host/processor_chain.h"

#include "host/com_ptr.h"

namespace {

using ListGetter = HRESULT (STDMETHODCALLTYPE IMediaHost::*)(IProcessorList**);

constexpr LONG kNotInList = -1;

struct ChainLists {
    ComPtr<IProcessorList> active;
    ComPtr<IProcessorList> all;  // Released before the active list.

    bool Get(IMediaHost** host, ListGetter getAll, ListGetter getActive) {
        return *host && SUCCEEDED(((*host)->*getAll)(all.GetAddressOf())) && all &&
               SUCCEEDED(((*host)->*getActive)(active.GetAddressOf())) && active;
    }
};

/// A moniker as the lists take it.
class CMonikerString {
public:
    explicit CMonikerString(const CString& moniker) : m_string(moniker.AllocSysString()) {}
    ~CMonikerString() { ::SysFreeString(m_string); }
    CMonikerString(const CMonikerString&) = delete;
    CMonikerString& operator=(const CMonikerString&) = delete;

    LONG IndexIn(IProcessorList& list) const {
        LONG index = kNotInList;
        return SUCCEEDED(list.FindByMoniker(m_string, &index)) ? index : kNotInList;
    }

    void RemoveFrom(IProcessorList& list) const {
        const LONG index = IndexIn(list);
        if (index != kNotInList) list.RemoveAt(index);
    }

private:
    BSTR m_string;
};

int Attach(IMediaHost** host, const CString& moniker, ListGetter getAll, ListGetter getActive) {
    ChainLists lists;
    if (!lists.Get(host, getAll, getActive)) return 0;
    ComPtr<IUnknown> item;
    {
        const CMonikerString name(moniker);
        // What is in the chain already is taken out and put in again, so it is never there twice.
        name.RemoveFrom(*lists.active.Get());
        const LONG index = name.IndexIn(*lists.all.Get());
        if (index == kNotInList) return 0;
        lists.all->GetItem(index, item.GetAddressOf());
    }
    if (!item) return 0;
    lists.active->Add(item.Get(), 0);
    return 1;
}

int Detach(IMediaHost** host, const CString& moniker, ListGetter getAll, ListGetter getActive) {
    ChainLists lists;
    if (!lists.Get(host, getAll, getActive)) return 0;
    CMonikerString(moniker).RemoveFrom(*lists.active.Get());
    return 1;
}

}  // namespace

int AttachVideoProcessor(IMediaHost** host, CString moniker) {
    return Attach(host, moniker, &IMediaHost::GetVideoProcessors, &IMediaHost::GetActiveVideoProcessors);
}

int AttachAudioProcessor(IMediaHost** host, CString moniker) {
    return Attach(host, moniker, &IMediaHost::GetAudioProcessors, &IMediaHost::GetActiveAudioProcessors);
}

int DetachVideoProcessor(IMediaHost** host, CString moniker) {
    return Detach(host, moniker, &IMediaHost::GetVideoProcessors, &IMediaHost::GetActiveVideoProcessors);
}

int DetachAudioProcessor(IMediaHost** host, CString moniker) {
    return Detach(host, moniker, &IMediaHost::GetAudioProcessors, &IMediaHost::GetActiveAudioProcessors);
}
