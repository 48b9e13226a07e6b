// What --trace prints: every call on host, lists and filters, one a line, as it happens.
#pragma once

#include <string>

void EnableTrace();
void Trace(const std::string& line);
