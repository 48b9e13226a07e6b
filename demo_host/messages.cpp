#include "demo_host/messages.h"

#include <cstdio>

#include <windows.h>

std::string Utf8(const std::wstring& text) {
    std::string bytes(3 * text.size(), '\0');  // No UTF-16 unit becomes more than three bytes.
    bytes.resize(static_cast<std::size_t>(::WideCharToMultiByte(
        CP_UTF8, 0, text.data(), static_cast<int>(text.size()), bytes.data(), static_cast<int>(bytes.size()), nullptr,
        nullptr)));
    return bytes;
}

void Complain(const std::string& what) { std::fprintf(stderr, "demo: %s\n", what.c_str()); }
