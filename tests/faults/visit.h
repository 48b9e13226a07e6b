// One visit to a dialog, from opening to closing, worked from its own thread by a timer: the same steps come at the same calls every time.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <windows.h>

#include "support/recording_host.h"

using Record = std::vector<std::int32_t>;

/// A record at the end of a page, with nothing behind it.
class PageEndRecord {
public:
    explicit PageEndRecord(const Record& values);
    ~PageEndRecord();
    PageEndRecord(const PageEndRecord&) = delete;
    PageEndRecord& operator=(const PageEndRecord&) = delete;

    void* Address() const { return m_values; }
    Record Values() const { return {m_values, m_values + m_count}; }

private:
    unsigned char* m_pages;
    std::int32_t* m_values;
    std::size_t m_count;
};

/// GCC's 32-bit unwinder knows only the module that throws: what leaves that ends the process before anyone is asked.
#ifdef __i386__
constexpr bool kExceptionsCrossModules = false;
#else
constexpr bool kExceptionsCrossModules = true;
#endif

/// What the user does, one action per tick; the dialog is closed after the last.
using Action = std::function<void(HWND dialog)>;

void Click(HWND dialog, int x, int y);
void ClickEnable(HWND dialog);
void ClickSetAsDefault(HWND dialog);
/// As the dialog's timer does after a while.
void StartPreview(HWND dialog);
void PressOk(HWND dialog);
void PressCancel(HWND dialog);
/// The preview's start, a change, "Set as default" and OK.
std::vector<Action> UsualActions();

/// How often a host was told that the preview ends, as each dialog does once.
std::ptrdiff_t ClosingsIn(const Lines& calls);

/// What the preview's start has for a number.
constexpr int kPreviewCall = -1;

struct Outcome {
    std::int32_t result = -99;
    Record record{};
    Lines calls;  ///< Without the preview's start, which comes by a timer.
    ULONG openReferences = 0;
    std::size_t activeCount = 0;
    int windowsLeft = 0;  ///< Less than none where the owner went, too.
    int ticks = 0;        ///< Actions and answers to message boxes.
};

struct Visit {
    EffectId effect;
    Record record{};
    std::vector<Action> actions = UsualActions();
    SIZE video{720, 480};
    SIZE frame{360, 240};
    decltype(&ShowSettingsDialog) show = ShowSettingsDialog;
    bool hasHost = true;
    /// What the user does when a message box of the system is up.
    Action answerBox = PressOk;
    HostOptions options{};
    /// Called by host, lists and filter before they do anything, with the number of the call from 0 or kPreviewCall.
    std::function<Reply(RecordingHost& host, int call, const std::string& line)> onCall{};

    Outcome Run() const;
};

/// Of all that is to be seen of a dialog; equal pictures have equal sums.
unsigned PictureOf(HWND dialog);
/// The dialog of a host's preview panel; it stays known when the host is told to forget the panel.
HWND DialogOf(const RecordingHost& host);
HWND OwnerWindow();

/// One row of the tables for each effect, with its records.
struct EffectRecords {
    EffectId effect;
    std::vector<Record> records;
};
const std::vector<EffectRecords>& AllEffects();
