#pragma once

#include <string>

#include "programs/ProgramWork.h"
#include "ttbasic/ttbasic.h"

// The outside program that speaks texts, as an installed one is found, and how it is called.

// Has the text spoken into a WAV file. The text is handed over as it stands; only the path takes
// its native form. What the program prints is Latin-1 if the reader wants that, else UTF-8. Speed
// and pitch are no arguments: engines that can use them find them in the environment.
ProgramCall callToSpeak(const std::string& text, const ttbasic::VOICE& voice,
                        const std::string& speechFile, bool readsLatin1);

// The folder of the speech program that is called, in its native form.
std::string speechProgramFolder();

// Puts the folders of the tools that are shipped with the program in front of PATH, once.
void putToolsOnPath();
