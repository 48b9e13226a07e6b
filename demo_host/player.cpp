#include "demo_host/player.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "demo_host/effects.h"
#include "demo_host/trace.h"

namespace {

constexpr UINT_PTR kFrameTimer = 1;
constexpr UINT kFrameMs = 40;  // 25 frames a second.
constexpr wchar_t kWindowClass[] = L"EffectSettingsDemo";
constexpr COLORREF kBarColor = RGB(0, 0, 0);

/// Draws a frame into the middle of a window, as large as its proportions allow.
void DrawFrame(HWND window, const Frame& frame) {
    RECT client;
    ::GetClientRect(window, &client);
    if (client.right <= 0 || client.bottom <= 0) return;
    const double scale =
        (std::min)(static_cast<double>(client.right) / frame.width, static_cast<double>(client.bottom) / frame.height);
    const int width = (std::max)(static_cast<int>(std::lround(frame.width * scale)), 1);
    const int height = (std::max)(static_cast<int>(std::lround(frame.height * scale)), 1);
    const int x = (client.right - width) / 2;
    const int y = (client.bottom - height) / 2;

    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = frame.width;
    info.bmiHeader.biHeight = -frame.height;  // Top row first.
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;

    const HDC dc = ::GetDC(window);
    ::SetStretchBltMode(dc, HALFTONE);
    ::SetBrushOrgEx(dc, 0, 0, nullptr);
    ::StretchDIBits(
        dc, x, y, width, height, 0, 0, frame.width, frame.height, frame.pixels.data(), &info, DIB_RGB_COLORS, SRCCOPY);
    ::SetDCBrushColor(dc, kBarColor);
    const auto bar = static_cast<HBRUSH>(::GetStockObject(DC_BRUSH));
    for (const RECT& rest : {RECT{0, 0, x, client.bottom}, RECT{x + width, 0, client.right, client.bottom},
                             RECT{x, 0, x + width, y}, RECT{x, y + height, x + width, client.bottom}}) {
        if (rest.right > rest.left && rest.bottom > rest.top) ::FillRect(dc, &rest, bar);
    }
    ::ReleaseDC(window, dc);
}

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

CPlayer::CPlayer(std::unique_ptr<IClip> clip) : m_clip(std::move(clip)) {
    for (const Effect& effect : AllEffects()) {
        (effect.IsAudio() ? m_allAudio : m_allVideo)->Append(MakeFilter(effect.id, Trace));
    }
    m_frame = m_clip->FrameAt(0);
}

HWND CPlayer::Open() {
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = WindowProc;
    windowClass.hInstance = ::GetModuleHandleW(nullptr);
    windowClass.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
    windowClass.lpszClassName = kWindowClass;
    ::RegisterClassW(&windowClass);
    m_started = ::GetTickCount();
    m_window = ::CreateWindowExW(0, kWindowClass, L"EffectSettings demo", WS_OVERLAPPEDWINDOW, 60, 40, 820, 640,
                                 nullptr, nullptr, windowClass.hInstance, this);
    if (!m_window) return nullptr;
    ::ShowWindow(m_window, SW_SHOWNORMAL);
    ::SetForegroundWindow(m_window);
    ::SetTimer(m_window, kFrameTimer, kFrameMs, nullptr);
    return m_window;
}

void CPlayer::Close() {
    if (m_window) ::DestroyWindow(m_window);
    m_window = nullptr;
}

SIZE CPlayer::FrameSize() const { return {m_frame.width, m_frame.height}; }

HWND CPlayer::Dialog() const { return m_dialog; }

LRESULT CALLBACK CPlayer::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        const auto* create = reinterpret_cast<const CREATESTRUCTW*>(lParam);
        ::SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(create->lpCreateParams));
    }
    auto* player = reinterpret_cast<CPlayer*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
    switch (message) {
        case WM_TIMER:
            player->PlayFrame();
            return 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_PAINT: {
            PAINTSTRUCT paint;
            ::BeginPaint(window, &paint);
            ::EndPaint(window, &paint);
            DrawFrame(window, player->m_frame);
            return 0;
        }
        default:
            return ::DefWindowProcW(window, message, wParam, lParam);
    }
}

void CPlayer::PlayFrame() {
    const DWORD milliseconds = ::GetTickCount() - m_started;
    m_frame = m_clip->FrameAt(milliseconds);
    for (const auto& processor : m_activeVideo->Processors()) processor->Process(m_frame, milliseconds / kFrameMs);
    DrawFrame(m_window, m_frame);
    if (m_previewing) ++m_previewedFrames;
    if (m_previewing && m_showPicture && m_previewWindow) DrawFrame(m_previewWindow, m_frame);
}

HRESULT CPlayer::RefreshPreview() {
    Trace("host.RefreshPreview()");
    m_previewing = true;
    m_previewedFrames = 0;
    return S_OK;
}

HRESULT CPlayer::StopPreview() {
    Trace("host.StopPreview()");
    m_previewing = false;
    return S_OK;
}

HRESULT CPlayer::ResetPreview() {
    Trace("host.ResetPreview()");
    m_started = ::GetTickCount();
    for (const auto& processor : m_activeVideo->Processors()) processor->Restart();
    return S_OK;
}

HRESULT CPlayer::SetPreviewOption(LONG option) {
    Trace("host.SetPreviewOption(" + std::to_string(option) + ")");
    return S_OK;
}

HRESULT CPlayer::SetPreviewWindow(LONG window) {
    Trace("host.SetPreviewWindow(" + Hex(window) + ")");
    m_previewWindow = static_cast<HWND>(LongToHandle(window));
    m_dialog = m_previewWindow ? ::GetAncestor(m_previewWindow, GA_ROOT) : nullptr;
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
