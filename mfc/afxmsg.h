// Message maps: which member function handles which message. A thunk per handler unpacks the parameters.
#pragma once

#include "afxstr.h"

class CWnd;
class CDC;

#define afx_msg

struct AFX_MSGMAP_ENTRY {
    UINT message;
    UINT code;  ///< Of a command's notification.
    UINT firstId;
    UINT lastId;
    LRESULT (*dispatch)(CWnd& window, WPARAM wParam, LPARAM lParam);
};

struct AFX_MSGMAP {
    const AFX_MSGMAP* (*base)();
    const AFX_MSGMAP_ENTRY* entries;  ///< Ends with an entry without a dispatch function.
};

namespace afx {

template <typename Member>
struct MemberOf;
template <typename Class, typename Result, typename... Arguments>
struct MemberOf<Result (Class::*)(Arguments...)> {
    using Type = Class;
};

template <auto Handler, typename... Arguments>
LRESULT Call(CWnd& window, Arguments... arguments) {
    auto& self = static_cast<typename MemberOf<decltype(Handler)>::Type&>(window);
    if constexpr (std::is_void_v<decltype((self.*Handler)(arguments...))>) {
        (self.*Handler)(arguments...);
        return 0;
    } else {
        return static_cast<LRESULT>((self.*Handler)(arguments...));
    }
}

template <auto Handler>
LRESULT Plain(CWnd& window, WPARAM, LPARAM) {
    return Call<Handler>(window);
}
template <auto Handler>
LRESULT Message(CWnd& window, WPARAM wParam, LPARAM lParam) {
    return Call<Handler>(window, wParam, lParam);
}
template <auto Handler>
LRESULT CommandId(CWnd& window, WPARAM wParam, LPARAM) {
    return Call<Handler>(window, static_cast<UINT>(LOWORD(wParam)));
}
template <auto Handler>
LRESULT Mouse(CWnd& window, WPARAM wParam, LPARAM lParam) {
    return Call<Handler>(window, static_cast<UINT>(wParam), CPoint(lParam));
}
template <auto Handler>
LRESULT Size(CWnd& window, WPARAM wParam, LPARAM lParam) {
    return Call<Handler>(
        window, static_cast<UINT>(wParam), static_cast<int>(LOWORD(lParam)), static_cast<int>(HIWORD(lParam)));
}
template <auto Handler>
LRESULT Timer(CWnd& window, WPARAM wParam, LPARAM) {
    return Call<Handler>(window, static_cast<UINT_PTR>(wParam));
}
template <auto Handler>
LRESULT Create(CWnd& window, WPARAM, LPARAM lParam) {
    return Call<Handler>(window, reinterpret_cast<LPCREATESTRUCTW>(lParam));
}
template <auto Handler>
LRESULT Key(CWnd& window, WPARAM wParam, LPARAM lParam) {
    return Call<Handler>(
        window, static_cast<UINT>(wParam), static_cast<UINT>(LOWORD(lParam)), static_cast<UINT>(HIWORD(lParam)));
}
template <auto Handler>
LRESULT Activate(CWnd& window, WPARAM wParam, LPARAM lParam);
template <auto Handler>
LRESULT Erase(CWnd& window, WPARAM wParam, LPARAM);
template <auto Handler>
LRESULT OtherWindow(CWnd& window, WPARAM, LPARAM lParam);

}  // namespace afx

#define DECLARE_MESSAGE_MAP()                     \
protected:                                        \
    static const AFX_MSGMAP* GetThisMessageMap(); \
    const AFX_MSGMAP* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                        \
    const AFX_MSGMAP* theClass::GetMessageMap() const { return GetThisMessageMap(); } \
    const AFX_MSGMAP* theClass::GetThisMessageMap() {                                 \
        using ThisClass = theClass;                                                   \
        using TheBaseClass = baseClass;                                               \
        static const AFX_MSGMAP_ENTRY entries[] = {
#define END_MESSAGE_MAP()                                                      \
    { 0, 0, 0, 0, nullptr }                                                    \
    }                                                                          \
    ;                                                                          \
    static const AFX_MSGMAP map = {&TheBaseClass::GetThisMessageMap, entries}; \
    return &map;                                                               \
    }

#define AFX_WM_ENTRY(message, thunk, handler) {message, 0, 0, 0, &afx::thunk<&ThisClass::handler>},

#define ON_MESSAGE(message, handler) {message, 0, 0, 0, &afx::Message<&ThisClass::handler>},
#define ON_COMMAND(id, handler) {WM_COMMAND, 0, id, id, &afx::Plain<&ThisClass::handler>},
#define ON_COMMAND_RANGE(first, last, handler) {WM_COMMAND, 0, first, last, &afx::CommandId<&ThisClass::handler>},
#define ON_CONTROL_RANGE(code, first, last, handler) \
    {WM_COMMAND, code, first, last, &afx::CommandId<&ThisClass::handler>},

#define ON_WM_CREATE() AFX_WM_ENTRY(WM_CREATE, Create, OnCreate)
#define ON_WM_DESTROY() AFX_WM_ENTRY(WM_DESTROY, Plain, OnDestroy)
#define ON_WM_SIZE() AFX_WM_ENTRY(WM_SIZE, Size, OnSize)
#define ON_WM_ERASEBKGND() AFX_WM_ENTRY(WM_ERASEBKGND, Erase, OnEraseBkgnd)
#define ON_WM_PAINT() AFX_WM_ENTRY(WM_PAINT, Plain, OnPaint)
#define ON_WM_LBUTTONDOWN() AFX_WM_ENTRY(WM_LBUTTONDOWN, Mouse, OnLButtonDown)
#define ON_WM_LBUTTONDBLCLK() AFX_WM_ENTRY(WM_LBUTTONDBLCLK, Mouse, OnLButtonDblClk)
#define ON_WM_LBUTTONUP() AFX_WM_ENTRY(WM_LBUTTONUP, Mouse, OnLButtonUp)
#define ON_WM_MOUSEMOVE() AFX_WM_ENTRY(WM_MOUSEMOVE, Mouse, OnMouseMove)
#define ON_WM_MOUSELEAVE() AFX_WM_ENTRY(WM_MOUSELEAVE, Plain, OnMouseLeave)
#define ON_WM_TIMER() AFX_WM_ENTRY(WM_TIMER, Timer, OnTimer)
#define ON_WM_ACTIVATE() AFX_WM_ENTRY(WM_ACTIVATE, Activate, OnActivate)
#define ON_WM_KEYDOWN() AFX_WM_ENTRY(WM_KEYDOWN, Key, OnKeyDown)
#define ON_WM_CAPTURECHANGED() AFX_WM_ENTRY(WM_CAPTURECHANGED, OtherWindow, OnCaptureChanged)
