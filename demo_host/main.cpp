// The demo host: plays a clip and opens the settings dialog of an effect over it.
#include <fcntl.h>
#include <io.h>

#include <algorithm>
#include <cstdio>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <windows.h>

#include <shellapi.h>

#include "demo_host/effects.h"
#include "demo_host/kit_gallery.h"
#include "demo_host/player.h"
#include "demo_host/screenshot.h"
#include "demo_host/trace.h"
#include "effect_settings/effect_settings.h"
#include "skin/gdi_plus.h"

namespace {

constexpr int kExitOk = 0;
constexpr int kExitFailed = 1;
constexpr int kExitUsage = 2;
constexpr int kExitLeak = 3;

// The library starts the preview half a second after the dialog opened; by now it runs.
constexpr UINT kScreenshotDelayMs = 1500;
constexpr UINT kClickDelayMs = 200;
constexpr LPARAM kOnEnable = MAKELPARAM(40, 305);
// Records of effects that the demo has no fields for: larger than any of them.
constexpr std::size_t kLargestRecord = 32;

constexpr char kHelp[] =
    "usage: demo [EFFECT] [options]\n"
    "  EFFECT             name or number; gamma-correction without one\n"
    "  --list             list the effects\n"
    "  --media FILE       play a picture (PNG, JPEG, BMP, GIF) instead of the generated scene\n"
    "  --screenshot FILE  write a picture of the dialog and close it\n"
    "  --gallery FOLDER   write a picture of every dialog, and one with \"Enable\" off\n"
    "  --trace            print every call on host and filter\n"
    "  --kit              show the gallery of controls instead of a dialog\n"
    "  --help             this text";

struct Options {
    const Effect* effect = nullptr;
    std::wstring media;
    std::wstring screenshot;
    std::wstring screenshotWhenOff;
    std::wstring gallery;
    bool trace = false;
    bool list = false;
    bool kit = false;
    bool help = false;
};

int Complain(const std::wstring& what) {
    std::fprintf(stderr, "demo: %ls\n", what.c_str());
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
        } else if (argument == L"--kit") {
            options.kit = true;
        } else if (argument == L"--help") {
            options.help = true;
        } else if (argument == L"--media") {
            hasValue = takeFile(options.media);
        } else if (argument == L"--screenshot") {
            hasValue = takeFile(options.screenshot);
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
    std::wstring file;
    std::wstring fileWhenOff;  ///< Of the dialog after a click on "Enable"; empty for none.
    bool succeeded = true;
};
Photographer g_photographer;

void CALLBACK TakePicture(HWND, UINT, UINT_PTR timer, DWORD) {
    ::KillTimer(nullptr, timer);
    const HWND dialog = g_photographer.player->Dialog();
    if (!dialog) return;
    g_photographer.succeeded = SaveScreenOf(dialog, g_photographer.file) && g_photographer.succeeded;
    if (g_photographer.fileWhenOff.empty()) {
        ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
        return;
    }
    for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP}) ::PostMessageW(dialog, message, 0, kOnEnable);
    g_photographer.file = std::exchange(g_photographer.fileWhenOff, {});
    ::SetTimer(nullptr, 0, kClickDelayMs, TakePicture);
}

int ShowDialog(const Options& options, std::unique_ptr<IClip> clip) {
    const Effect& effect = *options.effect;
    const ComPtr<CPlayer> player = Adopt(new CPlayer(std::move(clip)));
    if (!player->Open()) {
        Complain(L"the player's window can't be opened");
        return kExitFailed;
    }
    if (!options.screenshot.empty()) {
        g_photographer = {player.Get(), options.screenshot, options.screenshotWhenOff};
        ::SetTimer(nullptr, 0, kScreenshotDelayMs, TakePicture);
    }

    std::vector<std::int32_t> record;
    for (const RecordField& field : effect.fields) record.push_back(field.initial);
    if (record.empty()) record.resize(kLargestRecord);
    PrintRecord("before", effect, record);
    IMediaHost* host = player.Get();
    const SIZE video = player->VideoSize();
    const SIZE frame = player->FrameSize();
    const std::int32_t result =
        ShowSettingsDialog(&host, effect.id, video.cx, video.cy, frame.cx, frame.cy, record.data());
    std::printf("result: %d (%s)\n", result, NameOf(result));
    PrintRecord("after", effect, record);
    player->Close();

    if (!g_photographer.succeeded) {
        Complain(L"the picture can't be written to '" + options.screenshot + L"'");
        return kExitFailed;
    }
    return kExitOk;
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
        options.effect = &effect;
        options.screenshot = options.gallery + L"\\" + std::wstring(name.begin(), name.end()) + L".png";
        options.screenshotWhenOff = options.gallery + L"\\" + std::wstring(name.begin(), name.end()) + L"-off.png";
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
    if (options.kit) return ShowKitGallery(options.screenshot);
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
    ::_setmode(::_fileno(stdout), _O_BINARY);  // Lines end as scripts on either side expect them.
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
