// EffectSettingsCheck: whether the library works on this machine, and whether a host answers it as it must.
#include <windows.h>

#include <cstdio>
#include <cstring>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "check/calls.h"
#include "check/effect_run.h"
#include "check/library_checks.h"

namespace {

constexpr char kUsage[] =
    "Usage: EffectSettingsCheck [--host YOURHOST.DLL] [--effect NAME] [--seconds NUMBER] [--json]\n"
    "Checks EffectSettings.dll in its own folder, and opens and closes the dialog of each effect in a process of its "
    "own.\n"
    "  --host    with the host that YOURHOST.DLL makes: extern \"C\" IMediaHost* WINAPI "
    "CreateEffectSettingsHost(void);\n"
    "            first tries the host's operations one by one\n"
    "  --effect  with one effect only, such as GammaCorrection\n"
    "  --seconds how long one effect may take before it counts as hanging: 30 if not given\n"
    "  --json    for programs\n"
    "Exit code: 0 all holds, 1 something does not, 2 wrong arguments.\n";

struct Arguments {
    std::wstring host;
    std::optional<EffectId> effect;
    int seconds = 30;
    bool json = false;
    std::wstring report;  ///< In a process for one effect: the file that takes its findings.
};

const char* NameOf(EffectId effect) {
    switch (effect) {
#define NAME(name, number) \
    case EffectId::name:   \
        return #name;
        EFFECT_SETTINGS_EFFECTS(NAME)
    }
    return "";
}

std::optional<EffectId> EffectNamed(const std::wstring& text) {
    for (int number = kFirstEffectId; number <= kLastEffectId; ++number) {
        const std::string name = NameOf(static_cast<EffectId>(number));
        if (std::wstring(name.begin(), name.end()) == text) return static_cast<EffectId>(number);
    }
    return std::nullopt;
}

std::optional<Arguments> ReadArguments(int count, wchar_t** values) {
    Arguments arguments;
    for (int i = 1; i < count; ++i) {
        const std::wstring option = values[i];
        const bool hasValue = i + 1 < count;
        if (option == L"--json") {
            arguments.json = true;
        } else if (option == L"--host" && hasValue) {
            arguments.host = values[++i];
        } else if (option == L"--report" && hasValue) {
            arguments.report = values[++i];
        } else if (option == L"--effect" && hasValue) {
            arguments.effect = EffectNamed(values[++i]);
            if (!arguments.effect) return std::nullopt;
        } else if (option == L"--seconds" && hasValue) {
            arguments.seconds = _wtoi(values[++i]);
            if (arguments.seconds < 1 || arguments.seconds > 3600) return std::nullopt;
        } else {
            return std::nullopt;
        }
    }
    return arguments;
}

std::wstring ProgramPath() {
    std::wstring path(32768, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path;
}

std::wstring LibraryPath() {
    const std::wstring program = ProgramPath();
    return program.substr(0, program.find_last_of(L'\\') + 1) + L"EffectSettings.dll";
}

FARPROC HostFactory(HMODULE library) {
    // With 32 bits compilers decorate the name, Visual C++ and GCC each in its own way.
    for (const char* name : {"CreateEffectSettingsHost", "_CreateEffectSettingsHost@0", "CreateEffectSettingsHost@0"}) {
        if (const FARPROC factory = GetProcAddress(library, name)) return factory;
    }
    return nullptr;
}

template <typename Function>
Function As(FARPROC function) {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(function));
}

// The process for one effect

int RunOneEffect(const Arguments& arguments) {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    const HMODULE library = LoadLibraryW(LibraryPath().c_str());
    const auto show = As<ShowSettingsDialogFunction>(library ? GetProcAddress(library, "ShowSettingsDialog") : nullptr);
    CreateHostFunction createHost = nullptr;
    Findings findings;
    if (!show) findings = {{false, "library", "ShowSettingsDialog cannot be called"}};
    if (!arguments.host.empty()) {
        // Until the process ends.
        // cppcheck-suppress leakReturnValNotUsed
        LoadLibraryW(arguments.host.c_str());
        const HMODULE hostLibrary = GetModuleHandleW(arguments.host.c_str());
        createHost = As<CreateHostFunction>(hostLibrary ? HostFactory(hostLibrary) : nullptr);
        if (!createHost)
            findings = {{false, "host", hostLibrary ? "exports no CreateEffectSettingsHost" : "cannot be loaded"}};
    }
    std::ofstream report(arguments.report.c_str());
    CallLog log(report);
    if (findings.empty()) findings = RunEffect(show, *arguments.effect, createHost, log);
    for (const Finding& finding : findings)
        report << finding.holds << '\t' << finding.what << '\t' << finding.detail << '\n';
    return report.flush() ? 0 : 1;
}

// The process that starts the others

struct ChildReport {
    Findings findings;
    std::string lastCall = "none";  ///< That had begun.
};

ChildReport ReadReport(const wchar_t* path) {
    ChildReport report;
    std::ifstream lines(path);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream fields(line);
        std::string kind;
        Finding finding;
        std::getline(fields, kind, '\t');
        std::getline(fields, finding.what, '\t');
        std::getline(fields, finding.detail);
        finding.holds = kind == "1";
        if (kind == CallLog::kBegun) {
            report.lastCall = finding.what;
        } else {
            report.findings.push_back(finding);
        }
    }
    return report;
}

