#include "oe7/output/COutputUnits.h"

#include <gtest/gtest.h>

using oe7::COutputUnits;
using oe7::EUnits;

TEST(OutputUnits, MetricResultsAreInMetresTonnesAndNewtons)
{
    const COutputUnits units(EUnits::Metric);
    EXPECT_EQ(units.Length.Of(2.5), 2.5);
    EXPECT_EQ(units.Mass.Of(4050000), 4050);
    EXPECT_EQ(units.Force.Of(7), 7);
    EXPECT_EQ(units.LargeForce.Of(7000), 7);
    EXPECT_EQ(units.LargeMoment.Of(7000), 7);
    EXPECT_EQ(units.Pressure.Of(412121), 412.121);
    EXPECT_EQ(units.ForcePerLength.Of(824241.6), 824241.6);
    EXPECT_EQ(units.Inertia.Of(3), 3);
    EXPECT_EQ(units.Length.InBrackets(), "(m)");
    EXPECT_EQ(units.Mass.Name, "tonnes");
}

TEST(OutputUnits, BritishResultsAreInFeetLongTonsAndPounds)
{
    const COutputUnits units(EUnits::British);
    EXPECT_DOUBLE_EQ(units.Length.Of(0.3048), 1);
    EXPECT_DOUBLE_EQ(units.Area.Of(0.09290304), 1);
    EXPECT_DOUBLE_EQ(units.Velocity.Of(3.048), 10);
    EXPECT_DOUBLE_EQ(units.Mass.Of(1016.0469), 1);
    EXPECT_DOUBLE_EQ(units.Force.Of(4.4482216), 1);
    EXPECT_NEAR(units.Moment.Of(1.3558179), 1, 1e-7);
    EXPECT_DOUBLE_EQ(units.LargeForce.Of(4448.2216), 1);
    EXPECT_NEAR(units.LargeMoment.Of(1355.8179), 1, 1e-7);
    EXPECT_DOUBLE_EQ(units.Inertia.Of(1.3558179), 1);
    EXPECT_DOUBLE_EQ(units.Pressure.Of(6894.757), 1);
    EXPECT_NEAR(units.ForcePerLength.Of(14.593903), 1, 1e-7);
    EXPECT_EQ(units.LargeForce.Name, "10^3 lb");
}

TEST(OutputUnits, AccelerationsAreInGAndAnglesInDegreesWhateverTheSystem)
{
    const COutputUnits units(EUnits::British);
    EXPECT_DOUBLE_EQ(units.Rms(0, 2, 3.048), 10);
    EXPECT_DOUBLE_EQ(units.Rms(1, 2, 3.048), 10);
    EXPECT_DOUBLE_EQ(units.Rms(2, 2, 9.81), 1);
    EXPECT_NEAR(units.Rms(0, 3, 0.1), 5.729578, 1e-6);
    EXPECT_NEAR(units.Rms(2, 7, 0.1), 5.729578, 1e-6);
}

TEST(OutputUnits, PhasesAreInDegreesAndLoadsPerBeamAndLength)
{
    EXPECT_NEAR(oe7::PhaseDegrees({0, 2}), 90, 1e-12);
    EXPECT_NEAR(oe7::PhaseDegrees({-1, -1}), -135, 1e-12);
    EXPECT_EQ(oe7::PhaseDegrees({0, 0}), 0);
    oe7::CHullCondition hull{oe7::CLengthRule(3, 100), {}};
    hull.Density = 1000;
    hull.Length = 100;
    hull.LargestBeam = 10;
    EXPECT_NEAR(oe7::LoadScale(hull, 1), 9810, 1e-9);
    EXPECT_NEAR(oe7::LoadScale(hull, 2), 981000, 1e-7);
}
