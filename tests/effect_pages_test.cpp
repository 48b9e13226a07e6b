// docs/effects.json and docs/effects.md, made from the dialogs' own controls and the records' header.
// With EFFECT_SETTINGS_WRITE_PAGES in the environment they are written; without, the committed ones have to be the same.
#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <functional>
#include <initializer_list>
#include <iomanip>
#include <limits>
#include <map>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include <afxwin.h>

#include <gtest/gtest.h>

#include "effect_settings/effect_filters.h"
#include "effects/parts/effect_dlg.h"
#include "support/recording_host.h"

namespace {

struct Control {
    UINT id = 0;
    std::string label;
    std::string help;
};

/// One of several boxes that stand for a field together.
struct Choice {
    int value = 0;
    Control control;
};

struct Setter {
    int slot = 0;
    std::string name;
};

struct FieldRow {
    std::string name;
    std::size_t offset = 0;
    std::int32_t standard = 0;
    std::string meaning;
    bool hasRange = false;
    int min = 0;
    int max = 0;
    Control control;
    std::vector<Choice> choices;
    bool choicesAddUp = false;
    bool isColor = false;
    Setter setter;          ///< That a push hands the field to; without a name there is none.
    std::string parameter;  ///< Of the setter, or the member of its structure.
};

struct EffectPage {
    EffectId id;
    const EffectInfo& info;
    CLSID filterClass;
    IID propertyInterface;
    std::string name;
    std::vector<FieldRow> fields;
    std::vector<Control> controls;
    std::vector<Setter> push;
};

std::string Utf8(const wchar_t* text) {
    std::string utf8(
        static_cast<std::size_t>(::WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr)), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text, -1, utf8.data(), static_cast<int>(utf8.size()), nullptr, nullptr);
    utf8.pop_back();
    return utf8;
}

std::string TextOf(const GUID& id) {
    wchar_t text[39];
    ::StringFromGUID2(id, text, 39);
    return Utf8(text);
}

