// Gamma Correction from the host's call to its return, and with it the life cycle of all effect dialogs.
#include <functional>
#include <thread>

#include <gtest/gtest.h>

#include "support/dialog_session.h"

namespace {

constexpr POINT kEnable{40, 305};
constexpr POINT kDefault{60, 440};
constexpr POINT kCancel{380, 440};
constexpr POINT kOk{450, 440};
constexpr POINT kClose{485, 15};
constexpr int kSlider = 13;

struct GammaSession : Session {
    explicit GammaSession(std::vector<std::int32_t> initial, HostOptions options = {})
        : Session(EffectId::GammaCorrection, std::move(initial), {640, 480}, {640, 480}, options) {}
};

std::string Push(int value, int enabled) {
    return "filter.SetGammaParams(" + std::to_string(value) + ", " + std::to_string(enabled) + ", 0, 0)";
}

TEST(GammaDialog, OpensPushesOnceAndClosesInOrder) {
    GammaSession session({1, 250});
    session.Run([&](DialogDriver& dialog) {
        EXPECT_EQ(session.Calls(), OpeningCalls() + Lines{Push(250, 1)});
        dialog.Click(kOk);
    });
    EXPECT_EQ(session.Calls(), ClosingCalls());
}

TEST(GammaDialog, EachWayOfClosingHasItsResult) {
    const struct {
        const char* way;
        std::function<void(DialogDriver&)> close;
        std::int32_t result;
    } rows[] = {
        {"OK", [](DialogDriver& dialog) { dialog.Click(kOk); }, 1},
        {"Enter", [](DialogDriver& dialog) { dialog.Key(VK_RETURN); }, 1},
        {"Cancel", [](DialogDriver& dialog) { dialog.Click(kCancel); }, 2},
        {"close button", [](DialogDriver& dialog) { dialog.Click(kClose); }, 2},
        {"Esc", [](DialogDriver& dialog) { dialog.Key(VK_ESCAPE); }, 2},
        {"WM_CLOSE", [](DialogDriver& dialog) { dialog.Close(); }, 2},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.way);
        GammaSession session({1, 100});
        session.Run([&](DialogDriver& dialog) {
            dialog.Click(kEnable);
            session.Calls();
            row.close(dialog);
        });
        EXPECT_EQ(session.result, row.result);
        EXPECT_EQ(session.record[0], row.result == 1 ? 0 : 1);
        EXPECT_EQ(session.Calls(), ClosingCalls());
    }
}

TEST(GammaDialog, PreviewStartsOnceHalfASecondAfterOpening) {
    GammaSession session({1, 100});
    Lines lines;
    // The host handles messages inside the first RefreshPreview, longer than the timer's period.
    session.host.Calls().onCall = [isFirst = true](const std::string& line) mutable {
        if (line != kPreviewStart || !std::exchange(isFirst, false)) return Reply::Normal;
        MSG message;
        for (const unsigned start = ::GetTickCount(); ::GetTickCount() - start < 700; ::Sleep(1)) {
            while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) ::DispatchMessageW(&message);
        }
        return Reply::Normal;
    };
    const unsigned opened = ::GetTickCount();
    session.Run([&](DialogDriver& dialog) {
        EXPECT_TRUE(DialogDriver::WaitFor([&] { return session.host.RefreshedAtMs() != 0; }));
        // Long enough for a timer that was not stopped to come again.
        const unsigned first = session.host.RefreshedAtMs();
        DialogDriver::WaitFor([&] { return ::GetTickCount() - first > 1200; });
        dialog.Settle();
        lines = session.host.Calls().Take();
    });
    EXPECT_GE(session.host.RefreshedAtMs() - opened, 490U);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), kPreviewStart), 1) << "RefreshPreview comes again by its timer";
    EXPECT_EQ(lines.back(), kPreviewStart);
}

