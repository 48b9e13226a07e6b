// The functions that the library imports, each with a stub before it that counts the calls and lets one fail.
#pragma once

#include <string>
#include <vector>

struct Import {
    std::string library;
    std::string name;
    void* function;            ///< The system's.
    void* failing;             ///< Code that returns what the function returns when it fails.
    int calls = 0;             ///< Since the last ArmImport.
    int failingCall = -1;      ///< From 0; -1 for none.
    bool failsOnward = false;  ///< All calls after that one fail as well.
    Import* next = nullptr;    ///< Its next call after this one's first fails.
};

/// Whether a list of names with spaces between them has a name.
bool IsListed(const std::string& list, const std::string& name);
/// Those that can fail.
std::vector<Import>& LibraryImports();
/// Counts anew and lets one call fail; -1 for none.
void ArmImport(Import& import, int failingCall, bool failsOnward = false);
