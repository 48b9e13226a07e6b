// What a host implements: its player object and its lists of processors, as the settings dialogs
// call them. Compiles alone, as C++11 and later.
#ifndef EFFECT_SETTINGS_MEDIA_HOST_H
#define EFFECT_SETTINGS_MEDIA_HOST_H

#include <windows.h>

#include <oaidl.h>

// When which call comes
//
// The dialog opens (a video effect):
//   SetPreviewWindow(panel), SetPreviewMode(0), SetPreviewOption(0), EnableVideoPreview(-1);
//   then the effect's filter is attached: GetVideoProcessors, GetActiveVideoProcessors,
//   active.FindByMoniker (and active.RemoveAt if it was there), all.FindByMoniker, all.GetItem,
//   active.Add(item, 0); then GetProcessorObject(kVideoProcessorKind), whose result is asked for the
//   effect's property interface (effect_filters.h).
// Half a second later, once:
//   RefreshPreview.
// The dialog closes, whichever way:
//   StopPreview, ResetPreview, SetPreviewRange(0, 0), SetPreviewWindow(0), SetPreviewMode(1),
//   EnableVideoPreview(0); then the filter is detached: GetVideoProcessors, GetActiveVideoProcessors,
//   active.FindByMoniker and, if it is there, active.RemoveAt.
//
// The audio effect uses the audio lists and kAudioProcessorKind, and has some calls in another order: it opens with
//   SetPreviewWindow(panel), SetPreviewOption(0), SetPreviewMode(0), EnableVideoPreview(0), and closes with
//   StopPreview, ResetPreview, SetPreviewRange(0, 0), SetPreviewWindow(0), EnableVideoPreview(0), SetPreviewMode(1).
//
// When attaching fails (no list, the list of all processors does not hold the filter, or GetItem gives no item), a
// message box says so and the dialog stays open without a filter: Add, GetProcessorObject and RefreshPreview do not
// come, the calls of closing do.
//
// When the dialog's window comes up but one of its controls can't be created, ShowSettingsDialog returns -1 and the calls of
// closing come without those of opening. When the window itself can't be created, no call comes at all.
//
// Every call comes on the thread that called ShowSettingsDialog, from inside that call. Results are
// looked at only where an operation says so. Slots are places in the interface's function table,
// counted from 0; the reserved ones are never called by the library. A class that implements an
// interface overrides the named operations and may leave everything else as it stands here.

#ifdef __cpp_inline_variables
#define EFFECT_SETTINGS_CONSTANT inline constexpr
#else
#define EFFECT_SETTINGS_CONSTANT constexpr
#endif

#define EFFECT_SETTINGS_RESERVED_SLOT(slot) \
    virtual HRESULT STDMETHODCALLTYPE Reserved##slot() { return E_NOTIMPL; }

/// The common head of both interfaces: slots 3 to 6 are IDispatch's and are never called by the library.
struct IHostDispatch : IDispatch {
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        return E_NOTIMPL;
    }
};

/// A list of media processors (filters), found by their moniker: "@device:sw:{category}\{filter class id}",
/// 88 characters with the GUIDs in upper case.
struct IProcessorList : IHostDispatch {
    EFFECT_SETTINGS_RESERVED_SLOT(7)

    /// Slot 8. Gives one processor of the list.
    /// @param index  From 0, as FindByMoniker gave it.
    /// @param item   Receives a new reference, which the caller releases; null on failure. Only this is looked at: with
    ///               null the attach fails, as it does when the list does not hold the processor.
    virtual HRESULT STDMETHODCALLTYPE GetItem(LONG index, IUnknown** item) = 0;

    EFFECT_SETTINGS_RESERVED_SLOT(9)

    /// Slot 10. Looks a processor up. A failure counts as not held.
    /// @param moniker  The processor's moniker; the caller keeps and frees the string.
    /// @param index    Receives its index from 0, or -1 when the list does not hold it. The index is used
    ///                 in the next call and never kept.
    virtual HRESULT STDMETHODCALLTYPE FindByMoniker(BSTR moniker, LONG* index) = 0;

    EFFECT_SETTINGS_RESERVED_SLOT(11)

    /// Slot 12. Takes the processor at an index out of the list and drops the list's reference to it.
    virtual HRESULT STDMETHODCALLTYPE RemoveAt(LONG index) = 0;

