// Runs a modal dialog for real and works it from a second thread, as a person would: by messages to its windows.
#pragma once

#include <functional>
#include <string>

#include <windows.h>

/// The hands and eyes of a script. Every action returns when the dialog's thread has handled it.
class DialogDriver {
public:
    explicit DialogDriver(HWND dialog) : m_dialog(dialog) {}

    HWND Window() const { return m_dialog; }
    HWND Child(int id) const { return ::GetDlgItem(m_dialog, id); }
    /// What the system knows of the dialog's thread: its focus, its capture.
    GUITHREADINFO Thread() const;
    /// The window that has the focus; the dialog's while none has it.
    HWND Focus() const;
    bool IsOpen() const { return ::IsWindow(m_dialog) != FALSE; }

    // Points are in client coordinates of the dialog, or of the child window that is given. The real pointer stays
    // where it is, far from the dialog.
    void Move(POINT at, HWND window = nullptr, WPARAM buttons = 0) { Mouse(WM_MOUSEMOVE, at, window, buttons); }
    void Press(POINT at, HWND window = nullptr) { Mouse(WM_LBUTTONDOWN, at, window, MK_LBUTTON); }
    void DoublePress(POINT at, HWND window = nullptr) { Mouse(WM_LBUTTONDBLCLK, at, window, MK_LBUTTON); }
    void Release(POINT at, HWND window = nullptr) { Mouse(WM_LBUTTONUP, at, window, 0); }
    void Click(POINT at, HWND window = nullptr);
    /// Moves the real pointer.
    void PointAt(POINT at);
    /// Moves the real pointer to a point and to and fro by a pixel there, as a hand does, until something is true.
    bool PointUntil(POINT at, const std::function<bool()>& condition);
    void Key(WPARAM key);
    void Command(WORD id) { Send(WM_COMMAND, id, 0); }
    void Close() { Send(WM_CLOSE, 0, 0); }

    COLORREF Pixel(int x, int y, HWND window = nullptr) const;
    std::wstring Title() const;
    RECT ClientRect(HWND window = nullptr) const;
    /// Of the pixels of a rectangle; equal pictures have equal sums.
    unsigned long PixelSum(const RECT& rect) const;
    bool HasText(const RECT& rect, COLORREF background) const;

    /// Waits until the dialog's thread has handled all that was posted before, and painted what that changed.
    void Settle() const;
    /// Settle that also waits for what the real pointer did before.
    void SettleInput() const;
    /// Waits for something to come true, ten seconds at most.
    static bool WaitFor(const std::function<bool()>& condition);
    /// The visible dialog of the tested thread that is on top, another than a given one.
    static HWND WaitForDialog(HWND other = nullptr);

private:
    void Mouse(UINT message, POINT at, HWND window, WPARAM buttons) const;
    void Send(UINT message, WPARAM wParam, LPARAM lParam) const;

    HWND m_dialog;
};

/// Runs `open`, which shows a dialog, and the script once it is there. A dialog that the script leaves open is
/// closed by WM_CLOSE; one that hangs is a failure of the test.
void RunDialog(const std::function<void()>& open, const std::function<void(DialogDriver&)>& script);

/// GDI objects of the process; the system's own count is not kept everywhere.
int CountGdiObjects();
/// Blocks in use in all heaps of the process, those of new included.
int CountHeapBlocks();
/// Top-level windows of the calling thread.
int CountWindows();
