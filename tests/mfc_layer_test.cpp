// The framework layer: message maps, windows and their objects, modal dialogs and what their owners see.
#include <afxcmn.h>
#include <afxwin.h>

#include <algorithm>
#include <functional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

using Trace = std::vector<std::string>;
Trace g_trace;

Trace TakeTrace() { return std::exchange(g_trace, {}); }

template <typename... Numbers>
void Note(const char* what, Numbers... numbers) {
    std::string entry = what;
    ((entry += ' ' + std::to_string(numbers)), ...);
    g_trace.push_back(entry);
}

/// A window that keeps what it saw first.
template <typename Base>
class Watched : public Base {
public:
    using Base::Base;
    int ends = 0;
    std::vector<UINT> seen;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        seen.push_back(message);
        return Base::WindowProc(message, wParam, lParam);
    }
    void PostNcDestroy() override { ++ends; }
};

class CBaseWnd : public CWnd {
public:
    bool CreateHidden(HWND parent = nullptr) {
        return CreateEx(0, nullptr, L"", WS_POPUP, 10, 10, 100, 50, parent, nullptr) != FALSE;
    }

protected:
    afx_msg void OnBaseOnly() { Note("base only"); }
    afx_msg void OnBoth() { Note("base"); }
    afx_msg void OnTimer(UINT_PTR id) { Note("timer", id); }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CBaseWnd, CWnd)
    ON_COMMAND(1, OnBaseOnly)
    ON_COMMAND(2, OnBoth)
    ON_WM_TIMER()
END_MESSAGE_MAP()

class CMappedWnd : public CBaseWnd {
    afx_msg void OnBoth() { Note("derived"); }
    afx_msg void OnRange(UINT id) { Note("range", id); }
    afx_msg void OnChange() { Note("change"); }
    afx_msg void OnControls(UINT id) { Note("controls", id); }
    afx_msg LRESULT OnSum(WPARAM a, LPARAM b) { return static_cast<LRESULT>(a) + b; }
    afx_msg void OnLButtonDown(UINT flags, CPoint point) { Note("press", flags, point.x, point.y); }
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point) {
        Note("wheel", flags, delta, point.x, point.y);
        return TRUE;
    }
    afx_msg void OnSize(UINT type, int cx, int cy) { Note("size", type, cx, cy); }
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags) { Note("key", key, repeat, flags); }
    afx_msg void OnSetFocus(CWnd* other) { Note("focus", other == this); }
    afx_msg BOOL OnEraseBkgnd(CDC* dc) { return dc->GetSafeHdc() == reinterpret_cast<HDC>(INT_PTR{5}); }
    afx_msg UINT OnGetDlgCode() { return DLGC_WANTARROWS; }
    afx_msg void OnClose() {
        DestroyWindow();
        CBaseWnd::OnClose();  // Without a window the default has to do nothing.
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CMappedWnd, CBaseWnd)
    ON_COMMAND(2, OnBoth)
    ON_COMMAND_RANGE(20, 29, OnRange)
    ON_EN_CHANGE(40, OnChange)
    ON_CONTROL_RANGE(EN_CHANGE, 50, 59, OnControls)
    ON_MESSAGE(WM_APP, OnSum)
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEWHEEL()
    ON_WM_SIZE()
    ON_WM_KEYDOWN()
    ON_WM_SETFOCUS()
    ON_WM_ERASEBKGND()
    ON_WM_GETDLGCODE()
    ON_WM_CLOSE()
END_MESSAGE_MAP()