TEST(GammaDialog, EveryMoveOfTheSliderIsOnePushAndAReleaseIsNone) {
    const struct {
        const char* name;
        int start;
        std::vector<POINT> points;  // Press, moves; the release is where the last one was.
        Lines pushes;
        std::int32_t saved;
    } rows[] = {
        {"track, middle", 100, {{215, 10}}, {Push(250, 1)}, 250},
        {"track, left end", 100, {{3, 10}}, {Push(1, 1)}, 1},
        {"track, right end", 100, {{426, 10}}, {Push(498, 1)}, 498},
        {"track's band, first row", 100, {{215, 1}}, {Push(250, 1)}, 250},
        {"track's band, last row", 100, {{215, 18}}, {Push(250, 1)}, 250},
        {"above the track's band", 100, {{215, 0}}, {}, 100},
        {"below the track's band", 100, {{215, 19}}, {}, 100},
        {"outside the track", 100, {{429, 10}}, {}, 100},
        {"drag", 100, {{87, 10}, {88, 10}, {215, 10}, {215, 90}}, {Push(101, 1), Push(250, 1), Push(250, 1)}, 250},
        {"drag past the right end", 100, {{87, 10}, {1000, 10}, {500, 10}}, {Push(500, 1), Push(500, 1)}, 500},
        {"drag past the left end", 100, {{87, 10}, {-50, 10}}, {Push(1, 1)}, 1},
        {"press on the thumb only", 100, {{87, 10}}, {}, 100},
        {"thumb at the left end", 1, {{3, 10}, {4, 10}}, {Push(2, 1)}, 2},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        GammaSession session({1, row.start});
        session.Run([&](DialogDriver& dialog) {
            const HWND slider = dialog.Child(kSlider);
            session.Calls();
            dialog.Press(row.points.front(), slider);
            for (std::size_t move = 1; move < row.points.size(); ++move) {
                dialog.Move(row.points[move], slider, MK_LBUTTON);
            }
            EXPECT_EQ(session.Calls(), row.pushes);
            dialog.Release(row.points.back(), slider);
            dialog.Move({300, 10}, slider);
            EXPECT_EQ(session.Calls(), Lines{}) << "neither a release nor a move after it";
            dialog.Click(kOk);
        });
        EXPECT_EQ(session.record[1], row.saved);
    }
}

TEST(GammaDialog, TheSwitchDisablesTheSliderAndPushes) {
    GammaSession session({1, 300});
    session.Run([&](DialogDriver& dialog) {
        const HWND slider = dialog.Child(kSlider);
        session.Calls();
        EXPECT_TRUE(::IsWindowEnabled(slider));
        dialog.Click(kEnable);
        EXPECT_EQ(session.Calls(), Lines{Push(300, 0)});
        EXPECT_FALSE(::IsWindowEnabled(slider));
        // A fast second press arrives as a double click.
        dialog.DoublePress(kEnable);
        dialog.Release(kEnable);
        EXPECT_EQ(session.Calls(), Lines{Push(300, 1)});
        EXPECT_TRUE(::IsWindowEnabled(slider));
    });
    GammaSession off({0, 300});
    off.Run([&](DialogDriver& dialog) { EXPECT_FALSE(::IsWindowEnabled(dialog.Child(kSlider))); });
}

TEST(GammaDialog, TheNumberFollowsTheSlider) {
    constexpr RECT kNumber{460, 350, 510, 370};
    const auto pictureOf = [&](int value) {
        unsigned long sum = 0;
        GammaSession session({1, value});
        session.Run([&](DialogDriver& dialog) { sum = dialog.PixelSum(kNumber); });
        return sum;
    };
    const unsigned long hundred = pictureOf(100);
    const unsigned long twoFifty = pictureOf(250);
    ASSERT_NE(hundred, twoFifty);
    EXPECT_NE(pictureOf(700), pictureOf(500)) << "the number of the record itself is shown";
    GammaSession session({1, 100});
    session.Run([&](DialogDriver& dialog) {
        dialog.Press({215, 10}, dialog.Child(kSlider));
        EXPECT_EQ(dialog.PixelSum(kNumber), twoFifty);
        dialog.Click(kDefault);
        EXPECT_EQ(dialog.PixelSum(kNumber), hundred);
    });
}

// --- when the link to the filter cannot be had ---

TEST(GammaDialog, AFailedAttachIsToldAndTheDialogStaysUsable) {
    const Lines untilLists = {"host.SetPreviewWindow(panel)", "host.SetPreviewMode(0)", "host.SetPreviewOption(0)",
                              "host.EnableVideoPreview(-1)", "host.GetVideoProcessors()"};
    const Lines closing = {"host.StopPreview()",       "host.ResetPreview()",    "host.SetPreviewRange(0, 0)",
                           "host.SetPreviewWindow(0)", "host.SetPreviewMode(1)", "host.EnableVideoPreview(0)",
                           "host.GetVideoProcessors()"};
    const Lines active = {"host.GetActiveVideoProcessors()"};
    const struct {
        const char* name;
        HostOptions options;
        Lines opening;
        Lines closing;
    } rows[] = {
        {"not in the catalogue",
         {.hasFilters = false},
         untilLists + active + Lines{"active.FindByMoniker", "all.FindByMoniker"},
         closing + active + Lines{"active.FindByMoniker"}},
        {"no catalogue", {.givesAllList = false}, untilLists, closing},
        {"no chain", {.givesActiveList = false}, untilLists + active, closing + active},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        GammaSession session({1, 100}, row.options);
        session.Run([&](DialogDriver& box) {
            wchar_t text[64] = {};
            ::GetWindowTextW(::GetDlgItem(box.Window(), 0xFFFF), text, 64);
            EXPECT_STREQ(text, L"AddVideoProcessor Fialed");
            EXPECT_EQ(session.Calls(), row.opening);
            box.Command(IDOK);
            DialogDriver dialog(DialogDriver::WaitForDialog(box.Window()));
            dialog.Settle();
            dialog.Press({215, 10}, dialog.Child(kSlider));
            dialog.Click(kDefault);
            dialog.Press({215, 10}, dialog.Child(kSlider));
            const unsigned start = ::GetTickCount();
            DialogDriver::WaitFor([&] { return ::GetTickCount() - start > 700; });
            EXPECT_EQ(session.host.Calls().Take(), Lines{}) << "no push, and no preview after 500 ms";
            dialog.Click(kOk);
        });
        EXPECT_EQ(session.Calls(), row.closing);
        EXPECT_EQ(session.result, 1);
        EXPECT_EQ(session.record[1], 250);
    }
}

