// Aging: the look of an old film, with old colours, scratches, dust and pits.
#include <afxdlgs.h>

#include "effects/parts/area_dlg.h"
#include "skin/color_swatch.h"

namespace {

// Radio groups are saved as their choice's number; filters get the bit of that number.
constexpr int kRandomColor = 0;
constexpr int kOriginalColor = 1;
constexpr int kCustomColor = 2;

/// The settings of dust or of pits: both look and work alike.
struct Specks {
    CSkinCheckBox on;
    CSkinHeading line;
    CSkinCheckBox random;
    CSkinCheckBox randomDensity;
    CSkinCheckBox always;
    CValueSlider density;
    CSkinStatic colorsLabel;
    CRadioGroup colors;
    CSkinButton setColor;
    CColorSwatch color;
};

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

/// What differs between dust and pits.
struct SpecksSetup {
    UINT firstId;  ///< The others follow in the order of the controls.
    SpecksFields fields;
    Wording on;
    Wording random;
    LPCWSTR randomDensityHelp;
    Wording always;
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
    .density = {L"Pits density(%d - %d):",
                L"Controls the density of the Pits added on the video. Used only if Random density is checked."},
    .colorsLabel = L"Pits Colors:",
    .randomColorHelp = L"If checked, random color is used for the Pits.",
    .originalColorHelp = L"If checked, original Pits color(gray) will be used.",
    .customColorHelp = L"If checked, custom Pits color will be used. Set the custom color by press Set color...",
    .setColorHelp = L"Set Custom Pits Color.",
    .colorHelp = L"Custom Pits Color."};

class CAgingDlg : public CAreaDlg<EffectId::Aging> {
    bool CreateControls() override {
        return AddEnable() &&
               AddSlider(m_maxScratches, &AgingSettings::maxScratches,
                         {11, L"Maximum number of scratches(%d - %d):", 0, 100,
                          L"Set the Max number of scratch lines in a frame."}) &&
               AddCheckBox(m_oldColor, &AgingSettings::oldColor,
                           {14, L"Enable Old Color", L"Indicates whether to apply the old style movie colors."}) &&
               AddLabel(m_oldColorLine, L"") &&
               AddArea({.heading = L"Enable Video Aging Effect on below Area:",
                        .switchHelp = L"Enable Video Aging Effect on below Area:"}) &&
               AddRadioGroup(
                   m_channel, &AgingSettings::channel,
                   {{23, 0, L"All", L"The aging effect is applied to all channels."},
                    {24, 1, L"Channel 1", L"First channel is used in generating the aging effect."},
                    {25, 2, L"Channel 2", L"Second channel is used in generating the aging effect."},
                    {26, 3, L"Channel 3", L"Third channel is used in generating the aging effect."},
                    {27, 4, L"Luminence",
                     L"Luminance is calculated from the three channels and is used in generating the aging "
                     L"effect."}}) &&
               AddCheckBox(m_scratches, &AgingSettings::scratches,
                           {28, L"Enable Scratches", L"If checked, will add scratch lines on the video."}) &&
               AddLabel(m_scratchesLine, L"") &&
               AddSlider(m_scratchHeight, &AgingSettings::scratchHeight,
                         {29, L"Scratch height(%d - %d):", 1, 1600, L"Set the Max scratch height."}) &&
               AddSpecks(m_dust, kDust) && AddSpecks(m_pits, kPits);
    }

