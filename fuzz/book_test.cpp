// Any text as the test of a book: its mistakes are told, or it is run.
#include "fuzz/Fuzzing.h"

#include "play/TestRun.h"
#include "tests/play/Books.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    fuzzing::keepQuiet();
    static const play::Book kBook =
        bookWith("sub cow\nsay \"Moo\"\ncount = count + 1\nend sub\n"
                 "sub dog\nif count == 2 then\nsay eve \"Wuff\" \"Wau\"\nend if\nend sub\n",
                 {"cow", "dog"});
    std::vector<play::TestMessage> mistakes;
    const auto test =
        play::readBookTest(std::string(reinterpret_cast<const char*>(data), size), kBook, mistakes);
    fuzzing::require(test.has_value() == mistakes.empty(), "a test or mistakes");
    if (!test) {
        return 0;
    }
    // A test may say "repeat" as often as it likes.
    for (const play::TestCommand& command : test->commands) {
        if (command.kind == play::TestCommand::Kind::repeat && command.count > 20) {
            return 0;
        }
    }
    if (test->commands.size() < 30) {
        play::runBookTest(*test, kBook);
    }
    return 0;
}
