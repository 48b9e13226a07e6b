#include "demo_host/paint.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "demo_host/device_contexts.h"

namespace {

constexpr std::size_t kColumns = 250;  // Hundredths of a second.
constexpr COLORREF kBackground = RGB(18, 21, 26);
constexpr COLORREF kMiddleLine = RGB(58, 64, 74);
constexpr COLORREF kBefore = RGB(120, 132, 150);
constexpr COLORREF kAfter = RGB(82, 170, 255);
constexpr COLORREF kText = RGB(190, 198, 210);

void Fill(HDC dc, int left, int top, int right, int bottom, COLORREF color) {
    const RECT rect{left, top, right, bottom};
    if (left >= right || top >= bottom) return;
    ::SetDCBrushColor(dc, color);
    ::FillRect(dc, &rect, static_cast<HBRUSH>(::GetStockObject(DC_BRUSH)));
}

}  // namespace

void DrawFrame(HDC dc, const RECT& area, const Frame& frame) {
    const int areaWidth = area.right - area.left;
    const int areaHeight = area.bottom - area.top;
    if (areaWidth <= 0 || areaHeight <= 0 || frame.pixels.empty()) return;
    const double scale =
        (std::min)(static_cast<double>(areaWidth) / frame.width, static_cast<double>(areaHeight) / frame.height);
    const int width = (std::max)(static_cast<int>(std::lround(frame.width * scale)), 1);
    const int height = (std::max)(static_cast<int>(std::lround(frame.height * scale)), 1);
    const int x = area.left + (areaWidth - width) / 2;
    const int y = area.top + (areaHeight - height) / 2;

    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = frame.width;
    info.bmiHeader.biHeight = -frame.height;  // Top row first.
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    ::SetStretchBltMode(dc, HALFTONE);
    ::SetBrushOrgEx(dc, 0, 0, nullptr);
    ::StretchDIBits(
        dc, x, y, width, height, 0, 0, frame.width, frame.height, frame.pixels.data(), &info, DIB_RGB_COLORS, SRCCOPY);
    constexpr COLORREF kBar = RGB(0, 0, 0);
    Fill(dc, area.left, area.top, x, area.bottom, kBar);
    Fill(dc, x + width, area.top, area.right, area.bottom, kBar);
    Fill(dc, x, area.top, x + width, y, kBar);
    Fill(dc, x, y + height, x + width, area.bottom, kBar);
}

CWaveForm::Peaks CWaveForm::PeaksOf(std::span<const std::int16_t> samples) {
    Peaks peaks;
    for (std::size_t index = 0; index + 1 < samples.size(); index += 2) {
        peaks.left = (std::max)(peaks.left, std::abs(int{samples[index]}));
        peaks.right = (std::max)(peaks.right, std::abs(int{samples[index + 1]}));
    }
    return peaks;
}

void CWaveForm::Add(std::span<const std::int16_t> before, std::span<const std::int16_t> after, int samplesPerSecond) {
    const std::size_t step = 2 * (std::max)(static_cast<std::size_t>(samplesPerSecond) / 100, std::size_t{1});
    for (std::size_t at = 0; at < before.size(); at += step) {
        const std::size_t count = (std::min)(step, before.size() - at);
        m_columns.push_back({PeaksOf(before.subspan(at, count)), PeaksOf(after.subspan(at, count))});
    }
    while (m_columns.size() > kColumns) m_columns.pop_front();
}

void CWaveForm::Draw(HDC target, const RECT& area) const {
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    const CBitmapDC dc(target, width, height);
    Fill(dc, 0, 0, width, height, kBackground);
    ::SetBkMode(dc, TRANSPARENT);
    ::SetTextColor(dc, kText);
    ::SelectObject(dc, ::GetStockObject(DEFAULT_GUI_FONT));
    for (const bool isAfter : {false, true}) {
        const int half = height / 4;
        const int middle = isAfter ? height - half : half;
        Fill(dc, 0, middle, width, middle + 1, kMiddleLine);
        for (std::size_t index = 0; index < m_columns.size(); ++index) {
            const Peaks& peaks = isAfter ? m_columns[index].after : m_columns[index].before;
            const auto place = static_cast<int>(kColumns - m_columns.size() + index);
            const auto across = [width](int column) { return column * width / static_cast<int>(kColumns); };
            const auto reach = [half](int peak) { return peak * (half - 6) / 32768; };
            Fill(dc, across(place), middle - reach(peaks.left), (std::max)(across(place + 1) - 1, across(place) + 1),
                 middle + 1 + reach(peaks.right), isAfter ? kAfter : kBefore);
        }
        ::TextOutW(dc, 8, middle - half + 6, isAfter ? L"after" : L"before", isAfter ? 5 : 6);
    }
    ::BitBlt(target, area.left, area.top, width, height, dc, 0, 0, SRCCOPY);
}
