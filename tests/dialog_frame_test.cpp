// What all effect dialogs share to look at and to hold: window, title bar, buttons, slider, help panel.
#include <gtest/gtest.h>

#include "support/dialog_driver.h"
#include "support/recording_host.h"

namespace {

constexpr int kSlider = 13;

void WithGammaDialog(GammaCorrectionSettings record, const std::function<void(DialogDriver&)>& script) {
    RecordingHost host(EffectId::GammaCorrection);
    IMediaHost* pointer = &host;
    RunDialog([&] { ShowSettingsDialog(&pointer, EffectId::GammaCorrection, 640, 480, 640, 480, &record); }, script);
}

TEST(DialogFrame, IsALayeredBorderlessWindowWithRoundCornersInTheMiddleOfItsOwner) {
    WithGammaDialog({1, 100}, [](DialogDriver& dialog) {
        const HWND window = dialog.Window();
        BYTE alpha = 0;
        DWORD flags = 0;
        EXPECT_TRUE(::GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_LAYERED);
        EXPECT_TRUE(::GetLayeredWindowAttributes(window, nullptr, &alpha, &flags));
        EXPECT_EQ(alpha, 255);
        EXPECT_EQ(flags, static_cast<DWORD>(LWA_ALPHA));
        EXPECT_TRUE(::GetWindowLongW(window, GWL_STYLE) & WS_CLIPCHILDREN);
        EXPECT_FALSE(::GetWindowLongW(window, GWL_STYLE) & WS_CAPTION);

        const HRGN region = ::CreateRectRgn(0, 0, 0, 0);
        RECT box{};
        ::GetWindowRgn(window, region);
        ::GetRgnBox(region, &box);
        EXPECT_EQ(box.right, 499);
        EXPECT_EQ(box.bottom, 459);
        for (const POINT corner : {POINT{0, 0}, POINT{498, 0}, POINT{0, 458}, POINT{498, 458}}) {
            EXPECT_FALSE(::PtInRegion(region, corner.x, corner.y)) << corner.x << ", " << corner.y;
        }
        EXPECT_TRUE(::PtInRegion(region, 3, 0));
        ::DeleteObject(region);

        RECT owner;
        RECT own;
        EXPECT_FALSE(::IsWindowEnabled(::GetWindow(window, GW_OWNER)));
        ::GetWindowRect(::GetWindow(window, GW_OWNER), &owner);
        ::GetWindowRect(window, &own);
        EXPECT_EQ(own.left, (std::max)(0L, (owner.left + owner.right) / 2 - 250));
        EXPECT_EQ(own.top, (std::max)(0L, (owner.top + owner.bottom) / 2 - 230));
    });
}

TEST(DialogFrame, IsDrawnPixelByPixel) {
    constexpr COLORREF kBack = RGB(20, 20, 20);
    constexpr COLORREF kFrame = RGB(102, 102, 102);
    constexpr COLORREF kLight = RGB(132, 132, 132);
    const struct {
        const char* what;
        int x;
        int y;
        COLORREF color;
    } rows[] = {
        {"corner, on its diagonal", 1, 1, kFrame},
        {"top edge begins", 2, 0, kFrame},
        {"top edge ends", 496, 0, kFrame},
        {"top right diagonal", 497, 1, kFrame},
        {"right edge", 498, 200, kFrame},
        {"bottom right diagonal", 497, 457, kFrame},
        {"bottom edge", 250, 458, kFrame},
        {"left edge", 0, 420, kFrame},
        {"title separator", 250, 34, kFrame},
        {"title band, first row", 300, 1, RGB(35, 35, 35)},
        {"title band, lower part's first row", 300, 16, kBack},
        {"title band, last row", 300, 33, kBack},
        {"client", 300, 380, kBack},
        // The face of "Set as default" at (10, 431), 130 x 19.
        {"button, corner left out", 10, 431, kBack},
        {"button, frame's top", 11, 431, kLight},
        {"button, frame's left", 10, 440, kLight},
        {"button, frame's bottom", 60, 449, kLight},
        {"button, frame's right", 139, 440, kLight},
        {"button, face's first row", 14, 432, kFrame},
        {"button, face's middle", 14, 440, kBack},
        // "Enable" at (10, 295), 70 x 20: its mark at (11, 298).
        {"check box, outline", 11, 298, RGB(12, 102, 182)},
        {"check box, outline's far corner", 23, 310, RGB(12, 102, 182)},
        {"check box, tick's first point", 15, 304, RGB(12, 182, 102)},
        {"check box, tick's lowest point", 17, 308, RGB(12, 182, 102)},
        {"check box, tick's right end", 21, 303, RGB(12, 182, 102)},
        {"check box, inside beside the tick", 13, 300, kBack},
    };
    WithGammaDialog({1, 100}, [&](DialogDriver& dialog) {
        for (const auto& row : rows) {
            EXPECT_EQ(dialog.Pixel(row.x, row.y), row.color) << row.what;
        }
        const COLORREF lastOfBand = dialog.Pixel(300, 15);
        EXPECT_GE(GetRValue(lastOfBand), 30) << "the band darkens to (30, 30, 30)";
        EXPECT_LE(GetRValue(lastOfBand), 31);
        EXPECT_TRUE(dialog.HasText({10, 8, 200, 28}, kBack)) << "title";
        EXPECT_TRUE(dialog.HasText({30, 296, 79, 314}, kBack)) << "caption of the check box";
        EXPECT_TRUE(dialog.HasText({20, 326, 169, 344}, kBack)) << "label";
        EXPECT_TRUE(dialog.HasText({460, 351, 509, 369}, kBack)) << "number";
    });
}

TEST(DialogFrame, TheSliderIsDrawnFromItsPosition) {
    constexpr COLORREF kOutline = RGB(152, 152, 152);
    constexpr COLORREF kThumbEdge = RGB(200, 200, 200);
    const COLORREF gray = ::GetSysColor(COLOR_GRAYTEXT);
    const struct {
        GammaCorrectionSettings record;
        int thumbLeft;
    } rows[] = {{{1, 1}, 0}, {{1, 250}, 211}, {{1, 500}, 424}, {{0, 250}, 211}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.record.value);
        WithGammaDialog(row.record, [&](DialogDriver& dialog) {
            const HWND slider = dialog.Child(kSlider);
            const bool enabled = row.record.enabled != 0;
            const int left = row.thumbLeft;
            const struct {
                const char* what;
                int x;
                int y;
                COLORREF color;
            } pixels[] = {
                {"outline, top", 100, 7, kOutline},
                {"outline, bottom", 300, 12, kOutline},
                {"above the track", 100, 2, RGB(20, 20, 20)},
                {"thumb, top left", left, 4, kThumbEdge},
                {"thumb, bottom right", left + 5, 15, kThumbEdge},
                {"thumb, above", left, 3, RGB(20, 20, 20)},
                {"thumb, inside", left + 2, 10, enabled ? RGB(102, 102, 102) : gray},
            };
            for (const auto& pixel : pixels)
                EXPECT_EQ(dialog.Pixel(pixel.x, pixel.y, slider), pixel.color) << pixel.what;
            if (left > 100) {
                EXPECT_EQ(dialog.Pixel(50, 8, slider), enabled ? RGB(102, 102, 102) : gray) << "filled part";
            }
            if (left < 300) {
                EXPECT_EQ(dialog.Pixel(400, 9, slider), RGB(255, 255, 255)) << "empty part";
            }
        });
    }
}

