#include "demo_host/trace.h"

#include <cstdio>

namespace {

bool g_enabled = false;

}  // namespace

void EnableTrace() { g_enabled = true; }

void Trace(const std::string& line) {
    if (!g_enabled) return;
    std::puts(line.c_str());
    std::fflush(stdout);
}
