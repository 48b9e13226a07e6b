// The demo host: a player in which every effect can be seen and one heard, and its command line.
#include <fcntl.h>
#include <io.h>

#include <cstdio>
#include <optional>
#include <string>
#include <vector>

#include <windows.h>

#include <shellapi.h>

#include "demo_host/files.h"
#include "demo_host/gdi_plus.h"
#include "demo_host/messages.h"
#include "demo_host/photographer.h"
#include "demo_host/player_window.h"
#include "demo_host/trace.h"

namespace {

using effect_settings::Result;

constexpr int kExitOk = 0;
constexpr int kExitFailed = 1;
constexpr int kExitUsage = 2;
constexpr int kExitLeak = 3;

constexpr char kHelp[] =
    "usage: demo [EFFECT] [options]\n"
    "  EFFECT             name or number: opens the effect's dialog over the player, and ends with it;\n"
    "                     without one the player runs until it is closed\n"
    "  --list             list the effects\n"
    "  --media FILE       play a picture (PNG, JPEG, BMP, GIF) instead of the generated scene,\n"
    "                     or a sound (WAV of 16-bit PCM) instead of the generated tune\n"
    "  --settings FILE    keep the effects' values in a text file between runs\n"
    "  --screenshot FILE  write a picture of the dialog, or of the player, and close it\n"
    "  --gallery FOLDER   write a picture of every dialog with its effect at work\n"
    "  --render FILE      write the sound as audio-chorus makes it to a WAV file, and show nothing\n"
    "  --trace            print every call on host and filter\n"
    "  --help             this text";

/// Where the defaults change nothing that can be seen at a glance, what the gallery shows instead.
constexpr struct {
    EffectId effect;
    const char* settings;
} kGallery[] = {
    {EffectId::Color, "color.hue = 100\ncolor.saturation = 40\n"},
    {EffectId::Deblocking,  // Has something to do on a picture of blocks.
     "mosaic.checked = 1\nmosaic.mosaicSize = 8\ndeblocking.algorithm = 1\ndeblocking.edgeThreshold = 255\n"},
    {EffectId::GammaCorrection, "gamma-correction.value = 260\n"},
    {EffectId::Mosaic, "mosaic.mosaicSize = 16\n"},
    {EffectId::MotionScan, "motion-scan.lineIncrement = 6\n"},
    {EffectId::VideoRotation, "video-rotation.angle = 180\n"},
};

struct Options {
    const Effect* effect = nullptr;
    std::wstring media;
    std::wstring settings;
    std::wstring picture;
    std::wstring gallery;
    std::wstring render;
    bool trace = false;
    bool list = false;
    bool help = false;
};

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
    const struct {
        const wchar_t* name;
        bool Options::*flag;
        std::wstring Options::*file;
    } known[] = {
        {L"--list", &Options::list, nullptr},          {L"--trace", &Options::trace, nullptr},
        {L"--help", &Options::help, nullptr},          {L"--media", nullptr, &Options::media},
        {L"--settings", nullptr, &Options::settings},  {L"--gallery", nullptr, &Options::gallery},
        {L"--screenshot", nullptr, &Options::picture}, {L"--render", nullptr, &Options::render},
    };
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        const std::wstring& argument = arguments[index];
        if (!argument.starts_with(L'-')) {
            if (options.effect) {
                Complain("one effect at a time, not '" + Utf8(argument) + "' too");
                return std::nullopt;
            }
            options.effect = FindEffect(argument);
            if (!options.effect) {
                Complain("unknown effect '" + Utf8(argument) + "'; --list names them");
                return std::nullopt;
            }
            continue;
        }
        bool isKnown = false;
        for (const auto& option : known) {
            if (argument != option.name) continue;
            isKnown = true;
            if (option.flag) {
                options.*option.flag = true;
            } else if (++index < arguments.size() && !arguments[index].empty()) {
                options.*option.file = NativePath(arguments[index]);
            } else {
                Complain("option '" + Utf8(argument) + "' wants a file");
                return std::nullopt;
            }
            break;
        }
        if (!isKnown) {
            Complain("unknown option '" + Utf8(argument) + "'; --help lists them");
            return std::nullopt;
        }
    }
    if (!options.render.empty() && !(options.effect && options.effect->IsAudio())) {
        Complain("--render goes with audio-chorus");
        return std::nullopt;
    }
    return options;
}

void PrintRecord(const char* when, const Effect& effect, const Record& record) {
    std::printf("%s:", when);
    for (std::size_t index = 0; index < effect.fields.size(); ++index) {
        std::printf(" %s=%d", effect.fields[index].name, record[index]);
    }
    std::puts("");
}

const char* NameOf(Result result) {
    switch (result) {
        case Result::Accepted:
            return "OK";
        case Result::Cancelled:
            return "cancelled";
        case Result::NotCreated:
            return "not created";
        default:
            return "not shown";
    }
}

/// What is played, and with which values.
struct Session {
    std::unique_ptr<IClip> clip;
    Sound sound = MakeTune();
    std::vector<EffectState> states = DefaultStates();
};

