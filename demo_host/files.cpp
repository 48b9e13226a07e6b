#include "demo_host/files.h"

#include <memory>

#include <windows.h>

namespace {

struct CloseFile {
    void operator()(HANDLE file) const { ::CloseHandle(file); }
};
using FileHandle = std::unique_ptr<void, CloseFile>;

FileHandle OpenFileFor(const std::wstring& name, DWORD access, DWORD creation) {
    FileHandle file(
        ::CreateFileW(name.c_str(), access, FILE_SHARE_READ, nullptr, creation, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (file.get() == INVALID_HANDLE_VALUE) static_cast<void>(file.release());
    return file;
}

bool WriteAll(const std::wstring& name, const std::string& contents) {
    const FileHandle file = OpenFileFor(name, GENERIC_WRITE, CREATE_ALWAYS);
    DWORD written = 0;
    return file && contents.size() <= MAXDWORD &&
           ::WriteFile(file.get(), contents.data(), static_cast<DWORD>(contents.size()), &written, nullptr) &&
           written == contents.size() && ::FlushFileBuffers(file.get());
}

}  // namespace

bool FileExists(const std::wstring& name) { return ::GetFileAttributesW(name.c_str()) != INVALID_FILE_ATTRIBUTES; }

std::optional<std::string> ReadWholeFile(const std::wstring& name) {
    const FileHandle file = OpenFileFor(name, GENERIC_READ, OPEN_EXISTING);
    LARGE_INTEGER size{};
    if (!file || !::GetFileSizeEx(file.get(), &size) || size.QuadPart > MAXINT32) return std::nullopt;
    std::string contents(static_cast<std::size_t>(size.QuadPart), '\0');
    DWORD read = 0;
    if (!::ReadFile(file.get(), contents.data(), static_cast<DWORD>(contents.size()), &read, nullptr) ||
        read != contents.size()) {
        return std::nullopt;
    }
    return contents;
}

bool WriteWholeFile(const std::wstring& name, const std::string& contents) {
    // Two programs that write the same file at once do not share what is beside it.
    const std::wstring beside = name + L"." + std::to_wstring(::GetCurrentProcessId()) + L".tmp";
    if (WriteAll(beside, contents) &&
        ::MoveFileExW(beside.c_str(), name.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
        return true;
    }
    ::DeleteFileW(beside.c_str());
    return false;
}
