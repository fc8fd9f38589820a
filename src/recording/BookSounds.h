#pragma once

#include "recording/Loudness.h"
#include "recording/Take.h"

#include <QString>

#include <functional>
#include <string>

// The author's own sounds come into a book's audio folder. Every function writes its file whole or
// not at all; what it replaces is kept before. They take as long as sound is measured and encoded,
// and may be called on any thread.
namespace recording {

// What was done with one file.
struct FileReport
{
    enum class Done {
        written,
        untouched,  // it was as it should be
        failed      // nothing has changed but, maybe, what is kept
    };
    Done done = Done::failed;
    QString text;             // a sentence for the author, with the file's name; why it failed
    Level before{};           // of the sound that was read; unless that failed
    Level after{};            // of the file that was written
    std::string keptSource;   // where the original lies now; empty unless it was kept
    std::string keptEarlier;  // likewise the file that was replaced
};

struct Places
{
    std::string target;     // the voice's file, "900-audio/say_adam_Moo.ogg"
    std::string originals;  // the folder in which originals are kept; made when it is needed
    // Whether a file that is replaced is kept there. One that the speech program made need not be.
    bool keepsEarlier = true;
};

// The folder "originals" of an audio folder.
std::string originalsOf(const std::string& audioFolder);

// A file of any kind becomes a voice of the book; its original is kept.
FileReport adoptSound(const std::string& source, const Places& places,
                      const std::function<bool()>& isWanted = {});

// Likewise a recording: the part of the take that is kept, and all of it as the original.
FileReport adoptTake(const Take& take, const Places& places);

// Gives a voice's file the loudness and the form that all have, unless it has them: then it is not
// touched. With keepsEarlier it is kept before.
FileReport evenOut(const Places& places);

}  // namespace recording
