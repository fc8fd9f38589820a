#pragma once

#include <string>
#include <vector>

#include "oid/OidProject.h"
#include "oid/PrintJob.h"

class ProcessRunner;

// The game of a printer's test page: the pen says the name of each field that it can read.

// Languages that it can speak: "en", "de", "fr", "nl".
const std::vector<std::string>& printerTestLanguages();

// The book of it, without pictures of its own.
Oid::OidProject printerTestBook(const std::vector<int>& resolutions, const std::string& language);

// The names of the two files, "949-Printer test.pdf" and "949-Printer test.gme".
std::string printerTestPage();
std::string printerTestGame();

// Makes both in a folder, which is there. The runner runs the programs that speak and shows what
// they say; other messages go through mi_printf. False when it was cancelled, and, with a message,
// when one of the files could not be made, or when speech is missing. Nothing is written then,
// unless it is the game that cannot be: it comes behind the page.
bool makePrinterTest(const std::string& folder, const std::vector<int>& resolutions,
                     const std::string& language, ProcessRunner& runner,
                     const PrintJobProgress& progress = {});
