#include "gui/app/CStatusPanes.h"

#include <gtest/gtest.h>

namespace
{
std::tm Moment(int hour, int minute)
{
    std::tm time = {};
    time.tm_year = 126;
    time.tm_mon = 10;
    time.tm_mday = 2;
    time.tm_hour = hour;
    time.tm_min = minute;
    return time;
}
} // namespace

TEST(StatusPanes, TheClockHasTwelveHours)
{
    EXPECT_EQ(TimeText(Moment(14, 41)), "02:41 PM");
    EXPECT_EQ(TimeText(Moment(0, 5)), "12:05 AM");
    EXPECT_EQ(TimeText(Moment(12, 0)), "12:00 PM");
    EXPECT_EQ(TimeText(Moment(11, 59)), "11:59 AM");
    EXPECT_EQ(TimeText(Moment(23, 59)), "11:59 PM");
}

TEST(StatusPanes, TheDateBeginsWithTheYear)
{
    EXPECT_EQ(DateText(Moment(0, 0)), "2026 11 02");
}

TEST(StatusPanes, ShowWhatTheyAreTold)
{
    CStatusPanes panes;
    panes.ShowTime(Moment(9, 7));
    panes.ShowStatus("Specify skeg");
    EXPECT_EQ(panes.findChild<QLabel*>("Status.Time")->text(), "09:07 AM");
    EXPECT_EQ(panes.findChild<QLabel*>("Status.Date")->text(), "2026 11 02");
    EXPECT_EQ(panes.findChild<QLabel*>("Status.Message")->text(), "Specify skeg");
    panes.ShowStatus("");
    EXPECT_EQ(panes.findChild<QLabel*>("Status.Message")->text(), "Ready");
}
