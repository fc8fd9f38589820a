#pragma once

#include "tests/helpers/XDisplay.h"

#include <QObject>

#include <functional>
#include <memory>

// Runs a test class on a screen with a window manager, both started for it; the test itself lives
// there, too. Returns what main returns.
int runOnItsScreen(int argc, char* argv[],
                   const std::function<std::unique_ptr<QObject>(const XDisplay& display)>& test);
