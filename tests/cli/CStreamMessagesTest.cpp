#include "cli/CStreamMessages.h"

#include <sstream>

#include <gtest/gtest.h>

TEST(CliMessages, AMessageIsOneLineOfTitleAndText)
{
    std::ostringstream stream;
    CStreamMessages messages(stream, false);
    messages.MessageBox("first \n second", "A\nTitle", EIcon::Stop);
    EXPECT_EQ(stream.str(), "A\\nTitle: first \\n second\n");
}

TEST(CliMessages, AQuestionHasItsAnswerBehindIt)
{
    std::ostringstream stream;
    EXPECT_TRUE(CStreamMessages(stream, true).AskYesNo("Go\non?", "Ondara", EIcon::Question));
    EXPECT_FALSE(CStreamMessages(stream, false).AskYesNo("Go on?", "Ondara", EIcon::Question));
    EXPECT_EQ(stream.str(), "Ondara: Go\\non? [yes]\nOndara: Go on? [no]\n");
}

TEST(CliMessages, RoomIsMadeBeforeEachLine)
{
    std::ostringstream stream;
    CStreamMessages messages(stream, false);
    messages.BeforeLine = [&] { stream << "room "; };
    messages.MessageBox("text", "Title", EIcon::None);
    messages.AskYesNo("Go on?", "Ondara", EIcon::Question);
    messages.PlainLine("a");
    EXPECT_EQ(stream.str(), "room Title: text\nroom Ondara: Go on? [no]\nroom ondara-cli: a\n");
}

TEST(CliMessages, TheBellIsSilent)
{
    std::ostringstream stream;
    CStreamMessages(stream, false).MessageBeep();
    EXPECT_EQ(stream.str(), "");
}

TEST(CliMessages, APlainLineNamesTheProgram)
{
    std::ostringstream stream;
    CStreamMessages(stream, false).PlainLine("a\nb");
    EXPECT_EQ(stream.str(), "ondara-cli: a\\nb\n");
}
