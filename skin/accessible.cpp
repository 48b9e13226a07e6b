#include "skin/accessible.h"

#include <vector>

#include "skin/skin_dialog.h"
#include "skin/system_library.h"

namespace {

bool IsLabel(const CSkinControl& control) {
    const ControlFacts facts = control.Facts();
    // A check box may stand where the label of what it switches would.
    const bool speaks = facts.role == ROLE_SYSTEM_STATICTEXT || facts.role == ROLE_SYSTEM_CHECKBUTTON;
    return speaks && !facts.name.IsEmpty();
}

/// How far a label stands from a control to its right or below it, in pixels; negative where it stands elsewhere.
LONG DistanceOfLabel(const CRect& label, const CRect& control) {
    const LONG middle = label.CenterPoint().y;
    if (middle >= control.top && middle < control.bottom && label.left < control.left) {
        return (std::max)(control.left - label.right, 0L);
    }
    const bool above = label.bottom <= control.top + 5 && label.left <= control.right && control.left <= label.right;
    return above ? (std::max)(control.top - label.bottom, 0L) : -1;
}

/// The label that was added just before a control and stands by it, or else the nearest.
CString LabelOf(const std::vector<CSkinDialog::Entry>& entries, std::size_t index) {
    constexpr LONG kFarthest = 200;
    const CRect place = entries[index].control->Bounds();
    const auto distance = [&](std::size_t label) {
        return IsLabel(*entries[label].control) ? DistanceOfLabel(entries[label].control->Bounds(), place) : -1;
    };
    std::size_t nearest = index;
    if (index > 0 && distance(index - 1) >= 0) {
        nearest = index - 1;
    } else {
        LONG least = kFarthest;
        for (std::size_t label = 0; label < entries.size(); ++label) {
            const LONG found = distance(label);
            if (found < 0 || found >= least) continue;
            least = found;
            nearest = label;
        }
    }
    return nearest != index ? entries[nearest].control->Facts().name : CString();
}

CString NameOf(const std::vector<CSkinDialog::Entry>& entries, std::size_t index) {
    CString name = entries[index].control->Facts().name;
    if (name.IsEmpty()) name = LabelOf(entries, index);
    if (name.IsEmpty() && entries[index].help) name = entries[index].help;
    return name;
}

HRESULT GiveText(const CString& text, BSTR* result) {
    if (text.IsEmpty()) return S_FALSE;
    *result = text.AllocSysString();
    return *result ? S_OK : E_OUTOFMEMORY;
}

HRESULT GiveNumber(LONG number, VARIANT* result) {
    result->vt = VT_I4;
    result->lVal = number;
    return S_OK;
}

}  // namespace

/// Shared by the dialog and its objects; the last of them deletes it.
struct CAccessibility::Link {
    ULONG AddRef() { return static_cast<ULONG>(::InterlockedIncrement(&references)); }
    ULONG Release() {
        const LONG left = ::InterlockedDecrement(&references);
        if (left == 0) delete this;
        return static_cast<ULONG>(left);
    }

    LONG references = 0;
    CSkinDialog* dialog;  ///< Null once the dialog is gone.
    DWORD thread = ::GetCurrentThreadId();
    std::vector<CElement*> elements;
};

