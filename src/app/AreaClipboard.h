#pragma once

#include "oid/OidProject.h"

#include <QByteArray>

// Areas as they lie on the clipboard, as text of a type of our own, which other windows of the
// program can read: a line "plinkett-areas 1", one "page" with the mark of the page that they come
// from, and for each area a line "area" with its name, followed by a line with x and y for each
// corner. Numbers stay behind: they follow the names.
struct AreaClipboard
{
    static constexpr char kMimeType[] = "application/x-plinkett-areas";

    QByteArray toText() const;
    // Nothing is taken over from a text that breaks off or that holds anything else; brokenLine
    // says where then, counted from 1, else it is 0.
    static AreaClipboard fromText(const QByteArray& text, int& brokenLine);

    QByteArray page;
    std::vector<Oid::POLY> areas;
};
