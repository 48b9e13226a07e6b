// Reads a dialog as a screen reader does: through the system's oleacc, from another thread.
#pragma once

#include <string>

#include <afxwin.h>

#include <oleacc.h>

#include "host/com_ptr.h"

/// COM for a thread: apartment-threaded for the one that shows dialogs.
class Apartment {
public:
    explicit Apartment(DWORD kind) { ::CoInitializeEx(nullptr, kind); }
    ~Apartment() { ::CoUninitialize(); }
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;
};

class AccessibleClient {
public:
    explicit AccessibleClient(HWND window) {
        ::AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                                     reinterpret_cast<void**>(m_object.GetAddressOf()));
    }

    IAccessible* Object() const { return m_object.Get(); }
    long Count() const {
        long count = 0;
        m_object->get_accChildCount(&count);
        return count;
    }
    std::wstring Name(long child) const { return Text(&IAccessible::get_accName, child); }
    std::wstring Value(long child) const { return Text(&IAccessible::get_accValue, child); }
    std::wstring Help(long child) const { return Text(&IAccessible::get_accHelp, child); }
    std::wstring Action(long child) const { return Text(&IAccessible::get_accDefaultAction, child); }
    std::wstring Shortcut(long child) const { return Text(&IAccessible::get_accKeyboardShortcut, child); }
    long Role(long child) const { return Number(&IAccessible::get_accRole, child); }
    long State(long child) const { return Number(&IAccessible::get_accState, child); }
    /// In client coordinates of the dialog.
    CRect Place(long child, HWND dialog) const {
        POINT at{};
        SIZE size{};
        m_object->accLocation(&at.x, &at.y, &size.cx, &size.cy, Child(child));
        ::ScreenToClient(dialog, &at);
        return CRect(at, size);
    }
    /// The child that has the focus; 0 for none.
    long Focused() const {
        VARIANT child;
        ::VariantInit(&child);
        m_object->get_accFocus(&child);
        return child.vt == VT_I4 ? child.lVal : 0;
    }
    HRESULT Act(long child) const { return m_object->accDoDefaultAction(Child(child)); }

    static VARIANT Child(long number) {
        VARIANT child;
        ::VariantInit(&child);
        child.vt = VT_I4;
        child.lVal = number;
        return child;
    }

private:
    std::wstring Text(HRESULT (STDMETHODCALLTYPE IAccessible::*get)(VARIANT, BSTR*), long child) const {
        BSTR text = nullptr;
        (m_object.Get()->*get)(Child(child), &text);
        std::wstring result(text ? text : L"");
        ::SysFreeString(text);
        return result;
    }
    long Number(HRESULT (STDMETHODCALLTYPE IAccessible::*get)(VARIANT, VARIANT*), long child) const {
        VARIANT number;
        ::VariantInit(&number);
        (m_object.Get()->*get)(Child(child), &number);
        return number.vt == VT_I4 ? number.lVal : -1;
    }

    ComPtr<IAccessible> m_object;
};