/// Null, after a complaint, when a file can't be used.
std::optional<Session> Prepare(const Options& options) {
    Session session;
    const bool isSound =
        !options.render.empty() || options.media.ends_with(L".wav") || options.media.ends_with(L".WAV");
    if (!options.media.empty() && isSound) {
        std::string problem;
        std::optional<Sound> sound = LoadWave(options.media, problem);
        if (!sound) {
            Complain("'" + Utf8(options.media) + "' " + problem);
            return std::nullopt;
        }
        session.sound = std::move(*sound);
    } else if (!options.media.empty()) {
        session.clip = LoadClip(options.media);
        if (!session.clip) {
            Complain("can't read a picture from '" + Utf8(options.media) + "'");
            return std::nullopt;
        }
    }
    if (!session.clip) session.clip = MakeSceneClip();

    if (options.settings.empty() || !FileExists(options.settings)) return session;
    const std::optional<std::string> text = ReadWholeFile(options.settings);
    if (!text) {
        Complain("can't read '" + Utf8(options.settings) + "'");
        return std::nullopt;
    }
    const std::string problem = ParseSettings(*text, session.states);
    if (!problem.empty()) {
        Complain(Utf8(options.settings) + ", " + problem);
        return std::nullopt;
    }
    return session;
}

/// Shows a dialog and tells how it went; takes a picture if a file is named.
int ShowDialog(CPlayer& player, CPlayerWindow& window, const Effect& effect, const std::wstring& picture) {
    std::optional<CPhotographer> photographer;
    if (!picture.empty()) photographer.emplace(player, nullptr, picture);
    const Result result = window.ShowSettings(effect);
    std::printf("result: %d (%s)\n", static_cast<int>(result), NameOf(result));
    const bool shown = result == Result::Accepted || result == Result::Cancelled;
    if (!shown) Complain("the dialog did not open");
    return shown && (!photographer || photographer->Succeeded()) ? kExitOk : kExitFailed;
}

int WriteGallery(CPlayer& player, CPlayerWindow& window, std::vector<EffectState>& states, const std::wstring& folder) {
    ::CreateDirectoryW(folder.c_str(), nullptr);
    int exitCode = kExitOk;
    for (const Effect& effect : AllEffects()) {
        const std::string name = effect.name;
        std::printf(
            "%2d of %d  %s  ", static_cast<int>(effect.id), static_cast<int>(kLastEffectId), effect.name.c_str());
        std::fflush(stdout);
        states = DefaultStates();
        for (const auto& [id, settings] : kGallery) {
            const std::string problem = id == effect.id ? ParseSettings(settings, states) : "";
            if (!problem.empty()) Complain("the gallery's values, " + problem);
        }
        player.SetChain(states);
        const std::wstring file = folder + L"\\" + std::wstring(name.begin(), name.end()) + L".png";
        if (ShowDialog(player, window, effect, file) != kExitOk) exitCode = kExitFailed;
    }
    return exitCode;
}

int Show(const Options& options, Session session) {
    bool saved = true;
    std::vector<EffectState>& states = session.states;
    const auto save = [&] {
        if (options.settings.empty()) return;
        saved = WriteWholeFile(options.settings, FormatSettings(states));
        if (!saved) Complain("can't write '" + Utf8(options.settings) + "'");
    };
    const ComPtr<CPlayer> player = Adopt(new CPlayer(std::move(session.clip), std::move(session.sound)));
    CPlayerWindow window(*player.Get(), states, save);
    constexpr UINT kFast = 10;  // Nobody watches.
    const HWND opened = window.Open(options.gallery.empty() ? CPlayer::kFrameMs : kFast);
    if (!opened) {
        Complain("the player's window can't be opened");
        return kExitFailed;
    }
    int exitCode = kExitOk;
    if (!options.gallery.empty()) {
        exitCode = WriteGallery(*player.Get(), window, states, options.gallery);
    } else if (options.effect) {
        const Record& record = StateOf(states, *options.effect).record;
        PrintRecord("before", *options.effect, record);
        exitCode = ShowDialog(*player.Get(), window, *options.effect, options.picture);
        PrintRecord("after", *options.effect, record);
    } else {
        std::optional<CPhotographer> photographer;
        if (!options.picture.empty()) photographer.emplace(*player.Get(), opened, options.picture);
        window.Run();
        if (photographer && !photographer->Succeeded()) exitCode = kExitFailed;
    }
    return saved ? exitCode : kExitFailed;
}

/// The sound as the chorus makes it, until its echoes have died away.
int Render(const Options& options, Session session) {
    constexpr std::size_t kEchoSeconds = 2;
    Sound& sound = session.sound;
    sound.samples.resize(sound.samples.size() + 2 * kEchoSeconds * static_cast<std::size_t>(sound.samplesPerSecond));
    const ComPtr<IDemoFilter> filter = MakeFilter(options.effect->id, Trace);
    options.effect->Push(*filter.Get(), StateOf(session.states, *options.effect).record, {});
    filter->ProcessSound(sound.samples, sound.samplesPerSecond);
    if (SaveWave(options.render, sound)) return kExitOk;
    Complain("can't write '" + Utf8(options.render) + "'");
    return kExitFailed;
}

int Run(const Options& options) {
    if (options.help) {
        std::puts(kHelp);
        return kExitOk;
    }
    if (options.list) {
        for (const Effect& effect : AllEffects())
            std::printf("%2d  %s\n", static_cast<int>(effect.id), effect.name.c_str());
        return kExitOk;
    }
    if (options.trace) EnableTrace();
    std::optional<Session> session = Prepare(options);
    if (!session) return kExitUsage;
    const int exitCode =
        options.render.empty() ? Show(options, std::move(*session)) : Render(options, std::move(*session));
    if (g_liveObjects != 0) {
        Complain(std::to_string(g_liveObjects) + " objects were not released");
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
        Complain("GDI+ does not start");
        return kExitFailed;
    }
    const int exitCode = Run(*options);
    Gdiplus::GdiplusShutdown(gdiplus);
    return exitCode;
}