TEST(GammaDialog, WorksWithoutAHost) {
    IMediaHost* none = nullptr;
    GammaCorrectionSettings record{1, 100};
    std::int32_t result = -99;
    RunDialog([&] { result = ShowSettingsDialog(&none, EffectId::GammaCorrection, 640, 480, 640, 480, &record); },
              [&](DialogDriver& box) {
                  box.Command(IDOK);
                  DialogDriver dialog(DialogDriver::WaitForDialog(box.Window()));
                  dialog.Settle();
                  dialog.Click(kEnable);
                  dialog.Click(kOk);
              });
    EXPECT_EQ(result, 1);
    EXPECT_EQ(record.enabled, 0);
}

/// Calls the library again while its dialog is open, in ways that are refused.
struct CallingHost : RecordingHost {
    using RecordingHost::RecordingHost;
    HRESULT STDMETHODCALLTYPE RefreshPreview() override {
        IMediaHost* none = nullptr;
        GammaCorrectionSettings record{1, 100};
        EXPECT_EQ(ShowSettingsDialog(&none, static_cast<EffectId>(31), 1, 1, 1, 1, &record), 0);
        EXPECT_EQ(ShowSettingsDialog(&none, EffectId::Color, 2, 2, 2, 2, nullptr), 0);
        return RecordingHost::RefreshPreview();
    }
};

TEST(GammaDialog, ARefusedCallMeanwhileChangesNothing) {
    CallingHost host(EffectId::Mosaic);
    IMediaHost* pointer = &host;
    std::int32_t record[] = {1, 1, 1, 10, 20, 301, 401};
    RunDialog([&] { ShowSettingsDialog(&pointer, EffectId::Mosaic, 720, 480, 360, 240, record); },
              [&](DialogDriver& dialog) {
                  EXPECT_TRUE(DialogDriver::WaitFor([&] { return host.RefreshedAtMs() != 0; }));
                  host.Calls().Take();
                  dialog.Click(kEnable);
                  EXPECT_EQ(host.Calls().Take().back(), "filter.SetAreaParams(5, 10, 150, 200, 1, 0, 0, 1, 1, 0)");
              });
    EXPECT_EQ(host.Calls().Take(), ClosingCalls());
    EXPECT_EQ(host.OpenReferences(), 0U);
}

LRESULT CALLBACK RefuseChildWindows(int code, WPARAM wParam, LPARAM lParam) {
    const auto* window = reinterpret_cast<const CBT_CREATEWNDW*>(lParam);
    if (code == HCBT_CREATEWND && (window->lpcs->style & WS_CHILD)) return 1;
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

TEST(GammaDialog, OneThatCannotBeCreatedTellsTheHostOfItsEnd) {
    const HHOOK hook = ::SetWindowsHookExW(WH_CBT, RefuseChildWindows, nullptr, ::GetCurrentThreadId());
    RecordingHost host(EffectId::GammaCorrection);
    IMediaHost* pointer = &host;
    GammaCorrectionSettings record{1, 100};
    EXPECT_EQ(ShowSettingsDialog(&pointer, EffectId::GammaCorrection, 640, 480, 640, 480, &record), -1);
    ::UnhookWindowsHookEx(hook);
    Lines closing = ClosingCalls();
    closing.pop_back();  // Nothing was in the chain.
    EXPECT_EQ(host.Calls().Take(), closing);
    EXPECT_EQ(host.OpenReferences(), 0U);
}

HWND g_destroyed = nullptr;

void CALLBACK DestroyByTimer(HWND, UINT, UINT_PTR, DWORD) { ::DestroyWindow(g_destroyed); }

LRESULT CALLBACK DestroyByMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_APP + 77) return ::DestroyWindow(g_destroyed);
    return ::DefWindowProcW(window, message, wParam, lParam);
}

