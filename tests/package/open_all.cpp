// Opens and closes all thirty dialogs: one with a filter and a preview, the others without.
#include <cstdio>
#include <set>
#include <string>

#include "effect_settings/preview_host.h"

using namespace effect_settings;

namespace {

struct Gamma : PreviewFilter<IEffectGammaCorrection> {
    HRESULT STDMETHODCALLTYPE SetGammaParams(GammaParams params) override {
        factor = params.value;
        return S_OK;
    }
    void Draw(HDC, const RECT&, double) override { ++frames; }
    int factor = 0;
    int frames = 0;
};

const Gamma* g_filter = nullptr;
std::set<std::wstring> g_titles;

BOOL CALLBACK Close(HWND window, LPARAM) {
    if (!IsWindowVisible(window) || !IsWindowEnabled(window)) return TRUE;
    wchar_t title[64] = L"";
    GetWindowTextW(window, title, 64);
    // The one with a preview stays until some frames of it were drawn.
    if (std::wstring(title) == L"Gamma Correction Settings" && g_filter->frames < 3) return TRUE;
    g_titles.insert(title);
    PostMessageW(window, WM_CLOSE, 0, 0);
    return TRUE;
}

void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) { EnumThreadWindows(GetCurrentThreadId(), &Close, 0); }

}  // namespace

int main() {
    static Gamma filter;
    g_filter = &filter;
    PreviewHost player(filter);
    SetTimer(nullptr, 0, 20, &OnTimer);
    int cancelled = 0;
    for (int effect = kFirstEffectId; effect <= kLastEffectId; ++effect) {
        IMediaHost* host = &player;
        int32_t record[64] = {};
        cancelled +=
            ShowSettingsDialog(&host, static_cast<EffectId>(effect), 640, 480, 640, 480, record) == kSettingsCancelled;
    }
    int dialogs = 0;
    for (const std::wstring& title : g_titles) dialogs += title.find(L" Setting") != std::wstring::npos;
    std::printf(
        "%d closed, %d different dialogs, gamma %d, %d frames\n", cancelled, dialogs, filter.factor, filter.frames);
    return cancelled == 30 && dialogs == 30 && filter.factor == 1 && filter.frames >= 3 ? 0 : 1;
}