    bool AddSpecks(Specks& specks, const SpecksSetup& setup) {
        const auto addBox = [&](CSkinCheckBox& box, UINT offset, SettingsField field, const Wording& words) {
            return AddCheckBox(box, field, {setup.firstId + offset, words.text, words.help});
        };
        CColorSwatch& color = specks.color;
        color.SetColor(static_cast<COLORREF>(m_settings->*setup.fields.color) & 0xFFFFFF);
        Bind(setup.fields.color, {.get = [&color] { return static_cast<int>(color.Color()); },
                                  .set = [&color](int value) { color.SetColor(static_cast<COLORREF>(value)); },
                                  .control = &color});
        Hear(setup.firstId + 8);
        const SpecksFields& fields = setup.fields;
        return addBox(specks.on, 0, fields.on, setup.on) && AddLabel(specks.line, L"") &&
               addBox(specks.random, 1, fields.random, setup.random) &&
               addBox(specks.randomDensity, 2, fields.randomDensity, {L"Random density", setup.randomDensityHelp}) &&
               addBox(specks.always, 3, fields.always, setup.always) &&
               AddSlider(specks.density, fields.density,
                         {setup.firstId + 4, setup.density.text, 0, 100, setup.density.help}) &&
               AddLabel(specks.colorsLabel, setup.colorsLabel) &&
               AddRadioGroup(specks.colors, fields.colorMode,
                             {{setup.firstId + 5, kRandomColor, L"Random", setup.randomColorHelp},
                              {setup.firstId + 6, kOriginalColor, L"Original", setup.originalColorHelp},
                              {setup.firstId + 7, kCustomColor, L"Custom", setup.customColorHelp}}) &&
               AddItem(specks.setColor, L"Set Color...", setup.firstId + 8, setup.setColorHelp) &&
               AddItem(specks.color, L"", setup.firstId + 9, setup.colorHelp);
    }

    // Two columns of two groups each: the colours and the area, the scratches; dust and pits.
    void LayoutControls() override {
        CAreaDlg::LayoutControls();
        PlaceGroup(m_oldColor, m_oldColorLine, {kLeft, 318}, 122);
        m_channel.Place({kLeft, 340}, {38, 81, 81, 81, 84});
        m_area.Place({kLeft, 365}, kColumnWidth);

        PlaceGroup(m_scratches, m_scratchesLine, {kRight, 318}, 126);
        CValueSlider::Places places = SliderRow(kRight, 366);
        places.label = At(kRight, 342, kColumnWidth);  // Too long to stand beside its slider.
        m_maxScratches.Place(places);
        m_scratchHeight.Place(SliderRow(kRight, 394));

        PlaceSpecks(m_dust, kLeft, 447);
        PlaceSpecks(m_pits, kRight, 447);
        m_helpRect = HelpRectBelow(560);
    }

    void PlaceSpecks(Specks& specks, int x, int y) {
        PlaceGroup(specks.on, specks.line, {x, y}, 94);
        specks.random.SetRect(At(x, y + 22, 110));
        specks.randomDensity.SetRect(At(x + 120, y + 22, 120));
        specks.always.SetRect(At(x + 245, y + 22, 120));
        specks.density.Place(SliderRow(x, y + 43));
        specks.colorsLabel.SetRect(At(x, y + 64, 80));
        specks.colors.Place({x + 120, y + 64}, {80, 80, 80});
        specks.setColor.SetRect(At(x + 120, y + 85, 100));
        specks.color.SetRect(At(x + 230, y + 85, 60));
    }

    static CValueSlider::Places SliderRow(int x, int y) {
        return {At(x, y + 1, 150), At(x + 155, y, 165), At(x + 330, y + 1, 35)};
    }
    /// A group's switch, and a line from it to the column's right edge.
    static void PlaceGroup(CSkinCheckBox& box, CSkinHeading& line, CPoint at, int boxWidth) {
        box.SetRect(At(at.x, at.y, boxWidth));
        line.SetRect(At(at.x + boxWidth, at.y, kColumnWidth - boxWidth));
    }

    void SyncControls() override {
        const bool on = m_enable.IsChecked();
        m_area.SetEnabled(on);
        m_oldColor.SetEnabled(on);
        m_scratches.SetEnabled(on);
        m_dust.on.SetEnabled(on);
        m_pits.on.SetEnabled(on);
        SyncChannels();
        SyncScratches();
        SyncSpecks(m_dust);
        SyncSpecks(m_pits);
    }

    void SyncChannels() { m_channel.SetEnabled(m_enable.IsChecked() && m_oldColor.IsChecked()); }

    void SyncScratches() {
        const bool added = m_enable.IsChecked() && m_scratches.IsChecked();
        m_maxScratches.Enable(added);
        m_scratchHeight.Enable(added);
    }

