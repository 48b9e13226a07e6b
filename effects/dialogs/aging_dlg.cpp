// Aging: the look of an old film, with old colours, scratches, dust and pits.
#include <afxdlgs.h>

#include "effects/parts/area_dlg.h"
#include "skin/color_swatch.h"

namespace {

// Colour modes are saved as their choice's number.
constexpr int kRandomColor = 0;
constexpr int kOriginalColor = 1;
constexpr int kCustomColor = 2;

/// A control's text and help.
struct Wording {
    LPCWSTR text;
    LPCWSTR help;
};

struct SpecksFields {
    using Field = std::int32_t AgingSettings::*;

    Field on;
    Field random;
    Field randomDensity;
    Field always;
    Field density;
    Field colorMode;
    Field color;
};

/// What differs between dust and pits: both look and work alike.
struct SpecksSetup {
    UINT firstId;  ///< The others follow in the order of the controls.
    SpecksFields fields;
    Wording on;
    Wording random;
    LPCWSTR randomDensityHelp;
    Wording always;
    effect_settings::Range densityRange;
    Wording density;
    LPCWSTR colorsLabel;
    LPCWSTR randomColorHelp;
    LPCWSTR originalColorHelp;
    LPCWSTR customColorHelp;
    LPCWSTR setColorHelp;
    LPCWSTR colorHelp;
};

constexpr SpecksSetup kDust = {
    .firstId = 30,
    .fields = {&AgingSettings::dust, &AgingSettings::randomDust, &AgingSettings::dustRandomDensity,
               &AgingSettings::alwaysAddDust, &AgingSettings::dustDensity, &AgingSettings::dustColorMode,
               &AgingSettings::dustColor},
    .on = {L"Enable Dust", L"If checked, will add dust on the video."},
    .random = {L"Random dust", L"If checked, dust should be added randomly."},
    .randomDensityHelp =
        L"If checked, density of the added dust will be random, if un-checked, density of the added "
        L"dust is determined by the Dust Density control.",
    .always = {L"Always add dust",
               L"If checked, dust should appear in every frame, if un-checked, dust should be "
               L"added to random frames."},
    .densityRange = kAgingDustDensity,
    .density = {L"Dust density(%d - %d):",
                L"Controls the density of the dust added on the video. Used only if Random density is checked. "},
    .colorsLabel = L"Dust Colors:",
    .randomColorHelp = L"If checked, random color is used for the dust.",
    .originalColorHelp = L"If checked, original dust color(black) will be used.",
    .customColorHelp = L"If checked, custom dust color will be used. Set the custom color by press Set color...",
    .setColorHelp = L"Set Custom Dust Color.",
    .colorHelp = L"Custom dust color."};

constexpr SpecksSetup kPits = {
    .firstId = 40,
    .fields = {&AgingSettings::pits, &AgingSettings::randomPits, &AgingSettings::pitsRandomDensity,
               &AgingSettings::alwaysAddPits, &AgingSettings::pitsDensity, &AgingSettings::pitsColorMode,
               &AgingSettings::pitsColor},
    .on = {L"Enable Pits", L"If checked, will add Pits on the video."},
    .random = {L"Random pits", L"If checked, Pits should be added randomly."},
    .randomDensityHelp =
        L"If checked, density of the added Pits will be random, if un-checked, density of the added "
        L"Pits is determined by the Pits Density control.",
    .always = {L"Always add pits",
               L"If checked, Pits should appear in every frame, if un-checked, Pits should be "
               L"added to random frames."},
    .densityRange = kAgingPitsDensity,
    .density = {L"Pits density(%d - %d):",
                L"Controls the density of the Pits added on the video. Used only if Random density is checked."},
    .colorsLabel = L"Pits Colors:",
    .randomColorHelp = L"If checked, random color is used for the Pits.",
    .originalColorHelp = L"If checked, original Pits color(gray) will be used.",
    .customColorHelp = L"If checked, custom Pits color will be used. Set the custom color by press Set color...",
    .setColorHelp = L"Set Custom Pits Color.",
    .colorHelp = L"Custom Pits Color."};

class CAgingDlg : public CAreaDlg<EffectId::Aging> {
    // Two columns of two groups each: the colours and the area, the scratches; dust and pits.
    bool CreateControls() override {
        const FieldNeeds scratches = {{&Settings::enabled, 1}, {&Settings::scratches, 1}};
        CValueSlider::Places tooLong = SliderRow(kRight, 366);  // To stand beside its slider.
        tooLong.label = At(kRight, 342, kColumnWidth);
        return AddSlider(&Settings::maxScratches, tooLong,
                         {11, L"Maximum number of scratches(%d - %d):", kAgingMaxScratches,
                          L"Set the Max number of scratch lines in a frame."},
                         scratches) &&
               AddGroup(&Settings::oldColor, {kLeft, 318}, 122,
                        {14, L"Enable Old Color", L"Indicates whether to apply the old style movie colors."}) &&
               AddArea({kLeft, 365}, kColumnWidth,
                       {.heading = L"Enable Video Aging Effect on below Area:",
                        .switchHelp = L"Enable Video Aging Effect on below Area:"}) &&
               AddRadioGroup(
                   &Settings::channel, {{kLeft, 340}, {38, 81, 81, 81, 84}},
                   {{23, 0, L"All", L"The aging effect is applied to all channels."},
                    {24, 1, L"Channel 1", L"First channel is used in generating the aging effect."},
                    {25, 2, L"Channel 2", L"Second channel is used in generating the aging effect."},
                    {26, 3, L"Channel 3", L"Third channel is used in generating the aging effect."},
                    {27, 4, L"Luminence",
                     L"Luminance is calculated from the three channels and is used in generating the aging effect."}},
                   {{&Settings::enabled, 1}, {&Settings::oldColor, 1}}) &&
               AddGroup(&Settings::scratches, {kRight, 318}, 126,
                        {28, L"Enable Scratches", L"If checked, will add scratch lines on the video."}) &&
               AddSlider(&Settings::scratchHeight, SliderRow(kRight, 394),
                         {29, L"Scratch height(%d - %d):", kAgingScratchHeight, L"Set the Max scratch height."},
                         scratches) &&
               AddSpecks(m_dust, kDust, {kLeft, 447}) && AddSpecks(m_pits, kPits, {kRight, 447});
    }

