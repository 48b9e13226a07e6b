#include "demo_host/player.h"

#include <algorithm>
#include <cstdio>

#include "demo_host/device_contexts.h"
#include "demo_host/trace.h"

namespace {

std::string Hex(LONG number) {
    char text[16];
    std::snprintf(text, sizeof(text), "0x%lX", static_cast<unsigned long>(number));
    return text;
}

HRESULT Give(CProcessorList* list, IProcessorList** given) {
    list->AddRef();
    *given = list;
    return S_OK;
}

}  // namespace

CPlayer::CPlayer(std::unique_ptr<IClip> clip, Sound sound) : m_clip(std::move(clip)), m_sound(std::move(sound)) {
    for (const Effect& effect : AllEffects()) {
        (effect.IsAudio() ? m_allAudio : m_allVideo)->Append(MakeFilter(effect.id, Trace));
    }
    m_frame = m_clip->FrameAt(0);
}

unsigned CPlayer::Milliseconds() const {
    const std::size_t pairs = m_sound.samples.size() / 2;
    const auto sound = static_cast<unsigned>(pairs * 1000 / static_cast<std::size_t>(m_sound.samplesPerSecond));
    return (std::max)({m_clip->Milliseconds(), sound, kFrameMs});
}

Sizes CPlayer::PictureSizes() const {
    const SIZE video = m_clip->VideoSize();
    const SIZE frame = m_clip->FrameSize();
    return {{video.cx, video.cy}, {frame.cx, frame.cy}};
}

void CPlayer::SetChain(const std::vector<EffectState>& states) {
    m_activeVideo->Clear();
    m_activeAudio->Clear();
    for (const List& all : {m_allVideo, m_allAudio}) {
        for (const ComPtr<IDemoFilter>& filter : all->Processors()) {
            const Effect& effect = EffectOf(filter->Effect());
            const EffectState& state = StateOf(states, effect);
            if (!state.checked) continue;
            effect.Push(*filter.Get(), state.record, PictureSizes());
            (effect.IsAudio() ? m_activeAudio : m_activeVideo)->Append(filter);
        }
    }
    ProcessPicture();
}

void CPlayer::PlayNext() {
    if (!m_playing && !m_previewing) return;
    ProcessPicture();
    ProcessSound();
    m_number = (m_number + 1) % (Milliseconds() / kFrameMs);
    ++m_frames;
    const bool inDialog = m_previewing && m_previewWindow;
    if (inDialog) DrawPreview();
    if (m_onPlayed) m_onPlayed(inDialog ? ::GetAncestor(m_previewWindow, GA_ROOT) : nullptr, m_frames);
}

void CPlayer::Seek(unsigned milliseconds) {
    m_number = (std::min)(milliseconds, Milliseconds() - 1) / kFrameMs;
    RestartFilters();
    ProcessPicture();
}

void CPlayer::ProcessPicture() {
    m_frame = m_clip->FrameAt(Position());
    for (const auto& filter : m_activeVideo->Processors()) filter->Process(m_frame, m_number);
}

void CPlayer::ProcessSound() {
    const auto rate = static_cast<std::size_t>(m_sound.samplesPerSecond);
    const std::size_t pairs = m_sound.samples.size() / 2;
    std::vector<std::int16_t> before;
    for (std::size_t pair = Position() * rate / 1000; pair < (Position() + kFrameMs) * rate / 1000; ++pair) {
        before.push_back(m_sound.samples[2 * (pair % pairs)]);
        before.push_back(m_sound.samples[2 * (pair % pairs) + 1]);
    }
    std::vector<std::int16_t> after = before;
    for (const auto& filter : m_activeAudio->Processors()) filter->ProcessSound(after, m_sound.samplesPerSecond);
    m_wave.Add(before, after, m_sound.samplesPerSecond);
}

void CPlayer::DrawPreview() const {
    RECT area;
    ::GetClientRect(m_previewWindow, &area);
    const CWindowDC dc(m_previewWindow);
    if (m_showPicture) {
        DrawFrame(dc, area, m_frame);
    } else {
        m_wave.Draw(dc, area);  // A sound's dialog switches the picture off.
    }
}

void CPlayer::RestartFilters() {
    for (const List& active : {m_activeVideo, m_activeAudio}) {
        for (const auto& filter : active->Processors()) filter->Restart();
    }
}

HRESULT CPlayer::RefreshPreview() {
    Trace("host.RefreshPreview()");
    m_previewing = true;
    m_frames = 0;
    RestartFilters();
    return S_OK;
}

HRESULT CPlayer::StopPreview() {
    Trace("host.StopPreview()");
    m_previewing = false;
    return S_OK;
}

HRESULT CPlayer::ResetPreview() {
    Trace("host.ResetPreview()");
    Seek(m_previewStart);
    return S_OK;
}

HRESULT CPlayer::SetPreviewOption(LONG option) {
    Trace("host.SetPreviewOption(" + std::to_string(option) + ")");
    return S_OK;
}

HRESULT CPlayer::SetPreviewWindow(LONG window) {
    Trace("host.SetPreviewWindow(" + Hex(window) + ")");
    m_previewWindow = static_cast<HWND>(LongToHandle(window));
    if (m_previewWindow) m_previewStart = Position();
    return S_OK;
}

HRESULT CPlayer::EnableVideoPreview(LONG enable) {
    Trace("host.EnableVideoPreview(" + std::to_string(enable) + ")");
    m_showPicture = enable != 0;
    return S_OK;
}

HRESULT CPlayer::SetPreviewRange(LONG start, LONG stop) {
    Trace("host.SetPreviewRange(" + std::to_string(start) + ", " + std::to_string(stop) + ")");
    return S_OK;
}

HRESULT CPlayer::SetPreviewMode(LONG mode) {
    Trace("host.SetPreviewMode(" + std::to_string(mode) + ")");
    return S_OK;
}

HRESULT CPlayer::GetAudioProcessors(IProcessorList** list) {
    Trace("host.GetAudioProcessors()");
    return Give(m_allAudio.Get(), list);
}

HRESULT CPlayer::GetVideoProcessors(IProcessorList** list) {
    Trace("host.GetVideoProcessors()");
    return Give(m_allVideo.Get(), list);
}

HRESULT CPlayer::GetActiveAudioProcessors(IProcessorList** list) {
    Trace("host.GetActiveAudioProcessors()");
    return Give(m_activeAudio.Get(), list);
}

HRESULT CPlayer::GetActiveVideoProcessors(IProcessorList** list) {
    Trace("host.GetActiveVideoProcessors()");
    return Give(m_activeVideo.Get(), list);
}

HRESULT CPlayer::GetProcessorObject(LONG kind, IUnknown** object) {
    Trace("host.GetProcessorObject(" + Hex(kind) + ")");
    *object = nullptr;
    const auto& active = (kind == kVideoProcessorKind ? m_activeVideo : m_activeAudio)->Processors();
    if (active.empty()) return E_FAIL;
    *object = active.back().Get();
    (*object)->AddRef();
    return S_OK;
}
