// The test programs' main: GDI+ for the kit, a window that owns the dialogs, and a watchdog.
#include <cstdio>

#include <gtest/gtest.h>

#include "skin/fonts.h"
#include "skin/gdi_plus.h"
#include "support/watchdog.h"

namespace {

class ProgressListener : public ::testing::EmptyTestEventListener {
public:
    void OnTestStart(const ::testing::TestInfo&) override { ReportProgress(); }
};

/// There is no way to end one test of a program that hangs or crashes, so the program ends.
void EndProgram(const std::string& why) {
    const ::testing::TestInfo* test = ::testing::UnitTest::GetInstance()->current_test_info();
    std::fprintf(stderr, "%s.%s %s", test ? test->test_suite_name() : "no test", test ? test->name() : "", why.c_str());
    std::fflush(stdout);
    std::fflush(stderr);
    ::TerminateProcess(::GetCurrentProcess(), 1);
}

/// Wine's debugger now and then ends a program that crashed as if nothing had happened.
LONG WINAPI OnCrash(EXCEPTION_POINTERS* crash) {
    HMODULE module = nullptr;
    char name[MAX_PATH] = "";
    char text[MAX_PATH + 100] = "";
    auto* const address = static_cast<const char*>(crash->ExceptionRecord->ExceptionAddress);
    ::GetModuleHandleExA(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT, address, &module);
    ::GetModuleFileNameA(module, name, MAX_PATH);
    std::snprintf(text, sizeof(text), "crashes with %08lx at %p, %s at %p\n", crash->ExceptionRecord->ExceptionCode,
                  static_cast<const void*>(address), name, static_cast<const void*>(module));
    EndProgram(text);
    return EXCEPTION_EXECUTE_HANDLER;
}

}  // namespace

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    ::SetUnhandledExceptionFilter(&OnCrash);
    ULONG_PTR token = 0;
    const Gdiplus::GdiplusStartupInput input;
    if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok) return 1;
    const HWND host = ::CreateWindowExW(0, L"STATIC", L"Test host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 40, 40, 400, 300,
                                        nullptr, nullptr, nullptr, nullptr);
    ::SetForegroundWindow(host);
    ::testing::UnitTest::GetInstance()->listeners().Append(new ProgressListener);
    int result = 0;
    {
        const Watchdog watchdog(std::chrono::seconds(30), [](const std::string& windows) {
            EndProgram("makes no progress; open windows:\n" + windows);
        });
        result = RUN_ALL_TESTS();
    }
    ::DestroyWindow(host);
    ReleaseSharedDrawing();
    Gdiplus::GdiplusShutdown(token);
    return result;
}
