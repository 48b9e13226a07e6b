#include "dialogs/base/effect_settings_dlg.h"

#include <algorithm>

#include "dialogs/base/help_panel.h"
#include "entry/session.h"
#include "host/preview.h"

namespace {

constexpr UINT kDefaultButtonId = 3;
constexpr UINT kEnableId = 10;
// The ids of an effect's own controls; labels share the one after them.
constexpr UINT kFirstOwnId = 11;
constexpr UINT kLastOwnId = 98;
constexpr UINT_PTR kPreviewTimer = 1;
constexpr UINT kPreviewDelayMs = 500;

}  // namespace

BEGIN_MESSAGE_MAP(CEffectSettingsDlg, CSkinDialog)
    ON_WM_DESTROY()
    ON_WM_TIMER()
    ON_COMMAND(kDefaultButtonId, ResetToDefaults)
    ON_COMMAND(kEnableId, OnEnableCommand)
    ON_COMMAND_RANGE(kFirstOwnId, kLastOwnId, OnOwnCommand)
    ON_CONTROL_RANGE(EN_CHANGE, kFirstOwnId, kLastOwnId, OnEditChange)
    ON_MESSAGE(WM_SKIN_SLIDER, OnSliderChange)
    ON_MESSAGE(WM_SKIN_COMBO_SELECT, OnComboSelect)
END_MESSAGE_MAP()

CEffectSettingsDlg::CEffectSettingsDlg(const EffectInfo& info, const CLSID& filterClass, const IID& propertyInterface,
                                       const EffectDialogOptions& options)
    : m_info(info),
      m_propertyInterface(propertyInterface),
      m_options(options),
      m_sizes{{g_VideoWidth, g_VideoHeight}, {g_FrameWidth, g_FrameHeight}},
      m_moniker(MonikerOf(filterClass, info.chain)),
      m_host(g_Host) {}

bool CEffectSettingsDlg::CreateStandardControls() {
    const LPCWSTR blackPanel = AfxRegisterWndClass(
        0, ::LoadCursorW(nullptr, IDC_ARROW), static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH)), nullptr);
    return CSkinDialog::CreateStandardControls() && AddItem(m_defaultButton, L"Set as default", kDefaultButtonId) &&
           m_preview.Create(
               blackPanel, L"Preview", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), this, m_options.previewId);
}

bool CEffectSettingsDlg::CreateEnable(std::int32_t checked) {
    m_enable.SetChecked(checked != 0);
    return AddItem(m_enable, L"Enable", kEnableId, m_info.description, At(10, 295, 70));
}

void CEffectSettingsDlg::LayoutControls() {
    CSkinDialog::LayoutControls();
    const CRect client = ClientRect();
    m_defaultButton.SetRect(CRect(10, client.bottom - 29, 140, client.bottom - 10));
    m_preview.MoveWindow(1, 35, client.right - 3, 240);
    m_helpRect.SetRect(20, m_info.helpTop, client.right - 20, client.bottom - 40);
}

BOOL CEffectSettingsDlg::OnOpening() {
    CString size;
    if (m_options.titleHasSize) size.Format(L"(%dx%d)", m_sizes.video.width, m_sizes.video.height);
    PlaceWindow(m_info.width, m_info.height, m_info.title + size);
    if (m_options.firstSync == FirstSync::BeforeAttach) SyncControls();
    const bool attached = AttachFilter();
    if (!GetSafeHwnd()) return FALSE;  // The host closed the dialog meanwhile.
    if (!attached) {
        AfxMessageBox(m_info.chain == ChainKind::Video ? L"AddVideoProcessor Fialed" : L"AddAudioProcessor Fialed");
        return FALSE;
    }
    if (m_options.firstSync == FirstSync::AfterAttach) SyncControls();
    ApplyToFilter();
    if (!GetSafeHwnd()) return FALSE;
    SetTimer(kPreviewTimer, kPreviewDelayMs, nullptr);
    m_loading = false;
    return TRUE;
}

