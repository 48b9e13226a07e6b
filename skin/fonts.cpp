#include "skin/fonts.h"

#include <map>
#include <memory>
#include <tuple>
#include <vector>

namespace {

CFontHandle MakeFont(int height, int width, int weight) {
    LOGFONTW font{};
    font.lfHeight = height;
    font.lfWidth = width;
    font.lfWeight = weight;
    font.lfCharSet = DEFAULT_CHARSET;
    ::wcscpy_s(font.lfFaceName, L"Arial");
    return CFontHandle{::CreateFontIndirectW(&font)};
}

struct FontKey {
    CString face;
    float em;
    int style;

    bool operator<(const FontKey& other) const {
        if (const int order = face.CompareNoCase(other.face); order != 0) return order < 0;
        return std::tie(em, style) < std::tie(other.em, other.style);
    }
};

struct FaceLess {
    bool operator()(const CString& a, const CString& b) const { return a.CompareNoCase(b) < 0; }
};

struct SharedDrawing {
    CFontHandle itemFont = MakeFont(16, 6, FW_BOLD);
    CFontHandle tipFont = MakeFont(14, 6, FW_NORMAL);
    CFontHandle labelFont = MakeFont(13, 0, FW_NORMAL);
    std::map<CString, std::unique_ptr<Gdiplus::FontFamily>, FaceLess> families;
    std::map<FontKey, std::unique_ptr<Gdiplus::Font>> fonts;
    std::map<HFONT, std::unique_ptr<Gdiplus::Font>> matchingFonts;
    std::map<Gdiplus::ARGB, std::unique_ptr<Gdiplus::SolidBrush>> brushes;
    std::map<Gdiplus::ARGB, std::unique_ptr<Gdiplus::Pen>> pens;
    std::map<TextLayout, std::unique_ptr<Gdiplus::StringFormat>> formats;
};

std::unique_ptr<SharedDrawing> g_shared;

SharedDrawing& Shared() {
    if (!g_shared) g_shared = std::make_unique<SharedDrawing>();
    return *g_shared;
}

std::unique_ptr<Gdiplus::FontFamily> AnyInstalledFamily() {
    Gdiplus::InstalledFontCollection installed;
    std::vector<Gdiplus::FontFamily> families(static_cast<std::size_t>((std::max)(installed.GetFamilyCount(), 0)));
    int found = 0;
    installed.GetFamilies(static_cast<INT>(families.size()), families.data(), &found);
    for (const Gdiplus::FontFamily& family : families) {
        if (family.IsAvailable() && family.IsStyleAvailable(Gdiplus::FontStyleRegular)) {
            return std::unique_ptr<Gdiplus::FontFamily>(family.Clone());
        }
    }
    return std::make_unique<Gdiplus::FontFamily>();
}

std::unique_ptr<Gdiplus::FontFamily> FindFamily(LPCWSTR face) {
    // The generic sans serif family may be missing too, hence the likely faces of machines without Arial.
    for (const LPCWSTR name :
         {face, L"Arial", L"Liberation Sans", L"DejaVu Sans", L"Microsoft Sans Serif", L"Tahoma"}) {
        auto family = std::make_unique<Gdiplus::FontFamily>(name);
        if (family->IsAvailable()) return family;
        if (::wcscmp(name, face) != 0) continue;
        Gdiplus::GpFontFamily* generic = nullptr;
        if (Gdiplus::DllExports::GdipGetGenericFontFamilySansSerif(&generic) != Gdiplus::Ok || !generic) continue;
        WCHAR genericName[LF_FACESIZE] = {};
        Gdiplus::DllExports::GdipGetFamilyName(generic, genericName, LANG_NEUTRAL);
        Gdiplus::DllExports::GdipDeleteFontFamily(generic);
        auto sansSerif = std::make_unique<Gdiplus::FontFamily>(genericName);
        if (sansSerif->IsAvailable()) return sansSerif;
    }
    return AnyInstalledFamily();
}

}  // namespace

HFONT ItemFont() { return Shared().itemFont.Get(); }
HFONT TipFont() { return Shared().tipFont.Get(); }
HFONT LabelFont() { return Shared().labelFont.Get(); }

CString FaceOf(HFONT font) {
    LOGFONTW description{};
    ::GetObjectW(font, sizeof(description), &description);
    return CString(description.lfFaceName);
}

const Gdiplus::FontFamily& FontFamilyFor(LPCWSTR face) {
    auto& family = Shared().families[face];
    if (!family) family = FindFamily(face);
    return *family;
}

const Gdiplus::Font& TextFont(LPCWSTR face, float emPixels, Gdiplus::FontStyle style) {
    auto& font = Shared().fonts[FontKey{face, emPixels, style}];
    if (!font) font = std::make_unique<Gdiplus::Font>(&FontFamilyFor(face), emPixels, style, Gdiplus::UnitPixel);
    return *font;
}

const Gdiplus::Font& MatchingFont(HFONT gdiFont) {
    auto& font = Shared().matchingFonts[gdiFont];
    if (!font) {
        LOGFONTW description{};
        ::GetObjectW(gdiFont, sizeof(description), &description);
        FontFamilyFor(description.lfFaceName).GetFamilyName(description.lfFaceName);
        const CBorrowedDC screen(nullptr);
        font = std::make_unique<Gdiplus::Font>(screen, &description);
    }
    return *font;
}

const Gdiplus::SolidBrush& SharedBrush(const Gdiplus::Color& color) {
    auto& brush = Shared().brushes[color.GetValue()];
    if (!brush) brush = std::make_unique<Gdiplus::SolidBrush>(color);
    return *brush;
}

const Gdiplus::Pen& SharedPen(const Gdiplus::Color& color) {
    auto& pen = Shared().pens[color.GetValue()];
    if (!pen) pen = std::make_unique<Gdiplus::Pen>(color, 1.0F);
    return *pen;
}

const Gdiplus::StringFormat& FormatOf(TextLayout layout) {
    auto& format = Shared().formats[layout];
    if (format) return *format;
    format = std::make_unique<Gdiplus::StringFormat>();
    if (layout == TextLayout::Wrapped) return *format;
    format->SetLineAlignment(Gdiplus::StringAlignmentCenter);
    if (layout != TextLayout::LeftMiddle) format->SetAlignment(Gdiplus::StringAlignmentCenter);
    if (layout == TextLayout::Tip) {
        format->SetHotkeyPrefix(Gdiplus::HotkeyPrefixShow);
        format->SetFormatFlags(
            Gdiplus::StringFormatFlagsMeasureTrailingSpaces | Gdiplus::StringFormatFlagsNoFitBlackBox |
            Gdiplus::StringFormatFlagsNoWrap | Gdiplus::StringFormatFlagsNoClip);
        format->SetTrimming(Gdiplus::StringTrimmingNone);
    } else {
        format->SetFormatFlags(Gdiplus::StringFormatFlagsNoWrap);
        format->SetTrimming(Gdiplus::StringTrimmingEllipsisCharacter);
    }
    return *format;
}

void ReleaseSharedDrawing() { g_shared.reset(); }
