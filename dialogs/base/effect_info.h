// What the dialog base needs to know of an effect.
#pragma once

#include <afxwin.h>

#include "host/processor_chain.h"

/// Texts are what hosts and users know, and stay as they are, spelling and all.
struct EffectInfo {
    LPCWSTR title;
    int width;  ///< Of the dialog, in pixels.
    int height;
    int helpTop;          ///< From there down to the buttons the help panel stands.
    LPCWSTR description;  ///< Help text of the "Enable" check box.
    ChainKind chain = ChainKind::Video;
};

/// "@device:sw:{category}\{filter class id}": the name of the effect's filter in the host's lists.
CString MonikerOf(const CLSID& filterClass, ChainKind chain);