/// The dialog (child 0), whose children are known by their numbers, or one control.
class CAccessibility::CElement final : public IAccessible {
public:
    CElement(Link* link, LONG child) : m_link(link), m_child(child) { m_link->elements.push_back(this); }
    CElement(const CElement&) = delete;
    CElement& operator=(const CElement&) = delete;

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        if (!object) return E_POINTER;
        const bool known = iid == IID_IUnknown || iid == IID_IDispatch || iid == __uuidof(IAccessible);
        *object = known ? this : nullptr;
        if (known) AddRef();
        return known ? S_OK : E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return static_cast<ULONG>(::InterlockedIncrement(&m_references)); }
    STDMETHODIMP_(ULONG) Release() override {
        const LONG left = ::InterlockedDecrement(&m_references);
        if (left == 0) delete this;
        return static_cast<ULONG>(left);
    }

    // Clients call the interface itself.
    STDMETHODIMP GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        return E_NOTIMPL;
    }

    STDMETHODIMP get_accParent(IDispatch** parent) override {
        if (!parent) return E_POINTER;
        *parent = nullptr;
        return Answer([&](CSkinDialog& dialog) -> HRESULT {
            if (m_child != CHILDID_SELF) {
                *parent = new CElement(m_link.Get(), CHILDID_SELF);
                return S_OK;
            }
            const auto fromWindow =
                AccessibilityLibrary().Find<decltype(&::AccessibleObjectFromWindow)>("AccessibleObjectFromWindow");
            return fromWindow ? fromWindow(dialog.GetSafeHwnd(), static_cast<DWORD>(OBJID_WINDOW), IID_IDispatch,
                                           reinterpret_cast<void**>(parent))
                              : S_FALSE;
        });
    }
    STDMETHODIMP get_accChildCount(long* count) override {
        if (!count) return E_POINTER;
        *count = 0;
        return Answer([&](CSkinDialog& dialog) {
            if (m_child == CHILDID_SELF) *count = static_cast<long>(dialog.Controls().size());
            return S_OK;
        });
    }
    STDMETHODIMP get_accChild(VARIANT child, IDispatch** object) override {
        if (!object) return E_POINTER;
        *object = nullptr;
        // Controls have no objects of their own: they are asked for by their numbers.
        return About(
            child, [](CSkinDialog&, std::size_t) { return S_FALSE; }, [](CSkinDialog&) { return E_INVALIDARG; });
    }
    STDMETHODIMP get_accName(VARIANT child, BSTR* name) override {
        return Text(
            child, name, [](CSkinDialog& dialog, std::size_t index) { return NameOf(dialog.Controls(), index); },
            [](CSkinDialog& dialog) {
                CString title;
                dialog.GetWindowText(title);
                return title;
            });
    }
    STDMETHODIMP get_accValue(VARIANT child, BSTR* value) override {
        return Text(child, value, [](CSkinDialog& dialog, std::size_t index) { return FactsOf(dialog, index).value; });
    }
    STDMETHODIMP get_accDescription(VARIANT child, BSTR* description) override { return Text(child, description); }
    STDMETHODIMP get_accHelp(VARIANT child, BSTR* help) override {
        return Text(
            child, help, [](CSkinDialog& dialog, std::size_t index) { return CString(dialog.Controls()[index].help); });
    }
    STDMETHODIMP get_accHelpTopic(BSTR*, VARIANT, long*) override { return DISP_E_MEMBERNOTFOUND; }
    STDMETHODIMP get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) override {
        return Text(child, shortcut, [](CSkinDialog& dialog, std::size_t index) {
            const wchar_t letter = dialog.FocusRing().ShortcutOf(*dialog.Controls()[index].control);
            return letter ? CString(L"Alt+") + letter : CString();
        });
    }
    STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) override {
        return Text(child, action,
                    [](CSkinDialog& dialog, std::size_t index) { return CString(FactsOf(dialog, index).action); });
    }
    STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) override {
        return Number(
            child, role, [](CSkinDialog& dialog, std::size_t index) { return FactsOf(dialog, index).role; },
            [](CSkinDialog&) { return static_cast<LONG>(ROLE_SYSTEM_DIALOG); });
    }
    STDMETHODIMP get_accState(VARIANT child, VARIANT* state) override {
        return Number(
            child, state,
            [](CSkinDialog& dialog, std::size_t index) {
                const CSkinControl& control = *dialog.Controls()[index].control;
                LONG bits = control.Facts().state;
                if (control.TakesFocus()) bits |= STATE_SYSTEM_FOCUSABLE;
                if (IsFocused(dialog, control)) bits |= STATE_SYSTEM_FOCUSED;
                return bits;
            },
            [](CSkinDialog&) { return static_cast<LONG>(STATE_SYSTEM_FOCUSABLE); });
    }
    STDMETHODIMP get_accFocus(VARIANT* child) override {
        if (!child) return E_POINTER;
        child->vt = VT_EMPTY;
        return Answer([&](CSkinDialog& dialog) -> HRESULT {
            const auto& entries = dialog.Controls();
            for (std::size_t index = 0; index < entries.size(); ++index) {
                if (!IsFocused(dialog, *entries[index].control)) continue;
                const LONG focused = static_cast<LONG>(index) + 1;
                if (m_child == CHILDID_SELF) return GiveNumber(focused, child);
                return m_child == focused ? GiveNumber(CHILDID_SELF, child) : S_FALSE;
            }
            return S_FALSE;
        });
    }
    STDMETHODIMP get_accSelection(VARIANT*) override { return DISP_E_MEMBERNOTFOUND; }
    STDMETHODIMP accSelect(long flags, VARIANT child) override {
        return About(child, [&](CSkinDialog& dialog, std::size_t index) {
            CSkinControl& control = *dialog.Controls()[index].control;
            if (!(flags & SELFLAG_TAKEFOCUS) || !control.TakesFocus()) return E_INVALIDARG;
            dialog.FocusRing().MoveTo(control);
            return S_OK;
        });
    }
    STDMETHODIMP accLocation(long* left, long* top, long* width, long* height, VARIANT child) override {
        if (!left || !top || !width || !height) return E_POINTER;
        const auto give = [&](CRect place, HWND window) {
            ::MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&place), 2);
            *left = place.left;
            *top = place.top;
            *width = place.Width();
            *height = place.Height();
            return S_OK;
        };
        return About(
            child,
            [&](CSkinDialog& dialog, std::size_t index) {
                return give(dialog.Controls()[index].control->Bounds(), dialog.GetSafeHwnd());
            },
            [&](CSkinDialog& dialog) {
                CRect client;
                dialog.GetClientRect(client);
                return give(client, dialog.GetSafeHwnd());
            });
    }
    STDMETHODIMP accNavigate(long, VARIANT, VARIANT*) override { return DISP_E_MEMBERNOTFOUND; }
    STDMETHODIMP accHitTest(long x, long y, VARIANT* child) override {
        if (!child) return E_POINTER;
        child->vt = VT_EMPTY;
        return Answer([&](CSkinDialog& dialog) -> HRESULT {
            CPoint point(x, y);
            dialog.ScreenToClient(&point);
            CRect client;
            dialog.GetClientRect(client);
            if (!client.PtInRect(point)) return S_FALSE;
            const auto& entries = dialog.Controls();
            for (std::size_t index = 0; index < entries.size(); ++index) {
                const LONG hit = static_cast<LONG>(index) + 1;
                if (!entries[index].control->Bounds().PtInRect(point)) continue;
                if (m_child == CHILDID_SELF) return GiveNumber(hit, child);
                if (m_child == hit) return GiveNumber(CHILDID_SELF, child);
            }
            return m_child == CHILDID_SELF ? GiveNumber(CHILDID_SELF, child) : S_FALSE;
        });
    }
    STDMETHODIMP accDoDefaultAction(VARIANT child) override {
        return About(child, [](CSkinDialog& dialog, std::size_t index) {
            CSkinControl& control = *dialog.Controls()[index].control;
            if (!control.Facts().action || !control.TakesFocus()) return DISP_E_MEMBERNOTFOUND;
            control.Activate();
            return S_OK;
        });
    }
    STDMETHODIMP put_accName(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }
    STDMETHODIMP put_accValue(VARIANT child, BSTR value) override {
        return About(child, [value](CSkinDialog& dialog, std::size_t index) {
            const bool set = dialog.Controls()[index].control->SetValueText(value ? value : L"");
            return set ? S_OK : DISP_E_MEMBERNOTFOUND;
        });
    }

