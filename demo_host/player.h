// The player: plays a clip in its own window, and as IMediaHost previews it into a dialog through the chain
// of active processors.
#pragma once

#include <memory>

#include "demo_host/clip.h"
#include "demo_host/com_object.h"
#include "demo_host/processor_list.h"
#include "effect_settings/media_host.h"

class CPlayer : public CComObject<IMediaHost> {
public:
    explicit CPlayer(std::unique_ptr<IClip> clip);

    /// The player's window, which owns the dialogs. Null when it could not be created.
    HWND Open();
    void Close();
    SIZE VideoSize() const { return m_clip->VideoSize(); }
    SIZE FrameSize() const;
    /// The dialog that was last given a preview; null before the first.
    HWND Dialog() const;
    /// How many frames were played since the preview was started.
    int PreviewedFrames() const { return m_previewedFrames; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        return Answer(object, iid == IID_IUnknown || iid == IID_IDispatch ? this : nullptr);
    }
    HRESULT STDMETHODCALLTYPE RefreshPreview() override;
    HRESULT STDMETHODCALLTYPE StopPreview() override;
    HRESULT STDMETHODCALLTYPE SetPreviewOption(LONG option) override;
    HRESULT STDMETHODCALLTYPE SetPreviewWindow(LONG window) override;
    HRESULT STDMETHODCALLTYPE EnableVideoPreview(LONG enable) override;
    HRESULT STDMETHODCALLTYPE SetPreviewRange(LONG start, LONG stop) override;
    HRESULT STDMETHODCALLTYPE SetPreviewMode(LONG mode) override;
    HRESULT STDMETHODCALLTYPE GetAudioProcessors(IProcessorList** list) override;
    HRESULT STDMETHODCALLTYPE GetVideoProcessors(IProcessorList** list) override;
    HRESULT STDMETHODCALLTYPE GetActiveAudioProcessors(IProcessorList** list) override;
    HRESULT STDMETHODCALLTYPE GetActiveVideoProcessors(IProcessorList** list) override;
    HRESULT STDMETHODCALLTYPE ResetPreview() override;
    HRESULT STDMETHODCALLTYPE GetProcessorObject(LONG kind, IUnknown** object) override;

private:
    using List = ComPtr<CProcessorList>;

    static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void PlayFrame();

    std::unique_ptr<IClip> m_clip;
    Frame m_frame;  // As last played, processed.
    DWORD m_started = 0;
    HWND m_window = nullptr;
    HWND m_previewWindow = nullptr;
    HWND m_dialog = nullptr;
    bool m_previewing = false;
    int m_previewedFrames = 0;
    bool m_showPicture = false;
    List m_allVideo = Adopt(new CProcessorList("video"));
    List m_activeVideo = Adopt(new CProcessorList("activeVideo"));
    List m_allAudio = Adopt(new CProcessorList("audio"));
    List m_activeAudio = Adopt(new CProcessorList("activeAudio"));
};
