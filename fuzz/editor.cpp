// Any operations on the code editor: a plain model of it does the same.
#include "fuzz/Fuzzing.h"

#include "tests/editor/core/EditorPair.h"

#include <gtest/gtest.h>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    GTEST_FLAG_SET(throw_on_failure, true);  // which nobody catches
    fuzzing::Choices choices(data, size);
    EditorPair pair([&choices] { return unsigned{choices.byte()} << 8 | choices.byte(); });
    while (!choices.isAtEnd()) {
        pair.step();
        pair.expectSame();
        pair.expectSound();
    }
    return 0;
}
