#include "core/results/report/CHtmlPage.h"

#include <gtest/gtest.h>

TEST(HtmlPage, ATextIsWrittenAsItStandsAndEndsInALineFeed)
{
    CHtmlPage page;
    page.WriteLine("<B>a & b</B>");
    page.WriteLine("");
    EXPECT_EQ("<B>a & b</B>\n\n", page.Text());
}

TEST(HtmlPage, CarriageReturnsAreDroppedAlsoInsideValues)
{
    CHtmlPage page;
    page.WriteLine("a\rb");
    page.WriteLine("<I>%s</I>%i", "c\r\nd\r", 5);
    EXPECT_EQ("ab\n<I>c\nd</I>5\n", page.Text());
}

TEST(HtmlPage, ALineFeedInATextComesBeforeTheLinesOwn)
{
    CHtmlPage page;
    page.WriteTail();
    EXPECT_EQ("</body> \n\n</html>\n", page.Text());
}

TEST(HtmlPage, EachQuotedValueOfTheDoctypeStandsBetweenLinesWithItsQuoteMarks)
{
    CHtmlPage page;
    page.WriteHead("TITLE");
    EXPECT_EQ("<!DOCTYPE html PUBLIC\n\"\n-//W3C//DTD XHTML 1.0 Transitional//EN\n\"\n\"\n"
              "http://www.w3.org/TR/xhtml1/DTD/xhtml1-transitional.dtd\n\">\n<html xmlns=\n\"\n"
              "http://www.w3.org/1999/xhtml\n\">\n<head>\n<title>TITLE</title>\n</head>\n<body> \n\n",
              page.Text());
}

TEST(HtmlPage, AFrameIsOpenedByTwoLinesAndClosedByOneUnlessATableIsInside)
{
    CHtmlPage page;
    page.OpenFrame();
    page.CloseFrame();
    page.OpenFrame("<TABLE>");
    page.CloseTableAndFrame();
    EXPECT_EQ("<TABLE cellspacing=\"0\" ALIGN=CENTER CELLPADDING=8 border=\"1\" bordercolor=\"#CBD3E1\" "
              "HSPACE=5 width = \"100%\">\n<TR><TD NOWRAP>\n</td></tr></TABLE><BR>\n"
              "<TABLE>\n<TR><TD NOWRAP>\n</TABLE>\n</td></tr></TABLE><BR>\n",
              page.Text());
}

TEST(HtmlPage, PageBreakAndContentsLinkAreOneLineEach)
{
    CHtmlPage page;
    page.PageBreak();
    page.ContentsLink();
    EXPECT_EQ("<p style = \"page-break-before: always\">\n"
              "<BR><b><i><a HREF=\"#TOC\">To the Table of Contents</a></i></b>\n",
              page.Text());
}
