// The entry point of a library: its module object lives from load to unload.
#include "afxwin.h"

extern "C" BOOL WINAPI DllMain(HINSTANCE /*instance*/, DWORD reason, LPVOID /*reserved*/) {
    try {
        if (reason == DLL_PROCESS_ATTACH) return AfxGetApp()->InitInstance();
        if (reason == DLL_PROCESS_DETACH) {
            AfxGetApp()->ExitInstance();
            afx::UnregisterClasses();
        }
        return TRUE;
    } catch (...) {
        return FALSE;  // The loader can't handle exceptions; at attaching, the load fails.
    }
}
