#include "oe7/seas/Statistics.h"

#include <gtest/gtest.h>

#include <limits>
#include <numbers>

using namespace oe7;

namespace
{
/// One wave with a motion of one mode, of amplitude `motion`.
void Add(CComponentResponse& component, double encounter, double energy, std::size_t mode, Complex motion)
{
    component.Waves.emplace_back();
    component.Encounter.push_back(encounter);
    component.Energy.push_back(energy);
    component.Motions.emplace_back();
    component.Motions.back()[mode] = motion;
}
} // namespace

TEST(Statistics, MomentsAreTakenOverTheEncounterFrequency)
{
    CMoments moments;
    moments.Add(4, 2, 0.25);
    moments.Add(9, -3, 1);
    EXPECT_DOUBLE_EQ(moments.M0, 1 + 9);
    EXPECT_DOUBLE_EQ(moments.M2, 4 + 81);
    EXPECT_DOUBLE_EQ(moments.M4, 16 + 729);
    EXPECT_DOUBLE_EQ(moments.M5, 32 + 2187) << "of the frequency's amount";
    EXPECT_DOUBLE_EQ(moments.Displacement(), std::sqrt(10.0));
    EXPECT_DOUBLE_EQ(moments.Velocity(), std::sqrt(85.0));
    EXPECT_DOUBLE_EQ(moments.Acceleration(), std::sqrt(745.0));
    EXPECT_DOUBLE_EQ(moments.ZeroCrossingPeriod(), 2 * std::numbers::pi * std::sqrt(10.0 / 85));
}

TEST(Statistics, WithoutVelocityThereIsNoZeroCrossingPeriod)
{
    CMoments moments;
    EXPECT_EQ(moments.ZeroCrossingPeriod(), 0);
    moments.Add(4, 0, 1);
    EXPECT_EQ(moments.Displacement(), 2);
    EXPECT_EQ(moments.ZeroCrossingPeriod(), 0);
}

TEST(Statistics, WhatIsNoNumberCountsAsZero)
{
    CMoments moments;
    moments.Add(std::numeric_limits<double>::quiet_NaN(), 1, 1);
    EXPECT_EQ(moments.Displacement(), 0);
    EXPECT_EQ(moments.ZeroCrossingPeriod(), 0);
    CMoments endless;
    endless.Add(std::numeric_limits<double>::infinity(), 1, 1);
    EXPECT_EQ(endless.Velocity(), 0);
    EXPECT_EQ(endless.ZeroCrossingPeriod(), 0);
}

TEST(Statistics, EveryModeHasItsRmsOverAllComponents)
{
    CHeadingResponse response(2);
    Add(response[0], 0.5, 1, 2, {3, 4});
    Add(response[1], -2, 0.25, 2, {0, 2});
    Add(response[1], 1, 1, 7, 0.5);
    const CModeRms rms = RmsOfModes(response);
    EXPECT_DOUBLE_EQ(rms[0][2], std::sqrt(25.0 + 1));
    EXPECT_DOUBLE_EQ(rms[1][2], std::sqrt(6.25 + 4));
    EXPECT_DOUBLE_EQ(rms[2][2], std::sqrt(25.0 / 16 + 16));
    EXPECT_DOUBLE_EQ(rms[0][7], 0.5);
    EXPECT_EQ(rms[0][0], 0);
    EXPECT_EQ(RmsOfModes({})[2][5], 0);
}
