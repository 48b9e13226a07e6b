#include "skin/accessible.h"

#include <algorithm>
#include <utility>
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

std::size_t IndexOf(const std::vector<CSkinDialog::Entry>& entries, const CSkinControl& control) {
    const auto isSought = [&](const CSkinDialog::Entry& entry) { return entry.control == &control; };
    return static_cast<std::size_t>(std::find_if(entries.begin(), entries.end(), isSought) - entries.begin());
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

CString HelpOf(const CSkinDialog& dialog, const CSkinControl& control) {
    return CString(dialog.Controls()[IndexOf(dialog.Controls(), control)].help);
}

/// A heading that is but a line says nothing.
bool IsForReaders(const CSkinControl& control) {
    const ControlFacts facts = control.Facts();
    return facts.role != ROLE_SYSTEM_STATICTEXT || !facts.name.IsEmpty();
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

/// What an object is asked for about itself.
VARIANT Self() {
    VARIANT self{};
    self.vt = VT_I4;
    self.lVal = CHILDID_SELF;
    return self;
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

    /// From 1; 0 for a control that is not there for readers.
    LONG NumberOf(const CSkinControl& control) const {
        const auto child = std::find(children.begin(), children.end(), &control);
        return child != children.end() ? static_cast<LONG>(child - children.begin()) + 1 : 0;
    }

    LONG references = 0;
    CSkinDialog* dialog;  ///< Null once the dialog is gone.
    DWORD thread = ::GetCurrentThreadId();
    std::vector<CSkinControl*> children;  ///< In the order of the screen, from child 1 on.
    std::vector<CElement*> elements;
};

/// The dialog, whose children are known by their numbers, or a control that has a window of its own.
class CAccessibility::CElement final : public IAccessible {
public:
    /// @param control  Null for the dialog.
    CElement(Link* link, CSkinControl* control) : m_link(link), m_control(control) { m_link->elements.push_back(this); }
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
        return Ask(Self(), parent, [&](CSkinDialog& dialog, CSkinControl* control) {
            const auto fromWindow =
                AccessibilityLibrary().Find<decltype(&::AccessibleObjectFromWindow)>("AccessibleObjectFromWindow");
            return fromWindow
                       ? fromWindow(control ? control->OwnWindow() : dialog.GetSafeHwnd(),
                                    static_cast<DWORD>(OBJID_WINDOW), IID_IDispatch, reinterpret_cast<void**>(parent))
                       : S_FALSE;
        });
    }
    STDMETHODIMP get_accChildCount(long* count) override {
        return Ask(Self(), count, [&](CSkinDialog&, CSkinControl* control) {
            if (!control) *count = static_cast<long>(m_link->children.size());
            return S_OK;
        });
    }
    STDMETHODIMP get_accChild(VARIANT child, IDispatch** object) override {
        return Ask(child, object, [&](CSkinDialog&, CSkinControl* control) -> HRESULT {
            if (child.lVal == CHILDID_SELF) return E_INVALIDARG;
            if (!control->OwnWindow()) return S_FALSE;  // Known by its number alone.
            *object = new CElement(m_link.Get(), control);
            return S_OK;
        });
    }
    STDMETHODIMP get_accName(VARIANT child, BSTR* name) override {
        return Ask(child, name, [&](CSkinDialog& dialog, CSkinControl* control) {
            CString text;
            if (control) {
                text = dialog.ControlName(*control);
            } else {
                dialog.GetWindowText(text);
            }
            return GiveText(text, name);
        });
    }
    STDMETHODIMP get_accValue(VARIANT child, BSTR* value) override {
        return Ask(child, value, [&](CSkinDialog&, CSkinControl* control) {
            return GiveText(control ? control->Facts().value : CString(), value);
        });
    }
    STDMETHODIMP get_accDescription(VARIANT child, BSTR* description) override {
        return Ask(child, description, [](CSkinDialog&, CSkinControl*) { return S_FALSE; });
    }
    STDMETHODIMP get_accHelp(VARIANT child, BSTR* help) override {
        return Ask(child, help, [&](CSkinDialog& dialog, CSkinControl* control) {
            return GiveText(control ? HelpOf(dialog, *control) : CString(), help);
        });
    }
    STDMETHODIMP get_accHelpTopic(BSTR*, VARIANT, long*) override { return DISP_E_MEMBERNOTFOUND; }
    STDMETHODIMP get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) override {
        return Ask(child, shortcut, [&](CSkinDialog& dialog, CSkinControl* control) {
            const wchar_t letter = control ? dialog.FocusRing().ShortcutOf(*control) : L'\0';
            return GiveText(letter ? CString(L"Alt+") + letter : CString(), shortcut);
        });
    }
    STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) override {
        return Ask(child, action, [&](CSkinDialog&, CSkinControl* control) {
            return GiveText(CString(control ? control->Facts().action : nullptr), action);
        });
    }
    STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) override {
        return Ask(child, role, [&](CSkinDialog&, CSkinControl* control) {
            return GiveNumber(control ? control->Facts().role : ROLE_SYSTEM_DIALOG, role);
        });
    }
    STDMETHODIMP get_accState(VARIANT child, VARIANT* state) override {
        return Ask(child, state, [&](CSkinDialog& dialog, CSkinControl* control) {
            if (!control) return GiveNumber(STATE_SYSTEM_FOCUSABLE, state);
            LONG bits = control->Facts().state;
            if (control->TakesFocus()) bits |= STATE_SYSTEM_FOCUSABLE;
            if (control == FocusedIn(dialog)) bits |= STATE_SYSTEM_FOCUSED;
            if (control == dialog.DefaultButton()) bits |= STATE_SYSTEM_DEFAULT;
            return GiveNumber(bits, state);
        });
    }
    STDMETHODIMP get_accFocus(VARIANT* child) override {
        return Ask(Self(), child, [&](CSkinDialog& dialog, CSkinControl* control) {
            CSkinControl* const focused = FocusedIn(dialog);
            if (!focused || (control && control != focused)) return S_FALSE;
            return control ? GiveNumber(CHILDID_SELF, child) : GiveChild(*focused, child);
        });
    }
    STDMETHODIMP get_accSelection(VARIANT*) override { return DISP_E_MEMBERNOTFOUND; }
    STDMETHODIMP accSelect(long flags, VARIANT child) override {
        return Ask(child, [&](CSkinDialog& dialog, CSkinControl* control) -> HRESULT {
            if (!control) return DISP_E_MEMBERNOTFOUND;
            if (!(flags & SELFLAG_TAKEFOCUS) || !control->TakesFocus()) return E_INVALIDARG;
            dialog.FocusRing().MoveTo(*control);
            return S_OK;
        });
    }
    STDMETHODIMP accLocation(long* left, long* top, long* width, long* height, VARIANT child) override {
        if (!left || !top || !width || !height) return E_POINTER;
        return Ask(child, [&](CSkinDialog& dialog, CSkinControl* control) {
            CRect place;
            if (control) {
                place = control->Bounds();
            } else {
                dialog.GetClientRect(place);
            }
            ::MapWindowPoints(dialog.GetSafeHwnd(), nullptr, reinterpret_cast<POINT*>(&place), 2);
            *left = place.left;
            *top = place.top;
            *width = place.Width();
            *height = place.Height();
            return S_OK;
        });
    }
    STDMETHODIMP accNavigate(long, VARIANT, VARIANT*) override { return DISP_E_MEMBERNOTFOUND; }
    STDMETHODIMP accHitTest(long x, long y, VARIANT* child) override {
        return Ask(Self(), child, [&](CSkinDialog& dialog, CSkinControl* control) {
            CPoint point(x, y);
            dialog.ScreenToClient(&point);
            CRect place;
            dialog.GetClientRect(place);
            if (control) place = control->Bounds();
            if (!place.PtInRect(point)) return S_FALSE;
            const auto& children = m_link->children;
            const auto hit = std::find_if(children.begin(), children.end(), [&](const CSkinControl* candidate) {
                return candidate->Bounds().PtInRect(point) && !(candidate->Facts().state & STATE_SYSTEM_INVISIBLE);
            });
            return control || hit == children.end() ? GiveNumber(CHILDID_SELF, child) : GiveChild(**hit, child);
        });
    }
    STDMETHODIMP accDoDefaultAction(VARIANT child) override {
        return Ask(child, [](CSkinDialog&, CSkinControl* control) -> HRESULT {
            if (!control) return DISP_E_MEMBERNOTFOUND;
            const ControlFacts facts = control->Facts();
            // The close button can be pressed, though it is no stop of Tab.
            const bool canAct = facts.action && !(facts.state & (STATE_SYSTEM_UNAVAILABLE | STATE_SYSTEM_INVISIBLE));
            if (!canAct) return DISP_E_MEMBERNOTFOUND;
            control->Activate();
            return S_OK;
        });
    }
    STDMETHODIMP put_accName(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }
    STDMETHODIMP put_accValue(VARIANT child, BSTR value) override {
        return Ask(child, [&](CSkinDialog&, CSkinControl* control) {
            return control && control->SetValueText(value ? value : L"") ? S_OK : DISP_E_MEMBERNOTFOUND;
        });
    }

