// Reference counting for the demo's COM objects, with a count of those that are still alive.
#pragma once

#include <windows.h>

#include <wrl/client.h>

using Microsoft::WRL::ComPtr;

inline LONG g_liveObjects = 0;

/// Takes over the one reference of a new object. Not by ComPtr's own Attach: some toolchains' adds another.
template <typename Object>
ComPtr<Object> Adopt(Object* created) {
    ComPtr<Object> adopted;
    *adopted.GetAddressOf() = created;
    return adopted;
}

/// An object that starts with one reference, its creator's, and deletes itself with the last.
template <typename... Interfaces>
class CComObject : public Interfaces... {
public:
    CComObject() { ++g_liveObjects; }
    CComObject(const CComObject&) = delete;
    CComObject& operator=(const CComObject&) = delete;

    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_references; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --m_references;
        if (left == 0) delete this;
        return left;
    }

protected:
    virtual ~CComObject() { --g_liveObjects; }

    /// Answers QueryInterface with a pointer of this object, or with null.
    HRESULT Answer(void** object, IUnknown* found) {
        *object = found;
        if (!found) return E_NOINTERFACE;
        found->AddRef();
        return S_OK;
    }

private:
    ULONG m_references = 1;
};
