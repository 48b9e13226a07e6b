#include "skin/skin_slider.h"

#include <cmath>
#include <cwchar>

#include "skin/drawing.h"
#include "skin/numbers.h"

namespace {

constexpr int kTrackLeft = 3;
constexpr int kTrackTop = 8;
constexpr int kTrackBottom = 12;
constexpr int kThumbTop = 4;
constexpr int kThumbBottom = 16;
constexpr int kThumbWidth = 6;
constexpr COLORREF kThumbEdgeColor = MakeColor(200, 200, 200);
constexpr double kSamePosition = 1e-5;

int TrackRight(int width) { return (std::max)(width - kTrackLeft, kTrackLeft); }

}  // namespace

BEGIN_MESSAGE_MAP(CSkinSlider, CWnd)
    ON_WM_SIZE()
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_CAPTURECHANGED()
    ON_MESSAGE(WM_GETOBJECT, OnAskForObject)
END_MESSAGE_MAP()

BOOL CSkinSlider::Create(DWORD style, const CRect& rect, CWnd* parent, UINT id) {
    return CWnd::Create(nullptr, L"", style, rect, parent, id);
}

void CSkinSlider::SetMaximum(double maximum) { m_maximum = maximum < m_minimum ? m_minimum + 1.0 : maximum; }

void CSkinSlider::SetMinimum(double minimum) {
    if (m_position < minimum) m_position = minimum;
    m_minimum = minimum;
}

void CSkinSlider::SetPosition(double position) {
    if (std::abs(m_position - position) < kSamePosition) return;
    m_position = position > m_maximum ? m_maximum : position < m_minimum ? m_minimum : position;
    if (IsWindowVisible()) Paint(CBorrowedDC(m_hWnd));
}

void CSkinSlider::Enable(bool enable) {
    if (enable == (IsWindowEnabled() != FALSE)) return;
    EnableWindow(enable);
    if (IsWindowVisible()) Paint(CBorrowedDC(m_hWnd));
    Changed(EVENT_OBJECT_STATECHANGE);
}

int CSkinSlider::ShownNumber() const { return TruncateToInt(m_position); }

bool CSkinSlider::TakesFocus() const {
    return IsWindowEnabled() && (GetStyle() & WS_VISIBLE) != 0 && !Bounds().IsRectEmpty();
}

void CSkinSlider::HandleKey(UINT key) {
    const double shown = ShownNumber();
    const double page = (std::max)(std::floor((m_maximum - m_minimum) / 10.0 + 0.5), 1.0);
    switch (key) {
        case VK_LEFT:
        case VK_DOWN:
            return ProposeNumber(shown - 1.0);
        case VK_RIGHT:
        case VK_UP:
            return ProposeNumber(shown + 1.0);
        case VK_NEXT:
            return ProposeNumber(shown - page);
        case VK_PRIOR:
            return ProposeNumber(shown + page);
        case VK_HOME:
            return ProposeNumber(m_minimum - Offset());
        case VK_END:
            return ProposeNumber(m_maximum - Offset());
        default:
            return;
    }
}

void CSkinSlider::ProposeNumber(double number) {
    const double inRange = (std::max)((std::min)(number, m_maximum - Offset()), m_minimum - Offset());
    if (inRange != ShownNumber()) Propose(SliderCode::Dragged, inRange + Offset());
}

ControlFacts CSkinSlider::Facts() const {
    ControlFacts facts;
    facts.role = ROLE_SYSTEM_SLIDER;
    facts.value.Format(L"%d", ShownNumber());
    if (!IsWindowEnabled()) facts.state |= STATE_SYSTEM_UNAVAILABLE;
    if (Bounds().IsRectEmpty()) facts.state |= STATE_SYSTEM_INVISIBLE;
    return facts;
}

bool CSkinSlider::SetValueText(LPCWSTR text) {
    wchar_t* end = nullptr;
    const long number = std::wcstol(text, &end, 10);
    if (end == text || !IsWindowEnabled()) return false;
    ProposeNumber(number);
    return true;
}

LRESULT CSkinSlider::OnAskForObject(WPARAM wParam, LPARAM lParam) {
    const LRESULT object = AskedForObject(wParam, lParam);
    return object ? object : Default();
}

CRect CSkinSlider::Bounds() const { return BoundsOf(m_hWnd); }

