#include "benchmarks/library.h"

#include <array>
#include <cstdint>
#include <cstring>

#include "skin/gdi_plus.h"

Drawn g_drawn;

namespace {

BOOL WINAPI CountedBitBlt(HDC to, int x, int y, int width, int height, HDC from, int fromX, int fromY, DWORD code) {
    if (const HWND window = ::WindowFromDC(to)) g_drawn.paints.push_back({window, {x, y}});
    return ::BitBlt(to, x, y, width, height, from, fromX, fromY, code);
}

Gdiplus::GpStatus WINGDIPAPI CountedDrawString(Gdiplus::GpGraphics* graphics, const WCHAR* text, INT length,
                                               const Gdiplus::GpFont* font, const Gdiplus::RectF* area,
                                               const Gdiplus::GpStringFormat* format, const Gdiplus::GpBrush* brush) {
    ++g_drawn.texts;
    return Gdiplus::DllExports::GdipDrawString(graphics, text, length, font, area, format, brush);
}

template <typename Type>
Type* At(HMODULE module, std::uintptr_t offset) {
    return reinterpret_cast<Type*>(reinterpret_cast<std::uintptr_t>(module) + offset);
}

/// Puts another function in the place of one that a module imports, by name.
void Patch(HMODULE module, const char* name, void* function) {
    const auto* headers = At<IMAGE_NT_HEADERS>(module, static_cast<DWORD>(At<IMAGE_DOS_HEADER>(module, 0)->e_lfanew));
    const DWORD imports = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    for (auto* library = At<IMAGE_IMPORT_DESCRIPTOR>(module, imports); library->Name; ++library) {
        auto* names = At<IMAGE_THUNK_DATA>(module, library->OriginalFirstThunk);
        auto* functions = At<IMAGE_THUNK_DATA>(module, library->FirstThunk);
        for (; names->u1.AddressOfData; ++names, ++functions) {
            if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal)) continue;
            const auto* imported = At<IMAGE_IMPORT_BY_NAME>(module, names->u1.AddressOfData);
            if (std::strcmp(reinterpret_cast<const char*>(imported->Name), name) != 0) continue;
            DWORD previous = 0;
            ::VirtualProtect(&functions->u1.Function, sizeof(void*), PAGE_READWRITE, &previous);
            functions->u1.Function = reinterpret_cast<std::uintptr_t>(function);
            ::VirtualProtect(&functions->u1.Function, sizeof(void*), previous, &previous);
        }
    }
}

void* AddressOf(const wchar_t* library, const char* name) {
    return reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(library), name));
}

}  // namespace

std::wstring FolderOfProgram() {
    wchar_t path[MAX_PATH] = {};
    ::GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::wstring file = path;
    return file.substr(0, file.find_last_of(L'\\') + 1);
}

Library::Library()
    : m_module(::LoadLibraryW((FolderOfProgram() + L"EffectSettings.dll").c_str())),
      m_show(m_module ? reinterpret_cast<decltype(m_show)>(
                            reinterpret_cast<void*>(::GetProcAddress(m_module, "ShowSettingsDialog")))
                      : nullptr) {}

Library::~Library() {
    if (m_module) ::FreeLibrary(m_module);
}

void Library::Show(EffectId effect) {
    std::array<std::int32_t, 64> record;
    record.fill(1);
    IMediaHost* player = &host;
    m_show(&player, effect, 640, 480, 640, 480, record.data());
}

void Library::StartCounting() {
    g_drawn = {};
    Patch(m_module, "BitBlt", reinterpret_cast<void*>(&CountedBitBlt));
    Patch(m_module, "GdipDrawString", reinterpret_cast<void*>(&CountedDrawString));
}

void Library::StopCounting() {
    Patch(m_module, "BitBlt", AddressOf(L"gdi32.dll", "BitBlt"));
    Patch(m_module, "GdipDrawString", AddressOf(L"gdiplus.dll", "GdipDrawString"));
}