    /// Random dust (or pits) leaves nothing else of its group to set; a random density leaves none to set; and a colour
    /// is set only where it is used.
    void SyncSpecks(Specks& specks) {
        const bool added = m_enable.IsChecked() && specks.on.IsChecked();
        const bool tuned = added && !specks.random.IsChecked();
        const bool custom = tuned && specks.colors.Value() == kCustomColor;
        specks.random.SetEnabled(added);
        specks.randomDensity.SetEnabled(tuned);
        specks.always.SetEnabled(tuned);
        specks.density.Enable(tuned && !specks.randomDensity.IsChecked());
        specks.colors.SetEnabled(tuned);
        specks.setColor.SetEnabled(custom);
        specks.color.SetEnabled(custom);
    }

    /// Each box or button brings its own group in line, and no other.
    void OnClicked(UINT id) override {
        if (id == m_oldColor.Id()) SyncChannels();
        if (id == m_scratches.Id()) SyncScratches();
        for (Specks* specks : {&m_dust, &m_pits}) {
            if (id == specks->setColor.Id()) {
                PickColor(*specks);
            } else if (id >= specks->on.Id() && id < specks->setColor.Id() && id != specks->always.Id()) {
                SyncSpecks(*specks);
            }
        }
        CAreaDlg::OnClicked(id);
    }

    void PickColor(Specks& specks) {
        CColorDialog dialog(specks.color.Color(), 0, this);
        if (dialog.DoModal() == IDOK) specks.color.SetColor(dialog.GetColor());
    }

    void ApplyToFilter() override {
        Put(&IEffectAging::put_Enable, m_enable);
        PutArea(InvalidArea::SendAsIs, AreaSwitch::BeforeEdges);
        Put(&IEffectAging::put_OldColor, m_oldColor);
        if (const auto channel = m_channel.Value()) Put(&IEffectAging::put_Channel, 1 << *channel);
        Put(&IEffectAging::put_Scratches, m_scratches);
        Put(&IEffectAging::put_MaxScratches, m_maxScratches);
        Put(&IEffectAging::put_ScratchHeight, m_scratchHeight);
        Put(&IEffectAging::put_Dust, m_dust.on);
        Put(&IEffectAging::put_RandomDust, m_dust.random);
        Put(&IEffectAging::put_DustRandomDensity, m_dust.randomDensity);
        Put(&IEffectAging::put_AlwaysAddDust, m_dust.always);
        Put(&IEffectAging::put_DustDensity, m_dust.density);
        if (const auto mode = m_dust.colors.Value()) Put(&IEffectAging::put_DustColorMode, 1 << *mode);
        Put(&IEffectAging::put_DustColor, static_cast<LONG>(m_dust.color.Color()));
        Put(&IEffectAging::put_Pits, m_pits.on);
        Put(&IEffectAging::put_RandomPits, m_pits.random);
        Put(&IEffectAging::put_PitsRandomDensity, m_pits.randomDensity);
        Put(&IEffectAging::put_AlwaysAddPits, m_pits.always);
        Put(&IEffectAging::put_PitsDensity, m_pits.density);
        if (const auto mode = m_pits.colors.Value()) Put(&IEffectAging::put_PitsColorMode, 1 << *mode);
        Put(&IEffectAging::put_PitsColor, static_cast<LONG>(m_pits.color.Color()));
    }

    void SetDefaults() override {
        // Here the area comes right after "Enable"; each of its edges that is filled pushes what else is set so far.
        m_enable.SetChecked(kDefaults.enabled != 0);
        SetDefaultArea();
        CRecordDlg::SetDefaults();  // NOLINT(bugprone-parent-virtual-call): without the area.
    }

    static constexpr int kLeft = 20;
    static constexpr int kRight = 415;
    static constexpr int kColumnWidth = 365;

    CSkinCheckBox m_oldColor;
    CSkinHeading m_oldColorLine;
    CRadioGroup m_channel;
    CSkinCheckBox m_scratches;
    CSkinHeading m_scratchesLine;
    CValueSlider m_maxScratches;
    CValueSlider m_scratchHeight;
    Specks m_dust;
    Specks m_pits;
};

}  // namespace

const EffectInfo EffectTraits<EffectId::Aging>::kInfo = {
    L"Aging Settings", 800, 630,
    L"Enable Video Aging Effect, will gives the video the look and feel of an old style movie."};
std::unique_ptr<CDialog> MakeAgingDlg() { return std::make_unique<CAgingDlg>(); }
