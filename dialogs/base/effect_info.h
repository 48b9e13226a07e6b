// What the dialog base needs to know of an effect: one row of the catalogue.
#pragma once

#include <afxwin.h>

#include "effect_settings/effect_settings.h"
#include "host/processor_chain.h"

struct EffectInfo {
    EffectId id;
    LPCWSTR title;
    int width;  ///< Of the dialog, in pixels.
    int height;
    bool hasArea;  ///< The effect can be limited to a rectangle, and the title shows the video's size.
    ChainKind chain;
    CLSID filterClass;
    LPCWSTR description;  ///< Help text of the "Enable" check box.
};

/// "@device:sw:{category}\{filter class id}": the name of the effect's filter in the host's lists.
CString MonikerOf(const EffectInfo& info);
/// What the title bar says: for an effect with an area the source video's size follows.
CString TitleOf(const EffectInfo& info);
