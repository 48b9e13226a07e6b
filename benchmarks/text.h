// Formatted text for the tables.
#pragma once

#include <cstdio>
#include <string>

template <typename... Values>
std::string Text(const char* format, Values... values) {
    char text[200] = {};
    std::snprintf(text, sizeof(text), format, values...);
    return text;
}
