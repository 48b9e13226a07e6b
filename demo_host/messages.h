// What the demo tells people on stderr.
#pragma once

#include <string>

/// The C library's own conversion of wide text ends at the first letter that its locale lacks.
std::string Utf8(const std::wstring& text);
/// Prints a message in UTF-8.
void Complain(const std::string& what);