TEST(MessageMap, HandlersGetTheirUnpackedParameters) {
    CMappedWnd window;
    ASSERT_TRUE(window.CreateHidden());
    const auto control = reinterpret_cast<LPARAM>(window.m_hWnd);
    const struct {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
        Trace trace;
        LRESULT result;
    } rows[] = {
        {WM_COMMAND, 1, 0, {"base only"}, 0},
        {WM_COMMAND, 2, 0, {"derived"}, 0},
        {WM_COMMAND, MAKEWPARAM(2, 1), 0, {"derived"}, 0},  // As an accelerator sends it.
        {WM_COMMAND, MAKEWPARAM(2, EN_CHANGE), control, {}, 0},
        {WM_COMMAND, 19, 0, {}, 0},
        {WM_COMMAND, 20, 0, {"range 20"}, 0},
        {WM_COMMAND, 29, 0, {"range 29"}, 0},
        {WM_COMMAND, 30, 0, {}, 0},
        {WM_COMMAND, MAKEWPARAM(40, EN_CHANGE), control, {"change"}, 0},
        {WM_COMMAND, MAKEWPARAM(40, EN_SETFOCUS), control, {}, 0},
        {WM_COMMAND, MAKEWPARAM(59, EN_CHANGE), control, {"controls 59"}, 0},
        {WM_APP, 3, -10, {}, -7},
        {WM_TIMER, 9, 0, {"timer 9"}, 0},
        {WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(-5, 7), {"press 1 -5 7"}, 0},
        {WM_MOUSEWHEEL, MAKEWPARAM(MK_SHIFT, -120), MAKELPARAM(3, -4), {"wheel 4 -120 3 -4"}, TRUE},
        {WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(300, 200), {"size 2 300 200"}, 0},
        {WM_KEYDOWN, VK_RETURN, MAKELPARAM(2, 28), {"key 13 2 28"}, 0},
        {WM_SETFOCUS, static_cast<WPARAM>(control), 0, {"focus 1"}, 0},
        {WM_SETFOCUS, 0, 0, {"focus 0"}, 0},
        {WM_ERASEBKGND, 5, 0, {}, TRUE},
        {WM_GETDLGCODE, 0, 0, {}, DLGC_WANTARROWS},
    };
    TakeTrace();
    for (const auto& row : rows) {
        SCOPED_TRACE(::testing::Message() << "message " << row.message << ", " << row.wParam);
        EXPECT_EQ(window.SendMessage(row.message, row.wParam, row.lParam), row.result);
        EXPECT_EQ(TakeTrace(), row.trace);
    }
    window.SendMessage(WM_CLOSE);
    EXPECT_EQ(window.m_hWnd, nullptr);
}

class CTalkativeEdit : public CEdit {
    afx_msg void OnChar(UINT key, UINT repeat, UINT flags) {
        SendMessage(WM_APP);
        CEdit::OnChar(key, repeat, flags);
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CTalkativeEdit, CEdit)
    ON_WM_CHAR()
END_MESSAGE_MAP()

TEST(MessageMap, TheDefaultGetsTheHandlersOwnMessage) {
    CMappedWnd parent;
    CTalkativeEdit edit;
    ASSERT_TRUE(parent.CreateHidden());
    ASSERT_TRUE(edit.Create(WS_CHILD, CRect(0, 0, 50, 20), &parent, 1));
    edit.SendMessage(WM_CHAR, L'x');
    CString text;
    edit.GetWindowText(text);
    EXPECT_EQ(text, L"x") << "the message sent in between was handed on instead";
}

// Dialogs. The step runs once the dialog has been shown.
struct EmptyTemplate {
    DLGTEMPLATE header{WS_POPUP, 0, 0, 0, 0, 80, 40};
    WORD noMenu = 0;
    WORD defaultClass = 0;
    WORD noTitle = 0;
};
const EmptyTemplate kTemplate;

class CScriptDialog : public CDialog {
public:
    explicit CScriptDialog(CWnd* parent = nullptr) { InitModalIndirect(&kTemplate.header, parent); }
    std::function<void(CScriptDialog&)> atInit;
    std::function<void(CScriptDialog&)> step;
    std::function<bool(const MSG&)> filter;
    CEdit m_edit;

