#include "demo_host/effects.h"

#include <array>
#include <bit>
#include <cctype>

#include "demo_host/filters/filter_makers.h"
#include "effect_settings/preview_host.h"

namespace {

/// "GammaCorrection" in small letters, with hyphens between the words.
std::string Hyphened(const std::string& name) {
    std::string hyphened;
    for (const char letter : name) {
        const bool starts = std::isupper(static_cast<unsigned char>(letter)) != 0;
        if (starts && !hyphened.empty()) hyphened += '-';
        hyphened += starts ? static_cast<char>(letter - 'A' + 'a') : letter;
    }
    return hyphened;
}

template <typename Settings>
Record DefaultsOf() {
    using Values = std::array<std::int32_t, sizeof(Settings) / sizeof(std::int32_t)>;
    const auto values = std::bit_cast<Values>(Settings{});
    return {values.begin(), values.end()};
}

std::wstring GuidText(const GUID& guid) {
    wchar_t text[39] = {};
    ::StringFromGUID2(guid, text, 39);
    return text;
}

}  // namespace

std::wstring Effect::Moniker() const {
    return L"@device:sw:" + GuidText(IsAudio() ? CATID_EffectAudioProcessor : CATID_EffectVideoProcessor) + L"\\" +
           GuidText(filterClass);
}

std::wstring Effect::Title() const {
    std::wstring title;
    bool starts = true;
    for (const char letter : name) {
        const bool gap = letter == '-';
        title += static_cast<wchar_t>(gap ? ' ' : starts ? letter - 'a' + 'A' : letter);
        starts = gap;
    }
    return title;
}

effect_settings::Result Effect::Show(IMediaHost* host, const Sizes& sizes, Record& record) const {
    return static_cast<effect_settings::Result>(ShowSettingsDialog(
        &host, id, sizes.video.width, sizes.video.height, sizes.frame.width, sizes.frame.height, record.data()));
}

void Effect::Push(IUnknown& filter, const Record& record, const Sizes& sizes) const {
    effect_settings::ApplySettings(&filter, id, record.data(), sizes.video, sizes.frame);
}

const std::vector<Effect>& AllEffects() {
    static const std::vector<Effect> effects = {
#define EFFECT(name, number) \
    {EffectId::name, Hyphened(#name), CLSID_Effect##name, name##Fields(), DefaultsOf<name##Settings>()},
        EFFECT_SETTINGS_EFFECTS(EFFECT)
#undef EFFECT
    };
    return effects;
}

const Effect& EffectOf(EffectId id) {
    return AllEffects()[static_cast<std::size_t>(id) - static_cast<std::size_t>(kFirstEffectId)];
}

const Effect* FindEffect(const std::wstring& nameOrNumber) {
    for (const Effect& effect : AllEffects()) {
        if (nameOrNumber == std::wstring(effect.name.begin(), effect.name.end()) ||
            nameOrNumber == std::to_wstring(static_cast<std::int32_t>(effect.id))) {
            return &effect;
        }
    }
    return nullptr;
}
