// The demo host: plays a clip and opens the settings dialog of an effect over it.
#include <fcntl.h>
#include <io.h>

#include <algorithm>
#include <cstdio>
#include <optional>
#include <string>
#include <vector>

#include <windows.h>

#include <shellapi.h>

#include "demo_host/effects.h"
#include "demo_host/gdi_plus.h"
#include "demo_host/player.h"
#include "demo_host/screenshot.h"
#include "demo_host/trace.h"
#include "effect_settings/effect_settings.h"

namespace {

constexpr int kExitOk = 0;
constexpr int kExitFailed = 1;
constexpr int kExitUsage = 2;
constexpr int kExitLeak = 3;

constexpr int kFramesBeforePicture = 25;
constexpr UINT kPictureTimerMs = 200;
constexpr LPARAM kOnEnable = MAKELPARAM(40, 305);

constexpr char kHelp[] =
    "usage: demo [EFFECT] [options]\n"
    "  EFFECT             name or number; gamma-correction without one\n"
    "  --list             list the effects\n"
    "  --media FILE       play a picture (PNG, JPEG, BMP, GIF) instead of the generated scene\n"
    "  --screenshot FILE  write a picture of the dialog and close it\n"
    "  --gallery FOLDER   write a picture of every dialog, and one with \"Enable\" off\n"
    "  --trace            print every call on host and filter\n"
    "  --help             this text";

struct Options {
    const Effect* effect = nullptr;
    std::wstring media;
    std::vector<std::wstring> pictures;  ///< Of the dialog; the second with "Enable" clicked.
    std::wstring gallery;
    bool trace = false;
    bool list = false;
    bool help = false;
};

/// The C library's own conversion of wide text ends at the first letter that its locale lacks.
std::string Utf8(const std::wstring& text) {
    std::string bytes(3 * text.size(), '\0');  // No UTF-16 unit becomes more than three bytes.
    bytes.resize(static_cast<std::size_t>(::WideCharToMultiByte(
        CP_UTF8, 0, text.data(), static_cast<int>(text.size()), bytes.data(), static_cast<int>(bytes.size()), nullptr,
        nullptr)));
    return bytes;
}

int Complain(const std::wstring& what) {
    std::fprintf(stderr, "demo: %s\n", Utf8(what).c_str());
    return kExitUsage;
}

/// Wine's programs are given the paths of the system around it, too.
std::wstring NativePath(const std::wstring& path) {
    const bool isWine = ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
    return isWine && path.starts_with(L'/') ? L"Z:" + path : path;
}

/// Null, after a complaint, when the command line makes no sense.
std::optional<Options> ParseCommandLine() {
    int count = 0;
    LPWSTR* raw = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    const std::vector<std::wstring> arguments(raw + 1, raw + count);
    ::LocalFree(raw);

    Options options;
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        const std::wstring& argument = arguments[index];
        const auto takeFile = [&](std::wstring& file) {
            if (++index < arguments.size()) file = NativePath(arguments[index]);
            return !file.empty();
        };
        bool hasValue = true;
        if (argument == L"--list") {
            options.list = true;
        } else if (argument == L"--trace") {
            options.trace = true;
        } else if (argument == L"--help") {
            options.help = true;
        } else if (argument == L"--media") {
            hasValue = takeFile(options.media);
        } else if (argument == L"--screenshot") {
            std::wstring file;
            hasValue = takeFile(file);
            options.pictures = {file};
        } else if (argument == L"--gallery") {
            hasValue = takeFile(options.gallery);
        } else if (argument.starts_with(L'-')) {
            Complain(L"unknown option '" + argument + L"'; --help lists them");
            return std::nullopt;
        } else if (options.effect) {
            Complain(L"one effect at a time, not '" + argument + L"' too");
            return std::nullopt;
        } else if (options.effect = FindEffect(argument); !options.effect) {
            Complain(L"unknown effect '" + argument + L"'; --list names them");
            return std::nullopt;
        }
        if (!hasValue) {
            Complain(L"option '" + argument + L"' wants a file");
            return std::nullopt;
        }
    }
    if (!options.effect) options.effect = FindEffect(L"gamma-correction");
    return options;
}

void PrintRecord(const char* when, const Effect& effect, const std::vector<std::int32_t>& record) {
    if (effect.fields.empty()) return;
    std::printf("%s:", when);
    for (std::size_t index = 0; index < effect.fields.size(); ++index) {
        std::printf(" %s=%d", effect.fields[index].name, record[index]);
    }
    std::puts("");
}

const char* NameOf(std::int32_t result) {
    switch (result) {
        case kSettingsAccepted:
            return "OK";
        case kSettingsCancelled:
            return "cancelled";
        case kSettingsNotCreated:
            return "not created";
        default:
            return "not shown";
    }
}

