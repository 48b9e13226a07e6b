#include "check/recording_host.h"

void RecordingList::PassOnTo(IProcessorList* list) {
    if (m_list) m_list->Release();
    m_list = list;
}

HRESULT RecordingList::GetItem(LONG index, IUnknown** item) {
    m_log.Add(m_name + std::string(".GetItem(index)"));
    return m_list->GetItem(index, item);
}

HRESULT RecordingList::FindByMoniker(BSTR moniker, LONG* index) {
    m_log.Add(m_name + std::string(".FindByMoniker(moniker)"));
    return m_list->FindByMoniker(moniker, index);
}

HRESULT RecordingList::RemoveAt(LONG index) {
    m_log.Add(m_name + std::string(".RemoveAt(index)"));
    return m_list->RemoveAt(index);
}

HRESULT RecordingList::Add(IUnknown* item, LONG option) {
    m_log.Add(m_name + std::string(".Add(item, ") + std::to_string(option) + ")");
    return m_list->Add(item, option);
}

RecordingHost::RecordingHost(IMediaHost& host, CallLog& log)
    : m_host(host), m_log(log), m_all("all", log), m_active("active", log) {}

RecordingHost::~RecordingHost() {
    m_all.Close();
    m_active.Close();
}

HRESULT RecordingHost::RefreshPreview() {
    m_log.Add("RefreshPreview()");
    m_started = true;
    return m_host.RefreshPreview();
}

HRESULT RecordingHost::StopPreview() {
    m_log.Add("StopPreview()");
    return m_host.StopPreview();
}

HRESULT RecordingHost::SetPreviewOption(LONG option) {
    m_log.Add("SetPreviewOption(" + std::to_string(option) + ")");
    return m_host.SetPreviewOption(option);
}

HRESULT RecordingHost::SetPreviewWindow(LONG window) {
    m_log.Add(window ? "SetPreviewWindow(panel)" : "SetPreviewWindow(0)");
    return m_host.SetPreviewWindow(window);
}

HRESULT RecordingHost::EnableVideoPreview(LONG enable) {
    m_log.Add("EnableVideoPreview(" + std::to_string(enable) + ")");
    return m_host.EnableVideoPreview(enable);
}

HRESULT RecordingHost::SetPreviewRange(LONG start, LONG stop) {
    m_log.Add("SetPreviewRange(" + std::to_string(start) + ", " + std::to_string(stop) + ")");
    return m_host.SetPreviewRange(start, stop);
}

HRESULT RecordingHost::SetPreviewMode(LONG mode) {
    m_log.Add("SetPreviewMode(" + std::to_string(mode) + ")");
    return m_host.SetPreviewMode(mode);
}

HRESULT RecordingHost::Give(const char* call, HRESULT (STDMETHODCALLTYPE IMediaHost::*getter)(IProcessorList**),
                            RecordingList& recording, IProcessorList** list) {
    m_log.Add(call + std::string("()"));
    IProcessorList* given = nullptr;
    const HRESULT result = (m_host.*getter)(&given);
    *list = nullptr;
    if (FAILED(result) || !given) return FAILED(result) ? result : E_POINTER;
    recording.PassOnTo(given);
    recording.AddRef();
    *list = &recording;
    return result;
}

HRESULT RecordingHost::GetAudioProcessors(IProcessorList** list) {
    return Give("GetAudioProcessors", &IMediaHost::GetAudioProcessors, m_all, list);
}

HRESULT RecordingHost::GetVideoProcessors(IProcessorList** list) {
    return Give("GetVideoProcessors", &IMediaHost::GetVideoProcessors, m_all, list);
}

HRESULT RecordingHost::GetActiveAudioProcessors(IProcessorList** list) {
    return Give("GetActiveAudioProcessors", &IMediaHost::GetActiveAudioProcessors, m_active, list);
}

HRESULT RecordingHost::GetActiveVideoProcessors(IProcessorList** list) {
    return Give("GetActiveVideoProcessors", &IMediaHost::GetActiveVideoProcessors, m_active, list);
}

HRESULT RecordingHost::ResetPreview() {
    m_log.Add("ResetPreview()");
    return m_host.ResetPreview();
}

HRESULT RecordingHost::GetProcessorObject(LONG kind, IUnknown** object) {
    m_log.Add(kind == kAudioProcessorKind   ? "GetProcessorObject(0x100)"
              : kind == kVideoProcessorKind ? "GetProcessorObject(0x200)"
                                            : "GetProcessorObject(an unknown kind)");
    return m_host.GetProcessorObject(kind, object);
}
