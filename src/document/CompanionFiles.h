#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "oid/OidProject.h"

// The files that an author's project has beside it: the copies of its pictures, and the folder of
// its audio files. They are named by the folder of the project file and the product's number. When
// a save gives the project another folder or number, they are copied to where it looks for them
// from then on; the old ones stay.
class CompanionFiles
{
public:
    // Asked before a picture overwrites another file, whose native path it gets.
    using MayOverwrite = std::function<bool(const std::string& path)>;

    struct Outcome
    {
        bool copied = false;              // at least one picture
        std::vector<std::string> failed;  // native paths of what could not be made
    };

    // After opening: they are beside the project.
    void areBeside(const Oid::OidProject& project);
    // Before saving: another window has moved the pages of the book.
    void wereMoved(const Oid::OidProject& project);
    // After picture n was brought in: its file is where the project looks for it.
    void cameIn(const Oid::OidProject& project, int n);
    // Pages have changed their order, and their files with them: from says for each page which one
    // it was before, -1 for one that has come.
    void pagesArranged(const std::vector<int>& from);
    // Files of before the last save have been renamed: their old and new paths.
    void wereRenamed(const std::vector<std::pair<std::string, std::string>>& paths);
    // After saving: copies what is missing. Audio files that are there already stay as they are; a
    // picture overwrites another one only when mayOverwrite says so. What was not copied is tried
    // again at the next call, but nobody is asked twice about the same file.
    Outcome follow(const Oid::OidProject& project, const MayOverwrite& mayOverwrite);

private:
    struct Picture
    {
        std::string file;      // where it is
        std::string inTheWay;  // what it must not overwrite, the author said
    };

    Picture pictureOfPage(int n) const;
    void followPictures(const Oid::OidProject& project, const MayOverwrite& mayOverwrite,
                        Outcome& outcome);
    void followAudio(const std::string& target, Outcome& outcome);

    Oid::OidProject place;             // no more than path and number: those of the files' names
    std::map<int, Picture> elsewhere;  // pictures that are not there, by page
    std::string audio;                 // the folder; empty while it has none of its own
};
