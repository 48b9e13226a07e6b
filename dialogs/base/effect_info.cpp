#include "dialogs/base/effect_info.h"

#include "effect_settings/effect_filters.h"

namespace {

constexpr int kGuidTextLength = 38;  // With its braces.

CString GuidText(const GUID& guid) {
    WCHAR text[kGuidTextLength + 1] = {};
    ::StringFromGUID2(guid, text, kGuidTextLength + 1);
    return CString(text);
}

}  // namespace

CString MonikerOf(const CLSID& filterClass, ChainKind chain) {
    const GUID& category = chain == ChainKind::Video ? CATID_EffectVideoProcessor : CATID_EffectAudioProcessor;
    return L"@device:sw:" + GuidText(category) + L"\\" + GuidText(filterClass);
}