TEST(DialogFrame, AButtonShowsHoverPressAndDisabledParts) {
    WithGammaDialog({0, 250}, [](DialogDriver& dialog) {
        EXPECT_EQ(dialog.Pixel(11, 298), RGB(102, 102, 102)) << "an unchecked mark";
        EXPECT_EQ(dialog.Pixel(15, 304), RGB(20, 20, 20));
        dialog.Press({60, 440});
        EXPECT_EQ(dialog.Pixel(14, 432), RGB(20, 20, 20)) << "the pressed face runs from dark ...";
        EXPECT_GT(GetRValue(dialog.Pixel(14, 447)), 90) << "... to light";
        dialog.Move({200, 400}, nullptr, MK_LBUTTON);
        dialog.Release({200, 400});
        EXPECT_GT(GetRValue(dialog.Pixel(14, 432)), 80) << "and back";
    });
}

TEST(DialogFrame, TheTitleBarDragsTheWindowButNotBesideItsRightEnd) {
    WithGammaDialog({1, 100}, [](DialogDriver& dialog) {
        // The press goes on to the system as one on a caption, which takes the pointer's way until the release.
        RECT before;
        ::GetWindowRect(dialog.Window(), &before);
        dialog.PointAt({100, 15});
        POINT start{before.left + 100, before.top + 15};
        const auto send = [](DWORD flags) {
            INPUT input{};
            input.type = INPUT_MOUSE;
            input.mi.dwFlags = flags;
            ::SendInput(1, &input, sizeof(input));
        };
        const auto waitForDragging = [&](bool dragging) {
            return DialogDriver::WaitFor([&] { return ((dialog.Thread().flags & GUI_INMOVESIZE) != 0) == dragging; });
        };
        send(MOUSEEVENTF_LEFTDOWN);
        ASSERT_TRUE(waitForDragging(true));
        ::SetCursorPos(start.x + 30, start.y + 20);
        RECT after{};
        DialogDriver::WaitFor([&] {
            ::GetWindowRect(dialog.Window(), &after);
            return after.left == before.left + 30;
        });
        send(MOUSEEVENTF_LEFTUP);
        EXPECT_EQ(after.left, before.left + 30);
        EXPECT_EQ(after.top, before.top + 20);
        // A release that is still on its way would end the next press.
        ASSERT_TRUE(waitForDragging(false));
        dialog.PointAt({-50, -50});

        dialog.Click({471, 5});
        EXPECT_TRUE(dialog.IsOpen()) << "between the title bar and the close button";
        dialog.Click({485, 15});
        EXPECT_FALSE(dialog.IsOpen()) << "the close button";
    });
}