// Takes pictures from inside the dialog's message loop, and closes the dialog after the last.
struct Photographer {
    const CPlayer* player = nullptr;
    std::vector<std::wstring> files;  ///< Still to be written; between two of them "Enable" is clicked.
    bool failed = false;
};
Photographer g_photographer;

void CALLBACK TakePicture(HWND, UINT, UINT_PTR, DWORD) {
    auto& [player, files, failed] = g_photographer;
    const HWND dialog = player->Dialog();
    if (files.empty() || !dialog || player->PreviewedFrames() < kFramesBeforePicture) return;
    if (!SaveScreenOf(dialog, files.front())) {
        Complain(L"the picture can't be written to '" + files.front() + L"'");
        failed = true;
    }
    files.erase(files.begin());
    if (files.empty()) {
        ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
        return;
    }
    for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP}) ::PostMessageW(dialog, message, 0, kOnEnable);
}

int ShowDialog(const Options& options, std::unique_ptr<IClip> clip) {
    const Effect& effect = *options.effect;
    const ComPtr<CPlayer> player = Adopt(new CPlayer(std::move(clip)));
    if (!player->Open()) {
        Complain(L"the player's window can't be opened");
        return kExitFailed;
    }
    g_photographer = {player.Get(), options.pictures};
    const UINT_PTR timer = options.pictures.empty() ? 0 : ::SetTimer(nullptr, 0, kPictureTimerMs, TakePicture);

    std::vector<std::int32_t> record;
    for (const RecordField& field : effect.fields) record.push_back(field.initial);
    PrintRecord("before", effect, record);
    IMediaHost* host = player.Get();
    const SIZE video = player->VideoSize();
    const SIZE frame = player->FrameSize();
    const std::int32_t result =
        ShowSettingsDialog(&host, effect.id, video.cx, video.cy, frame.cx, frame.cy, record.data());
    std::printf("result: %d (%s)\n", result, NameOf(result));
    PrintRecord("after", effect, record);
    if (timer) ::KillTimer(nullptr, timer);
    player->Close();

    const bool shown = result == kSettingsAccepted || result == kSettingsCancelled;
    if (!shown) Complain(L"the dialog did not open");
    for (const std::wstring& file : g_photographer.files) Complain(L"no picture was taken for '" + file + L"'");
    return shown && g_photographer.files.empty() && !g_photographer.failed ? kExitOk : kExitFailed;
}

std::unique_ptr<IClip> OpenClip(const Options& options) {
    return options.media.empty() ? MakeSceneClip() : LoadClip(options.media);
}

/// A picture of every dialog, and one more with "Enable" off.
int WriteGallery(Options options) {
    ::CreateDirectoryW(options.gallery.c_str(), nullptr);
    int exitCode = kExitOk;
    for (const Effect& effect : AllEffects()) {
        const std::string name = effect.name;
        const std::wstring file = options.gallery + L"\\" + std::wstring(name.begin(), name.end());
        options.effect = &effect;
        options.pictures = {file + L".png", file + L"-off.png"};
        std::printf("%s\n", effect.name);
        exitCode = (std::max)(exitCode, ShowDialog(options, OpenClip(options)));
    }
    return exitCode;
}

int Run(const Options& options) {
    if (options.help) {
        std::puts(kHelp);
        return kExitOk;
    }
    if (options.list) {
        for (const Effect& effect : AllEffects()) std::printf("%2d  %s\n", static_cast<int>(effect.id), effect.name);
        return kExitOk;
    }
    if (options.trace) EnableTrace();
    std::unique_ptr<IClip> clip = OpenClip(options);
    if (!clip) return Complain(L"can't read a picture from '" + options.media + L"'");
    const int exitCode = options.gallery.empty() ? ShowDialog(options, std::move(clip)) : WriteGallery(options);
    clip.reset();
    if (g_liveObjects != 0) {
        std::fprintf(stderr, "demo: %ld objects were not released\n", g_liveObjects);
        return kExitLeak;
    }
    return exitCode;
}

}  // namespace

int main() {
    // Lines end as scripts on either side expect them.
    ::_setmode(::_fileno(stdout), _O_BINARY);
    ::_setmode(::_fileno(stderr), _O_BINARY);
    const std::optional<Options> options = ParseCommandLine();
    if (!options) return kExitUsage;
    ULONG_PTR gdiplus = 0;
    const Gdiplus::GdiplusStartupInput input;
    if (Gdiplus::GdiplusStartup(&gdiplus, &input, nullptr) != Gdiplus::Ok) {
        Complain(L"GDI+ does not start");
        return kExitFailed;
    }
    const int exitCode = Run(*options);
    Gdiplus::GdiplusShutdown(gdiplus);
    return exitCode;
}
