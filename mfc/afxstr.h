// CString and the geometry classes: the subset of MFC's that the library uses.
#pragma once

#include <algorithm>
#include <string>

#include <windows.h>

#include <oleauto.h>

class CString {
public:
    CString() = default;
    CString(const wchar_t* text) : m_text(text ? text : L"") {}
    CString(const wchar_t* text, int length) : m_text(text, static_cast<std::size_t>(length)) {}

    operator LPCWSTR() const { return m_text.c_str(); }
    LPCWSTR GetString() const { return m_text.c_str(); }
    int GetLength() const { return static_cast<int>(m_text.size()); }
    bool IsEmpty() const { return m_text.empty(); }
    void Empty() { m_text.clear(); }
    wchar_t operator[](int index) const { return m_text[static_cast<std::size_t>(index)]; }

    int Compare(LPCWSTR other) const { return m_text.compare(other); }
    int CompareNoCase(LPCWSTR other) const { return ::_wcsicmp(m_text.c_str(), other); }
    int ReverseFind(wchar_t character) const { return static_cast<int>(m_text.rfind(character)); }
    CString Left(int count) const { return CString(m_text.substr(0, static_cast<std::size_t>(count < 0 ? 0 : count))); }

    /// printf's formatting, for numbers.
    void Format(LPCWSTR format, ...);
    /// A new BSTR, which the caller frees.
    BSTR AllocSysString() const { return ::SysAllocStringLen(m_text.data(), static_cast<UINT>(m_text.size())); }
    LPWSTR GetBuffer(int length) {
        m_text.resize((std::max)(m_text.size(), static_cast<std::size_t>(length)));
        return m_text.data();
    }
    void ReleaseBuffer() { m_text.resize(::wcslen(m_text.c_str())); }

    CString& operator+=(const CString& other) {
        m_text += other.m_text;
        return *this;
    }
    friend CString operator+(const CString& a, const CString& b) { return CString(a.m_text + b.m_text); }
    friend CString operator+(const CString& a, LPCWSTR b) { return CString(a.m_text + b); }
    friend CString operator+(LPCWSTR a, const CString& b) { return CString(a + b.m_text); }
    friend bool operator==(const CString& a, const CString& b) { return a.m_text == b.m_text; }
    friend bool operator==(const CString& a, LPCWSTR b) { return a.m_text == b; }

private:
    explicit CString(std::wstring text) : m_text(std::move(text)) {}

    std::wstring m_text;
};

class CPoint : public POINT {
public:
    CPoint() : POINT{0, 0} {}
    CPoint(int initX, int initY) : POINT{initX, initY} {}
    CPoint(POINT point) : POINT(point) {}
    CPoint(LPARAM packed) : POINT{static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed))} {}
};

class CSize : public SIZE {
public:
    CSize() : SIZE{0, 0} {}
    CSize(int initCX, int initCY) : SIZE{initCX, initCY} {}
    CSize(SIZE size) : SIZE(size) {}
};

class CRect : public RECT {
public:
    CRect() : RECT{0, 0, 0, 0} {}
    CRect(int l, int t, int r, int b) : RECT{l, t, r, b} {}
    CRect(const RECT& rect) : RECT(rect) {}
    CRect(POINT point, SIZE size) : RECT{point.x, point.y, point.x + size.cx, point.y + size.cy} {}

    operator LPRECT() { return this; }
    operator LPCRECT() const { return this; }

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    CSize Size() const { return CSize(Width(), Height()); }
    CPoint TopLeft() const { return CPoint(left, top); }
    CPoint CenterPoint() const { return CPoint((left + right) / 2, (top + bottom) / 2); }
    BOOL PtInRect(POINT point) const { return ::PtInRect(this, point); }
    BOOL IsRectEmpty() const { return ::IsRectEmpty(this); }
    void SetRect(int l, int t, int r, int b) { *this = CRect(l, t, r, b); }
    void SetRectEmpty() { *this = CRect(); }
    void InflateRect(int x, int y) { ::InflateRect(this, x, y); }
    void DeflateRect(int x, int y) { ::InflateRect(this, -x, -y); }
    void OffsetRect(int x, int y) { ::OffsetRect(this, x, y); }
    BOOL IntersectRect(LPCRECT a, LPCRECT b) { return ::IntersectRect(this, a, b); }
    BOOL operator==(const RECT& other) const { return ::EqualRect(this, &other); }
    BOOL operator!=(const RECT& other) const { return !::EqualRect(this, &other); }
};
