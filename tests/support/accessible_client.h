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
        return NumberOf(child);
    }
    /// The child at a point of the dialog; 0 for the dialog itself, -1 for nothing.
    long At(CPoint point, HWND dialog) const {
        ::ClientToScreen(dialog, &point);
        VARIANT child;
        ::VariantInit(&child);
        m_object->accHitTest(point.x, point.y, &child);
        return child.vt == VT_EMPTY ? -1 : NumberOf(child);
    }
    HRESULT Act(long child) const { return m_object->accDoDefaultAction(Child(child)); }
    HRESULT SetValue(long child, const wchar_t* value) const {
        return m_object->put_accValue(Child(child), CBstr(value).Get());
    }
    HRESULT Select(long child) const { return m_object->accSelect(SELFLAG_TAKEFOCUS, Child(child)); }
    /// The window in which a child's own object says it stands; null for a child that has no object.
    HWND WindowOf(long child) const {
        ComPtr<IDispatch> object;
        m_object->get_accChild(Child(child), object.GetAddressOf());
        return object.Get() ? WindowOf(object.Get()) : nullptr;
    }

    static VARIANT Child(long number) {
        VARIANT child;
        ::VariantInit(&child);
        child.vt = VT_I4;
        child.lVal = number;
        return child;
    }

private:
    static HWND WindowOf(IDispatch* object) {
        ComPtr<IAccessible> accessible;
        HWND window = nullptr;
        object->QueryInterface(__uuidof(IAccessible), reinterpret_cast<void**>(accessible.GetAddressOf()));
        ::WindowFromAccessibleObject(accessible.Get(), &window);
        return window;
    }
    long NumberOf(const VARIANT& child) const {
        if (child.vt != VT_DISPATCH) return child.vt == VT_I4 ? child.lVal : 0;
        const HWND window = WindowOf(child.pdispVal);
        child.pdispVal->Release();
        for (long number = 1; number <= Count(); ++number) {
            if (WindowOf(number) == window) return number;
        }
        return 0;
    }
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
