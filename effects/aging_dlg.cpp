// Aging: the look of an old film, with old colours, scratches, dust and pits.
#include <afxdlgs.h>

#include "effects/area_dlg.h"
#include "effects/effect_makers.h"
#include "skin/color_swatch.h"

namespace {

// Radio groups are saved as their choice's number; filters get the bit of that number.
constexpr int kRandomColor = 0;
constexpr int kOriginalColor = 1;
constexpr int kCustomColor = 2;

constexpr COLORREF kDefaultDustColor = 0x000000;
constexpr COLORREF kDefaultPitsColor = 0x969696;

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

/// What differs between dust and pits.
struct SpecksSetup {
    UINT firstId;  ///< The others follow in the order of the controls.
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
    .on = {L"Enable Dust", L"If checked, will add dust on the video."},
    .random = {L"Random dust", L"If checked, dust should be added randomly."},
    .randomDensityHelp =
        L"If checked, density of the added dust will be random, if un-checked, density of the added "
        L"dust is determined by the Dust Density control.",
    .always = {L"Always add dust",
               L"If checked, dust should appear in every frame, if un-checked, dust should be "
               L"added to random frames."},
    .density = {L"Dust density(0 - 100):",
                L"Controls the density of the dust added on the video. Used only if Random density is checked. "},
    .colorsLabel = L"Dust Colors:",
    .randomColorHelp = L"If checked, random color is used for the dust.",
    .originalColorHelp = L"If checked, original dust color(black) will be used.",
    .customColorHelp = L"If checked, custom dust color will be used. Set the custom color by press Set color...",
    .setColorHelp = L"Set Custom Dust Color.",
    .colorHelp = L"Custom dust color."};

constexpr SpecksSetup kPits = {
    .firstId = 40,
    .on = {L"Enable Pits", L"If checked, will add Pits on the video."},
    .random = {L"Random pits", L"If checked, Pits should be added randomly."},
    .randomDensityHelp =
        L"If checked, density of the added Pits will be random, if un-checked, density of the added "
        L"Pits is determined by the Pits Density control.",
    .always = {L"Always add pits",
               L"If checked, Pits should appear in every frame, if un-checked, Pits should be "
               L"added to random frames."},
    .density = {L"Pits density(0 - 100):",
                L"Controls the density of the Pits added on the video. Used only if Random density is checked."},
    .colorsLabel = L"Pits Colors:",
    .randomColorHelp = L"If checked, random color is used for the Pits.",
    .originalColorHelp = L"If checked, original Pits color(gray) will be used.",
    .customColorHelp = L"If checked, custom Pits color will be used. Set the custom color by press Set color...",
    .setColorHelp = L"Set Custom Pits Color.",
    .colorHelp = L"Custom Pits Color."};

class CAgingDlg : public CAreaDlg<IEffectAging, AgingSettings> {
public:
    CAgingDlg() : CAreaDlg(EffectId::Aging) {}

private:
    bool CreateControls() override {
        return AddEnable(m_settings->enabled) &&
               AddSlider(m_maxScratches,
                         {.id = 11,
                          .label = L"Maximum number of scratches(0 - 100):",
                          .min = 0,
                          .max = 100,
                          .field = &m_settings->maxScratches,
                          .standard = 2,
                          .help = L"Set the Max number of scratch lines in a frame."}) &&
               AddCheckBox(m_oldColor, {.id = 14,
                                        .text = L"Enable Old Color",
                                        .field = &m_settings->oldColor,
                                        .standard = 1,
                                        .help = L"Indicates whether to apply the old style movie colors."}) &&
               AddLabel(m_oldColorLine, L"") &&
               AddArea({.heading = L"Enable Video Aging Effect on below Area:",
                        .switchHelp = L"Enable Video Aging Effect on below Area:"}) &&
               AddRadioGroup(
                   m_channel,
                   {.field = &m_settings->channel,
                    .value = m_settings->channel,
                    .standard = 0,
                    .choices = {{23, 0, L"All", L"The aging effect is applied to all channels."},
                                {24, 1, L"Channel 1", L"First channel is used in generating the aging effect."},
                                {25, 2, L"Channel 2", L"Second channel is used in generating the aging effect."},
                                {26, 3, L"Channel 3", L"Third channel is used in generating the aging effect."},
                                {27, 4, L"Luminence",
                                 L"Luminance is calculated from the three channels and is used in generating the aging "
                                 L"effect."}}}) &&
               AddCheckBox(m_scratches, {.id = 28,
                                         .text = L"Enable Scratches",
                                         .field = &m_settings->scratches,
                                         .standard = 1,
                                         .help = L"If checked, will add scratch lines on the video."}) &&
               AddLabel(m_scratchesLine, L"") &&
               AddSlider(m_scratchHeight,
                         {.id = 29,
                          .label = L"Scratch height(1 - 1600):",
                          .min = 1,
                          .max = 1600,
                          .field = &m_settings->scratchHeight,
                          .standard = 1600,
                          .help = L"Set the Max scratch height."}) &&
               AddSpecks(m_dust, kDust,
                         {&m_settings->dust, &m_settings->randomDust, &m_settings->dustRandomDensity,
                          &m_settings->alwaysAddDust, &m_settings->dustDensity, &m_settings->dustColorMode,
                          &m_settings->dustColor}) &&
               AddSpecks(m_pits, kPits,
                         {&m_settings->pits, &m_settings->randomPits, &m_settings->pitsRandomDensity,
                          &m_settings->alwaysAddPits, &m_settings->pitsDensity, &m_settings->pitsColorMode,
                          &m_settings->pitsColor});
    }

