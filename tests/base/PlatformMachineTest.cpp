#include "base/PlatformMachine.h"

#include "tests/helpers/TemporaryFolder.h"

#include <QLockFile>

#include <gtest/gtest.h>

TEST(Memory, SomeIsAvailableAndNoMachineHasAPetabyte)
{
    EXPECT_GT(Platform::availableMemory(), 1ULL << 20);
    EXPECT_LT(Platform::availableMemory(), 1ULL << 50);
}

TEST(MachineName, IsTheOneInALockFileOfThisMachine)
{
    const TemporaryFolder folder;
    QLockFile lock(QString::fromStdString(folder.file("lock")));
    ASSERT_TRUE(lock.tryLock(0));
    qint64 process = 0;
    QString machine;
    QString program;
    ASSERT_TRUE(lock.getLockInfo(&process, &machine, &program));
    EXPECT_EQ(Platform::machineName(), machine.toStdString());
}
