#include "cli/CProgressLine.h"

#include <sstream>
#include <thread>

#include <gtest/gtest.h>

TEST(CliProgress, OnATerminalALineCountsSecondsAndGoesAway)
{
    std::ostringstream stream;
    CProgressLine line(stream, true);
    line.Begin("At work. ");
    line.Update();
    EXPECT_EQ(stream.str(), "\rAt work. 0 s");
    std::this_thread::sleep_for(std::chrono::milliseconds(1050));
    line.Update();
    EXPECT_EQ(stream.str(), "\rAt work. 0 s\rAt work. 1 s");
    stream.str("");
    line.End();
    EXPECT_EQ(stream.str(), "\r            \r");
    line.Update();
    line.End();
    EXPECT_EQ(stream.str(), "\r            \r");
    std::this_thread::sleep_for(std::chrono::milliseconds(1050));
    line.Update();
    EXPECT_EQ(stream.str(), "\r            \r") << "a line that is gone stays so";
    stream.str("");
    line.Begin("Again. ");
    EXPECT_EQ(stream.str(), "\rAgain. 0 s");
}

TEST(CliProgress, WithoutATerminalNothingIsWritten)
{
    std::ostringstream stream;
    CProgressLine line(stream, false);
    line.Begin("At work. ");
    std::this_thread::sleep_for(std::chrono::milliseconds(1050));
    line.Update();
    line.End();
    EXPECT_EQ(stream.str(), "");
}
