#pragma once

#include <QString>

#include <functional>
#include <string>
#include <vector>

// What help in the script asks of the book's areas. Names are as in the project.
struct BookAreas
{
    std::function<std::vector<std::string>()> names;  // of each area, in no order
    // A tool tip for an area in rich text; empty for a name that no area has.
    std::function<QString(const std::string& name)> toolTip;
    // Goes to the area's page and selects it; false for a name that no area has.
    std::function<bool(const std::string& name)> show;
    // Asks for another name of area and sub, and gives it to both.
    std::function<void(const std::string& name)> rename;
};