TEST(GammaDialog, EndsWhenItsWindowIsDestroyedFromOutside) {
    for (const bool fromAnotherThread : {false, true}) {
        SCOPED_TRACE(fromAnotherThread ? "by a message that another thread sent" : "by its own thread");
        GammaSession session({1, 100});
        session.Run([&](DialogDriver& dialog) {
            g_destroyed = dialog.Window();
            const HWND owner = ::GetWindow(g_destroyed, GW_OWNER);
            session.Calls();
            if (fromAnotherThread) ::Sleep(600);  // Until the loop waits with nothing in its queue.
            if (fromAnotherThread) {
                const auto before =
                    ::SetWindowLongPtrW(owner, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&DestroyByMessage));
                ::SendMessageW(owner, WM_APP + 77, 0, 0);
                ::SetWindowLongPtrW(owner, GWLP_WNDPROC, before);
            } else {
                ::PostMessageW(owner, WM_TIMER, 0, reinterpret_cast<LPARAM>(&DestroyByTimer));
            }
            EXPECT_TRUE(DialogDriver::WaitFor([&] { return ::IsWindowEnabled(owner) != FALSE; }));
        });
        EXPECT_EQ(session.result, -1);
        EXPECT_EQ(session.Calls(), ClosingCalls());
    }
}

TEST(GammaDialog, IsOwnedByTheActiveWindowOfWhateverThreadCalls) {
    std::thread([] {
        const HWND window = ::CreateWindowExW(
            0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr, nullptr, nullptr, nullptr);
        ::SetActiveWindow(window);
        GammaSession session({1, 100});
        session.Run([&](DialogDriver& dialog) {
            EXPECT_EQ(::GetWindow(dialog.Window(), GW_OWNER), window);
            EXPECT_FALSE(::IsWindowEnabled(window));
            dialog.Key(VK_RETURN);
        });
        EXPECT_EQ(session.result, 1);
        ::DestroyWindow(window);
    }).join();
}

TEST(GammaDialog, AMissingProcessorOrInterfaceIsSilent) {
    for (const HostOptions options : {HostOptions{.givesProcessor = false}, HostOptions{.filterHasInterface = false}}) {
        GammaSession session({1, 100}, options);
        session.Run([&](DialogDriver& dialog) {
            EXPECT_EQ(session.Calls(), OpeningCalls());
            dialog.Click(kEnable);
            EXPECT_TRUE(DialogDriver::WaitFor([&] { return session.host.RefreshedAtMs() != 0; }));
        });
        EXPECT_EQ(session.Calls(), ClosingCalls());
    }
}

TEST(GammaDialog, AFilterThatIsActiveAlreadyIsNotAddedTwice) {
    GammaSession session({1, 100}, {.isActiveAlready = true});
    session.Run([&](DialogDriver&) {
        EXPECT_EQ(session.host.ActiveCount(), 1U);
        Lines expected = OpeningCalls() + Lines{Push(100, 1)};
        expected.insert(std::find(expected.begin(), expected.end(), "all.FindByMoniker"), "active.RemoveAt(0)");
        EXPECT_EQ(session.Calls(), expected);
    });
}

TEST(AudioDialog, UsesTheAudioChainInItsOwnOrder) {
    RecordingHost host(EffectId::AudioChorus);
    IMediaHost* pointer = &host;
    std::int32_t record[32] = {};
    RunDialog([&] { ShowSettingsDialog(&pointer, EffectId::AudioChorus, 640, 480, 640, 480, record); },
              [&](DialogDriver&) {
                  const Lines expected = {
                      "host.SetPreviewWindow(panel)",
                      "host.SetPreviewOption(0)",
                      "host.SetPreviewMode(0)",
                      "host.EnableVideoPreview(0)",
                      "host.GetAudioProcessors()",
                      "host.GetActiveAudioProcessors()",
                      "active.FindByMoniker",
                      "all.FindByMoniker",
                      "all.GetItem(0)",
                      "active.Add(filter, 0)",
                      "host.GetProcessorObject(256)",
                      "filter.SetChorusParams(0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0)"};
                  EXPECT_EQ(WithoutRefresh(host.Calls().Take()), expected);
              });
    const Lines expected = {
        "host.StopPreview()",         "host.ResetPreview()",
        "host.SetPreviewRange(0, 0)", "host.SetPreviewWindow(0)",
        "host.EnableVideoPreview(0)", "host.SetPreviewMode(1)",
        "host.GetAudioProcessors()",  "host.GetActiveAudioProcessors()",
        "active.FindByMoniker",       "active.RemoveAt(0)"};
    EXPECT_EQ(WithoutRefresh(host.Calls().Take()), expected);
}

}  // namespace
