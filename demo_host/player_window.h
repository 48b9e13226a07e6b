// The player's window: the picture, the sound's wave form, play and position, and the list of effects.
#pragma once

#include <functional>
#include <vector>

#include <windows.h>

#include <commctrl.h>

#include "demo_host/device_contexts.h"
#include "demo_host/player.h"

class CPlayerWindow {
public:
    /// Both must outlive the window. `onChange` is called after each change of the states by the user.
    CPlayerWindow(CPlayer& player, std::vector<EffectState>& states, std::function<void()> onChange);
    ~CPlayerWindow();
    CPlayerWindow(const CPlayerWindow&) = delete;
    CPlayerWindow& operator=(const CPlayerWindow&) = delete;

    /// Shows the window and starts playing, a frame every so many milliseconds. Null when that fails.
    HWND Open(UINT frameMs = CPlayer::kFrameMs);
    /// Runs until the user closes the window.
    void Run();
    /// Shows the dialog of an effect, with its values in the states. Accepted, they are in force and the effect is
    /// checked.
    effect_settings::Result ShowSettings(const Effect& effect);

private:
    static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
    bool CreateControls();
    LRESULT OnNotify(const NMHDR& header);
    LRESULT DrawListItem(const NMLVCUSTOMDRAW& item) const;
    LRESULT DrawPosition(const NMCUSTOMDRAW& part) const;
    void DrawButton(const DRAWITEMSTRUCT& item) const;
    void OnPaint();
    void OnFrame();
    void OnSettingsClicked();
    void UpdateTime();

    CPlayer& m_player;
    std::vector<EffectState>& m_states;
    std::function<void()> m_onChange;
    HWND m_window = nullptr;
    HWND m_play = nullptr;
    HWND m_position = nullptr;
    HWND m_time = nullptr;
    HWND m_list = nullptr;
    HWND m_settings = nullptr;
    GdiOwner<HFONT> m_font;
    GdiOwner<HBRUSH> m_background;
    DWORD m_frameMs = CPlayer::kFrameMs;
    bool m_filling = true;  // The list's check marks are set, not clicked.
};
