// Replaces the parts of the C++ library that a module can't give back when it is unloaded, or that end the process when
// there is no memory: exception globals, the memory of exceptions, the guards of local statics.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <initializer_list>

#include "thread_state.h"

namespace {

// --- threads ---

// As many threads may be in calls at once. Their identifiers are multiples of 4, so 1 is no thread's.
constexpr std::size_t kMaxThreads = 1024;
constexpr LONG kFree = 0;
constexpr LONG kFreedAgain = 1;  // Others may stand behind it.

afx::ThreadState g_threads[kMaxThreads];

LONG OwnId() { return static_cast<LONG>(::GetCurrentThreadId()); }

std::size_t HomeOf(LONG threadId) { return static_cast<std::size_t>(threadId) / 4 % kMaxThreads; }

afx::ThreadState* FindThread(LONG threadId) {
    for (std::size_t step = 0; step < kMaxThreads; ++step) {
        afx::ThreadState& state = g_threads[(HomeOf(threadId) + step) % kMaxThreads];
        if (state.threadId == threadId) return &state;
        if (state.threadId == kFree) return nullptr;
    }
    return nullptr;
}

afx::ThreadState* AddThread(LONG threadId) {
    for (std::size_t step = 0; step < kMaxThreads; ++step) {
        afx::ThreadState& state = g_threads[(HomeOf(threadId) + step) % kMaxThreads];
        for (const LONG unused : {kFree, kFreedAgain}) {
            if (::InterlockedCompareExchange(&state.threadId, threadId, unused) == unused) return &state;
        }
    }
    return nullptr;
}

// --- exceptions ---

// The library finds its own head in front of an exception; it is smaller than this.
constexpr std::size_t kHeadSize = 256;

/// For when there is no memory: enough for the exceptions that say so.
struct ReservedBlock {
    alignas(16) unsigned char bytes[2 * kHeadSize];
    volatile LONG taken;
};
ReservedBlock g_reserve[32];

void* TakeBlock(std::size_t size) {
    if (void* block = std::malloc(size)) return block;
    for (ReservedBlock& block : g_reserve) {
        if (size <= sizeof(block.bytes) && !::InterlockedExchange(&block.taken, 1)) return block.bytes;
    }
    std::terminate();
}

void GiveBlock(void* address) {
    for (ReservedBlock& block : g_reserve) {
        if (address == block.bytes) {
            ::InterlockedExchange(&block.taken, 0);
            return;
        }
    }
    std::free(address);
}

// --- local statics ---

SRWLOCK g_guardLock = SRWLOCK_INIT;
CONDITION_VARIABLE g_guardChanged = CONDITION_VARIABLE_INIT;

/// The compiler looks at the first byte without asking.
struct Guard {
    std::uint8_t done;
    std::uint8_t running;
};

void EndGuard(Guard& guard, bool done) {
    {
        const afx::Lock lock(g_guardLock);
        __atomic_store_n(&guard.done, std::uint8_t{done}, __ATOMIC_RELEASE);
        guard.running = 0;
    }
    ::WakeAllConditionVariable(&g_guardChanged);
}

}  // namespace

namespace afx {

ThreadState& CurrentThread() noexcept {
    const LONG id = OwnId();
    ThreadState* state = FindThread(id);
    if (!state) state = AddThread(id);
    if (!state) std::terminate();
    return *state;
}

void ForgetCurrentThread() noexcept {
    ThreadState* state = FindThread(OwnId());
    if (!state) return;
    state->caughtExceptions = nullptr;
    state->uncaughtExceptions = 0;
    state->creationHook = nullptr;
    state->currentMessage = nullptr;
    state->calls = 0;
    ::InterlockedExchange(&state->threadId, kFreedAgain);
}

}  // namespace afx

extern "C" {

void* __cxa_get_globals() noexcept { return &afx::CurrentThread(); }
void* __cxa_get_globals_fast() noexcept { return &afx::CurrentThread(); }

void* __cxa_allocate_exception(std::size_t size) noexcept {
    auto* block = static_cast<unsigned char*>(TakeBlock(kHeadSize + size));
    std::memset(block, 0, kHeadSize);
    return block + kHeadSize;
}
void __cxa_free_exception(void* exception) noexcept { GiveBlock(static_cast<unsigned char*>(exception) - kHeadSize); }
void* __cxa_allocate_dependent_exception() noexcept { return std::memset(TakeBlock(kHeadSize), 0, kHeadSize); }
void __cxa_free_dependent_exception(void* exception) noexcept { GiveBlock(exception); }

int __cxa_guard_acquire(Guard* guard) {
    const afx::Lock lock(g_guardLock);
    while (guard->running) ::SleepConditionVariableSRW(&g_guardChanged, &g_guardLock, INFINITE, 0);
    if (guard->done) return 0;
    guard->running = 1;
    return 1;
}
void __cxa_guard_release(Guard* guard) noexcept { EndGuard(*guard, true); }
void __cxa_guard_abort(Guard* guard) noexcept { EndGuard(*guard, false); }

}  // extern "C"
