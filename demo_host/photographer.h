// Takes pictures of windows, as PNG files.
#pragma once

#include <string>

#include "demo_host/player.h"

/// Waits, while it lives, until the player has played some frames; saves a picture of the window then and closes it.
/// Pictures of the same thing are the same: they show the same frame, and the pointer is parked in a corner.
class CPhotographer {
public:
    /// @param window  The player's window, or null for the dialog that previews the player.
    CPhotographer(CPlayer& player, HWND window, std::wstring file);
    ~CPhotographer();
    CPhotographer(const CPhotographer&) = delete;
    CPhotographer& operator=(const CPhotographer&) = delete;

    /// False, after a message, when there is no picture.
    bool Succeeded() const;

private:
    void OnPlayed(HWND window, int frames);

    enum class State { Waiting, Saved, Failed };

    CPlayer& m_player;
    std::wstring m_file;
    State m_state = State::Waiting;
};
