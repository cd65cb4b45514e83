#include "cli/Wrapped.h"

#include <gtest/gtest.h>

TEST(Wrapped, LinesAreAsLongAsTheyMayBe)
{
    EXPECT_EQ(Wrapped("aa bb cc", 5), "aa bb\ncc");
    EXPECT_EQ(Wrapped("aa bb cc", 4), "aa\nbb\ncc");
    EXPECT_EQ(Wrapped("aa bb cc", 8), "aa bb cc");
}

TEST(Wrapped, ALongerWordHasALineOfItsOwn)
{
    EXPECT_EQ(Wrapped("a bbbbbb c d", 3), "a\nbbbbbb\nc d");
}

TEST(Wrapped, LineFeedsAndRunsOfBlanksAreBlanks)
{
    EXPECT_EQ(Wrapped(" a\nb  c ", 10), "a b c");
    EXPECT_EQ(Wrapped("", 10), "");
}