void CSkinSlider::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    // Provisional, on purpose by another formula than the painting's, which replaces it.
    const double scaled = IsFixed() ? 0.0 : (TrackRight(cx) - kTrackLeft) * m_position / (m_maximum - m_minimum);
    const int middle = TruncateToInt(TruncateToInt(scaled) + m_minimum);
    m_thumb.SetRect(middle - 3, 8, middle + 8, 19);
}

void CSkinSlider::OnPaint() {
    CPaintDC dc(this);
    Paint(dc);
}

void CSkinSlider::Paint(HDC target) {
    CRect client;
    GetClientRect(client);
    const CBufferedPaint buffer(target, client);
    const HDC dc = buffer.Dc();

    if (m_background) {
        buffer.CopyFrom(m_background, Bounds().TopLeft());
    } else {
        FillRectangle(dc, client, GroundColor(kBackgroundColor));
    }

    const bool enabled = IsWindowEnabled() != FALSE;
    m_track.SetRect(kTrackLeft, kTrackTop, TrackRight(client.Width()), kTrackBottom);
    const double length = m_track.right - kTrackLeft;
    const int filled = IsFixed() ? 0 : TruncateToInt((m_position - m_minimum) * length / (m_maximum - m_minimum));
    const POINT outline[] = {
        {m_track.left - 1, m_track.top - 1},
        {m_track.right, m_track.top - 1},
        {m_track.right, m_track.bottom},
        {m_track.left - 1, m_track.bottom},
        {m_track.left - 1, m_track.top - 1}};
    FillRectangle(dc, m_track, GroundColor(kTextColor));
    DrawLines(dc, outline, 5, Lighten(kAccentColor, 50));

    const CRect fill(kTrackLeft, kTrackTop, filled + kTrackLeft, kTrackBottom);
    if (enabled && !IsHighContrast()) {
        FillVerticalGradient(dc, fill, kAccentColor, kBackgroundColor);
    } else {
        FillRectangle(dc, fill, InkColor(enabled ? kAccentColor : DisabledColor()));
    }

    m_thumb.SetRect(filled, kThumbTop, filled + kThumbWidth, kThumbBottom);
    FillRectangle(dc, m_thumb, InkColor(kThumbEdgeColor));
    CRect inside = m_thumb;
    inside.DeflateRect(1, 1);
    FillRectangle(dc, inside, enabled ? GroundColor(kAccentColor) : DisabledColor());
}

CSkinSlider::State CSkinSlider::StateAt(CPoint point) const {
    return m_thumb.PtInRect(point) ? State::OverThumb : State::Idle;
}

void CSkinSlider::Propose(SliderCode code, double value) {
    SliderChangeInfo info{this, code, value, 1};
    ::SendMessageW(::GetParent(m_hWnd), WM_SKIN_SLIDER, reinterpret_cast<WPARAM>(&info), 0);
}

void CSkinSlider::OnLButtonDown(UINT /*flags*/, CPoint point) {
    if (m_thumb.PtInRect(point)) {
        m_state = State::Dragging;
        m_dragOffset = m_thumb.right - point.x;
        SetCapture();
        return;
    }
    CRect client;
    GetClientRect(client);
    const CRect hitBand(m_track.left, 1, m_track.right, client.bottom - 1);
    if (!hitBand.PtInRect(point)) return;
    Propose(SliderCode::TrackClicked,
            static_cast<double>(point.x - kTrackLeft) / m_track.Width() * (m_maximum - m_minimum) + m_minimum);
}

void CSkinSlider::OnMouseMove(UINT /*flags*/, CPoint point) {
    if (m_state != State::Dragging) {
        m_state = StateAt(point);
        return;
    }
    CRect client;
    GetClientRect(client);
    const int right = (std::max)((std::min)(m_dragOffset + static_cast<int>(point.x), client.Width()), kThumbWidth);
    Propose(SliderCode::Dragged,
            (right - kThumbWidth * 0.5 - kTrackLeft) / (client.Width() - 2 * kTrackLeft) * (m_maximum - m_minimum) +
                m_minimum);
}

void CSkinSlider::OnLButtonUp(UINT /*flags*/, CPoint point) {
    m_state = StateAt(point);
    if (::GetCapture() == m_hWnd) ::ReleaseCapture();
}

void CSkinSlider::OnCaptureChanged(CWnd* other) {
    // Something else took the mouse in the middle of a drag: the release will not come here.
    if (m_state == State::Dragging) m_state = State::Idle;
    CWnd::OnCaptureChanged(other);
}
