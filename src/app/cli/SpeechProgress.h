#pragma once

// "3/12" while the third of twelve new texts is made, in a line that the next output overwrites.
// For createSoundFiles on a terminal; never cancels.
bool showSpeechProgress(int done, int total);
