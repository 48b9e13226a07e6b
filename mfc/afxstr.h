// CString and the geometry classes: the subset of MFC's that the library uses.
#pragma once

#include <algorithm>
#include <string>
#include <utility>

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
    // Both give -1 when there is nothing to find, as does a start behind the end.
    int Find(LPCWSTR part, int start = 0) const { return IndexOf(m_text.find(part, NotNegative(start))); }
    int Find(wchar_t character, int start = 0) const { return IndexOf(m_text.find(character, NotNegative(start))); }
    int ReverseFind(wchar_t character) const { return IndexOf(m_text.rfind(character)); }
    // Counts and positions that reach over an end mean that end.
    CString Left(int count) const { return CString(m_text.substr(0, NotNegative(count))); }
    CString Mid(int first) const { return Mid(first, GetLength()); }
    CString Mid(int first, int count) const {
        return CString(m_text.substr((std::min)(NotNegative(first), m_text.size()), NotNegative(count)));
    }

    /// printf's formatting; %s is a wide string.
    void Format(LPCWSTR format, ...);
    /// A new BSTR, which the caller frees.
    BSTR AllocSysString() const { return ::SysAllocStringLen(m_text.data(), static_cast<UINT>(m_text.size())); }
    /// Room for at least so many characters, to be written to until ReleaseBuffer.
    LPWSTR GetBuffer(int length) {
        m_text.resize((std::max)(m_text.size(), NotNegative(length)));
        return m_text.data();
    }
    /// @param length  -1 when what was written ends with a null.
    void ReleaseBuffer(int length = -1) {
        m_text.resize(length < 0 ? ::wcslen(m_text.c_str()) : static_cast<std::size_t>(length));
    }

    CString& operator+=(const CString& other) {
        m_text += other.m_text;
        return *this;
    }
    CString& operator+=(wchar_t character) {
        m_text += character;
        return *this;
    }
    friend CString operator+(const CString& a, const CString& b) { return CString(a.m_text + b.m_text); }
    friend CString operator+(const CString& a, LPCWSTR b) { return a + CString(b); }
    friend CString operator+(LPCWSTR a, const CString& b) { return CString(a) + b; }
    // Without these two a character would move the text's address.
    friend CString operator+(const CString& a, wchar_t b) { return CString(a.m_text + b); }
    friend CString operator+(wchar_t a, const CString& b) { return CString(a + b.m_text); }
    friend bool operator==(const CString& a, const CString& b) { return a.m_text == b.m_text; }
    friend bool operator==(const CString& a, LPCWSTR b) { return a == CString(b); }

private:
    explicit CString(std::wstring text) : m_text(std::move(text)) {}
    static std::size_t NotNegative(int value) { return static_cast<std::size_t>((std::max)(value, 0)); }
    static int IndexOf(std::size_t found) { return found == std::wstring::npos ? -1 : static_cast<int>(found); }

    std::wstring m_text;
};

class CSize : public SIZE {
public:
    CSize() : SIZE{0, 0} {}
    CSize(int initCX, int initCY) : SIZE{initCX, initCY} {}
    CSize(SIZE size) : SIZE(size) {}

    friend bool operator==(const SIZE& a, const SIZE& b) { return a.cx == b.cx && a.cy == b.cy; }
};

class CPoint : public POINT {
public:
    CPoint() : POINT{0, 0} {}
    CPoint(int initX, int initY) : POINT{initX, initY} {}
    CPoint(POINT point) : POINT(point) {}
    CPoint(LPARAM packed) : POINT{static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed))} {}

    friend bool operator==(const POINT& a, const POINT& b) { return a.x == b.x && a.y == b.y; }
};

class CRect : public RECT {
public:
    CRect() : RECT{0, 0, 0, 0} {}
    CRect(int l, int t, int r, int b) : RECT{l, t, r, b} {}
    CRect(const RECT& rect) : RECT(rect) {}
    CRect(LPCRECT rect) : RECT(*rect) {}
    CRect(POINT point, SIZE size) : RECT{point.x, point.y, point.x + size.cx, point.y + size.cy} {}
    CRect(POINT topLeft, POINT bottomRight) : RECT{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y} {}

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
    void InflateRect(int x, int y) { ::InflateRect(this, x, y); }
    void InflateRect(int l, int t, int r, int b) { SetRect(left - l, top - t, right + r, bottom + b); }
    void DeflateRect(int x, int y) { InflateRect(-x, -y); }
    void DeflateRect(int l, int t, int r, int b) { InflateRect(-l, -t, -r, -b); }
    void OffsetRect(int x, int y) { ::OffsetRect(this, x, y); }
    void OffsetRect(POINT distance) { OffsetRect(distance.x, distance.y); }
    BOOL IntersectRect(LPCRECT a, LPCRECT b) { return ::IntersectRect(this, a, b); }

    friend bool operator==(const RECT& a, const RECT& b) { return ::EqualRect(&a, &b) != FALSE; }
};
