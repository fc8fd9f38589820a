#pragma once

#include <string>
#include <vector>

#include "speech/SpeechTexts.h"

// Audio files in the audio folder that no text uses any more: their names, in order. Never the
// index, a folder such as that of the originals, or a file of another kind. The script that the
// texts are of has to be complete: what is commented out, or behind a mistake, uses no file.
std::vector<std::string> unusedAudio(const std::string& audioFolder,
                                     const std::vector<SpeechText>& texts);

// Puts a file into the system's trash, from where the author can take it back. False when there is
// no trash for it, or it will not have the file; the file is where it was then.
bool moveToTrash(const std::string& path);
