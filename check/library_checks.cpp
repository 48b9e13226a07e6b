#include "check/library_checks.h"

#include <windows.h>

#include <objidl.h>

#include <algorithm>
#include <vector>

#include <gdiplus.h>

namespace {

using std::max;
using std::min;

std::string VersionOf(const wchar_t* path) {
    DWORD unused = 0;
    std::vector<BYTE> data(GetFileVersionInfoSizeW(path, &unused));
    VS_FIXEDFILEINFO* info = nullptr;
    UINT size = 0;
    if (data.empty() || !GetFileVersionInfoW(path, 0, static_cast<DWORD>(data.size()), data.data()) ||
        !VerQueryValueW(data.data(), L"\\", reinterpret_cast<void**>(&info), &size)) {
        return {};
    }
    return std::to_string(HIWORD(info->dwFileVersionMS)) + "." + std::to_string(LOWORD(info->dwFileVersionMS)) + "." +
           std::to_string(HIWORD(info->dwFileVersionLS));
}

std::wstring PictureBesideProgram() {
    std::wstring path(32768, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path.substr(0, path.find_last_of(L'\\') + 1) + L"img\\btn\\dia-close.png";
}

}  // namespace

Findings CheckLibrary(HMODULE library, const wchar_t* path) {
    Findings findings;
    findings.push_back(
        {GetProcAddress(library, "ShowSettingsDialog") != nullptr, "export", "ShowSettingsDialog is exported by name"});
    const std::string version = VersionOf(path);
    findings.push_back(
        {!version.empty(), "version",
         version.empty() ? "the file has no version" : version + ", " + std::to_string(8 * sizeof(void*)) + " bits"});

    ULONG_PTR token = 0;
    const Gdiplus::GdiplusStartupInput input;
    const bool started = Gdiplus::GdiplusStartup(&token, &input, nullptr) == Gdiplus::Ok;
    findings.push_back({started, "GDI+", started ? "starts" : "does not start"});
    if (!started) return findings;
    {
        Gdiplus::Bitmap picture(PictureBesideProgram().c_str());
        const bool readable = picture.GetLastStatus() == Gdiplus::Ok;
        findings.push_back(
            {readable, "picture",
             readable ? "img\\btn\\dia-close.png, " + std::to_string(picture.GetWidth()) + " x " +
                            std::to_string(picture.GetHeight()) + " pixels"
                      : "img\\btn\\dia-close.png is not in the program's folder: the close button has no picture"});
        const Gdiplus::FontFamily family(L"Arial");
        findings.push_back(
            {family.IsAvailable() != FALSE, "font",
             family.IsAvailable() ? "Arial is there" : "GDI+ finds no Arial: titles and texts are missing"});
    }
    Gdiplus::GdiplusShutdown(token);
    return findings;
}
