#include "app/cli/PlayableBook.h"

#include <charconv>
#include <cstdarg>
#include <cstdio>

#include "base/TextHelpers.h"
#include "oid/OpenProject.h"

namespace {

int printToStandardError(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    const int length = vfprintf(stderr, format, arguments);
    va_end(arguments);
    return length;
}

bool isGameFile(const std::string& path)
{
    const std::string ending = ".gme";
    return path.size() >= ending.size() &&
           toLower(path.substr(path.size() - ending.size())) == ending;
}

std::optional<play::Book> openGameFile(const std::string& path)
{
    std::string problem;
    std::optional<play::Book> book = play::bookOfGameFile(path, problem);
    if (!book) {
        fprintf(stderr, "Error: %s\n", problem.c_str());
    } else if (!book->game.isIntact) {
        fprintf(stderr, "Warning: The checksum of '%s' is wrong: the file is damaged\n",
                path.c_str());
    }
    return book;
}

}  // namespace

std::optional<play::Book> openBook(const std::string& path)
{
    setDefaultPrintf(printToStandardError);
    return isGameFile(path) ? openGameFile(path) : openBookOfProject(path);
}

std::optional<play::Book> openBookOfProject(const std::string& path)
{
    setDefaultPrintf(printToStandardError);
    Oid::OidProject project;
    if (!Oid::openProject(project, path)) {
        return std::nullopt;
    }
    std::optional<play::Book> book = play::bookOf(project, printWith(printToStandardError));
    if (book) {
        measureSounds(*book);
    }
    return book;
}

bool readSeed(const std::string& text, std::uint64_t& seed)
{
    const char* const end = text.data() + text.size();
    const auto [rest, failure] = std::from_chars(text.data(), end, seed);
    return failure == std::errc() && rest == end;
}
