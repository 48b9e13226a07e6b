// The demo host: plays a clip and opens the settings dialog of an effect over it.
#include <fcntl.h>
#include <io.h>

#include <cstdio>
#include <optional>
#include <string>
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
// Records of effects that the demo has no fields for: larger than any of them.
constexpr std::size_t kLargestRecord = 32;

constexpr char kHelp[] =
    "usage: demo [EFFECT] [options]\n"
    "  EFFECT             name or number; gamma-correction without one\n"
    "  --list             list the effects\n"
    "  --media FILE       play a picture (PNG, JPEG, BMP, GIF) instead of the generated scene\n"
    "  --screenshot FILE  write a picture of the dialog and close it\n"
    "  --trace            print every call on host and filter\n"
    "  --kit              show the gallery of controls instead of a dialog\n"
    "  --help             this text";

struct Options {
    const Effect* effect = nullptr;
    std::wstring media;
    std::wstring screenshot;
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

// Takes the picture from inside the dialog's message loop, and closes the dialog.
const CPlayer* g_photographed = nullptr;
std::wstring g_screenshotFile;
bool g_screenshotSaved = false;

void CALLBACK TakeScreenshot(HWND, UINT, UINT_PTR timer, DWORD) {
    ::KillTimer(nullptr, timer);
    const HWND dialog = g_photographed->Dialog();
    if (!dialog) return;
    g_screenshotSaved = SaveScreenOf(dialog, g_screenshotFile);
    ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
}

int ShowDialog(const Options& options, std::unique_ptr<IClip> clip) {
    const Effect& effect = *options.effect;
    const ComPtr<CPlayer> player = Adopt(new CPlayer(std::move(clip)));
    if (!player->Open()) {
        Complain(L"the player's window can't be opened");
        return kExitFailed;
    }
    if (!options.screenshot.empty()) {
        g_photographed = player.Get();
        g_screenshotFile = options.screenshot;
        ::SetTimer(nullptr, 0, kScreenshotDelayMs, TakeScreenshot);
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

    if (options.screenshot.empty()) return kExitOk;
    if (!g_screenshotSaved) {
        Complain(L"the picture can't be written to '" + options.screenshot + L"'");
        return kExitFailed;
    }
    return kExitOk;
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
    std::unique_ptr<IClip> clip = options.media.empty() ? MakeSceneClip() : LoadClip(options.media);
    if (!clip) return Complain(L"can't read a picture from '" + options.media + L"'");
    const int exitCode = ShowDialog(options, std::move(clip));
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
