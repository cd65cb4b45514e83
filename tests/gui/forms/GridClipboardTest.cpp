#include "gui/forms/GridClipboard.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace
{
CTextBlock Pasted(const char* text, int rows = 10, int columns = 10)
{
    return PastedBlock(QString::fromUtf8(text), rows, columns);
}
} // namespace

TEST(GridClipboard, CopiesTabsAndLineFeeds)
{
    EXPECT_EQ(ClipboardText({{"1", "2"}, {"", "4"}}), "1\t2\n\t4");
}

TEST(GridClipboard, ReadsTabsOrElseSemicolons)
{
    EXPECT_THAT(Pasted("1\t2\n3\t4\n"), ElementsAre(ElementsAre("1", "2"), ElementsAre("3", "4")));
    EXPECT_THAT(Pasted("1;2\n3;4"), ElementsAre(ElementsAre("1", "2"), ElementsAre("3", "4")));
    EXPECT_THAT(Pasted("1;2\t3"), ElementsAre(ElementsAre("1;2", "3")));
}

TEST(GridClipboard, ReadsTheLineEndsOfAllSystems)
{
    EXPECT_THAT(Pasted("1\r\n2\r\n"), ElementsAre(ElementsAre("1"), ElementsAre("2")));
    EXPECT_THAT(Pasted("1\r2\r"), ElementsAre(ElementsAre("1"), ElementsAre("2")));
}

TEST(GridClipboard, KeepsEmptyCellsAndLines)
{
    EXPECT_THAT(Pasted("\t2\t\n\n5"),
                ElementsAre(ElementsAre("", "2", ""), ElementsAre(""), ElementsAre("5")));
}

TEST(GridClipboard, CommaIsADecimalPointBetweenTabs)
{
    EXPECT_THAT(Pasted("1,5\t-0,25"), ElementsAre(ElementsAre("1.5", "-0.25")));
    EXPECT_THAT(Pasted("1,5\n2,5"), ElementsAre(ElementsAre("1.5"), ElementsAre("2.5")));
}

TEST(GridClipboard, CommaStaysWhereItMayMeanSomethingElse)
{
    EXPECT_THAT(Pasted("1,5\t2.5"), ElementsAre(ElementsAre("1,5", "2.5")));
    EXPECT_THAT(Pasted("1,5;2,5"), ElementsAre(ElementsAre("1,5", "2,5")));
    EXPECT_THAT(Pasted("1,234,567\t,5\t5,"), ElementsAre(ElementsAre("1,234,567", ",5", "5,")));
}

TEST(GridClipboard, TakesBlanksAndTypesettersMinusAway)
{
    EXPECT_THAT(Pasted(" 1.5 \t\u22122\u00a0"), ElementsAre(ElementsAre("1.5", "-2")));
}

TEST(GridClipboard, EndsWhereTheGridEnds)
{
    EXPECT_THAT(Pasted("1\t2\t3\n4\t5\t6\n7\t8\t9", 2, 2),
                ElementsAre(ElementsAre("1", "2"), ElementsAre("4", "5")));
    EXPECT_TRUE(Pasted("1\t2", 0, 2).empty());
}

TEST(GridClipboard, HugeTextsAreNotReadToTheirEnd)
{
    EXPECT_EQ(PastedBlock(QStringLiteral("1\t2\t3\n").repeated(1000000), 60, 2).size(), 60U);
    EXPECT_EQ(PastedBlock(QStringLiteral("1\t").repeated(5000000), 60, 2).front().size(), 2U);
    EXPECT_LE(PastedBlock(QString(10000000, u'7'), 60, 2).front().front().size(), 256);
}
