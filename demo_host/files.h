// Files, read whole and written whole.
#pragma once

#include <optional>
#include <string>

bool FileExists(const std::wstring& file);
/// Nothing when the file is not there or can't be read.
std::optional<std::string> ReadWholeFile(const std::wstring& file);
/// Writes beside the file first and takes its place then: whatever happens, the old contents or the new ones are there.
/// False, with the old contents, when that fails.
bool WriteWholeFile(const std::wstring& file, const std::string& contents);
