#include "benchmarks/report.h"

#include <algorithm>
#include <cstdio>

#include "benchmarks/text.h"

namespace {

std::string Verdict(const Row& row) { return row.IsMet() ? "met" : row.IsFailure() ? "MISSED" : "missed"; }

std::string Quoted(const std::string& text) {
    std::string quoted = "\"";
    for (const char letter : text) {
        if (letter == '"' || letter == '\\') quoted += '\\';
        quoted += letter;
    }
    return quoted + '"';
}

}  // namespace

void Report::Add(Row row) {
    if (m_rows.empty()) std::printf("%-58s %8s %8s\n", "what", "found", "target");
    std::printf("%-58s %8s %s%6s  %-6s  %s\n", row.what.c_str(), Text("%.2f", row.value).c_str(),
                row.equal ? "= " : "<=", Text("%.4g", row.limit).c_str(), Verdict(row).c_str(), row.detail.c_str());
    std::fflush(stdout);
    m_rows.push_back(std::move(row));
}

void Report::AddRatio(const std::string& what, const Samples& ours, const Samples& other, double limit) {
    Add({.what = what,
         .value = ours.Best() / other.Best(),
         .limit = limit,
         .detail = Text(
             "%.3f ms against %.3f ms; by medians %.2f", ours.Best(), other.Best(), ours.Median() / other.Median())});
}

void Report::WriteJson(const std::wstring& file) const {
    FILE* out = ::_wfopen(file.c_str(), L"wb");
    if (!out) {
        std::fputs("bench: the JSON file can't be written\n", stderr);
        return;
    }
    std::fputs("[", out);
    for (const Row& row : m_rows) {
        std::fprintf(
            out, "%s\n  {\"what\": %s, \"found\": %.4f, \"target\": %.4f, \"exact\": %s, \"met\": %s, \"detail\": %s}",
            &row == &m_rows.front() ? "" : ",", Quoted(row.what).c_str(), row.value, row.limit,
            row.exact ? "true" : "false", row.IsMet() ? "true" : "false", Quoted(row.detail).c_str());
    }
    std::fputs("\n]\n", out);
    std::fclose(out);
}

bool Report::HasFailures() const {
    return std::any_of(m_rows.begin(), m_rows.end(), [](const Row& row) { return row.IsFailure(); });
}
