#pragma once

#include <QByteArray>
#include <QTemporaryDir>

#include <string>

// What the picture file of a page held before a step, or holds behind it: a copy in a folder of the
// document's own, so that pictures cost the history no memory.
struct KeptFile
{
    int page = 0;      // whose file it is
    std::string copy;  // path of the copy; empty when there is no such file on that side
};

// The folder of these copies; it goes with the document.
class KeptFiles
{
public:
    // Puts what is kept in the place of the page's picture file, and keeps that. False when a file
    // could not be written; all is then as it was.
    bool exchange(const std::string& place, KeptFile& kept);
    // Keeps what is in the place, and leaves it there. False when that failed.
    bool keepAsItIs(const std::string& place, KeptFile& kept);
    // Puts a new content in the place of the file, and keeps what was there.
    bool replace(const std::string& place, const QByteArray& content, KeptFile& kept);
    // Whether the page's picture file holds what is kept; also when there is neither.
    bool isAsKept(const std::string& place, const KeptFile& kept) const;
    // Makes a copy of the file; false when that failed. Its path is empty when there is no file.
    bool keep(const std::string& place, std::string& copy);
    void forget(const KeptFile& kept);

private:
    QTemporaryDir folder;
    int count = 0;
};