std::string ReadFile(const std::string& name) {
    std::ifstream file(SOURCES "/" + name, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

/// The names of a record's fields and what the public header says of them.
std::vector<FieldRow> FieldsInHeader(const std::string& header, const std::string& record) {
    std::vector<FieldRow> fields;
    const std::size_t begin = header.find("typedef struct " + record + " {");
    if (begin == std::string::npos) return fields;
    std::istringstream lines(header.substr(begin, header.find("\n}", begin) - begin));
    const std::regex pattern(R"(\s*int32_t (\w+) .*?;(?:\s*///< (.*))?)");
    std::smatch match;
    for (std::string line; std::getline(lines, line);) {
        if (!std::regex_match(line, match, pattern)) continue;
        FieldRow field;
        field.name = match[1];
        field.offset = fields.size() * sizeof(std::int32_t);
        field.meaning = match[2];
        fields.push_back(field);
    }
    return fields;
}

/// Opens a dialog, hands it to a function on its own thread, and closes it.
class OpenDialog {
public:
    OpenDialog(EffectId effect, void* record, const std::function<void(CRecordDlg&)>& look) {
        s_look = look;
        RecordingHost host(effect);
        IMediaHost* pointer = &host;
        const UINT_PTR timer = ::SetTimer(nullptr, 0, USER_TIMER_MINIMUM, &OpenDialog::OnTimer);
        ::ShowSettingsDialog(&pointer, effect, 640, 480, 640, 480, record);
        ::KillTimer(nullptr, timer);
    }

private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) {
        auto* const dialog = static_cast<CRecordDlg*>(CWnd::FromHandlePermanent(::GetActiveWindow()));
        if (!dialog || !s_look) return;
        s_look(*dialog);
        s_look = nullptr;
        dialog->PostMessage(WM_CLOSE);
    }

    inline static std::function<void(CRecordDlg&)> s_look;
};

/// Lets the walker read a dialog's list.
struct Reader : CSkinDialog {
    static const std::vector<Entry>& ControlsOf(const CSkinDialog& dialog) { return (dialog.*&Reader::Controls)(); }
};

bool HasRole(const CSkinControl* control, std::initializer_list<LONG> roles) {
    return control && std::find(roles.begin(), roles.end(), control->Facts().role) != roles.end();
}

/// Null for a control of another class.
const CSkinStatic* AsLabel(const CSkinControl* control) {
    return HasRole(control, {ROLE_SYSTEM_STATICTEXT}) ? static_cast<const CSkinStatic*>(control) : nullptr;
}
CSkinCheckBox* AsBox(CSkinControl* control) {
    const bool isBox = HasRole(control, {ROLE_SYSTEM_CHECKBUTTON, ROLE_SYSTEM_RADIOBUTTON});
    return isBox ? static_cast<CSkinCheckBox*>(control) : nullptr;
}
const CSkinSlider* AsSlider(const CSkinControl* control) {
    return HasRole(control, {ROLE_SYSTEM_SLIDER}) ? static_cast<const CSkinSlider*>(control) : nullptr;
}

/// What stands to the left of a control, or else was added just before it.
std::string LabelOf(const CRecordDlg& dialog, const CSkinControl& control, const std::string& before) {
    const CRect bounds = control.Bounds();
    const CSkinStatic* nearest = nullptr;
    for (const auto& entry : Reader::ControlsOf(dialog)) {
        const auto* const label = AsLabel(entry.control);
        if (!label || label->Text().IsEmpty()) continue;
        const CRect place = label->Bounds();
        if (std::abs(place.top - bounds.top) > 5 || place.right > bounds.left + 5 || bounds.left - place.right > 60)
            continue;
        if (!nearest || place.right > nearest->Bounds().right) nearest = label;
    }
    return nearest ? Utf8(nearest->Text()) : before;
}

/// The controls that the user works with.
std::map<const CSkinControl*, Control> ReadControls(const CRecordDlg& dialog, std::vector<Control>& inOrder) {
    std::map<const CSkinControl*, Control> controls;
    std::string label;
    for (const auto& [control, help, place] : Reader::ControlsOf(dialog)) {
        if (const auto* const text = AsLabel(control)) {
            label = Utf8(text->Text());
            continue;
        }
        if (!help) continue;  // The frame's buttons.
        Control facts;
        facts.help = Utf8(help);
        const auto* const slider = AsSlider(control);
        const auto* const item = slider ? nullptr : static_cast<const CSkinItem*>(control);
        facts.id = item ? item->Id() : static_cast<UINT>(slider->GetDlgCtrlID());
        const bool isNamedByLabel =
            !item || HasRole(item, {ROLE_SYSTEM_TEXT, ROLE_SYSTEM_COMBOBOX}) || item->Text().IsEmpty();
        facts.label = isNamedByLabel ? LabelOf(dialog, *control, label) : Utf8(item->Text());
        label = facts.label;  // A box may stand in the place of the next one's label.
        controls[control] = facts;
        inOrder.push_back(facts);
    }
    return controls;
}

/// Finds the boxes that change a field which no control has to itself.
void ReadChoices(const CRecordDlg& dialog, const std::map<const CSkinControl*, Control>& controls,
                 const CRecordDlg::BoundField& bound, FieldRow& field) {
    const auto& [record, binding] = bound;
    record.value = std::numeric_limits<int>::min();  // No choice: none of the boxes is checked.
    binding.set(record.value);
    const int none = binding.get();
    for (const auto& entry : Reader::ControlsOf(dialog)) {
        auto* const box = AsBox(entry.control);
        if (!box) continue;
        const bool wasChecked = box->IsChecked();
        box->SetChecked(true);
        if (binding.get() != none) {
            field.choices.push_back({binding.get(), controls.at(box)});
            field.choicesAddUp = !HasRole(box, {ROLE_SYSTEM_RADIOBUTTON});
        }
        box->SetChecked(wasChecked);
    }
    record.value = record.standard;
    binding.set(record.standard);
}

void ReadDialog(CRecordDlg& dialog, const std::int32_t* record, EffectPage& page) {
    const auto controls = ReadControls(dialog, page.controls);
    for (const auto& [bound, binding] : dialog.Fields()) {
        FieldRow& field = page.fields.at(static_cast<std::size_t>(&bound.value - record));
        EXPECT_EQ(field.standard, bound.standard) << page.name << '.' << field.name;
        const auto found = controls.find(binding.control);
        if (found != controls.end()) {
            field.control = found->second;
        } else {
            ReadChoices(dialog, controls, {bound, binding}, field);
            EXPECT_FALSE(field.choices.empty()) << page.name << '.' << field.name << " has no control";
        }
        if (AsSlider(binding.control)) {
            field.hasRange = true;
            binding.set(std::numeric_limits<int>::min() / 2);
            field.min = binding.get();
            binding.set(std::numeric_limits<int>::max() / 2);
            field.max = binding.get();
            binding.set(bound.standard);
        } else if (AsBox(binding.control)) {
            field.hasRange = true;
            field.max = 1;
        } else if (HasRole(binding.control, {ROLE_SYSTEM_COMBOBOX})) {
            field.hasRange = true;
            for (int row = 0; binding.set(row), binding.get() == row; ++row) field.max = row;
            binding.set(bound.standard);
        }
        field.isColor = HasRole(binding.control, {ROLE_SYSTEM_GRAPHIC});
    }
}

/// What a push sent: the names and values of the calls as the demo's filter notes them, and their slots.
struct Push {
    std::vector<Setter> setters;
    std::vector<std::vector<std::string>> values;
};

/// The place of a setter in the interface's function table: calls it on an object whose functions tell theirs.
template <typename Interface, typename Parameter>
class SlotOf {
public:
    explicit SlotOf(HRESULT (STDMETHODCALLTYPE Interface::*setter)(Parameter)) {
        const auto* const* object = kTable.data();
        m_slot = (reinterpret_cast<Interface*>(&object)->*setter)(Parameter{});
    }
    operator int() const { return m_slot; }

private:
    template <int Slot>
    static HRESULT STDMETHODCALLTYPE Tell(void*, Parameter) {
        return Slot;
    }
    template <int... Slots>
    static std::array<const void*, sizeof...(Slots)> Table(std::integer_sequence<int, Slots...>) {
        return {reinterpret_cast<const void*>(&Tell<Slots>)...};
    }
    inline static const auto kTable = Table(std::make_integer_sequence<int, 64>());

    HRESULT m_slot;
};

template <typename Settings>
Push PushOf(EffectId effect, const Settings& settings) {
    using namespace effect_settings;
    using Properties = typename FilterOf<Settings>::Properties;
    Push push;
    const auto filter = MakeFilter(effect, [&push](const std::string& line) {
        const std::size_t open = line.find('(');
        push.setters.back().name = line.substr(7, open - 7);
        std::istringstream values(line.substr(open + 1, line.size() - open - 2));
        for (std::string value; std::getline(values, value, ',');) push.values.back().push_back(value);
    });
    Properties* properties = nullptr;
    filter->QueryInterface(FilterOf<Settings>::PropertiesId(), reinterpret_cast<void**>(&properties));
    const auto send = [&](auto setter, const auto& value) {
        push.setters.push_back({SlotOf(setter), {}});
        push.values.emplace_back();
        (properties->*setter)(value);
    };
    effect_settings::Push(send, settings, {{640, 480}, {640, 480}});
    properties->Release();
    return push;
}

/// The names of what a setter takes: its parameter, or the members of its structure.
std::vector<std::string> ParametersOf(const std::string& header, const std::string& effect, const std::string& setter) {
    const std::regex declaration("STDMETHODCALLTYPE " + setter + R"(\((\w+) (\w+)\) = 0)");
    std::smatch found;
    const std::size_t own = header.find("struct IEffect" + effect + " ");
    const std::string body = header.substr(own, header.find("\n};", own) - own);
    if (!std::regex_search(body, found, declaration) && !std::regex_search(header, found, declaration)) return {};
    if (found[1] == "LONG" || found[1] == "VARIANT_BOOL") return {found[2]};
    const std::size_t begin = header.find("struct " + found[1].str() + " {");
    const std::string members = header.substr(begin, header.find("\n};", begin) - begin);
    const std::regex member(R"(int32_t (\w+))");
    std::vector<std::string> names;
    for (std::sregex_iterator next(members.begin(), members.end(), member), end; next != end; ++next) {
        names.push_back((*next)[1]);
    }
    return names;
}

/// Changes each field and looks which of the values that are sent follows it.
template <typename Settings>
void ReadPush(EffectPage& page, const std::string& header) {
    Settings usual;
    if constexpr (requires { usual.areaEnabled; }) {
        usual.left = 10;
        usual.top = 20;
        usual.right = 300;
        usual.bottom = 200;
    }
    const Push before = PushOf(page.id, usual);
    page.push = before.setters;
    for (FieldRow& field : page.fields) {
        for (const std::int32_t change : {1, -1, 90}) {
            Settings changed = usual;
            reinterpret_cast<std::int32_t*>(&changed)[field.offset / sizeof(std::int32_t)] += change;
            const Push after = PushOf(page.id, changed);
            for (std::size_t call = 0; call < before.setters.size() && field.setter.name.empty(); ++call) {
                // Off, Video Rotation sends the same values in another order.
                if (after.setters[call].name != before.setters[call].name) continue;
                const auto [old, now] =
                    std::mismatch(before.values[call].begin(), before.values[call].end(), after.values[call].begin());
                if (old == before.values[call].end()) continue;
                field.setter = before.setters[call];
                field.parameter = ParametersOf(header, page.name, field.setter.name)
                                      .at(static_cast<std::size_t>(old - before.values[call].begin()));
            }
        }
    }
}

template <EffectId Id>
EffectPage PageOf(const std::string& name, const std::string& header) {
    using Traits = EffectTraits<Id>;
    using Settings = typename Traits::Settings;
    EffectPage page{
        Id,
        Traits::kInfo,
        Traits::kFilterClass,
        Traits::kPropertyInterface,
        name,
        FieldsInHeader(header, name + "Settings"),
        {},
        {}};
    EXPECT_EQ(page.fields.size() * sizeof(std::int32_t), sizeof(Settings)) << name;
    Settings record;
    std::vector<std::int32_t> defaults(sizeof(record) / sizeof(std::int32_t));
    std::memcpy(defaults.data(), &record, sizeof(record));
    for (std::size_t i = 0; i < page.fields.size(); ++i) page.fields[i].standard = defaults[i];
    bool looked = false;
    const OpenDialog open(Id, defaults.data(), [&](CRecordDlg& dialog) {
        ReadDialog(dialog, defaults.data(), page);
        looked = true;
    });
    EXPECT_TRUE(looked) << name;
    ReadPush<Settings>(page, ReadFile("include/effect_settings/effect_filters.h"));
    return page;
}

std::vector<EffectPage> AllPages() {
    const std::string header = ReadFile("include/effect_settings/effect_settings.h");
    std::vector<EffectPage> pages;
#define PAGE(name, number) pages.push_back(PageOf<EffectId::name>(#name, header));
    EFFECT_SETTINGS_EFFECTS(PAGE)
    return pages;
}

/// "AutoContrast" in words, between a separator.
std::string Words(const std::string& name, char separator) {
    std::string words;
    for (const char character : name) {
        if (character >= 'A' && character <= 'Z' && !words.empty()) words += separator;
        words += character;
    }
    return words;
}

std::string PictureOf(const EffectPage& page) {
    std::string name = Words(page.name, '-');
    for (char& character : name) character = static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
    return "gallery/" + name + ".png";
}

std::string Quoted(const std::string& text) {
    std::string quoted = "\"";
    for (const char character : text) {
        if (character == '"' || character == '\\') quoted += '\\';
        quoted += character;
    }
    return quoted + '"';
}

std::string Json(const std::vector<EffectPage>& pages) {
    std::ostringstream out;
    out << "{\n  \"video\": {\"width\": 640, \"height\": 480},\n  \"effects\": [\n";
    for (const EffectPage& page : pages) {
        const EffectInfo& info = page.info;
        out << "    {\n      \"id\": " << static_cast<int>(page.id) << ",\n      \"name\": " << Quoted(page.name)
            << ",\n      \"title\": " << Quoted(Utf8(info.title)) << ",\n      \"kind\": "
            << (info.chain == ChainKind::Audio ? "\"audio\"" : "\"video\"") << ",\n      \"width\": " << info.width
            << ",\n      \"height\": " << info.height << ",\n      \"description\": " << Quoted(Utf8(info.description))
            << ",\n      \"picture\": " << Quoted(PictureOf(page))
            << ",\n      \"filter\": {\"class\": " << Quoted(TextOf(page.filterClass))
            << ", \"moniker\": " << Quoted(Utf8(MonikerOf(page.filterClass, info.chain)))
            << ", \"interface\": " << Quoted("IEffect" + page.name)
            << ", \"interfaceId\": " << Quoted(TextOf(page.propertyInterface)) << ",\n                 \"push\": [";
        for (const Setter& setter : page.push) {
            out << (&setter == &page.push.front() ? "" : ", ") << "{\"slot\": " << setter.slot
                << ", \"name\": " << Quoted(setter.name) << '}';
        }
        out << "]},\n      \"record\": {\n        \"type\": " << Quoted(page.name + "Settings")
            << ",\n        \"size\": " << 4 * page.fields.size() << ",\n        \"fields\": [";
        const char* separator = "\n";
        for (const FieldRow& field : page.fields) {
            out << separator << "          {\"name\": " << Quoted(field.name) << ", \"offset\": " << field.offset
                << ", \"default\": " << field.standard;
            if (field.hasRange) out << ", \"min\": " << field.min << ", \"max\": " << field.max;
            out << ", \"meaning\": " << Quoted(field.meaning);
            if (field.control.id) out << ", \"control\": " << field.control.id;
            if (!field.setter.name.empty()) {
                out << ", \"setter\": {\"slot\": " << field.setter.slot << ", \"name\": " << Quoted(field.setter.name)
                    << ", \"parameter\": " << Quoted(field.parameter) << '}';
            }
            if (!field.choices.empty()) out << (field.choicesAddUp ? ", \"bits\": [" : ", \"choices\": [");
            for (const Choice& choice : field.choices) {
                out << (&choice == &field.choices.front() ? "" : ", ") << "{\"value\": " << choice.value
                    << ", \"label\": " << Quoted(choice.control.label) << ", \"control\": " << choice.control.id << '}';
            }
            out << (field.choices.empty() ? "}" : "]}");
            separator = ",\n";
        }
        out << "\n        ]\n      },\n      \"controls\": [";
        separator = "\n";
        for (const Control& control : page.controls) {
            out << separator << "        {\"id\": " << control.id << ", \"label\": " << Quoted(control.label)
                << ", \"help\": " << Quoted(control.help) << '}';
            separator = ",\n";
        }
        out << "\n      ]\n    }" << (&page == &pages.back() ? "\n" : ",\n");
    }
    out << "  ]\n}\n";
    return out.str();
}

std::string DefaultOf(const FieldRow& field) {
    if (!field.isColor) return std::to_string(field.standard);
    std::ostringstream text;
    text << "0x" << std::hex << std::setw(6) << std::setfill('0') << field.standard;
    return text.str();
}

std::string Markdown(const std::vector<EffectPage>& pages) {
    std::ostringstream out;
    out << "# The thirty effects\n\n"
           "Made by `scripts/write-effect-pages` from the library itself; [effects.json](effects.json) says the same "
           "for "
           "programs, with the help text of every control. All fields are 32-bit integers. Ranges are those that the "
           "dialog "
           "keeps to, here for a video of 640 x 480 pixels; what the fields mean is said in full in "
           "[effect_settings.h](../include/effect_settings/effect_settings.h). A setter is that of the filter which "
           "gets "
           "the field, with its slot and its parameter; pushes are those of a usable area and of an effect that is on, "
           "and [apply_settings.h](../include/effect_settings/apply_settings.h) has them as code.\n";
    for (const EffectPage& page : pages) {
        const EffectInfo& info = page.info;
        out << "\n## " << static_cast<int>(page.id) << ". " << Words(page.name, ' ') << "\n\n`" << page.name
            << "Settings`, " << 4 * page.fields.size() << " bytes; `EffectId::" << page.name << "`; the dialog is "
            << info.width << " x " << info.height << " pixels ([picture](" << PictureOf(page)
            << ")). Its filter, in the " << (info.chain == ChainKind::Audio ? "audio" : "video") << " chain, is `"
            << TextOf(page.filterClass) << "` and answers for `IEffect" << page.name << "`, `"
            << TextOf(page.propertyInterface)
            << "`.\n\n| Field | Offset | Default | Range | Meaning | Control | Setter "
               "|\n|---|---|---|---|---|---|---|\n";
        for (const FieldRow& field : page.fields) {
            out << "| " << field.name << " | " << field.offset << " | " << DefaultOf(field) << " | ";
            if (field.hasRange) out << field.min << " to " << field.max;
            out << " | " << field.meaning << " | " << field.control.label;
            if (field.choicesAddUp) out << "sum of ";
            for (const Choice& choice : field.choices) {
                out << (&choice == &field.choices.front() ? "" : ", ") << choice.value << ": " << choice.control.label;
            }
            out << " | ";
            if (!field.setter.name.empty()) {
                out << '`' << field.setter.name << "` (" << field.setter.slot << "), " << field.parameter;
            }
            out << " |\n";
        }
        out << "\nOne push: ";
        for (const Setter& setter : page.push)
            out << (&setter == &page.push.front() ? "`" : ", `") << setter.name << '`';
        out << ".\n";
    }
    return out.str();
}

TEST(EffectPages, TellWhatTheDialogsHave) {
    const std::vector<EffectPage> pages = AllPages();
    const std::map<std::string, std::string> made = {
        {"docs/effects.json", Json(pages)}, {"docs/effects.md", Markdown(pages)}};
    for (const auto& [name, text] : made) {
        if (std::getenv("EFFECT_SETTINGS_WRITE_PAGES")) {
            std::ofstream(SOURCES "/" + name, std::ios::binary) << text;
        }
        // Not compared by a macro, which would print both.
        EXPECT_TRUE(ReadFile(name) == text) << name << " is not what the library has; run scripts/write-effect-pages.";
    }
}

}  // namespace