private:
    ~CElement() { std::erase(m_link->elements, this); }

    static ControlFacts FactsOf(CSkinDialog& dialog, std::size_t index) {
        return dialog.Controls()[index].control->Facts();
    }
    static bool IsFocused(CSkinDialog& dialog, const CSkinControl& control) {
        return &control == dialog.FocusRing().Focused() && ::GetForegroundWindow() == dialog.GetSafeHwnd();
    }

    /// Runs a question on the dialog while it is there. All belongs to its thread; other apartments come by a proxy.
    template <typename Question>
    HRESULT Answer(Question question) {
        if (::GetCurrentThreadId() != m_link->thread) return RPC_E_WRONG_THREAD;
        if (!m_link->dialog) return CO_E_OBJNOTCONNECTED;
        try {
            return question(*m_link->dialog);
        } catch (...) {
            return E_OUTOFMEMORY;
        }
    }
    static HRESULT NotOfDialogs(CSkinDialog&) { return DISP_E_MEMBERNOTFOUND; }
    template <typename OfControl, typename OfDialog = HRESULT (*)(CSkinDialog&)>
    HRESULT About(const VARIANT& child, OfControl ofControl, OfDialog ofDialog = &NotOfDialogs) {
        return Answer([&](CSkinDialog& dialog) -> HRESULT {
            if (child.vt != VT_I4) return E_INVALIDARG;
            if (child.lVal != CHILDID_SELF && m_child != CHILDID_SELF) return E_INVALIDARG;
            const LONG number = child.lVal != CHILDID_SELF ? child.lVal : m_child;
            if (number == CHILDID_SELF) return ofDialog(dialog);
            if (number < 0 || number > static_cast<LONG>(dialog.Controls().size())) return E_INVALIDARG;
            return ofControl(dialog, static_cast<std::size_t>(number - 1));
        });
    }
    static CString NoText(CSkinDialog&, std::size_t) { return {}; }
    static CString NoTextOfDialogs(CSkinDialog&) { return {}; }
    template <typename OfControl = CString (*)(CSkinDialog&, std::size_t),
              typename OfDialog = CString (*)(CSkinDialog&)>
    HRESULT Text(const VARIANT& child, BSTR* text, OfControl ofControl = &NoText,
                 OfDialog ofDialog = &NoTextOfDialogs) {
        if (!text) return E_POINTER;
        *text = nullptr;
        return About(
            child, [&](CSkinDialog& dialog, std::size_t index) { return GiveText(ofControl(dialog, index), text); },
            [&](CSkinDialog& dialog) { return GiveText(ofDialog(dialog), text); });
    }
    template <typename OfControl, typename OfDialog>
    HRESULT Number(const VARIANT& child, VARIANT* number, OfControl ofControl, OfDialog ofDialog) {
        if (!number) return E_POINTER;
        number->vt = VT_EMPTY;
        return About(
            child, [&](CSkinDialog& dialog, std::size_t index) { return GiveNumber(ofControl(dialog, index), number); },
            [&](CSkinDialog& dialog) { return GiveNumber(ofDialog(dialog), number); });
    }

    const Microsoft::WRL::ComPtr<Link> m_link;
    const LONG m_child;
    LONG m_references = 1;
};

CAccessibility::CAccessibility(CSkinDialog& dialog) : m_link(new Link) { m_link->dialog = &dialog; }

CAccessibility::~CAccessibility() { Disconnect(); }

LRESULT CAccessibility::ObjectFor(LONG child, WPARAM wParam) {
    const auto lresultFromObject = AccessibilityLibrary().Find<decltype(&::LresultFromObject)>("LresultFromObject");
    if (!lresultFromObject || !m_link->dialog) return 0;
    auto* element = new CElement(m_link.Get(), child);
    const LRESULT result = lresultFromObject(__uuidof(IAccessible), wParam, element);
    element->Release();
    return result;
}

void CAccessibility::Disconnect() {
    m_link->dialog = nullptr;
    // Without memory, which closing must not need. An object may go with its last proxy.
    while (!m_link->elements.empty()) {
        CElement* const element = m_link->elements.back();
        m_link->elements.pop_back();
        ::CoDisconnectObject(element, 0);
    }
}
