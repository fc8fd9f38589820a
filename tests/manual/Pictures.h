#pragma once

#include <string>
#include <vector>

// A picture of the manual and the forms that it shows.
struct Picture
{
    std::string file;                // "window-project.png"
    std::vector<std::string> forms;  // "src/app/MainWindow.ui"
};

// Those of docs/manual/pictures.txt.
std::vector<Picture> picturesOfManual();
// What the forms are now, in a few digits.
std::string stateOfForms(const Picture& picture);
// The file that keeps of which state of its forms each picture of a language was taken: a line for
// each, "window-project.png 0123456789abcdef".
std::string takenFile(const std::string& language);
