// Lets this module's handlers catch what the code of MSVC throws. GCC's let all exceptions but their own pass, and the
// process would end. The linker calls __wrap_NAME where NAME is asked for (CMakeLists.txt), and NAME is __real_NAME.
#include <exception>

#include <windows.h>

extern "C" {

/// Goes on where it stands on the stack: in place of the call that threw.
[[noreturn]] void ThrowInPlaceOfCall() { throw std::exception(); }

/// Comes with the call's return address in RAX.
void ReturnAddressThenThrow();

EXCEPTION_DISPOSITION __real___gxx_personality_seh0(EXCEPTION_RECORD*, void*, CONTEXT*, DISPATCHER_CONTEXT*);

/// The system asks this for each frame of this module that has handlers or locals to destroy.
EXCEPTION_DISPOSITION __wrap___gxx_personality_seh0(EXCEPTION_RECORD* exception, void* frame, CONTEXT* context,
                                                    DISPATCHER_CONTEXT* dispatcher) {
    constexpr DWORD kMsvcException = 0xE06D7363;
    constexpr DWORD kUnwinding = EXCEPTION_UNWINDING | EXCEPTION_EXIT_UNWIND;
    if (exception->ExceptionCode == kMsvcException && !(exception->ExceptionFlags & kUnwinding)) {
        // The thrower's frames are unwound as their compiler has it, this one and those above it as GCC has it.
        ::RtlUnwindEx(frame, reinterpret_cast<void*>(&ReturnAddressThenThrow), exception,
                      reinterpret_cast<void*>(dispatcher->ControlPc), context, dispatcher->HistoryTable);
    }
    return __real___gxx_personality_seh0(exception, frame, context, dispatcher);
}

}  // extern "C"

asm(R"(
    .text
    .globl ReturnAddressThenThrow
ReturnAddressThenThrow:
    pushq %rax
    jmp ThrowInPlaceOfCall
)");
