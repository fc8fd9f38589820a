// A pipe in the place of the file that names the speech programs.
#include "speech/Engines.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/helpers/TemporaryFolder.h"

TEST(EngineFile, IsNotWaitedForWhenItIsAPipe)
{
    const TemporaryFolder folder;
    const std::string file = folder.file("engines.ini");
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    EXPECT_EQ(Engines({file}).problem(), file + " cannot be read: it is a pipe, not a file");
}
