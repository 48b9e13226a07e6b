// The demo host: its settings file, its chorus, and the program as scripts run it.
#include <algorithm>
#include <cstdlib>
#include <functional>
#include <limits>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "all_dialog_rows.h"
#include "demo_host/files.h"
#include "demo_host/player_window.h"
#include "demo_host/settings_file.h"
#include "demo_host/sound.h"
#include "effect_settings/effect_filters.h"
#include "support/dialog_session.h"

namespace {

// --- the settings file ---

TEST(DemoSettings, EveryFieldTakesWhatItsDialogSavesAndComesBack) {
    std::vector<EffectState> states = DefaultStates();
    int unlimited = 0;
    for (const DialogRow& row : AllDialogRows()) {
        const Effect& effect = EffectOf(row.effect.id);
        EffectState& state = StateOf(states, effect);
        const Record& lowest = row.openings[1].record;
        const Record& highest = row.openings[2].record;
        ASSERT_EQ(effect.fields.size(), lowest.size()) << effect.name;
        state.checked = row.effect.hasArea;
        for (std::size_t index = 0; index < lowest.size(); ++index) {
            const Field& field = effect.fields[index];
            SCOPED_TRACE(testing::Message() << effect.name << "." << field.name);
            state.record[index] = index % 2 != 0 ? field.range.min : field.range.max;
            if (field.range.min == INT_MIN && field.range.max == INT_MAX) {
                ++unlimited;
                continue;
            }
            EXPECT_EQ(field.range.min, lowest[index]);
            EXPECT_EQ(field.range.max, highest[index]);
        }
    }
    // The edges of the areas, the offsets and the lines, which the video limits; the blocks; the choices of Aging.
    EXPECT_EQ(unlimited, 4 * 11 + 3 + 4 + 3);
    std::vector<EffectState> read;
    ASSERT_EQ(ParseSettings(FormatSettings(states), read), "");
    for (std::size_t effect = 0; effect < states.size(); ++effect) {
        EXPECT_EQ(read[effect].record, states[effect].record) << AllEffects()[effect].name;
        EXPECT_EQ(read[effect].checked, states[effect].checked) << AllEffects()[effect].name;
    }
}

TEST(DemoSettings, BadContentIsNamedByLineAndField) {
    const struct {
        const char* text;
        const char* problem;
    } rows[] = {
        {"", ""},
        {"\xEF\xBB\xBF# all kinds of blanks\r\n\r\n  wave.threshold=7  \n", ""},
        {"wave.threshold = 101\n", "line 1: wave.threshold: '101' is not a whole number from 1 to 100"},
        {"wave.threshold = 0\n", "line 1: wave.threshold: '0' is not a whole number from 1 to 100"},
        {"\n\nwave.threshold = x", "line 3: wave.threshold: 'x' is not a whole number from 1 to 100"},
        {"wave.threshold = 5 5", "line 1: wave.threshold: '5 5' is not a whole number from 1 to 100"},
        {"wave.threshold =", "line 1: wave.threshold: '' is not a whole number from 1 to 100"},
        {"dizzy.left = 99999999999",
         "line 1: dizzy.left: '99999999999' is not a whole number from -2147483648 to 2147483647"},
        {"wave.height = 1", "line 1: wave.height: the effect has no such field"},
        {"wave = 1", "line 1: wave: the effect has no such field"},
        {"waves.threshold = 1", "line 1: waves.threshold: there is no such effect"},
        {"wave.threshold = 5\nwave.threshold = 5", "line 2: wave.threshold: is there twice"},
        {"wave.threshold 5", "line 1: 'wave.threshold 5' is not of the form effect.field = number"},
    };
    for (const auto& row : rows) {
        std::vector<EffectState> states = DefaultStates();
        StateOf(states, EffectOf(EffectId::Streak)).record = {0, 1};
        EXPECT_EQ(ParseSettings(row.text, states), row.problem) << row.text;
        const Record kept = row.problem[0] ? Record{0, 1} : Record{1, 0};
        EXPECT_EQ(StateOf(states, EffectOf(EffectId::Streak)).record, kept) << row.text;
    }
}

// --- the player ---

TEST(DemoPlayer, OnlyAcceptedValuesStayInForce) {
    const Effect& mosaic = EffectOf(EffectId::Mosaic);
    std::vector<EffectState> states = DefaultStates();
    StateOf(states, mosaic).record[1] = 16;
    int changes = 0;
    const ComPtr<CPlayer> player = Adopt(new CPlayer(MakeSceneClip(), MakeTune()));
    CPlayerWindow window(*player.Get(), states, [&changes] { ++changes; });
    ASSERT_NE(window.Open(), nullptr);
    player->SetPlaying(false);
    player->Seek(400);
    const std::vector<std::uint32_t> plain = player->Picture().pixels;
    const auto show = [&](const std::function<void(DialogDriver&)>& script) {
        RunDialog([&] { window.ShowSettings(mosaic); }, script);
        EXPECT_EQ(player->Position(), 400U) << "where it was before the preview";
        return player->Picture().pixels;
    };
    EXPECT_EQ(show([](DialogDriver& dialog) { dialog.Close(); }), plain);
    EXPECT_FALSE(StateOf(states, mosaic).checked);
    const std::vector<std::uint32_t> squares = show([](DialogDriver& dialog) { dialog.Command(IDOK); });
    EXPECT_NE(squares, plain);
    EXPECT_TRUE(StateOf(states, mosaic).checked);
    EXPECT_EQ(changes, 1);
    const auto cancelDefaults = [](DialogDriver& dialog) {
        ClickDefault(dialog);
        dialog.Close();
    };
    EXPECT_EQ(show(cancelDefaults), squares);
    // A second effect works on what the first one leaves.
    StateOf(states, EffectOf(EffectId::GammaCorrection)) = {true, {1, 300}};
    player->SetChain(states);
    EXPECT_GT(Luma(player->Picture().pixels[0]), Luma(squares[0]));
    EXPECT_EQ(player->Picture().pixels[0], player->Picture().pixels[15]);
}

// --- the chorus ---

constexpr int kPerMs = 10;  // At 10,000 samples a second.
using Samples = std::vector<std::int16_t>;

/// Dry and wet mix, delay, feedback, stereo, enabled.
Samples Chorus(const ChorusParams& params, Samples samples) {
    const auto filter = MakeFilter(EffectId::AudioChorus, [](const std::string&) {});
    ComPtr<IEffectAudioChorus> chorus;
    filter->QueryInterface(IID_IEffectAudioChorus, reinterpret_cast<void**>(chorus.GetAddressOf()));
    chorus->SetChorusParams(params);
    filter->ProcessSound(samples, 1000 * kPerMs);
    return samples;
}

/// Of the left channel, between two times.
double Energy(const Samples& samples, int fromMs, int toMs) {
    double sum = 0;
    for (int at = fromMs * kPerMs; at < toMs * kPerMs; ++at) sum += std::abs(samples[2 * static_cast<std::size_t>(at)]);
    return sum;
}

TEST(DemoChorus, WithoutWetMixTheSoundIsTheDryOneExactly) {
    const Samples tune = MakeTune().samples;
    EXPECT_EQ(Chorus({100, 0, 80, 90, 90, 1, {}}, tune), tune);
    EXPECT_EQ(Chorus({0, 100, 80, 90, 90, 0, {}}, tune), tune);
    EXPECT_NE(Chorus({100, 1, 80, 90, 90, 1, {}}, tune), tune);
}

TEST(DemoChorus, AnImpulseComesBackAfterTheDelay) {
    Samples impulse(std::size_t{2} * 2000 * kPerMs);
    impulse[0] = impulse[1] = 20000;
    constexpr int kSwing = 4;  // The delay swings by 3 ms, which makes echoes up to 1.2 % longer or shorter.
    for (const int delay : {10, 50, 120, 500}) {
        const Samples once = Chorus({0, 100, delay, 0, 0, 1, {}}, impulse);
        EXPECT_NEAR(Energy(once, delay - kSwing, delay + kSwing), 20000, 300) << delay;
        EXPECT_NEAR(Energy(once, 0, 2000), 20000, 300) << delay;
        const Samples again = Chorus({0, 50, delay, 50, 0, 1, {}}, impulse);
        EXPECT_NEAR(Energy(again, delay - kSwing, delay + kSwing), 10000, 150) << delay;
        EXPECT_NEAR(Energy(again, 2 * delay - 2 * kSwing, 2 * delay + 2 * kSwing), 5000, 150) << delay;
    }
}

TEST(DemoChorus, TheChannelsSwingApartByTheirPhase) {
    Samples both = MakeTune().samples;
    for (std::size_t pair = 0; pair < both.size(); pair += 2) both[pair + 1] = both[pair];
    for (const int stereo : {0, 180}) {
        const Samples wet = Chorus({0, 100, 30, 0, stereo, 1, {}}, both);
        bool same = true;
        for (std::size_t pair = 0; pair < wet.size(); pair += 2) same = same && wet[pair] == wet[pair + 1];
        EXPECT_EQ(same, stereo == 0);
    }
}

TEST(DemoChorus, AnyValueIsTakenAsTheNearestInRange) {
    const Samples tune = MakeTune().samples;
    constexpr int kLow = (std::numeric_limits<int>::min)();
    constexpr int kHigh = (std::numeric_limits<int>::max)();
    EXPECT_EQ(
        Chorus({kHigh, kHigh, kHigh, kHigh, kHigh, kHigh, {}}, tune), Chorus({100, 100, 500, 100, 180, 1, {}}, tune));
    EXPECT_EQ(Chorus({kLow, kLow, kLow, kLow, kLow, kLow, {}}, tune), Chorus({-100, -100, 0, -100, 0, 1, {}}, tune));
}

// --- the program ---

std::wstring TemporaryFile(const wchar_t* name) {
    wchar_t folder[MAX_PATH];
    ::GetTempPathW(MAX_PATH, folder);
    return folder + std::wstring(name);
}

/// Runs the demo; gives its exit code and what it wrote to stderr.
std::pair<DWORD, std::string> RunDemo(const std::wstring& arguments, const std::wstring& program = L"demo_host.exe") {
    const std::wstring log = TemporaryFile(L"demo-test.log");
    SECURITY_ATTRIBUTES inherited{sizeof(inherited), nullptr, TRUE};
    STARTUPINFOW start{};
    start.cb = sizeof(start);
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdError = ::CreateFileW(log.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited, CREATE_ALWAYS, 0, nullptr);
    start.hStdOutput = ::GetStdHandle(STD_OUTPUT_HANDLE);
    std::wstring commandLine = program + L" " + arguments;
    PROCESS_INFORMATION process{};
    DWORD exitCode = 99;
    if (::CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &process)) {
        ::WaitForSingleObject(process.hProcess, INFINITE);
        ::GetExitCodeProcess(process.hProcess, &exitCode);
        ::CloseHandle(process.hThread);
        ::CloseHandle(process.hProcess);
    }
    ::CloseHandle(start.hStdError);
    return {exitCode, ReadWholeFile(log).value_or("")};
}

