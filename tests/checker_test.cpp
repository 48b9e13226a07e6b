// EffectSettingsCheck.exe tells hosts and libraries that are right from those with a fault, and names it; and the host
// that it makes of each filter.
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <windows.h>

#include "effect_settings/preview_host.h"
#include "support/watchdog.h"

namespace {

std::string Failed(const std::string& finding) { return "FAIL  GammaCorrection    " + finding; }
std::string Not(const std::string& should) {
    const std::size_t colon = should.find(": ") + 2;
    return Failed(should.substr(0, colon) + "should be so, but is not: " + should.substr(colon));
}

constexpr char kRightHost[] = "--host faulty_host.dll --effect GammaCorrection";
constexpr char kNoHost[] = "--effect GammaCorrection";

struct FaultRow {
    const char* fault;
    int exitCode;
    std::vector<std::string> named;  ///< In the report.
    std::string options = kRightHost;
    const char* folder = "";  ///< Of the program and the library.
};

const FaultRow kRows[] = {
    {"", 0, {"ok    GammaCorrection    opens and closes: "}},
    {"", 0, {"ok    AudioChorus        opens and closes: "}, "--effect AudioChorus"},
    {"", 2, {}, "--effect Gamma"},
    // hosts
    {"no host", 1, {Failed("host: CreateEffectSettingsHost gave none")}},
    {"",
     1,
     {Failed("host: exports no CreateEffectSettingsHost")},
     "--host EffectSettings.dll --effect GammaCorrection"},
    {"", 1, {Failed("host: cannot be loaded")}, "--host none.dll --effect GammaCorrection"},
    {"knows no interface", 1, {Not("QueryInterface: the host answers for IUnknown")}},
    {"query not counted", 1, {Not("AddRef, Release: each reference that is taken can be given back")}},
    {"no list", 1, {Not("GetVideoProcessors: gives a list")}},
    {"list not counted", 1, {Not("GetVideoProcessors: gives a new reference with each call")}},
    {"finds everything",
     1,
     {Not("all.FindByMoniker: gives -1 for a moniker that the list does not hold"),
      Not("active.RemoveAt: takes out what stood in the chain before")}},
    {"finds nothing", 1, {Not("all.FindByMoniker: finds the effect's filter by its moniker")}},
    {"no item", 1, {Not("all.GetItem: gives the item at that index")}},
    {"item not counted", 1, {Not("all.GetItem: gives a new reference with each call")}},
    {"item for any index", 1, {Not("all.GetItem: fails for an index that is not there, and gives null")}},
    {"refuses what it adds", 1, {Not("active.Add: takes what all.GetItem gave")}},
    {"adds nothing", 1, {Not("active.FindByMoniker: finds the filter that was just added")}},
    {"chain not counted", 1, {Not("active.Add: takes a reference of its own to the item")}},
    {"no object", 1, {Not("GetProcessorObject: gives the object of the filter that was just added")}},
    {"no interface", 1, {Not("attached object: answers for the effect's property interface")}},
    {"refuses what it removes", 1, {Not("active.RemoveAt: succeeds")}},
    {"keeps what is removed", 1, {Not("active.RemoveAt: takes the filter out of the chain")}},
    {"keeps a reference", 1, {Not("active.RemoveAt: drops the list's reference to the item")}},
    {"no object",
     1,
     {R"({"check": "GammaCorrection", "holds": false, "detail": "GetProcessorObject: should)", R"(  "holds": false,)"},
     std::string(kRightHost) + " --json"},
    {"crash", 1, {Failed("end: crashes: exit code 0xC0000005; the last call was RefreshPreview()")}},
    {"hang",
     1,
     {Failed("end: hangs: not closed within 5 seconds; the last call was all.FindByMoniker")},
     std::string(kRightHost) + " --seconds 5"},
    {"hang in a dialog",
     1,
     {Failed("end: hangs: not closed within 10 seconds; the last call was RefreshPreview()")},
     std::string(kRightHost) + " --seconds 10"},
    // libraries
    {"calls once more",
     1,
     {Failed("calls: call 24 should be nothing more and was StopPreview()")},
     kNoHost,
     "no_dialogs\\"},
    {"", 1, {"FAIL  library "}, kNoHost, "no_library\\"},
    {"", 1, {"FAIL  export ", Failed("library: ShowSettingsDialog cannot be called")}, kNoHost, "no_export\\"},
    {"careless",
     1,
     {"FAIL  version            the file has no version", "FAIL  picture ", Failed("result: closing gives 0"),
      Failed("record: closing leaves the record as it was"),
      Failed("calls: call 1 should be SetPreviewWindow(panel) and was nothing more"),
      Failed("references: 1 to host and lists not given back")},
     kNoHost,
     "no_dialogs\\"},
};

std::string OutputFile() {
    char folder[MAX_PATH];
    ::GetTempPathA(MAX_PATH, folder);
    return std::string(folder) + "checker_test_" + std::to_string(::GetCurrentProcessId()) + ".txt";
}

TEST(Checker, NamesWhatHostOrLibraryDoesWrongly) {
    const std::string file = OutputFile();
    for (const char* folder : {"no_library", "no_export", "no_dialogs"}) {
        ::CreateDirectoryA(folder, nullptr);
        const std::string program = std::string(folder) + "\\EffectSettingsCheck.exe";
        ASSERT_TRUE(::CopyFileA("EffectSettingsCheck.exe", program.c_str(), FALSE));
    }
    ASSERT_TRUE(::CopyFileA("faulty_host.dll", "no_export\\EffectSettings.dll", FALSE));
    for (const FaultRow& row : kRows) {
        SCOPED_TRACE(row.fault + (' ' + row.options));
        ASSERT_TRUE(::SetEnvironmentVariableA("FAULT", row.fault));
        const std::string command = row.folder + ("EffectSettingsCheck.exe " + row.options) + " >\"" + file + '"';
        const int exitCode = std::system(command.c_str());
        ReportProgress();
        std::ostringstream output;
        output << std::ifstream(file).rdbuf();
        EXPECT_EQ(exitCode, row.exitCode) << output.str();
        for (const std::string& line : row.named) {
            EXPECT_NE(output.str().find(line), std::string::npos) << line << '\n' << output.str();
        }
    }
    ::DeleteFileA(file.c_str());
}

struct CountingFilter : effect_settings::PreviewFilter<IEffectGammaCorrection> {
    HRESULT STDMETHODCALLTYPE SetGammaParams(GammaParams) override { return S_OK; }
    void Draw(HDC, const RECT&, double) override { ++frames; }
    int frames = 0;
};

TEST(PreviewHost, DrawsWhileItRunsAndHasWhereTo) {
    const HWND panel = ::CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    CountingFilter filter;
    effect_settings::PreviewHost host(filter);
    const auto draws = [&filter] {
        filter.frames = 0;
        const UINT_PTR end = ::SetTimer(nullptr, 0, 200, nullptr);
        MSG message{};
        while (message.message != WM_TIMER || message.wParam != end) {
            ::DispatchMessageW(&message);
            ::GetMessageW(&message, nullptr, 0, 0);
        }
        ::KillTimer(nullptr, end);
        return filter.frames > 0;
    };
    host.SetPreviewWindow(HandleToLong(panel));
    host.EnableVideoPreview(-1);
    EXPECT_FALSE(draws()) << "not begun";
    host.RefreshPreview();
    EXPECT_TRUE(draws());
    host.EnableVideoPreview(0);
    EXPECT_FALSE(draws()) << "a sound's";
    host.EnableVideoPreview(-1);
    host.SetPreviewWindow(0);
    EXPECT_FALSE(draws()) << "without a window";
    host.SetPreviewWindow(HandleToLong(panel));
    host.StopPreview();
    EXPECT_FALSE(draws()) << "stopped";
    ::DestroyWindow(panel);
}

}  // namespace
