#pragma once

#include "tryout/TriedBook.h"

#include <string>

// Writes down what is tapped, as a book test that expects what came of it.
class TestRecorder
{
public:
    // Nothing has been tapped yet.
    void clear();
    void add(const TriedBook::Tap& tap);
    // What came of the last tap, at its end; of later calls nothing is taken.
    void end(const play::PlayedBook& book);

    // The text of the test; empty when nothing was tapped.
    const std::string& text() const { return lines; }

private:
    std::string lines;
    bool isOpen = false;  // a tap whose end has not come
};
