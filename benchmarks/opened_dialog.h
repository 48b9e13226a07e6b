// Opens dialogs and reports each to a function as soon as it shows, from inside its own message loop.
#pragma once

#include <functional>

#include <windows.h>

/// Runs `open`, which shows a modal dialog, and `seen` once from the dialog's message loop when the first dialog of the
/// thread shows. What closes the dialog is the function's business.
void WithDialog(const std::function<void()>& open, const std::function<void(HWND dialog)>& seen);

/// What opens a dialog for WithDialog tells it so, before the dialog shows. A hook would tell as well, but slow each message.
void DialogOpens(HWND dialog);

/// Runs a function from the thread's message loop, after all that was posted before.
void PostCall(std::function<void()> call);
