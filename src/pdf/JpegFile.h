#pragma once

#include <QByteArray>

#include <optional>
#include <string>

// What a PDF has to know of a JPEG file that it carries as it is.
struct JpegFacts
{
    int components = 0;     // 1, 3 or 4
    bool plainRgb = false;  // three components that are red, green and blue
    bool complete = false;  // it goes to its end mark
};

// Nothing when the bytes are no JPEG, or one of a kind that PDF does not know.
std::optional<JpegFacts> readJpegFacts(const QByteArray& file);
