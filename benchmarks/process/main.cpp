// The helper of the benchmarks for what has to be measured in a fresh process. It imports as little as it can.
// load FILE: how long LoadLibrary takes. open FILE EFFECT and twin FILE: the first and the tenth opening of a dialog, all
// in milliseconds, and the peak of memory in MB. text: how long GDI+'s first text takes alone, and the memory for it.
#include <array>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>

#include <windows.h>

#include <psapi.h>

#include "benchmarks/opened_dialog.h"
#include "benchmarks/samples.h"
#include "benchmarks/stub_host.h"
#include "benchmarks/twin.h"
#include "effect_settings/effect_settings.h"
#include "skin/gdi_plus.h"

namespace {

constexpr int kOpenings = 10;

int Load(const wchar_t* file) {
    const double began = NowMs();
    const HMODULE library = ::LoadLibraryW(file);
    std::printf("%f\n", NowMs() - began);
    if (!library) return 1;
    ::FreeLibrary(library);
    return 0;
}

double PeakMb() {
    PROCESS_MEMORY_COUNTERS memory{};
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &memory, sizeof(memory));
    return static_cast<double>(memory.PeakWorkingSetSize) / (1024 * 1024);
}

template <typename Function>
Function* Find(HMODULE library, const char* name, Function*) {
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(::GetProcAddress(library, name)));
}

int DrawFirstText() {
    namespace Api = Gdiplus::DllExports;
    const double peak = PeakMb();
    const double began = NowMs();
    // Not imported: the other measurements need a process without it.
    // cppcheck-suppress leakReturnValNotUsed
    ::LoadLibraryW(L"gdiplus.dll");
    const HMODULE library = ::GetModuleHandleW(L"gdiplus.dll");
    const Gdiplus::GdiplusStartupInput input;
    ULONG_PTR token = 0;
    Gdiplus::GpFontFamily* family = nullptr;
    Gdiplus::GpFont* font = nullptr;
    Gdiplus::GpSolidFill* brush = nullptr;
    Gdiplus::GpGraphics* graphics = nullptr;
    const HDC screen = ::GetDC(nullptr);
    const HDC memory = ::CreateCompatibleDC(screen);
    ::SelectObject(memory, ::CreateCompatibleBitmap(screen, 100, 20));
    const Gdiplus::RectF area(0, 0, 100, 20);
    Find(library, "GdiplusStartup", &Gdiplus::GdiplusStartup)(&token, &input, nullptr);
    Find(library, "GdipCreateFontFamilyFromName", &Api::GdipCreateFontFamilyFromName)(L"Arial", nullptr, &family);
    Find(library, "GdipCreateFont", &Api::GdipCreateFont)(family, 13, 0, Gdiplus::UnitPixel, &font);
    Find(library, "GdipCreateSolidFill", &Api::GdipCreateSolidFill)(0xFFFFFFFF, &brush);
    Find(library, "GdipCreateFromHDC", &Api::GdipCreateFromHDC)(memory, &graphics);
    const Gdiplus::GpStatus drawn =
        Find(library, "GdipDrawString", &Api::GdipDrawString)(graphics, L"Enable", 6, font, &area, nullptr, brush);
    ::GdiFlush();
    std::printf("%f\n%f\n", NowMs() - began, PeakMb() - peak);
    return drawn == Gdiplus::Ok ? 0 : 1;
}

int OpenTenTimes(const std::function<void()>& open) {
    for (int opening = 1; opening <= kOpenings; ++opening) {
        const double began = NowMs();
        double painted = 0;
        WithDialog(open, [&](HWND dialog) {
            ::RedrawWindow(dialog, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
            ::GdiFlush();
            painted = NowMs();
            ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
        });
        if (opening == 1 || opening == kOpenings) std::printf("%f\n", painted - began);
    }
    std::printf("%f\n", PeakMb());
    return 0;
}

int OpenLibrary(const wchar_t* file, EffectId effect) {
    const HMODULE library = ::LoadLibraryW(file);
    const auto show = reinterpret_cast<decltype(&ShowSettingsDialog)>(
        reinterpret_cast<void*>(::GetProcAddress(library, "ShowSettingsDialog")));
    if (!show) return 1;
    StubHost host;
    std::array<std::int32_t, 64> record;
    record.fill(1);
    IMediaHost* player = &host;
    return OpenTenTimes([&] { show(&player, effect, 640, 480, 640, 480, record.data()); });
}

int Usage() {
    std::fputs("usage: bench_process load FILE | open FILE EFFECT | twin FILE | text\n", stderr);
    return 2;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    const std::wstring what = count > 1 ? arguments[1] : L"";
    if (what == L"text") return DrawFirstText();
    if (count < 3) return Usage();
    if (what == L"load") return Load(arguments[2]);
    if (what == L"open" && count > 3) return OpenLibrary(arguments[2], static_cast<EffectId>(::_wtoi(arguments[3])));
    Twin twin;
    if (what == L"twin" && twin.Read(arguments[2])) return OpenTenTimes([&] { twin.Show(); });
    return Usage();
}
