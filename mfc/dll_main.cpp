// The entry point of a library: its module object lives from load to unload.
#ifdef __i386__
#include <pthread.h>
#endif

#include "afxwin.h"
#include "thread_state.h"

extern "C" BOOL WINAPI DllMain(HINSTANCE /*instance*/, DWORD reason, LPVOID processEnds) {
    try {
        if (reason == DLL_PROCESS_ATTACH) return AfxGetApp()->InitInstance();
        if (reason == DLL_THREAD_DETACH) afx::ForgetCurrentThread();
        // When the process ends, its other threads are gone already and may have held any lock; nothing is given back.
        if (reason == DLL_PROCESS_DETACH && !processEnds) {
            AfxGetApp()->ExitInstance();
            afx::UnregisterClasses();
        }
        return TRUE;
    } catch (...) {
        return FALSE;  // The loader can't handle exceptions; at attaching, the load fails.
    }
}

#ifdef __i386__
// What the 32-bit unwinder asks of the threads library, whose locks and threads would outlive the module.
namespace {

SRWLOCK g_unwinderLock = SRWLOCK_INIT;
SRWLOCK g_onceLock = SRWLOCK_INIT;

}  // namespace

extern "C" {

int pthread_mutex_init(pthread_mutex_t*, const pthread_mutexattr_t*) { return 0; }
int pthread_mutex_lock(pthread_mutex_t*) {
    ::AcquireSRWLockExclusive(&g_unwinderLock);
    return 0;
}
int pthread_mutex_unlock(pthread_mutex_t*) {
    ::ReleaseSRWLockExclusive(&g_unwinderLock);
    return 0;
}
int pthread_once(pthread_once_t* once, void (*initialize)()) {
    const afx::Lock lock(g_onceLock);
    if (!*once) initialize();
    *once = 1;
    return 0;
}

}  // extern "C"
#endif
