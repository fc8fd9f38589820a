#include "tryout/TestRecorder.h"

#include "play/BookTest.h"

#include <algorithm>
#include <cctype>

namespace {

// A single word stands as it is.
std::string written(const std::string& name)
{
    const bool isWord = std::all_of(name.begin(), name.end(), [](unsigned char letter) {
        return std::isalnum(letter) != 0 || letter == '_' || letter >= 0x80;
    });
    return isWord ? name : '"' + name + '"';
}

std::string commandOf(const TriedBook::Tap& tap)
{
    switch (tap.kind) {
    case TriedBook::Tap::Kind::start:
        return "start";
    case TriedBook::Tap::Kind::again:
        return "replay";
    case TriedBook::Tap::Kind::stop:
        return "stop";
    default:
        return "tap " + written(tap.area);
    }
}

}  // namespace

void TestRecorder::clear()
{
    lines.clear();
    isOpen = false;
}

void TestRecorder::add(const TriedBook::Tap& tap)
{
    lines += (lines.empty() ? "" : "\n") + commandOf(tap) + "\n";
    isOpen = true;
}

void TestRecorder::end(const play::PlayedBook& book)
{
    if (isOpen) {
        isOpen = false;
        lines += play::expectationsOf(book.outcome(), book.book());
    }
}
