// What this layer and the C++ library keep for each thread, in storage that needs no memory, no slot and no handle: a
// module may be loaded and freed as often as its host likes, and throws even when there is no memory.
#pragma once

#include <windows.h>

namespace afx {

class CreationHook;

/// Stays in its place until its thread's last call from outside returns, or the thread ends.
struct ThreadState {
    // What is being caught and thrown; begins as the C++ library knows it.
    void* caughtExceptions;
    unsigned int uncaughtExceptions;

    volatile LONG threadId;
    CreationHook* creationHook;  ///< The innermost one; null outside of creating windows.
    const MSG* currentMessage;   ///< What the thread's innermost window procedure handles.
    int calls;                   ///< From outside, one within the other.
};

/// The calling thread's.
ThreadState& CurrentThread() noexcept;
/// What was kept for the calling thread is free for another.
void ForgetCurrentThread() noexcept;

/// A lock that needs nothing to be made and leaves nothing behind.
class Lock {
public:
    explicit Lock(SRWLOCK& lock) noexcept : m_lock(lock) { ::AcquireSRWLockExclusive(&m_lock); }
    ~Lock() { ::ReleaseSRWLockExclusive(&m_lock); }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;

private:
    SRWLOCK& m_lock;
};

}  // namespace afx
