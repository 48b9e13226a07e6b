// Message maps: which member function handles which message. A thunk per handler unpacks the parameters.
#pragma once

#include <type_traits>

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
struct HandlerTraits;
template <typename OwnerClass, typename Result, typename... Arguments>
struct HandlerTraits<Result (OwnerClass::*)(Arguments...)> {
    using Class = OwnerClass;
    using Signature = Result(Arguments...);
};

template <auto Handler, typename Result, typename... Arguments>
LRESULT Call(CWnd& window, Arguments... arguments) {
    using Traits = HandlerTraits<decltype(Handler)>;
    static_assert(std::is_same_v<typename Traits::Signature, Result(Arguments...)>,
                  "The handler must have exactly the parameters and the result of its message.");
    auto& self = static_cast<typename Traits::Class&>(window);
    if constexpr (std::is_void_v<Result>) {
        (self.*Handler)(arguments...);
        return 0;
    } else {
        return static_cast<LRESULT>((self.*Handler)(arguments...));
    }
}

template <auto Handler>
LRESULT Plain(CWnd& window, WPARAM, LPARAM) {
    return Call<Handler, void>(window);
}
template <auto Handler>
LRESULT Message(CWnd& window, WPARAM wParam, LPARAM lParam) {
    return Call<Handler, LRESULT, WPARAM, LPARAM>(window, wParam, lParam);
}
template <auto Handler>
LRESULT CommandId(CWnd& window, WPARAM wParam, LPARAM) {
    return Call<Handler, void, UINT>(window, LOWORD(wParam));
}
template <auto Handler>
LRESULT Mouse(CWnd& window, WPARAM wParam, LPARAM lParam) {
    return Call<Handler, void, UINT, CPoint>(window, static_cast<UINT>(wParam), CPoint(lParam));
}
template <auto Handler>
LRESULT Wheel(CWnd& window, WPARAM wParam, LPARAM lParam) {
    return Call<Handler, BOOL, UINT, short, CPoint>(
        window, LOWORD(wParam), static_cast<short>(HIWORD(wParam)), CPoint(lParam));
}
template <auto Handler>
LRESULT Size(CWnd& window, WPARAM wParam, LPARAM lParam) {
    return Call<Handler, void, UINT, int, int>(window, static_cast<UINT>(wParam), LOWORD(lParam), HIWORD(lParam));
}
template <auto Handler>
LRESULT Timer(CWnd& window, WPARAM wParam, LPARAM) {
    return Call<Handler, void, UINT_PTR>(window, wParam);
}
template <auto Handler>
LRESULT Create(CWnd& window, WPARAM, LPARAM lParam) {
    return Call<Handler, int, LPCREATESTRUCTW>(window, reinterpret_cast<LPCREATESTRUCTW>(lParam));
}
template <auto Handler>
LRESULT Key(CWnd& window, WPARAM wParam, LPARAM lParam) {
    return Call<Handler, void, UINT, UINT, UINT>(window, static_cast<UINT>(wParam), LOWORD(lParam), HIWORD(lParam));
}
template <auto Handler>
LRESULT DialogCode(CWnd& window, WPARAM, LPARAM) {
    return Call<Handler, UINT>(window);
}
// Defined once the classes that they hand over are.
template <auto Handler>
LRESULT Activate(CWnd& window, WPARAM wParam, LPARAM lParam);
template <auto Handler>
LRESULT Erase(CWnd& window, WPARAM wParam, LPARAM);
template <auto Handler>
LRESULT Focus(CWnd& window, WPARAM wParam, LPARAM);
template <auto Handler>
LRESULT Capture(CWnd& window, WPARAM, LPARAM lParam);

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

#define AFX_COMMAND_ENTRY(code, first, last, thunk, handler) \
    {WM_COMMAND, code, first, last, &afx::thunk<&ThisClass::handler>},
#define AFX_WM_ENTRY(message, thunk, handler) {message, 0, 0, 0, &afx::thunk<&ThisClass::handler>},

#define ON_MESSAGE(message, handler) AFX_WM_ENTRY(message, Message, handler)
#define ON_COMMAND(id, handler) AFX_COMMAND_ENTRY(0, id, id, Plain, handler)
#define ON_COMMAND_RANGE(first, last, handler) AFX_COMMAND_ENTRY(0, first, last, CommandId, handler)
#define ON_CONTROL(code, id, handler) AFX_COMMAND_ENTRY(code, id, id, Plain, handler)
#define ON_CONTROL_RANGE(code, first, last, handler) AFX_COMMAND_ENTRY(code, first, last, CommandId, handler)
#define ON_EN_CHANGE(id, handler) ON_CONTROL(EN_CHANGE, id, handler)

#define ON_WM_CREATE() AFX_WM_ENTRY(WM_CREATE, Create, OnCreate)
#define ON_WM_DESTROY() AFX_WM_ENTRY(WM_DESTROY, Plain, OnDestroy)
#define ON_WM_CLOSE() AFX_WM_ENTRY(WM_CLOSE, Plain, OnClose)
#define ON_WM_SIZE() AFX_WM_ENTRY(WM_SIZE, Size, OnSize)
#define ON_WM_ERASEBKGND() AFX_WM_ENTRY(WM_ERASEBKGND, Erase, OnEraseBkgnd)
#define ON_WM_PAINT() AFX_WM_ENTRY(WM_PAINT, Plain, OnPaint)
#define ON_WM_LBUTTONDOWN() AFX_WM_ENTRY(WM_LBUTTONDOWN, Mouse, OnLButtonDown)
#define ON_WM_LBUTTONDBLCLK() AFX_WM_ENTRY(WM_LBUTTONDBLCLK, Mouse, OnLButtonDblClk)
#define ON_WM_LBUTTONUP() AFX_WM_ENTRY(WM_LBUTTONUP, Mouse, OnLButtonUp)
#define ON_WM_MOUSEMOVE() AFX_WM_ENTRY(WM_MOUSEMOVE, Mouse, OnMouseMove)
#define ON_WM_MOUSELEAVE() AFX_WM_ENTRY(WM_MOUSELEAVE, Plain, OnMouseLeave)
#define ON_WM_MOUSEWHEEL() AFX_WM_ENTRY(WM_MOUSEWHEEL, Wheel, OnMouseWheel)
#define ON_WM_CAPTURECHANGED() AFX_WM_ENTRY(WM_CAPTURECHANGED, Capture, OnCaptureChanged)
#define ON_WM_TIMER() AFX_WM_ENTRY(WM_TIMER, Timer, OnTimer)
#define ON_WM_ACTIVATE() AFX_WM_ENTRY(WM_ACTIVATE, Activate, OnActivate)
#define ON_WM_SETFOCUS() AFX_WM_ENTRY(WM_SETFOCUS, Focus, OnSetFocus)
#define ON_WM_KEYDOWN() AFX_WM_ENTRY(WM_KEYDOWN, Key, OnKeyDown)
#define ON_WM_SYSKEYDOWN() AFX_WM_ENTRY(WM_SYSKEYDOWN, Key, OnSysKeyDown)
#define ON_WM_CHAR() AFX_WM_ENTRY(WM_CHAR, Key, OnChar)
#define ON_WM_GETDLGCODE() AFX_WM_ENTRY(WM_GETDLGCODE, DialogCode, OnGetDlgCode)