    /// Slot 13. Appends a processor to the list. The list takes its own reference.
    /// @param item    What GetItem of the host's list of all processors gave, and nothing else. It comes without its
    ///                moniker: a host that needs it later (FindByMoniker on this list) keeps it in the item's object.
    /// @param option  Always 0.
    virtual HRESULT STDMETHODCALLTYPE Add(IUnknown* item, LONG option) = 0;
};

/// The chain selectors of IMediaHost::GetProcessorObject.
EFFECT_SETTINGS_CONSTANT LONG kVideoProcessorKind = 0x200;
EFFECT_SETTINGS_CONSTANT LONG kAudioProcessorKind = 0x100;

/// The host's player object, as a settings dialog sees it.
struct IMediaHost : IHostDispatch {
    EFFECT_SETTINGS_RESERVED_SLOT(7)
    EFFECT_SETTINGS_RESERVED_SLOT(8)

    /// Slot 9. Starts the preview in the window that SetPreviewWindow named. Comes once per dialog, 500 ms
    /// after it opened, and not at all when the filter could not be attached.
    virtual HRESULT STDMETHODCALLTYPE RefreshPreview() = 0;

    EFFECT_SETTINGS_RESERVED_SLOT(10)

    /// Slot 11. Stops the preview. The first call when a dialog closes.
    virtual HRESULT STDMETHODCALLTYPE StopPreview() = 0;

    EFFECT_SETTINGS_RESERVED_SLOT(12)
    EFFECT_SETTINGS_RESERVED_SLOT(13)
    EFFECT_SETTINGS_RESERVED_SLOT(14)

    /// Slot 15. @param option  Always 0.
    virtual HRESULT STDMETHODCALLTYPE SetPreviewOption(LONG option) = 0;

    EFFECT_SETTINGS_RESERVED_SLOT(16)
    EFFECT_SETTINGS_RESERVED_SLOT(17)
    EFFECT_SETTINGS_RESERVED_SLOT(18)
    EFFECT_SETTINGS_RESERVED_SLOT(19)
    EFFECT_SETTINGS_RESERVED_SLOT(20)
    EFFECT_SETTINGS_RESERVED_SLOT(21)
    EFFECT_SETTINGS_RESERVED_SLOT(22)

    /// Slot 23. Names the window that the host draws its preview into.
    /// @param window  A window handle in its 32-bit form (widen it with LongToHandle): a panel of the dialog
    ///                when it opens, 0 when it closes; the dialog destroys it after the 0. The panel is 240
    ///                pixels high and 497, 557 or 797 wide (3 less than the dialog). The library makes it black
    ///                whenever the system asks for its background, and nothing more: the picture is the host's, who
    ///                draws it into the client area and leaves the window itself alone.
    virtual HRESULT STDMETHODCALLTYPE SetPreviewWindow(LONG window) = 0;

    EFFECT_SETTINGS_RESERVED_SLOT(24)
    EFFECT_SETTINGS_RESERVED_SLOT(25)
    EFFECT_SETTINGS_RESERVED_SLOT(26)
    EFFECT_SETTINGS_RESERVED_SLOT(27)

    /// Slot 28. Says whether the preview shows a picture.
    /// @param enable  An automation boolean widened to 32 bits: -1 when a video effect's dialog opens, 0 when
    ///                the audio effect's opens and whenever a dialog closes.
    virtual HRESULT STDMETHODCALLTYPE EnableVideoPreview(LONG enable) = 0;

    EFFECT_SETTINGS_RESERVED_SLOT(29)
    EFFECT_SETTINGS_RESERVED_SLOT(30)
    EFFECT_SETTINGS_RESERVED_SLOT(31)
    EFFECT_SETTINGS_RESERVED_SLOT(32)
    EFFECT_SETTINGS_RESERVED_SLOT(33)
    EFFECT_SETTINGS_RESERVED_SLOT(34)
    EFFECT_SETTINGS_RESERVED_SLOT(35)
    EFFECT_SETTINGS_RESERVED_SLOT(36)
    EFFECT_SETTINGS_RESERVED_SLOT(37)

    /// Slot 38. Limits the preview to a part of the medium. Always 0 and 0 (no limit), when a dialog closes.
    virtual HRESULT STDMETHODCALLTYPE SetPreviewRange(LONG start, LONG stop) = 0;

    EFFECT_SETTINGS_RESERVED_SLOT(39)
    EFFECT_SETTINGS_RESERVED_SLOT(40)
    EFFECT_SETTINGS_RESERVED_SLOT(41)

    /// Slot 42. @param mode  0 when a dialog opens, 1 when it closes.
    virtual HRESULT STDMETHODCALLTYPE SetPreviewMode(LONG mode) = 0;