    BOOL DestroyWindow() override {
        Note("dialog is to go");
        return CDialog::DestroyWindow();
    }
    BOOL PreTranslateMessage(MSG* message) override {
        return (filter && filter(*message)) || CDialog::PreTranslateMessage(message);
    }

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        m_edit.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 50, 20), this, 90);
        SetTimer(1, 20, nullptr);
        if (atInit) atInit(*this);
        return TRUE;
    }
    afx_msg void OnTimer(UINT_PTR id) {
        if (!IsWindowVisible()) return;
        KillTimer(id);
        if (step) step(*this);
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CScriptDialog, CDialog)
    ON_WM_TIMER()
END_MESSAGE_MAP()

std::function<void(CScriptDialog&)> Ends(int result) {
    return [result](CScriptDialog& self) { self.EndDialog(result); };
}

class COwnerWnd : public CBaseWnd {
public:
    explicit COwnerWnd(HWND owner = nullptr) {
        CreateHidden(owner);
        ShowWindow(SW_SHOW);
        ::SetActiveWindow(m_hWnd);
        TakeTrace();
    }

protected:
    afx_msg LRESULT OnEnable(WPARAM enabled, LPARAM) {
        Note(enabled ? "owner enabled" : "owner disabled");
        return 0;
    }
    afx_msg void OnActivate(UINT state, CWnd* other, BOOL minimized) {
        if (state != WA_INACTIVE) Note("owner active");
        CBaseWnd::OnActivate(state, other, minimized);
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(COwnerWnd, CBaseWnd)
    ON_MESSAGE(WM_ENABLE, OnEnable)
    ON_WM_ACTIVATE()
END_MESSAGE_MAP()

void ExpectNothingLeft(const CWnd& object, HWND window) {
    EXPECT_EQ(object.m_hWnd, nullptr);
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(CWnd::FromHandlePermanent(window), nullptr);
    const HWND next = ::CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(next), nullptr) << "the hook is still waiting";
    ::DestroyWindow(next);
}

TEST(Window, MessagesReachTheObjectFromTheFirstOn) {
    COwnerWnd owner;
    Watched<CWnd> plain;
    Watched<CEdit> edit;
    Watched<CListBox> list;
    Watched<CRichEditCtrl> rich;
    Watched<CScriptDialog> dialog;
    dialog.step = Ends(5);
    const CRect place(0, 0, 50, 20);
    EXPECT_TRUE(plain.Create(nullptr, L"", 0, place, &owner, 1));
    EXPECT_TRUE(edit.Create(WS_CHILD, place, &owner, 2));
    EXPECT_TRUE(list.Create(WS_CHILD | LBS_HASSTRINGS, place, &owner, 3));
    EXPECT_TRUE(rich.Create(WS_CHILD, place, &owner, 4));
    EXPECT_EQ(dialog.DoModal(), 5);
    for (const auto* seen : {&plain.seen, &edit.seen, &list.seen, &rich.seen, &dialog.seen}) {
        ASSERT_FALSE(seen->empty());
        EXPECT_TRUE(seen->front() == WM_NCCREATE || seen->front() == WM_GETMINMAXINFO) << seen->front();
        EXPECT_EQ(std::count(seen->begin(), seen->end(), UINT{WM_CREATE}), 1);
    }
    // The controls still are what they were.
    CString text;
    for (const CWnd* control : {static_cast<CWnd*>(&edit), static_cast<CWnd*>(&rich)}) {
        control->SendMessage(EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(L"typed"));
        control->GetWindowText(text);
        EXPECT_EQ(text, L"typed");
    }
    EXPECT_EQ(list.AddString(L"a row"), 0);
    list.GetText(0, text);
    EXPECT_EQ(text, L"a row");
    EXPECT_EQ(plain.GetParent(), &owner);

    const HWND windows[] = {plain, edit};
    owner.DestroyWindow();
    EXPECT_EQ(plain.ends, 1);
    ExpectNothingLeft(plain, windows[0]);
    ExpectNothingLeft(edit, windows[1]);
}

TEST(Dialog, TheOwnerTakesInputAndActivationAgainBeforeTheWindowGoes) {
    COwnerWnd owner;
    CScriptDialog dialog;
    dialog.step = [&owner](CScriptDialog& self) {
        EXPECT_EQ(::GetWindow(self, GW_OWNER), owner.m_hWnd);
        EXPECT_EQ(::GetActiveWindow(), self.m_hWnd);
        self.EndDialog(3);
    };
    EXPECT_EQ(dialog.DoModal(), 3);
    EXPECT_EQ(TakeTrace(), (Trace{"owner disabled", "owner enabled", "owner active", "dialog is to go"}));
    EXPECT_EQ(::GetActiveWindow(), owner.m_hWnd);

    owner.EnableWindow(FALSE);
    EXPECT_EQ(dialog.DoModal(), 3);
    EXPECT_FALSE(owner.IsWindowEnabled()) << "disabled by somebody else, it stays so";
}

TEST(Dialog, TheOwnersOwnerIsDisabledToo) {
    COwnerWnd top;
    COwnerWnd popup(top.m_hWnd);
    CEdit child;
    ASSERT_TRUE(child.Create(WS_CHILD, CRect(0, 0, 9, 9), &popup, 1));
    CScriptDialog dialog(&child);          // A child window stands for the top-level window that it is in.
    dialog.atInit = [&](CScriptDialog&) {  // As a message box does when it goes.
        top.EnableWindow(TRUE);
        popup.EnableWindow(TRUE);
    };
    dialog.step = [&](CScriptDialog& self) {
        EXPECT_EQ(::GetWindow(self, GW_OWNER), popup.m_hWnd);
        EXPECT_FALSE(top.IsWindowEnabled());
        EXPECT_FALSE(popup.IsWindowEnabled());
        self.EndDialog(3);
    };
    EXPECT_EQ(dialog.DoModal(), 3);
    EXPECT_TRUE(top.IsWindowEnabled());
    EXPECT_TRUE(popup.IsWindowEnabled());
}

TEST(Dialog, AppearsOnceItsQueueIsEmpty) {
    COwnerWnd owner;
    CScriptDialog dialog;
    bool visibleWhilePosted = true;
    dialog.atInit = [](CScriptDialog& self) { self.PostMessage(WM_APP); };
    dialog.filter = [&](const MSG& message) {
        if (message.message == WM_APP) visibleWhilePosted = dialog.IsWindowVisible() != FALSE;
        return false;
    };
    dialog.step = [](CScriptDialog& self) { self.EndDialog(self.IsWindowVisible() ? 1 : 2); };
    EXPECT_EQ(dialog.DoModal(), 1);
    EXPECT_FALSE(visibleWhilePosted);

    CScriptDialog brief;
    brief.atInit = Ends(4);
    EXPECT_EQ(brief.DoModal(), 4) << "ended before it was shown";
}

TEST(Dialog, KeysAndTheCloseCommandEndIt) {
    const struct {
        const char* name;
        bool toChild;
        UINT message;
        WPARAM key;
        INT_PTR result;
    } rows[] = {
        {"Enter", false, WM_KEYDOWN, VK_RETURN, IDOK},   {"Enter in a control", true, WM_KEYDOWN, VK_RETURN, IDOK},
        {"Esc", false, WM_KEYDOWN, VK_ESCAPE, IDCANCEL}, {"Esc in a control", true, WM_KEYDOWN, VK_ESCAPE, IDCANCEL},
        {"close", false, WM_CLOSE, 0, IDCANCEL},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        COwnerWnd owner;
        CScriptDialog dialog;
        dialog.step = [&row](CScriptDialog& self) {
            (row.toChild ? static_cast<CWnd&>(self.m_edit) : self).PostMessage(row.message, row.key);
        };
        EXPECT_EQ(dialog.DoModal(), row.result);
    }
}

TEST(Dialog, Nests) {
    COwnerWnd owner;
    CScriptDialog outer;
    CScriptDialog inner;
    bool outerSawInnersMessage = false;
    outer.filter = [&](const MSG& message) {
        outerSawInnersMessage |= inner.m_hWnd && message.hwnd == inner.m_hWnd;
        return false;
    };
    outer.step = [&](CScriptDialog& self) {
        inner.step = [&](CScriptDialog& top) {
            EXPECT_EQ(::GetWindow(top, GW_OWNER), self.m_hWnd);
            EXPECT_FALSE(self.IsWindowEnabled());
            top.PostMessage(WM_KEYDOWN, VK_RETURN);
        };
        EXPECT_EQ(inner.DoModal(), IDOK);
        EXPECT_EQ(::GetActiveWindow(), self.m_hWnd);
        EXPECT_TRUE(self.IsWindowEnabled());
        EXPECT_FALSE(owner.IsWindowEnabled()) << "the outer dialog's owner";
        self.EndDialog(8);
    };
    EXPECT_EQ(outer.DoModal(), 8);
    EXPECT_FALSE(outerSawInnersMessage);
}

TEST(Dialog, PassesTheEndOfTheApplicationOn) {
    COwnerWnd owner;
    CScriptDialog outer;
    CScriptDialog inner;
    INT_PTR innerResult = 0;
    outer.step = [&](CScriptDialog&) { innerResult = inner.DoModal(); };
    inner.step = [](CScriptDialog&) { ::PostQuitMessage(17); };
    EXPECT_EQ(outer.DoModal(), -1);
    EXPECT_EQ(innerResult, -1);
    MSG message{};
    EXPECT_TRUE(::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 17U);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ListBox, MeasuresAndDrawsItsOwnRows) {
    class COwnRows : public CListBox {
        void MeasureItem(LPMEASUREITEMSTRUCT item) override { item->itemHeight = 23; }
        void DrawItem(LPDRAWITEMSTRUCT item) override { Note("row", item->itemID); }
    };
    COwnerWnd owner;
    COwnRows list;
    ASSERT_TRUE(
        list.Create(WS_CHILD | WS_VISIBLE | LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS, CRect(0, 0, 80, 46), &owner, 3));
    for (const wchar_t* text : {L"a", L"b", L"B"}) list.AddString(text);
    EXPECT_EQ(list.GetItemHeight(1), 23);
    TakeTrace();
    list.RedrawWindow();
    EXPECT_EQ(TakeTrace(), (Trace{"row 0", "row 1"}));
    BOOL outside = TRUE;
    EXPECT_EQ(list.ItemFromPoint(CPoint(5, 30), outside), 1U);
    EXPECT_FALSE(outside);
    list.ItemFromPoint(CPoint(5, -3), outside);
    EXPECT_TRUE(outside);
}

TEST(String, CutsFindsAndJoins) {
    CString text = L"img\\btn\\x.png";
    const struct {
        CString got;
        const wchar_t* wanted;
    } rows[] = {
        {text.Left(3), L"img"},
        {text.Left(99), text},
        {text.Left(-1), L""},
        {text.Mid(4, 3), L"btn"},
        {text.Mid(8), L"x.png"},
        {text.Mid(99), L""},
        {text + L'!', L"img\\btn\\x.png!"},
        {L'>' + CString(L"a"), L">a"},
    };
    for (const auto& row : rows) EXPECT_STREQ(row.got.GetString(), row.wanted);
    EXPECT_EQ(text.ReverseFind(L'\\'), 7);
    EXPECT_EQ(text.ReverseFind(L'/'), -1);
    EXPECT_EQ(text.Find(L"btn"), 4);
    EXPECT_EQ(text.Find(L'\\', 4), 7);
    EXPECT_EQ(text.Find(L"img", 99), -1);
    text.Format(L"%s: %d%%", text.Left(3).GetString(), -5);
    EXPECT_EQ(text, L"img: -5%");
    EXPECT_NE(text, L"img: -5");
    EXPECT_TRUE(CString(nullptr).IsEmpty());
}

}  // namespace
