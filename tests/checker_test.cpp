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
};

constexpr FaultRow kRows[] = {
    {"", 0, "ok    GammaCorrection    opens and closes: "},
    {"list not counted", 1, "FAIL  GammaCorrection    GetVideoProcessors: "},
    {"item not counted", 1, "FAIL  GammaCorrection    all.GetItem: "},
    {"finds everything", 1, "FAIL  GammaCorrection    all.FindByMoniker: "},
    {"adds nothing", 1, "FAIL  GammaCorrection    active.FindByMoniker: "},
    {"keeps what is removed", 1, "FAIL  GammaCorrection    active.RemoveAt: "},
    {"no interface", 1, "FAIL  GammaCorrection    attached object: "},
    {"crash", 1, "FAIL  GammaCorrection    end: crashes: "},
};

TEST(Checker, NamesWhatAHostAnswersWrongly) {
    for (const FaultRow& row : kRows) {
        SCOPED_TRACE(row.fault);
        ASSERT_TRUE(::SetEnvironmentVariableA("FAULT", row.fault));
        const int exitCode =
            std::system("EffectSettingsCheck.exe --host faulty_host.dll --effect GammaCorrection >checker_test.txt");
        std::ostringstream output;
        output << std::ifstream("checker_test.txt").rdbuf();
        EXPECT_EQ(exitCode, row.exitCode) << output.str();
        EXPECT_NE(output.str().find(row.named), std::string::npos) << output.str();
    }
}

}  // namespace