    EFFECT_SETTINGS_RESERVED_SLOT(43)
    EFFECT_SETTINGS_RESERVED_SLOT(44)
    EFFECT_SETTINGS_RESERVED_SLOT(45)
    EFFECT_SETTINGS_RESERVED_SLOT(46)
    EFFECT_SETTINGS_RESERVED_SLOT(47)
    EFFECT_SETTINGS_RESERVED_SLOT(48)
    EFFECT_SETTINGS_RESERVED_SLOT(49)
    EFFECT_SETTINGS_RESERVED_SLOT(50)
    EFFECT_SETTINGS_RESERVED_SLOT(51)
    EFFECT_SETTINGS_RESERVED_SLOT(52)
    EFFECT_SETTINGS_RESERVED_SLOT(53)
    EFFECT_SETTINGS_RESERVED_SLOT(54)
    EFFECT_SETTINGS_RESERVED_SLOT(55)
    EFFECT_SETTINGS_RESERVED_SLOT(56)
    EFFECT_SETTINGS_RESERVED_SLOT(57)
    EFFECT_SETTINGS_RESERVED_SLOT(58)
    EFFECT_SETTINGS_RESERVED_SLOT(59)
    EFFECT_SETTINGS_RESERVED_SLOT(60)
    EFFECT_SETTINGS_RESERVED_SLOT(61)
    EFFECT_SETTINGS_RESERVED_SLOT(62)
    EFFECT_SETTINGS_RESERVED_SLOT(63)
    EFFECT_SETTINGS_RESERVED_SLOT(64)
    EFFECT_SETTINGS_RESERVED_SLOT(65)
    EFFECT_SETTINGS_RESERVED_SLOT(66)
    EFFECT_SETTINGS_RESERVED_SLOT(67)
    EFFECT_SETTINGS_RESERVED_SLOT(68)
    EFFECT_SETTINGS_RESERVED_SLOT(69)
    EFFECT_SETTINGS_RESERVED_SLOT(70)

    // Slots 71 to 74 each give a new reference, which the caller releases. A failure or a null list makes the
    // attach fail: the dialog tells the user and stays open without a filter.

    /// Slot 71. All audio processors that the host can use.
    virtual HRESULT STDMETHODCALLTYPE GetAudioProcessors(IProcessorList** list) = 0;
    /// Slot 72. All video processors that the host can use.
    virtual HRESULT STDMETHODCALLTYPE GetVideoProcessors(IProcessorList** list) = 0;
    /// Slot 73. The audio processors that are applied to the medium.
    virtual HRESULT STDMETHODCALLTYPE GetActiveAudioProcessors(IProcessorList** list) = 0;
    /// Slot 74. The video processors that are applied to the medium.
    virtual HRESULT STDMETHODCALLTYPE GetActiveVideoProcessors(IProcessorList** list) = 0;

    EFFECT_SETTINGS_RESERVED_SLOT(75)
    EFFECT_SETTINGS_RESERVED_SLOT(76)
    EFFECT_SETTINGS_RESERVED_SLOT(77)
    EFFECT_SETTINGS_RESERVED_SLOT(78)
    EFFECT_SETTINGS_RESERVED_SLOT(79)
    EFFECT_SETTINGS_RESERVED_SLOT(80)
    EFFECT_SETTINGS_RESERVED_SLOT(81)
    EFFECT_SETTINGS_RESERVED_SLOT(82)
    EFFECT_SETTINGS_RESERVED_SLOT(83)

    /// Slot 84. Puts the preview back to its start. The second call when a dialog closes.
    virtual HRESULT STDMETHODCALLTYPE ResetPreview() = 0;

    EFFECT_SETTINGS_RESERVED_SLOT(85)
    EFFECT_SETTINGS_RESERVED_SLOT(86)
    EFFECT_SETTINGS_RESERVED_SLOT(87)

    /// Slot 88. Gives the object of the processor that was just attached.
    /// @param kind    kVideoProcessorKind or kAudioProcessorKind.
    /// @param object  Receives a new reference, which the caller releases. The dialog asks it for the effect's
    ///                property interface. On failure the dialog works with its controls only.
    virtual HRESULT STDMETHODCALLTYPE GetProcessorObject(LONG kind, IUnknown** object) = 0;
};

#undef EFFECT_SETTINGS_CONSTANT
#undef EFFECT_SETTINGS_RESERVED_SLOT

#endif