    struct SpecksFields {
        std::int32_t* on;
        std::int32_t* random;
        std::int32_t* randomDensity;
        std::int32_t* always;
        std::int32_t* density;
        std::int32_t* colorMode;
        std::int32_t* color;
    };

    bool AddSpecks(Specks& specks, const SpecksSetup& setup, const SpecksFields& fields) {
        const auto addBox =
            [&](CSkinCheckBox& box, UINT offset, const Wording& words, std::int32_t* field, int standard) {
                return AddCheckBox(box, {.id = setup.firstId + offset,
                                         .text = words.text,
                                         .field = field,
                                         .standard = standard,
                                         .help = words.help});
            };
        specks.color.SetColor(static_cast<COLORREF>(*fields.color) & 0xFFFFFF);
        Hear(setup.firstId + 8);
        return addBox(specks.on, 0, setup.on, fields.on, 1) && AddLabel(specks.line, L"") &&
               addBox(specks.random, 1, setup.random, fields.random, 1) &&
               addBox(specks.randomDensity, 2, {L"Random density", setup.randomDensityHelp}, fields.randomDensity, 1) &&
               addBox(specks.always, 3, setup.always, fields.always, 0) &&
               AddSlider(specks.density,
                         {.id = setup.firstId + 4,
                          .label = setup.density.text,
                          .min = 0,
                          .max = 100,
                          .field = fields.density,
                          .standard = 1,
                          .help = setup.density.help}) &&
               AddLabel(specks.colorsLabel, setup.colorsLabel) &&
               AddRadioGroup(specks.colors,
                             {.field = fields.colorMode,
                              .value = *fields.colorMode,
                              .standard = kOriginalColor,
                              .choices = {{setup.firstId + 5, kRandomColor, L"Random", setup.randomColorHelp},
                                          {setup.firstId + 6, kOriginalColor, L"Original", setup.originalColorHelp},
                                          {setup.firstId + 7, kCustomColor, L"Custom", setup.customColorHelp}}}) &&
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
        Put(&IEffectAging::put_Enable, AutomationBool(m_enable));
        PutArea(InvalidArea::SendAsIs, AreaSwitch::BeforeEdges);
        Put(&IEffectAging::put_OldColor, AutomationBool(m_oldColor));
        if (const auto channel = m_channel.Value()) Put(&IEffectAging::put_Channel, 1 << *channel);
        Put(&IEffectAging::put_Scratches, AutomationBool(m_scratches));
        Put(&IEffectAging::put_MaxScratches, m_maxScratches.Value());
        Put(&IEffectAging::put_ScratchHeight, m_scratchHeight.Value());
        Put(&IEffectAging::put_Dust, AutomationBool(m_dust.on));
        Put(&IEffectAging::put_RandomDust, AutomationBool(m_dust.random));
        Put(&IEffectAging::put_DustRandomDensity, AutomationBool(m_dust.randomDensity));
        Put(&IEffectAging::put_AlwaysAddDust, AutomationBool(m_dust.always));
        Put(&IEffectAging::put_DustDensity, m_dust.density.Value());
        if (const auto mode = m_dust.colors.Value()) Put(&IEffectAging::put_DustColorMode, 1 << *mode);
        Put(&IEffectAging::put_DustColor, static_cast<LONG>(m_dust.color.Color()));
        Put(&IEffectAging::put_Pits, AutomationBool(m_pits.on));
        Put(&IEffectAging::put_RandomPits, AutomationBool(m_pits.random));
        Put(&IEffectAging::put_PitsRandomDensity, AutomationBool(m_pits.randomDensity));
        Put(&IEffectAging::put_AlwaysAddPits, AutomationBool(m_pits.always));
        Put(&IEffectAging::put_PitsDensity, m_pits.density.Value());
        if (const auto mode = m_pits.colors.Value()) Put(&IEffectAging::put_PitsColorMode, 1 << *mode);
        Put(&IEffectAging::put_PitsColor, static_cast<LONG>(m_pits.color.Color()));
    }

    void SaveSettings() override {
        CAreaDlg::SaveSettings();
        m_settings->dustColor = static_cast<std::int32_t>(m_dust.color.Color());
        m_settings->pitsColor = static_cast<std::int32_t>(m_pits.color.Color());
    }

    void SetDefaults() override {
        // Here the area comes right after "Enable"; each of its edges that is filled pushes what else is set so far.
        m_enable.SetChecked(true);
        m_area.Set(false, kDefaultEffectArea);
        CRecordDlg::SetDefaults();
        m_dust.color.SetColor(kDefaultDustColor);
        m_pits.color.SetColor(kDefaultPitsColor);
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

std::unique_ptr<CDialog> MakeAgingDlg() { return std::make_unique<CAgingDlg>(); }
