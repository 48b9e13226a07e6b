// EffectSettingsCheck.exe tells a host that is right from hosts with one fault each, and names the operation.
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include <windows.h>

namespace {

struct FaultRow {
    const char* fault;
    int exitCode;
    const char* named;  ///< In the line about the effect.
    const char* options = "";
};

constexpr FaultRow kRows[] = {
    {"", 0, "ok    GammaCorrection    opens and closes: "},
    {"list not counted", 1, "FAIL  GammaCorrection    GetVideoProcessors: "},
    {"item not counted", 1, "FAIL  GammaCorrection    all.GetItem: "},
    {"finds everything", 1, "FAIL  GammaCorrection    all.FindByMoniker: "},
    {"adds nothing", 1, "FAIL  GammaCorrection    active.FindByMoniker: "},
    {"keeps what is removed", 1, "FAIL  GammaCorrection    active.RemoveAt: "},
    {"no interface", 1, "FAIL  GammaCorrection    attached object: "},
    {"crash", 1, "FAIL  GammaCorrection    end: crashes: exit code 0xC0000005; the last call was RefreshPreview()"},
    {"hang", 1, "FAIL  GammaCorrection    end: hangs: not closed within 5 seconds; the last call was all.FindByMoniker",
     "--seconds 5"},
    {"hang in a dialog", 1,
     "FAIL  GammaCorrection    end: hangs: not closed within 10 seconds; the last call was RefreshPreview()",
     "--seconds 10"},
};

std::string OutputFile() {
    char folder[MAX_PATH];
    ::GetTempPathA(MAX_PATH, folder);
    return std::string(folder) + "checker_test_" + std::to_string(::GetCurrentProcessId()) + ".txt";
}

TEST(Checker, NamesWhatAHostAnswersWrongly) {
    const std::string file = OutputFile();
    for (const FaultRow& row : kRows) {
        SCOPED_TRACE(row.fault);
        ASSERT_TRUE(::SetEnvironmentVariableA("FAULT", row.fault));
        const std::string command =
            std::string("EffectSettingsCheck.exe --host faulty_host.dll --effect GammaCorrection ") + row.options +
            " >\"" + file + '"';
        const int exitCode = std::system(command.c_str());
        std::ostringstream output;
        output << std::ifstream(file).rdbuf();
        EXPECT_EQ(exitCode, row.exitCode) << output.str();
        EXPECT_NE(output.str().find(row.named), std::string::npos) << output.str();
    }
    ::DeleteFileA(file.c_str());
}

}  // namespace
