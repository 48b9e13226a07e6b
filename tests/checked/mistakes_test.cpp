// The checked build stops at the mistakes that it is there for. Each is made in a process of its own.
#include <climits>
#include <vector>

#include <gtest/gtest.h>

#include <windows.h>

namespace {

void OverflowASum() {
    volatile int largest = INT_MAX;
    [[maybe_unused]] volatile int sum = largest + 1;
}

void ReadBehindABlock() {
    const std::vector<int> numbers(4);
    const int* volatile end = numbers.data() + numbers.size();
    [[maybe_unused]] volatile int behind = *end;
}

void WriteToAFreedBlock() {
    volatile int* volatile number = new int[1000]{};
    delete[] number;
    for (int again = 0; again < 1000; ++again) delete[] new int[1000];
    number[10] = 1;
}

struct MistakeRow {
    const char* name;
    void (*make)();
    DWORD status;
};
constexpr MistakeRow kMistakes[] = {
    {"a sum that overflows", OverflowASum, EXCEPTION_ILLEGAL_INSTRUCTION},
    {"reading one behind a block", ReadBehindABlock, EXCEPTION_ACCESS_VIOLATION},
    {"writing to what was freed", WriteToAFreedBlock, EXCEPTION_ACCESS_VIOLATION},
};

LONG WINAPI EndWithItsCode(EXCEPTION_POINTERS* stop) {
    ::TerminateProcess(::GetCurrentProcess(), stop->ExceptionRecord->ExceptionCode);
    return EXCEPTION_EXECUTE_HANDLER;
}

TEST(CheckedBuild, StopsAtEachKindOfMistake) {
    for (const MistakeRow& row : kMistakes) {
        SCOPED_TRACE(row.name);
        EXPECT_EXIT(
            {
                ::SetUnhandledExceptionFilter(&EndWithItsCode);
                row.make();
            },
            ::testing::ExitedWithCode(static_cast<int>(row.status)), "");
    }
}

}  // namespace
