#include "core/platform/LocalTime.h"

#include <limits>

#include <gtest/gtest.h>

TEST(LocalTime, IsTheMomentThatItWasMadeFrom)
{
    for (const std::time_t moment : {std::time_t{0}, std::time_t{1236416703}, std::time_t{1250000000}})
    {
        std::tm local = LocalTime(moment);
        EXPECT_EQ(std::mktime(&local), moment);
    }
}

TEST(LocalTime, OfAMomentBeyondAllYearsIsEmpty)
{
    const std::tm local = LocalTime(std::numeric_limits<std::time_t>::max());
    EXPECT_EQ(local.tm_year, 0);
    EXPECT_EQ(local.tm_mday, 0);
}
