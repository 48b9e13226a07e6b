// The player as hosts have one: it plays a clip and its sound through the chains of active filters, and as IMediaHost
// previews them into a dialog.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "demo_host/clip.h"
#include "demo_host/effects.h"
#include "demo_host/filters/com_object.h"
#include "demo_host/paint.h"
#include "demo_host/processor_list.h"
#include "demo_host/settings_file.h"
#include "demo_host/sound.h"
#include "effect_settings/media_host.h"

class CPlayer : public CComObject<IMediaHost> {
public:
    static constexpr unsigned kFrameMs = 40;  ///< 25 frames a second.

    CPlayer(std::unique_ptr<IClip> clip, Sound sound);

    // --- for the player's window; all on its thread ---

    /// Plays the next frame and its piece of sound, into the preview too. To be called every kFrameMs.
    void PlayNext();
    /// Goes to a time in the clip.
    void Seek(unsigned milliseconds);
    /// Puts the checked effects into the chains, in their order, with their values.
    void SetChain(const std::vector<EffectState>& states);

    unsigned Position() const { return m_number * kFrameMs; }
    /// Of the picture or the sound, whichever is longer; the other starts again.
    unsigned Milliseconds() const;
    Sizes PictureSizes() const;
    /// As last played, processed.
    const Frame& Picture() const { return m_frame; }
    const CWaveForm& WaveForm() const { return m_wave; }

    bool IsPlaying() const { return m_playing; }
    void SetPlaying(bool playing) { m_playing = playing; }
    /// The handler is called after each frame, with the dialog that previews it (null when none does) and the number
    /// of frames since the preview started, or since the player did.
    void OnPlayed(std::function<void(HWND dialog, int frames)> handler) { m_onPlayed = std::move(handler); }

    // --- IMediaHost ---

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

    void ProcessPicture();
    void ProcessSound();
    void DrawPreview() const;
    void RestartFilters();

    std::unique_ptr<IClip> m_clip;
    Sound m_sound;
    bool m_playing = true;
    unsigned m_number = 0;  // Of the frame to play next.
    Frame m_frame;
    CWaveForm m_wave;

    HWND m_previewWindow = nullptr;
    bool m_showPicture = false;
    bool m_previewing = false;
    int m_frames = 0;  // Played since the preview started.
    unsigned m_previewStart = 0;
    std::function<void(HWND dialog, int frames)> m_onPlayed;

    List m_allVideo = Adopt(new CProcessorList("video"));
    List m_activeVideo = Adopt(new CProcessorList("activeVideo"));
    List m_allAudio = Adopt(new CProcessorList("audio"));
    List m_activeAudio = Adopt(new CProcessorList("activeAudio"));
};
