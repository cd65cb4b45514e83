#include "core/platform/CInstanceLock.h"

#include "tests/support/CTestFolder.h"

#include <csignal>
#include <cstdlib>
#include <memory>

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

TEST(CInstanceLock, TheSecondInstanceIsNotTheFirst)
{
    const CTestFolder folder;
    const CInstanceLock first(folder.File("lock"));
    EXPECT_TRUE(first.IsFirst());
    EXPECT_FALSE(CInstanceLock(folder.File("lock")).IsFirst());
    EXPECT_FALSE(CInstanceLock(folder.File("lock")).IsFirst());
}

TEST(CInstanceLock, OnceTheFirstHasEndedTheNextIsTheFirst)
{
    const CTestFolder folder;
    auto first = std::make_unique<CInstanceLock>(folder.File("lock"));
    const CInstanceLock second(folder.File("lock"));
    first.reset();
    EXPECT_FALSE(second.IsFirst());
    EXPECT_TRUE(CInstanceLock(folder.File("lock")).IsFirst());
}

TEST(CInstanceLock, ALeftoverLockFileIsNoInstance)
{
    const CTestFolder folder;
    EXPECT_TRUE(CInstanceLock(folder.Write("lock", "left by an older run")).IsFirst());
}

TEST(CInstanceLock, AKilledInstanceHoldsNoLock)
{
    const CTestFolder folder;
    const std::string path = folder.File("lock");
    int ready[2];
    ASSERT_EQ(::pipe(ready), 0);
    const pid_t process = ::fork();
    if (process == 0)
    {
        const CInstanceLock lock(path);
        const char first = lock.IsFirst() ? '1' : '0';
        if (::write(ready[1], &first, 1) == 1)
        {
            ::pause();
        }
        ::_exit(1);
    }
    char first = 0;
    ASSERT_EQ(::read(ready[0], &first, 1), 1);
    EXPECT_EQ(first, '1');
    EXPECT_FALSE(CInstanceLock(path).IsFirst());
    ::kill(process, SIGKILL);
    ::waitpid(process, nullptr, 0);
    EXPECT_TRUE(CInstanceLock(path).IsFirst());
    ::close(ready[0]);
    ::close(ready[1]);
}

TEST(CInstanceLock, WhereNoLockCanBeHadEveryInstanceIsTheFirst)
{
    const CTestFolder folder;
    const CInstanceLock first(folder.File("none/lock"));
    const CInstanceLock second(folder.File("none/lock"));
    EXPECT_TRUE(first.IsFirst());
    EXPECT_TRUE(second.IsFirst());
}

TEST(CInstanceLock, TheLockFileLiesInTheUsersRuntimeFolder)
{
    ::setenv("XDG_RUNTIME_DIR", "/run/user/1000", 1);
    EXPECT_EQ(CInstanceLock::DefaultPath(), "/run/user/1000/ondara.lock");
    const std::string fallback = "/tmp/ondara-" + std::to_string(::getuid()) + ".lock";
    ::setenv("XDG_RUNTIME_DIR", "", 1);
    EXPECT_EQ(CInstanceLock::DefaultPath(), fallback);
    ::unsetenv("XDG_RUNTIME_DIR");
    EXPECT_EQ(CInstanceLock::DefaultPath(), fallback);
}