/// What the process for one effect found, or how it ended.
Findings EffectInItsOwnProcess(const Arguments& arguments, EffectId effect) {
    wchar_t folder[MAX_PATH];
    wchar_t report[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    GetTempFileNameW(folder, L"esc", 0, report);
    const std::string name = NameOf(effect);
    std::wstring command = L"\"" + ProgramPath() + L"\" --effect " + std::wstring(name.begin(), name.end()) +
                           L" --report \"" + report + L"\"";
    if (!arguments.host.empty()) command += L" --host \"" + arguments.host + L"\"";

    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process)) {
        return {{false, "process", "cannot be started, error " + std::to_string(GetLastError())}};
    }
    const bool ended =
        WaitForSingleObject(process.hProcess, static_cast<DWORD>(arguments.seconds) * 1000) == WAIT_OBJECT_0;
    if (!ended) {
        TerminateProcess(process.hProcess, 1);
        WaitForSingleObject(process.hProcess, INFINITE);
    }
    DWORD code = 0;
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);

    ChildReport found = ReadReport(report);
    DeleteFileW(report);
    if (!ended) {
        found.findings.push_back({false, "end",
                                  "hangs: not closed within " + std::to_string(arguments.seconds) +
                                      " seconds; the last call was " + found.lastCall});
    } else if (code != 0 || found.findings.empty()) {
        char text[64];
        std::snprintf(text, sizeof(text), "crashes: exit code 0x%08lX", code);
        found.findings.push_back({false, "end", text + ("; the last call was " + found.lastCall)});
    }
    return found.findings;
}

class Report {
public:
    explicit Report(bool json) : m_json(json) {}

    void Add(const Finding& finding) {
        m_holds &= finding.holds;
        if (m_json) {
            m_text += std::string(m_text.empty() ? "" : ",\n") + R"(    {"check": ")" + Escaped(finding.what) +
                      R"(", "holds": )" + (finding.holds ? "true" : "false") + R"(, "detail": ")" +
                      Escaped(finding.detail) + "\"}";
        } else {
            std::printf("%-5s %-18s %s\n", finding.holds ? "ok" : "FAIL", finding.what.c_str(), finding.detail.c_str());
            std::fflush(stdout);
        }
    }

    /// Closes the report.
    /// @return  The program's exit code.
    int End() const {
        const Calls video = ExpectedCalls(EffectId::GammaCorrection);
        const Calls audio = ExpectedCalls(EffectId::AudioChorus);
        if (m_json) {
            std::printf(
                "{\n  \"holds\": %s,\n  \"checks\": [\n%s\n  ],\n  \"expectedCalls\": {\n    \"video\": %s,\n    "
                "\"audio\": %s\n  }\n}\n",
                m_holds ? "true" : "false", m_text.c_str(), List(video).c_str(), List(audio).c_str());
        } else {
            Print("What a host must expect of a video effect", video);
            Print("What a host must expect of the audio effect", audio);
            std::printf("\n%s\n", m_holds ? "All holds." : "Not all holds: see the lines with FAIL.");
        }
        return m_holds ? 0 : 1;
    }

private:
    static std::string Escaped(const std::string& text) {
        std::string escaped;
        for (const char character : text) {
            if (character == '"' || character == '\\') escaped += '\\';
            escaped += character;
        }
        return escaped;
    }
    static std::string List(const Calls& calls) {
        std::string list;
        for (const std::string& call : calls) list += (list.empty() ? "[\"" : ", \"") + Escaped(call) + "\"";
        return list + "]";
    }
    static void Print(const char* title, const Calls& calls) {
        std::printf("\n%s:\n", title);
        for (const std::string& call : calls) {
            if (call == "StopPreview()") std::printf("    -- the dialog closes --\n");
            std::printf("    %s\n", call.c_str());
            if (call == "filter: all values") std::printf("    -- half a second later --\n");
        }
    }

    const bool m_json;
    bool m_holds = true;
    std::string m_text;
};

void CheckEffect(const Arguments& arguments, EffectId effect, Report& report) {
    const Findings findings = EffectInItsOwnProcess(arguments, effect);
    bool holds = true;
    std::string last;
    for (const Finding& finding : findings) {
        if (finding.what == "calls") last = finding.detail;
        if (finding.holds) continue;
        holds = false;
        report.Add({false, NameOf(effect), finding.what + ": " + finding.detail});
    }
    if (holds) report.Add({true, NameOf(effect), "opens and closes: " + last});
}

}  // namespace

int wmain(int count, wchar_t** values) {
    const std::optional<Arguments> arguments = ReadArguments(count, values);
    if (!arguments) {
        std::fputs(kUsage, stderr);
        return 2;
    }
    // A crash is a result here; nobody has to be asked about it.
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    if (!arguments->report.empty() && arguments->effect) return RunOneEffect(*arguments);

    Report report(arguments->json);
    const std::wstring path = LibraryPath();
    const HMODULE library = LoadLibraryW(path.c_str());
    report.Add(
        {library != nullptr, "library",
         library ? "EffectSettings.dll is loaded"
                 : "EffectSettings.dll in this folder cannot be loaded, error " + std::to_string(GetLastError())});
    if (!library) return report.End();
    for (const Finding& finding : CheckLibrary(library, path.c_str())) report.Add(finding);
    for (int number = kFirstEffectId; number <= kLastEffectId; ++number) {
        const auto effect = static_cast<EffectId>(number);
        if (!arguments->effect || *arguments->effect == effect) CheckEffect(*arguments, effect, report);
    }
    return report.End();
}
