#include "skin/fonts.h"

#include <map>
#include <memory>
#include <new>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

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
    std::map<Gdiplus::ARGB, Gdiplus::SolidBrush> brushes;
    std::map<Gdiplus::ARGB, Gdiplus::Pen> pens;
    std::map<TextLayout, Gdiplus::StringFormat> formats;
    std::map<std::wstring, Gdiplus::Bitmap> pictures;
    std::map<std::wstring, std::unique_ptr<COffScreen>> drawn;
};

// Dialogs may be open on several threads.
SRWLOCK g_lock = SRWLOCK_INIT;
std::unique_ptr<SharedDrawing> g_shared;

class CSharedLock {
public:
    CSharedLock() { ::AcquireSRWLockExclusive(&g_lock); }
    ~CSharedLock() { ::ReleaseSRWLockExclusive(&g_lock); }
    CSharedLock(const CSharedLock&) = delete;
    CSharedLock& operator=(const CSharedLock&) = delete;
};

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
    const CSharedLock lock;
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
    const CSharedLock lock;
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

void CopyAllButCorners(HDC dc, CSize size, HDC picture) {
    for (const CRect& part : {CRect(1, 0, size.cx - 1, size.cy), CRect(0, 1, 1, size.cy - 1),
                              CRect(size.cx - 1, 1, size.cx, size.cy - 1)}) {
        CopyPicture(dc, part, picture, part.TopLeft());
    }
}

bool CopyKept(HDC dc, CSize size, const std::wstring& key) {
    const CSharedLock lock;
    const auto found = Shared().drawn.find(key);
    if (found == Shared().drawn.end()) return false;
    CopyAllButCorners(dc, size, found->second->Dc());
    return true;
}

void SetUp(Gdiplus::StringFormat& format, TextLayout layout) {
    if (layout == TextLayout::Wrapped) return;
    format.SetLineAlignment(Gdiplus::StringAlignmentCenter);
    if (layout == TextLayout::Centred || layout == TextLayout::Tip) format.SetAlignment(Gdiplus::StringAlignmentCenter);
    if (layout == TextLayout::Tip) {
        format.SetHotkeyPrefix(Gdiplus::HotkeyPrefixShow);
        format.SetFormatFlags(
            Gdiplus::StringFormatFlagsMeasureTrailingSpaces | Gdiplus::StringFormatFlagsNoFitBlackBox |
            Gdiplus::StringFormatFlagsNoWrap | Gdiplus::StringFormatFlagsNoClip);
        format.SetTrimming(Gdiplus::StringTrimmingNone);
        return;
    }
    format.SetFormatFlags(Gdiplus::StringFormatFlagsNoWrap);
    if (layout != TextLayout::Title) format.SetTrimming(Gdiplus::StringTrimmingEllipsisCharacter);
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

const Gdiplus::SolidBrush* SharedBrush(const Gdiplus::Color& color) {
    const Gdiplus::ARGB key = color.GetValue();
    return FindOrMake(&SharedDrawing::brushes, key, [&](auto& map) { return map.try_emplace(key, color).first; });
}

const Gdiplus::Pen* SharedPen(const Gdiplus::Color& color) {
    const Gdiplus::ARGB key = color.GetValue();
    return FindOrMake(&SharedDrawing::pens, key, [&](auto& map) { return map.try_emplace(key, color, 1.0F).first; });
}

const Gdiplus::StringFormat* FormatOf(TextLayout layout) {
    return FindOrMake(&SharedDrawing::formats, layout, [&](auto& map) {
        const auto made = map.try_emplace(layout).first;
        SetUp(made->second, layout);
        return made;
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

void DrawKept(HDC dc, CSize size, const std::wstring& key, const std::function<void(HDC)>& paint) {
    if (CopyKept(dc, size, key)) return;
    auto picture = std::make_unique<COffScreen>();
    if (!picture->Fit(size)) return;
    const unsigned failed = FailedDrawings();
    paint(picture->Dc());
    CopyAllButCorners(dc, size, picture->Dc());
    if (FailedDrawings() != failed) return;
    const CSharedLock lock;
    Shared().drawn.try_emplace(key, std::move(picture));
}

void ReleaseSharedDrawing() {
    ReleaseOffScreen();
    const CSharedLock lock;
    g_shared.reset();
}
