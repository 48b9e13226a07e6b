#pragma once

#include <windows.h>

/// Holds a lock while it lives. Dialogs may be open on several threads, and what the kit keeps is shared by all.
class CLock {
public:
    explicit CLock(SRWLOCK& lock) : m_lock(lock) { ::AcquireSRWLockExclusive(&m_lock); }
    ~CLock() { ::ReleaseSRWLockExclusive(&m_lock); }
    CLock(const CLock&) = delete;
    CLock& operator=(const CLock&) = delete;

private:
    SRWLOCK& m_lock;
};
