// What a whole process pays: loading the library, the first opening, memory; and the size of the files.
#include <cstdio>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "benchmarks/dialog_parts.h"
#include "benchmarks/groups.h"
#include "benchmarks/library.h"
#include "benchmarks/text.h"

namespace {

constexpr int kProcesses = 9;
constexpr double kLoadLimit = 1.5;
constexpr double kFirstLimit = 2;
constexpr double kMemoryLimit = 1.2;
constexpr double kSizeLimit = 400;

/// The numbers that the helper program prints.
std::vector<double> RunHelper(const std::wstring& arguments) {
    // The command processor takes the outer quotes away.
    const std::wstring command = L"\"\"" + FolderOfProgram() + L"bench_process.exe\" " + arguments + L"\"";
    FILE* output = ::_wpopen(command.c_str(), L"r");
    std::vector<double> numbers;
    double number = 0;
    while (output && std::fscanf(output, "%lf", &number) == 1) numbers.push_back(number);
    if (output) ::_pclose(output);
    return numbers;
}

std::wstring Quoted(const std::wstring& file) { return L"\"" + FolderOfProgram() + file + L"\""; }

void MeasureLoading(Report& report) {
    Samples own;
    Samples empty;
    for (int process = 0; process < kProcesses; ++process) {
        for (const double time : RunHelper(L"load " + Quoted(L"EffectSettings.dll"))) own.Add(time);
        for (const double time : RunHelper(L"load " + Quoted(L"same_imports.dll"))) empty.Add(time);
    }
    if (own.IsEmpty() || empty.IsEmpty()) return;
    report.AddRatio("LoadLibrary / of an empty library with the same imports", own, empty, kLoadLimit);
}

void MeasureOpenings(Report& report) {
    Samples first[2];
    Samples tenth[2];
    Samples textMs;
    Samples textMb;
    for (int process = 0; process < kProcesses; ++process) {
        const auto numbers = RunHelper(L"text");
        if (numbers.size() != 2) continue;
        textMs.Add(numbers[0]);
        textMb.Add(numbers[1]);
    }
    if (textMs.IsEmpty()) return;
    double worst = 0;
    std::string detail;
    for (const EffectId effect : {EffectId::GammaCorrection, EffectId::Aging}) {
        const Twin twin = TwinOf(effect);
        if (!twin.Write((FolderOfProgram() + L"bench_twin.bin").c_str())) return;
        Samples own;
        Samples stock;
        for (int process = 0; process < kProcesses; ++process) {
            const auto ownNumbers =
                RunHelper(L"open " + Quoted(L"EffectSettings.dll") + L" " + std::to_wstring(static_cast<int>(effect)));
            const auto stockNumbers = RunHelper(L"twin " + Quoted(L"bench_twin.bin"));
            if (ownNumbers.size() != 3 || stockNumbers.size() != 3) continue;
            if (effect == EffectId::GammaCorrection) {
                first[0].Add(ownNumbers[0]);
                tenth[0].Add(ownNumbers[1]);
                first[1].Add(stockNumbers[0]);
                tenth[1].Add(stockNumbers[1]);
            }
            own.Add(ownNumbers[2]);
            stock.Add(stockNumbers[2]);
        }
        if (own.IsEmpty()) return;
        const double ratio = own.Best() / stock.Best();
        worst = (std::max)(worst, ratio);
        detail += Text("%s%.1f MB against %.1f MB", detail.empty() ? "" : ", Aging ", own.Best(), stock.Best());
    }
    report.Add({.what = "first opening in a process / tenth",
                .value = first[0].Best() / tenth[0].Best(),
                .limit = kFirstLimit,
                .detail = Text("%.1f ms and %.1f ms; the twin's %.1f ms and %.1f ms; GDI+'s first text alone %.1f ms",
                               first[0].Best(), tenth[0].Best(), first[1].Best(), tenth[1].Best(), textMs.Best())});
    report.Add({.what = "peak memory after ten openings / twin",
                .value = worst,
                .limit = kMemoryLimit,
                .detail = "Gamma Correction " + detail + Text("; GDI+'s first text alone %.1f MB", textMb.Best())});
}

}  // namespace

void MeasureProcess(Report& report) {
    MeasureLoading(report);
    MeasureOpenings(report);
}

void MeasureSize(Report& report) {
    for (const wchar_t* architecture : {L"x64", L"x86"}) {
        const std::filesystem::path file =
            std::filesystem::path(FolderOfProgram()) / L".." / L".." / architecture / L"bin" / L"EffectSettings.dll";
        std::error_code error;
        const auto size = std::filesystem::file_size(file, error);
        if (error) {
            std::printf("%-58s  not built, not measured\n", Text("library in KB, %ls", architecture).c_str());
            continue;
        }
        report.Add({.what = Text("library in KB, %ls", architecture),
                    .value = static_cast<double>(size) / 1024,
                    .limit = kSizeLimit});
    }
}
