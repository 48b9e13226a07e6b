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

/// What the dialogs of the import faults look like where nothing fails: each in a process whose status is the picture's
/// sum. They are taken before the cases run, for all their processes.
int ShowUsualPicture(std::size_t scene);
void TakeUsualPictures();
/// The status that a process of this program ended with.
DWORD RunInProcess(const std::string& arguments, DWORD limitMs);

/// Says what is being tried, for the report when it fails, crashes or hangs.
void Try(const std::string& what);
/// Reports a failure of what is being tried when the condition does not hold.
void Check(bool condition, const std::string& what);
/// How many things were tried and checked.
int TriedCount();
