// A host made ready, with one filter of yours and a preview that you draw: the shortest way to a working dialog, and a
// model for the host of a real player. Header only; compiles alone, as C++11 and later.
#ifndef EFFECT_SETTINGS_PREVIEW_HOST_H
#define EFFECT_SETTINGS_PREVIEW_HOST_H

#include <windows.h>

#include "effect_settings/apply_settings.h"
#include "effect_settings/media_host.h"

// How it is used
//
// Derive a filter from PreviewFilter of the effect's property interface, override its setters and Draw, make a
// PreviewHost of it and show the dialog:
//
//   MyFilter filter;  // struct MyFilter : PreviewFilter<IEffectWave>
//   PreviewHost host(filter);
//   WaveSettings wave;
//   if (ShowSettings(&host, video, frame, wave) == Result::Accepted) host.Keep(wave, video, frame);
//
// All of it happens on the thread that shows the dialog. The objects are yours and are counted but never deleted: they have
// to outlive the call.

namespace effect_settings {

/// The ids of the effect to which a property interface belongs.
template <typename Interface>
struct FilterIds;

#define EFFECT_SETTINGS_FILTER_IDS(name, number)                                  \
    template <>                                                                   \
    struct FilterIds<IEffect##name> {                                             \
        static const CLSID& Class() { return CLSID_Effect##name; }                \
        static const IID& Interface() { return IID_IEffect##name; }               \
        static constexpr bool kIsAudio = EffectId::name == EffectId::AudioChorus; \
    };
EFFECT_SETTINGS_EFFECTS(EFFECT_SETTINGS_FILTER_IDS)
#undef EFFECT_SETTINGS_FILTER_IDS

/// What draws a preview.
class PreviewPicture {
public:
    /// Draws one frame, 25 times per second while the preview runs. Must not throw.
    /// @param dc       A bitmap of the preview's size, black at first.
    /// @param area     All of it, in pixels.
    /// @param seconds  Since the preview started.
    virtual void Draw(HDC dc, const RECT& area, double seconds) = 0;

    /// @param color  0x00BBGGRR, as RGB makes it.
    static void Fill(HDC dc, const RECT& area, COLORREF color) {
        SetDCBrushColor(dc, color);
        FillRect(dc, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    }

protected:
    ~PreviewPicture() = default;
};

/// A filter's object. What the dialog sets arrives in the setters of the interface; keep it there for Draw.
template <typename PropertyInterface>
class PreviewFilter : public PropertyInterface, public PreviewPicture {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        const bool known = iid == FilterIds<PropertyInterface>::Interface() || iid == IID_IUnknown;
        *object = known ? static_cast<PropertyInterface*>(this) : nullptr;
        if (known) AddRef();
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_references; }
    ULONG STDMETHODCALLTYPE Release() override { return --m_references; }
    void Draw(HDC, const RECT&, double) override {}  // The audio effect has no picture.

protected:
    ~PreviewFilter() = default;

private:
    ULONG m_references = 1;
};

/// A list that holds one filter or none.
class OneFilterList final : public IProcessorList {
public:
    /// @param moniker  Of the only filter that the list can hold.
    explicit OneFilterList(const wchar_t* moniker, IUnknown* item = nullptr) : m_moniker(moniker), m_item(item) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        const bool known = iid == IID_IDispatch || iid == IID_IUnknown;
        *object = known ? this : nullptr;
        if (known) AddRef();
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_references; }
    ULONG STDMETHODCALLTYPE Release() override { return --m_references; }

    HRESULT STDMETHODCALLTYPE GetItem(LONG index, IUnknown** item) override {
        *item = index == 0 ? m_item : nullptr;
        if (!*item) return E_INVALIDARG;
        (*item)->AddRef();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE FindByMoniker(BSTR moniker, LONG* index) override {
        *index = m_item && lstrcmpiW(moniker, m_moniker) == 0 ? 0 : -1;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE RemoveAt(LONG index) override {
        if (index != 0 || !m_item) return E_INVALIDARG;
        m_item->Release();
        m_item = nullptr;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Add(IUnknown* item, LONG) override {
        if (m_item) return E_FAIL;
        m_item = item;
        m_item->AddRef();
        return S_OK;
    }

    bool IsEmpty() const { return !m_item; }

private:
    const wchar_t* const m_moniker;
    IUnknown* m_item;
    ULONG m_references = 1;
};

/// The player: one filter that can be used, a chain that is empty or holds it, and a preview that the filter draws. A class
/// of yours can derive from it and replace it operation by operation.
class PreviewHost : public IMediaHost {
public:
    template <typename Interface>
    explicit PreviewHost(PreviewFilter<Interface>& filter)
        : PreviewHost(
              static_cast<Interface&>(filter), FilterIds<Interface>::Class(), FilterIds<Interface>::kIsAudio, filter) {}
    /// For a filter that is no PreviewFilter.
    /// @param filter       Its processor object, borrowed as long as the host lives.
    /// @param filterClass  By which the dialog looks it up.
    PreviewHost(IUnknown& filter, const CLSID& filterClass, bool isAudio, PreviewPicture& picture)
        : m_all(m_moniker, &filter), m_active(m_moniker), m_isAudio(isAudio), m_filter(&filter), m_picture(picture) {
        const GUID& category = isAudio ? CATID_EffectAudioProcessor : CATID_EffectVideoProcessor;
        wchar_t* const end = Append(Append(m_moniker, L"@device:sw:", category), L"\\", filterClass);
        *end = L'\0';
    }
    PreviewHost(const PreviewHost&) = delete;
    PreviewHost& operator=(const PreviewHost&) = delete;
    ~PreviewHost() {
        Stop();
        m_active.RemoveAt(0);
    }

    /// After OK: puts the filter back into the chain, out of which the dialog took it, and tells it the record's values.
    /// @return Whether the filter has the property interface of the record's effect.
    template <typename Record>
    bool Keep(const Record& record, VideoSize video, FrameSize frame) {
        if (m_active.IsEmpty()) m_active.Add(m_filter, 0);
        return ApplySettings(m_filter, record, video, frame);
    }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        const bool known = iid == IID_IDispatch || iid == IID_IUnknown;
        *object = known ? this : nullptr;
        if (known) AddRef();
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_references; }
    ULONG STDMETHODCALLTYPE Release() override { return --m_references; }

    HRESULT STDMETHODCALLTYPE SetPreviewWindow(LONG window) override {
        m_window = static_cast<HWND>(LongToHandle(window));
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE EnableVideoPreview(LONG enable) override {
        m_showsPicture = enable != 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE RefreshPreview() override {
        Stop();
        Running() = this;
        m_start = GetTickCount();
        m_timer = SetTimer(nullptr, 0, 40, &PreviewHost::OnTimer);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE StopPreview() override {
        Stop();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE ResetPreview() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE SetPreviewRange(LONG, LONG) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE SetPreviewOption(LONG) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE SetPreviewMode(LONG) override { return S_OK; }

    HRESULT STDMETHODCALLTYPE GetVideoProcessors(IProcessorList** list) override {
        return Give(!m_isAudio, m_all, list);
    }
    HRESULT STDMETHODCALLTYPE GetAudioProcessors(IProcessorList** list) override {
        return Give(m_isAudio, m_all, list);
    }
    HRESULT STDMETHODCALLTYPE GetActiveVideoProcessors(IProcessorList** list) override {
        return Give(!m_isAudio, m_active, list);
    }
    HRESULT STDMETHODCALLTYPE GetActiveAudioProcessors(IProcessorList** list) override {
        return Give(m_isAudio, m_active, list);
    }
    HRESULT STDMETHODCALLTYPE GetProcessorObject(LONG kind, IUnknown** object) override {
        const bool attached = kind == (m_isAudio ? kAudioProcessorKind : kVideoProcessorKind) && !m_active.IsEmpty();
        *object = attached ? m_filter : nullptr;
        if (!attached) return E_FAIL;
        m_filter->AddRef();
        return S_OK;
    }

private:
    static wchar_t* Append(wchar_t* to, const wchar_t* text, const GUID& id) {
        const unsigned char* const last = id.Data4;
        return to + wsprintfW(to, L"%s{%08lX-%04X-%04X-%02X%02X-%02X%02X%02X%02X%02X%02X}", text, id.Data1, id.Data2,
                              id.Data3, last[0], last[1], last[2], last[3], last[4], last[5], last[6], last[7]);
    }

    static HRESULT Give(bool has, OneFilterList& from, IProcessorList** list) {
        *list = has ? &from : nullptr;
        if (!has) return E_NOTIMPL;
        from.AddRef();
        return S_OK;
    }

    static PreviewHost*& Running() {  // A timer without a window has no place for it.
        static PreviewHost* running = nullptr;
        return running;
    }
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) {
        if (Running()) Running()->ShowFrame();
    }

    void Stop() {
        if (m_timer) KillTimer(nullptr, m_timer);
        m_timer = 0;
        if (Running() == this) Running() = nullptr;
    }

    void ShowFrame() {
        RECT area;
        if (!m_showsPicture || !m_window || !GetClientRect(m_window, &area)) return;
        const HDC window = GetDC(m_window);
        const HDC frame = CreateCompatibleDC(window);
        const HBITMAP bitmap = CreateCompatibleBitmap(window, area.right, area.bottom);
        const HGDIOBJ previous = SelectObject(frame, bitmap);
        PatBlt(frame, 0, 0, area.right, area.bottom, BLACKNESS);
        m_picture.Draw(frame, area, (GetTickCount() - m_start) / 1000.0);
        BitBlt(window, 0, 0, area.right, area.bottom, frame, 0, 0, SRCCOPY);
        SelectObject(frame, previous);
        DeleteObject(bitmap);
        DeleteDC(frame);
        ReleaseDC(m_window, window);
    }

    wchar_t m_moniker[96] = {};
    OneFilterList m_all;
    OneFilterList m_active;
    const bool m_isAudio;
    IUnknown* const m_filter;
    PreviewPicture& m_picture;
    HWND m_window = nullptr;
    bool m_showsPicture = false;
    UINT_PTR m_timer = 0;
    DWORD m_start = 0;
    ULONG m_references = 1;
};

}  // namespace effect_settings

#endif
