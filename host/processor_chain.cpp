#include "host/processor_chain.h"

#include "host/com_ptr.h"

namespace {

using ListGetter = HRESULT (STDMETHODCALLTYPE IMediaHost::*)(IProcessorList**);

constexpr LONG kNotInList = -1;

struct ChainLists {
    ComPtr<IProcessorList> active;
    ComPtr<IProcessorList> all;  // Released before the active list.

    bool Get(IMediaHost** host, ListGetter getAll, ListGetter getActive) {
        return GetOne(*host, getAll, all) && GetOne(*host, getActive, active);
    }

private:
    static bool GetOne(IMediaHost* host, ListGetter get, ComPtr<IProcessorList>& list) {
        return host && SUCCEEDED((host->*get)(list.GetAddressOf())) && list;
    }
};

LONG IndexIn(IProcessorList& list, BSTR moniker) {
    LONG index = kNotInList;
    return SUCCEEDED(list.FindByMoniker(moniker, &index)) ? index : kNotInList;
}

void RemoveFrom(IProcessorList& list, BSTR moniker) {
    const LONG index = IndexIn(list, moniker);
    if (index != kNotInList) list.RemoveAt(index);
}

int Attach(IMediaHost** host, BSTR moniker, ListGetter getAll, ListGetter getActive) {
    if (!moniker) return 0;  // There was no memory for it.
    ChainLists lists;
    if (!lists.Get(host, getAll, getActive)) return 0;
    // What is in the chain already is taken out and put in again, so it is never there twice.
    RemoveFrom(*lists.active.Get(), moniker);
    const LONG index = *host ? IndexIn(*lists.all.Get(), moniker) : kNotInList;
    ComPtr<IUnknown> item;
    if (index != kNotInList && *host) lists.all->GetItem(index, item.GetAddressOf());
    if (!item || !*host) return 0;
    lists.active->Add(item.Get(), 0);
    if (*host) return 1;
    RemoveFrom(*lists.active.Get(), moniker);  // The host ended the dialog while it added.
    return 0;
}

int Detach(IMediaHost** host, BSTR moniker, ListGetter getAll, ListGetter getActive) {
    if (!moniker) return 0;
    ChainLists lists;
    if (!lists.Get(host, getAll, getActive)) return 0;
    RemoveFrom(*lists.active.Get(), moniker);
    return 1;
}

}  // namespace

int AttachVideoProcessor(IMediaHost** host, BSTR moniker) {
    return Attach(host, moniker, &IMediaHost::GetVideoProcessors, &IMediaHost::GetActiveVideoProcessors);
}

int AttachAudioProcessor(IMediaHost** host, BSTR moniker) {
    return Attach(host, moniker, &IMediaHost::GetAudioProcessors, &IMediaHost::GetActiveAudioProcessors);
}

int DetachVideoProcessor(IMediaHost** host, BSTR moniker) {
    return Detach(host, moniker, &IMediaHost::GetVideoProcessors, &IMediaHost::GetActiveVideoProcessors);
}

int DetachAudioProcessor(IMediaHost** host, BSTR moniker) {
    return Detach(host, moniker, &IMediaHost::GetAudioProcessors, &IMediaHost::GetActiveAudioProcessors);
}
