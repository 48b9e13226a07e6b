// A case of the fault tests: it runs in a process of its own, so that a crash or a hang is a result like another.
#pragma once

#include <functional>
#include <random>
#include <string>
#include <vector>

#include <windows.h>

struct Settings {
    bool isLong = false;
    unsigned seed = 1;
};

struct Case {
    std::string name;
    std::function<void(const Settings&)> run;
    bool onlyLong = false;
};

std::vector<Case> CallFaultCases();
std::vector<Case> ImportFaultCases();
std::vector<Case> InputCases();
std::vector<Case> SlopeCases();

/// Ends with the picture's sum for a status: see UsualPicture.
int ShowUsualPicture();
/// What the dialog of the import faults looks like in a process where nothing fails.
unsigned UsualPicture();
/// The status that a process of this program ended with.
DWORD RunInProcess(const std::string& arguments, DWORD limitMs);

/// Says what is being tried, for the report when it fails, crashes or hangs.
void Try(const std::string& what);
/// Reports a failure of what is being tried when the condition does not hold.
void Check(bool condition, const std::string& what);
/// How many things were tried and checked.
int TriedCount();
