// The owners of what COM hands out: one reference, one string.
#pragma once

#include <afxwin.h>

#include <wrl/client.h>

using Microsoft::WRL::ComPtr;

/// A BSTR, freed at the end.
class CBstr {
public:
    explicit CBstr(const CString& text) : m_string(text.AllocSysString()) {}
    ~CBstr() { ::SysFreeString(m_string); }
    CBstr(const CBstr&) = delete;
    CBstr& operator=(const CBstr&) = delete;

    BSTR Get() const { return m_string; }

private:
    BSTR m_string;
};