bool CEffectSettingsDlg::AttachFilter() {
    OpenPreview(&m_host, m_info.chain, m_preview.GetSafeHwnd());
    const auto attach = m_info.chain == ChainKind::Video ? AttachVideoProcessor : AttachAudioProcessor;
    if (!attach(&m_host, m_moniker.Get())) return false;
    if (const ComPtr<IUnknown> processor = AttachedProcessor(&m_host, m_info.chain)) {
        void* filter = nullptr;
        if (SUCCEEDED(processor->QueryInterface(m_propertyInterface, &filter))) {
            *m_filter.ReleaseAndGetAddressOf() = static_cast<IUnknown*>(filter);
        }
    }
    if (!m_host) m_filter.Reset();
    return true;
}

void CEffectSettingsDlg::OnDestroy() {
    // Dropped first: a host that handles messages inside the closing calls hears of nothing else, the timer included.
    IMediaHost* host = std::exchange(m_host, nullptr);
    CSkinDialog::OnDestroy();
    ClosePreview(&host, m_info.chain);
    const auto detach = m_info.chain == ChainKind::Video ? DetachVideoProcessor : DetachAudioProcessor;
    detach(&host, m_moniker.Get());
    m_filter.Reset();
}

void CEffectSettingsDlg::OnTimer(UINT_PTR timer) {
    if (timer == kPreviewTimer) {
        KillTimer(kPreviewTimer);
        if (m_host) m_host->RefreshPreview();
    }
    CSkinDialog::OnTimer(timer);
}

void CEffectSettingsDlg::SyncAndApply() {
    SyncControls();
    ApplyToFilter();
}

LRESULT CEffectSettingsDlg::OnSliderChange(WPARAM wParam, LPARAM) {
    const auto* info = reinterpret_cast<const SliderChangeInfo*>(wParam);
    // Anybody may send the message: none but a slider of this dialog is listened to.
    const auto isSender = [info](const Entry& entry) { return entry.control == info->sender; };
    if (!info || std::none_of(Controls().begin(), Controls().end(), isSender)) return 0;
    if (info->code == SliderCode::Dragged || info->code == SliderCode::TrackClicked) {
        info->sender->SetPosition(info->proposed);
        info->sender->ShowPosition();
    }
    ApplyToFilter();
    return 0;
}

bool CEffectSettingsDlg::Hears(UINT notification, UINT id) const {
    return std::find(m_heard.begin(), m_heard.end(), std::pair(notification, id)) != m_heard.end();
}

void CEffectSettingsDlg::OnOwnCommand(UINT id) {
    if (Hears(BN_CLICKED, id)) OnClicked(id);
}

void CEffectSettingsDlg::OnEditChange(UINT id) {
    if (!m_loading && Hears(EN_CHANGE, id)) ApplyToFilter();
}

void CEffectSettingsDlg::OnOK() {
    if (IsAnswered() || !Validate()) return;
    SaveSettings();
    CSkinDialog::OnOK();
}

void CEffectSettingsDlg::PaintControls(const CRect& area) {
    CSkinDialog::PaintControls(area);
    CRect touched;
    if (touched.IntersectRect(m_helpRect, area)) PaintHelpPanel(CBorrowedDC(m_hWnd), m_helpRect, m_helpText);
}

BOOL CEffectSettingsDlg::PreTranslateMessage(MSG* message) {
    // The system also tells of moves when a window comes up under a pointer that rests.
    if (message->message == WM_MOUSEMOVE && !(m_pointer == message->pt)) {
        m_pointer = message->pt;
        CPoint point(message->pt);
        ScreenToClient(&point);
        try {
            ShowHelpAt(point);
        } catch (...) {
            // Without memory there is no help; the message passes on all the same.
        }
    }
    return CSkinDialog::PreTranslateMessage(message);
}

void CEffectSettingsDlg::ShowHelpAt(CPoint point) {
    for (const Entry& entry : Controls()) {
        if (entry.help && entry.control->Bounds().PtInRect(point)) return ShowHelp(entry.help);
    }
    ShowHelp(L"");
}

void CEffectSettingsDlg::OnFocusMoved(CSkinControl& control) {
    CSkinDialog::OnFocusMoved(control);
    for (const Entry& entry : Controls()) {
        if (entry.control == &control) return ShowHelp(entry.help ? entry.help : L"");
    }
}

void CEffectSettingsDlg::ShowHelp(LPCWSTR help) {
    if (m_helpText.CompareNoCase(help) == 0) return;
    m_helpText = help;
    PaintHelpPanel(CBorrowedDC(m_hWnd), m_helpRect, m_helpText);
}
