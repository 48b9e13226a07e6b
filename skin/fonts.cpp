#include "skin/fonts.h"

#include <map>
#include <memory>
#include <new>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "skin/kept_drawing.h"
#include "skin/lock.h"
#include "skin/off_screen.h"

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
    CFontHandle itemFont;
    CFontHandle tipFont;
    CFontHandle labelFont;
    // By value: GDI+'s own operator new gives null without memory, and its constructors write to it.
    std::map<CString, Gdiplus::FontFamily, FaceLess> families;
    std::map<FontKey, Gdiplus::Font> fonts;
    std::map<HFONT, Gdiplus::Font> matchingFonts;
    std::map<std::wstring, Gdiplus::Bitmap> pictures;
};

SRWLOCK g_lock = SRWLOCK_INIT;
std::unique_ptr<SharedDrawing> g_shared;

bool IsMade(const Gdiplus::FontFamily& family) { return family.GetLastStatus() == Gdiplus::Ok && family.IsAvailable(); }
template <typename Object>
bool IsMade(const Object& object) {
    return object.GetLastStatus() == Gdiplus::Ok;
}

SharedDrawing& Shared() {
    if (!g_shared) g_shared = std::make_unique<SharedDrawing>();
    return *g_shared;
}

/// Finds an object by its key or has `make` put it into the map; null, with nothing kept, when it can't be made.
template <typename Key, typename Object, typename Order, typename Make>
Object* FindOrMake(std::map<Key, Object, Order> SharedDrawing::*objects, const Key& key, Make make) {
    const CLock lock(g_lock);
    try {
        auto& map = Shared().*objects;
        if (const auto found = map.find(key); found != map.end()) return &found->second;
        const auto made = make(map);
        if (IsMade(made->second)) return &made->second;
        map.erase(made);
    } catch (const std::bad_alloc&) {
    }
    return nullptr;
}

HFONT FindOrMake(CFontHandle SharedDrawing::*font, int height, int width, int weight) {
    const CLock lock(g_lock);
    try {
        CFontHandle& handle = Shared().*font;
        if (!handle) handle = MakeFont(height, width, weight);
        return handle.Get();
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

CString AnyInstalledFamily() {
    WCHAR name[LF_FACESIZE] = {};
    Gdiplus::InstalledFontCollection installed;
    std::vector<Gdiplus::FontFamily> families(static_cast<std::size_t>((std::max)(installed.GetFamilyCount(), 0)));
    int found = 0;
    installed.GetFamilies(static_cast<INT>(families.size()), families.data(), &found);
    for (const Gdiplus::FontFamily& family : families) {
        if (family.IsAvailable() && family.IsStyleAvailable(Gdiplus::FontStyleRegular) &&
            family.GetFamilyName(name) == Gdiplus::Ok) {
            break;
        }
    }
    return CString(name);
}

CString GenericSansSerif() {
    WCHAR name[LF_FACESIZE] = {};
    Gdiplus::GpFontFamily* generic = nullptr;
    if (Gdiplus::DllExports::GdipGetGenericFontFamilySansSerif(&generic) == Gdiplus::Ok && generic) {
        Gdiplus::DllExports::GdipGetFamilyName(generic, name, LANG_NEUTRAL);
        Gdiplus::DllExports::GdipDeleteFontFamily(generic);
    }
    return CString(name);
}

bool IsInstalled(const CString& face) {
    const Gdiplus::FontFamily family(face);
    if (family.GetLastStatus() == Gdiplus::OutOfMemory) throw std::bad_alloc();
    return family.IsAvailable();
}

/// The name of the family that stands in for a face that is not there.
CString SubstituteFor(LPCWSTR face) {
    // The generic family may be missing too, hence the likely faces of machines without Arial.
    for (const CString& name : {CString(face), GenericSansSerif(), CString(L"Arial"), CString(L"Liberation Sans"),
                                CString(L"DejaVu Sans"), CString(L"Microsoft Sans Serif"), CString(L"Tahoma")}) {
        if (IsInstalled(name)) return name;
    }
    return AnyInstalledFamily();
}

}  // namespace

HFONT ItemFont() { return FindOrMake(&SharedDrawing::itemFont, 16, 6, FW_BOLD); }
HFONT TipFont() { return FindOrMake(&SharedDrawing::tipFont, 14, 6, FW_NORMAL); }
HFONT LabelFont() { return FindOrMake(&SharedDrawing::labelFont, 13, 0, FW_NORMAL); }

CString FaceOf(HFONT font) {
    LOGFONTW description{};
    ::GetObjectW(font, sizeof(description), &description);
    return CString(description.lfFaceName);
}

const Gdiplus::FontFamily* FontFamilyFor(LPCWSTR face) {
    const CString key(face);
    return FindOrMake(
        &SharedDrawing::families, key, [&](auto& map) { return map.try_emplace(key, SubstituteFor(face)).first; });
}

const Gdiplus::Font* TextFont(LPCWSTR face, float emPixels, Gdiplus::FontStyle style) {
    const Gdiplus::FontFamily* family = FontFamilyFor(face);
    const FontKey key{face, emPixels, style};
    return FindOrMake(&SharedDrawing::fonts, key, [&](auto& map) {
        return map.try_emplace(key, family, emPixels, style, Gdiplus::UnitPixel).first;
    });
}

const Gdiplus::Font* MatchingFont(HFONT font) {
    LOGFONTW description{};
    if (!::GetObjectW(font, sizeof(description), &description)) return nullptr;
    if (const auto* family = FontFamilyFor(description.lfFaceName)) family->GetFamilyName(description.lfFaceName);
    return FindOrMake(&SharedDrawing::matchingFonts, font, [&](auto& map) {
        const CBorrowedDC screen(nullptr);
        return map.try_emplace(font, screen, &description).first;
    });
}

Gdiplus::Bitmap* SharedPicture(LPCWSTR file) {
    const std::wstring key(file);
    return FindOrMake(&SharedDrawing::pictures, key, [&](auto& map) {
        // A copy: the file is not to be kept open.
        Gdiplus::Image picture(file);
        const auto width = static_cast<INT>(picture.GetWidth());
        const auto height = static_cast<INT>(picture.GetHeight());
        const auto made = map.try_emplace(key, width, height, PixelFormat32bppARGB).first;
        Gdiplus::Graphics graphics(&made->second);
        const Gdiplus::Rect whole(0, 0, width, height);
        if (graphics.DrawImage(&picture, whole, 0, 0, width, height, Gdiplus::UnitPixel) != Gdiplus::Ok) {
            map.erase(made);
            throw std::bad_alloc();
        }
        return made;
    });
}

void ReleaseSharedDrawing() {
    ReleaseOffScreen();
    ReleaseKeptDrawings();
    const CLock lock(g_lock);
    g_shared.reset();
}
