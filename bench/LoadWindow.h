#pragma once

#include "bench/MeasuredProcess.h"

#include <QString>

#include <array>
#include <vector>

// What an author does in the window with a book of any size; each is measured until the window
// rests again.
constexpr std::array<const char*, 5> kWindowActs = {"open", "a key in the script",
                                                    "an area moved by a key", "undo", "save"};

// One for each, measured in a process of its own, that is this program started once more with
// kWindowOption and the project, which has to call actInWindow then. The memory is the largest
// until the end of the act.
constexpr char kWindowOption[] = "--window";
std::vector<Cost> windowCosts(const QString& project);
int actInWindow(const QString& project);

// So many random gestures on the page of a window: prints the memory after a tenth of them and at
// the end; false when that is more than 1.1 times as much.
bool measureGestureMemory(int count);
