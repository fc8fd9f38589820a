#pragma once

#include "oid/PageGeometry.h"
#include "oid/StripCompressor.h"

// Where the strips of a page go while it is rendered: a file of some kind.
class PageSink
{
public:
    virtual ~PageSink() = default;

    // Comes first. False, with a message, when there can be no page; nothing follows then.
    virtual bool open(const PageGeometry& page, int rowsPerStrip) = 0;
    // Strips come in order, from any thread, one at a time. False, without a message, when it
    // cannot be kept; then finish follows.
    virtual bool writeStrip(const Strip& strip) = 0;
    // The page is complete. False, with a message, when it could not be kept, a strip included.
    // Without this call there is no page.
    virtual bool finish() = 0;
};
