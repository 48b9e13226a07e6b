// COM for the thread of a dialog: screen readers of other processes come through it.
#pragma once

#include <afxwin.h>

#include <objbase.h>

/// Makes the thread a single-threaded apartment while it lives, if the thread is in none yet.
class CApartment {
public:
    CApartment() : m_result(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE)) {}
    ~CApartment() {
        // Not where the thread is in the apartment of many threads: then COM counted nothing.
        if (SUCCEEDED(m_result)) ::CoUninitialize();
    }
    CApartment(const CApartment&) = delete;
    CApartment& operator=(const CApartment&) = delete;

private:
    const HRESULT m_result;
};