private:
    ~CElement() { std::erase(m_link->elements, this); }

    static CSkinControl* FocusedIn(CSkinDialog& dialog) {
        return ::GetForegroundWindow() == dialog.GetSafeHwnd() ? dialog.FocusRing().Focused() : nullptr;
    }
    /// A control that has a window of its own by its object, others by their numbers.
    HRESULT GiveChild(CSkinControl& control, VARIANT* child) {
        if (!control.OwnWindow()) return GiveNumber(m_link->NumberOf(control), child);
        child->pdispVal = new CElement(m_link.Get(), &control);
        child->vt = VT_DISPATCH;
        return S_OK;
    }

    /// Asks the dialog, while it is there, about one of its controls or about itself (null). All belongs to its thread;
    /// other apartments come by a proxy.
    template <typename Question>
    HRESULT Ask(const VARIANT& child, Question question) {
        if (::GetCurrentThreadId() != m_link->thread) return RPC_E_WRONG_THREAD;
        if (!m_link->dialog) return CO_E_OBJNOTCONNECTED;
        if (child.vt != VT_I4) return E_INVALIDARG;
        CSkinControl* control = m_control;
        if (child.lVal != CHILDID_SELF) {
            const auto& children = m_link->children;
            if (control || child.lVal < 0 || child.lVal > static_cast<LONG>(children.size())) return E_INVALIDARG;
            control = children[static_cast<std::size_t>(child.lVal - 1)];
        }
        try {
            return question(*m_link->dialog, control);
        } catch (...) {
            return E_OUTOFMEMORY;
        }
    }
    /// The same, for a result that is empty where there is none.
    template <typename Result, typename Question>
    HRESULT Ask(const VARIANT& child, Result* result, Question question) {
        if (!result) return E_POINTER;
        *result = {};
        return Ask(child, question);
    }

    const Microsoft::WRL::ComPtr<Link> m_link;
    CSkinControl* const m_control;
    LONG m_references = 1;
};