    /// A group's switch, and a line from it to the column's right edge.
    bool AddGroup(SettingsField field, CPoint at, int boxWidth, const ItemSetup& setup) {
        return AddCheckBox(field, At(at.x, at.y, boxWidth), setup) &&
               AddHeading(At(at.x + boxWidth, at.y, kColumnWidth - boxWidth), L"");
    }

    struct CustomColor {
        CSkinButton set;
        CColorSwatch swatch;
    };

    bool AddSpecks(CustomColor& custom, const SpecksSetup& setup, CPoint at) {
        const SpecksFields& fields = setup.fields;
        const UINT id = setup.firstId;
        const auto addBox =
            [&](SettingsField field, UINT offset, int x, const Wording& words, const FieldNeeds& needs) {
                return AddCheckBox(field, At(at.x + x, at.y + 22, 120), {id + offset, words.text, words.help}, needs);
            };
        // Random dust (or pits) leaves nothing else of its group to set; a random density leaves none to set; and a
        // colour is set only where it is used.
        const FieldNeeds added = {{&Settings::enabled, 1}, {fields.on, 1}};
        const FieldNeeds tuned = {{&Settings::enabled, 1}, {fields.on, 1}, {fields.random, 0}};
        const auto tunedAnd = [tuned](const FieldNeed& need) {
            FieldNeeds needs = tuned;
            needs.push_back(need);
            return needs;
        };
        return AddGroup(fields.on, at, 94, {id, setup.on.text, setup.on.help}) &&
               AddCheckBox(
                   fields.random, At(at.x, at.y + 22, 110), {id + 1, setup.random.text, setup.random.help}, added) &&
               addBox(fields.randomDensity, 2, 120, {L"Random density", setup.randomDensityHelp}, tuned) &&
               addBox(fields.always, 3, 245, setup.always, tuned) &&
               AddSlider(fields.density, SliderRow(at.x, at.y + 43),
                         {id + 4, setup.density.text, setup.densityRange, setup.density.help},
                         tunedAnd({fields.randomDensity, 0})) &&
               AddText(At(at.x, at.y + 64, 80), setup.colorsLabel) &&
               AddRadioGroup(fields.colorMode, {{at.x + 120, at.y + 64}, {80, 80, 80}},
                             {{id + 5, kRandomColor, L"Random", setup.randomColorHelp},
                              {id + 6, kOriginalColor, L"Original", setup.originalColorHelp},
                              {id + 7, kCustomColor, L"Custom", setup.customColorHelp}},
                             tuned) &&
               AddColor(custom, setup, {at.x + 120, at.y + 85}, tunedAnd({fields.colorMode, kCustomColor}));
    }

    bool AddColor(CustomColor& custom, const SpecksSetup& setup, CPoint at, const FieldNeeds& needs) {
        CColorSwatch& swatch = custom.swatch;
        swatch.SetColor(static_cast<COLORREF>(m_settings->*setup.fields.color) & 0xFFFFFF);
        Bind(setup.fields.color,
             {.get = [&swatch] { return static_cast<int>(swatch.Color()); },
              .set = [&swatch](int value) { swatch.SetColor(static_cast<COLORREF>(value)); },
              .enable = [&swatch](bool on) { swatch.SetEnabled(on); },
              .control = &swatch},
             needs);
        AddRule([&custom](bool on) { custom.set.SetEnabled(on); }, Of(needs));
        Hear(setup.firstId + 8);
        return AddItem(custom.set, L"Set Color...", setup.firstId + 8, setup.setColorHelp, At(at.x, at.y, 100)) &&
               AddItem(swatch, L"", setup.firstId + 9, setup.colorHelp, At(at.x + 110, at.y, 60));
    }

    static CValueSlider::Places SliderRow(int x, int y) {
        return {At(x, y + 1, 150), At(x + 155, y, 165), At(x + 330, y + 1, 35)};
    }

    void OnClicked(UINT id) override {
        for (CustomColor* custom : {&m_dust, &m_pits}) {
            if (id == custom->set.Id()) PickColor(custom->swatch);
        }
        CAreaDlg::OnClicked(id);
    }

    void PickColor(CColorSwatch& swatch) {
        CColorDialog dialog(swatch.Color(), 0, this);
        if (dialog.DoModal() == IDOK) swatch.SetColor(dialog.GetColor());
    }

    // Here the area comes right after "Enable".
    std::vector<const std::int32_t*> FirstDefaults() const override {
        return {&m_settings->enabled, &m_settings->areaEnabled, &m_settings->left,
                &m_settings->top,     &m_settings->right,       &m_settings->bottom};
    }

    static constexpr int kLeft = 20;
    static constexpr int kRight = 415;
    static constexpr int kColumnWidth = 365;

    CustomColor m_dust;
    CustomColor m_pits;
};

}  // namespace

const EffectInfo EffectTraits<EffectId::Aging>::kInfo = {
    L"Aging Settings", 800, 630, 560,
    L"Enable Video Aging Effect, will gives the video the look and feel of an old style movie."};
std::unique_ptr<CDialog> MakeAgingDlg() { return std::make_unique<CAgingDlg>(); }
