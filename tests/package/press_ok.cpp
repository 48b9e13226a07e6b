// Runs a host and presses OK in each of its windows; prints their titles, and which of them have a picture that moves.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <set>
#include <string>
#include <vector>

namespace {

struct Search {
    DWORD process;
    HWND window;
};

BOOL CALLBACK Find(HWND window, LPARAM parameter) {
    Search& search = *reinterpret_cast<Search*>(parameter);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    wchar_t title[2];
    if (process != search.process || !IsWindowVisible(window) || !IsWindowEnabled(window) ||
        !GetWindowTextW(window, title, 2))
        return TRUE;
    search.window = window;
    return FALSE;
}

std::vector<DWORD> PixelsOf(HWND window) {
    RECT place;
    GetWindowRect(window, &place);
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = place.right - place.left;
    info.bmiHeader.biHeight = place.bottom - place.top;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    std::vector<DWORD> pixels(static_cast<std::size_t>(info.bmiHeader.biWidth * info.bmiHeader.biHeight));
    void* bits = nullptr;
    const HDC screen = GetDC(nullptr);
    const HDC memory = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateDIBSection(memory, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HGDIOBJ previous = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, info.bmiHeader.biWidth, info.bmiHeader.biHeight, screen, place.left, place.top, SRCCOPY);
    GdiFlush();
    std::copy_n(static_cast<const DWORD*>(bits), pixels.size(), pixels.begin());
    SelectObject(memory, previous);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    return pixels;
}

}  // namespace

int main(int count, char** values) {
    std::string command = count > 1 ? values[1] : "";
    STARTUPINFOA startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION host{};
    if (!CreateProcessA(nullptr, &command[0], nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &host))
        return 100;
    std::set<HWND> pressed;
    while (WaitForSingleObject(host.hProcess, 50) == WAIT_TIMEOUT) {
        Search search{host.dwProcessId, nullptr};
        EnumWindows(&Find, reinterpret_cast<LPARAM>(&search));
        if (!search.window || !pressed.insert(search.window).second) continue;
        wchar_t title[64];
        GetWindowTextW(search.window, title, 64);
        Sleep(1500);  // All is drawn, and the preview has started, half a second after the dialog opened.
        const std::vector<DWORD> before = PixelsOf(search.window);
        bool moves = false;
        for (int tries = 0; tries < 20 && !moves; ++tries) {
            Sleep(100);
            moves = before != PixelsOf(search.window);
        }
        std::printf("%ls%s\n", title, moves ? ": the picture moves" : "");
        std::fflush(stdout);
        PostMessageW(search.window, WM_COMMAND, IDOK, 0);
    }
    DWORD code = 100;
    GetExitCodeProcess(host.hProcess, &code);
    return static_cast<int>(code);
}
