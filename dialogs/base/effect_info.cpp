#include "dialogs/base/effect_info.h"

#include "effect_settings/effect_filters.h"
#include "entry/session.h"

namespace {

constexpr int kGuidTextLength = 38;  // With its braces.

CString GuidText(const GUID& guid) {
    WCHAR text[kGuidTextLength + 1] = {};
    ::StringFromGUID2(guid, text, kGuidTextLength + 1);
    return CString(text);
}

}  // namespace

CString MonikerOf(const EffectInfo& info) {
    const GUID& category = info.chain == ChainKind::Video ? CATID_EffectVideoProcessor : CATID_EffectAudioProcessor;
    return L"@device:sw:" + GuidText(category) + L"\\" + GuidText(info.filterClass);
}

CString TitleOf(const EffectInfo& info) {
    if (!info.hasArea) return CString(info.title);
    CString size;
    size.Format(L"(%dx%d)", g_VideoWidth, g_VideoHeight);
    return info.title + size;
}