TEST(DemoProgram, ExitCodesAndMessagesTellWhatIsWrong) {
    const std::wstring bad = TemporaryFile(L"bad-settings.txt");
    const std::string content = "wave.threshold = 5\nwave.threshold = 0\n";
    ASSERT_TRUE(WriteWholeFile(bad, content));
    const std::wstring good = TemporaryFile(L"good-settings.txt");
    ASSERT_TRUE(WriteWholeFile(good, "audio-chorus.wetMix = 0\naudio-chorus.dryMix = 100\n"));
    const std::wstring sound = TemporaryFile(L"rendered.wav");
    const struct {
        std::wstring arguments;
        DWORD exitCode;
        const char* message;
    } rows[] = {
        {L"--list", 0, ""},
        {L"--loud", 2, "demo: unknown option '--loud'; --help lists them\n"},
        {L"31", 2, "demo: unknown effect '31'; --list names them\n"},
        {L"wave mosaic", 2, "demo: one effect at a time, not 'mosaic' too\n"},
        {L"wave --media", 2, "demo: option '--media' wants a file\n"},
        {L"wave --media \x65E5\x672C-\xE4.png", 2,
         "demo: can't read a picture from '\xE6\x97\xA5\xE6\x9C\xAC-\xC3\xA4.png'\n"},
        {L"wave --render x.wav", 2, "demo: --render goes with audio-chorus\n"},
        {L"--settings " + bad, 2, "bad-settings.txt, line 2: wave.threshold: is there twice\n"},
        {L"audio-chorus --render " + sound + L" --media " + bad, 2,
         "is not a WAV file of 16-bit PCM, mono or stereo\n"},
        {L"audio-chorus --render no\\such\\folder.wav", 1, "demo: can't write 'no\\such\\folder.wav'\n"},
        {L"audio-chorus --render " + sound + L" --settings " + good, 0, ""},
    };
    for (const auto& row : rows) {
        const auto [exitCode, message] = RunDemo(row.arguments);
        EXPECT_EQ(exitCode, row.exitCode) << message;
        EXPECT_TRUE(message.ends_with(row.message) && message.empty() == !row.message[0]) << message;
    }
    EXPECT_EQ(ReadWholeFile(bad), content);
    std::string problem;
    const std::optional<Sound> rendered = LoadWave(sound, problem);
    ASSERT_TRUE(rendered) << problem;
    const Samples tune = MakeTune().samples;
    EXPECT_TRUE(std::equal(tune.begin(), tune.end(), rendered->samples.begin()));
    // A file that can't be replaced leaves nothing beside it.
    const std::wstring folder = TemporaryFile(L"a-folder");
    ::CreateDirectoryW(folder.c_str(), nullptr);
    EXPECT_FALSE(WriteWholeFile(folder, content));
    WIN32_FIND_DATAW found;
    EXPECT_EQ(::FindFirstFileW((folder + L".*.tmp").c_str(), &found), INVALID_HANDLE_VALUE);
}

TEST(DemoProgram, ADialogThatDidNotOpenIsAFailure) {
    // Beside it stands a library that shows nothing and gives what the variable says.
    const std::wstring program = L"no_dialogs\\demo_host.exe";
    ASSERT_TRUE(::CopyFileW(L"demo_host.exe", program.c_str(), FALSE));
    const std::string refused = "demo: the dialog did not open\n";
    const struct {
        const wchar_t* result;
        std::pair<DWORD, std::string> told;
    } rows[] = {{L"-1", {1, refused}}, {L"0", {1, refused}}, {L"1", {0, ""}}, {L"2", {0, ""}}};
    for (const auto& row : rows) {
        ASSERT_TRUE(::SetEnvironmentVariableW(L"RESULT", row.result));
        EXPECT_EQ(RunDemo(L"gamma-correction", program), row.told) << row.result;
    }
}

}  // namespace