CAccessibility::CAccessibility(CSkinDialog& dialog) : m_link(new Link) { m_link->dialog = &dialog; }

CAccessibility::~CAccessibility() { Disconnect(); }

void CAccessibility::NumberControls() {
    if (!m_link->children.empty()) return;
    std::vector<CSkinControl*> children;
    for (const CSkinDialog::Entry& entry : m_link->dialog->Controls()) {
        if (IsForReaders(*entry.control)) children.push_back(entry.control);
    }
    SortAsOnScreen(children);
    m_link->children = std::move(children);
}

CString CAccessibility::NameOf(const CSkinControl& control) const {
    const auto& entries = m_link->dialog->Controls();
    const std::size_t index = IndexOf(entries, control);
    CString name = control.Facts().name;
    if (name.IsEmpty()) name = LabelOf(entries, index);
    if (name.IsEmpty() && entries[index].help) name = entries[index].help;
    return name;
}

void CAccessibility::Notify(const CSkinControl& control, DWORD event) const {
    const LONG number = m_link->NumberOf(control);
    if (number) ::NotifyWinEvent(event, m_link->dialog->GetSafeHwnd(), OBJID_CLIENT, number);
}

LRESULT CAccessibility::ObjectFor(CSkinControl* control, WPARAM wParam) {
    const auto lresultFromObject = AccessibilityLibrary().Find<decltype(&::LresultFromObject)>("LresultFromObject");
    if (!lresultFromObject || !m_link->dialog) return 0;
    auto* element = new CElement(m_link.Get(), control);
    const LRESULT result = lresultFromObject(__uuidof(IAccessible), wParam, element);
    element->Release();
    return (std::max)(result, LRESULT{0});  // Below 0 it is an error.
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