TEST(HelpPanel, ShowsTheTextOfTheControlUnderThePointer) {
    constexpr RECT kPanel{20, 385, 480, 420};
    constexpr COLORREF kBack = RGB(20, 20, 20);
    WithGammaDialog({1, 100}, [&](DialogDriver& dialog) {
        const auto shows = [&](POINT at, bool text) {
            EXPECT_TRUE(dialog.PointUntil(at, [&] { return dialog.HasText(kPanel, kBack) == text; }))
                << at.x << ", " << at.y;
            return dialog.PixelSum(kPanel);
        };
        const unsigned long empty = shows({250, 375}, false);
        const unsigned long enable = shows({40, 305}, true);
        const unsigned long slider = shows({200, 360}, true);
        EXPECT_NE(enable, slider);
        EXPECT_EQ(shows({200, 335}, false), empty) << "a label has no help";
        EXPECT_EQ(shows({40, 305}, true), enable);
        EXPECT_EQ(shows({450, 440}, false), empty) << "nor has a button";

        // The panel is painted when the text changes, not on every move.
        shows({40, 305}, true);
        const HDC dc = ::GetDC(dialog.Window());
        ::SetPixel(dc, 470, 415, RGB(1, 2, 3));
        ::ReleaseDC(dialog.Window(), dc);
        dialog.PointAt({44, 306});
        dialog.PointAt({48, 306});
        EXPECT_EQ(dialog.Pixel(470, 415), RGB(1, 2, 3));
        shows({250, 375}, false);
    });
}

}  // namespace
