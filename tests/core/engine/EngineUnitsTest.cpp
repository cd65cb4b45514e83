#include "core/engine/EngineUnits.h"

#include <gtest/gtest.h>

namespace
{
const CEngineUnits british(0);
const CEngineUnits metric(1);
} // namespace

TEST(EngineUnits, LengthsInMetresBecomeFeetInABritishRun)
{
    EXPECT_EQ(british.ConvertLength(10, 0), 10 * static_cast<double>(3.28084F));
    EXPECT_EQ(british.ConvertLength(10, 1), 10);
}

TEST(EngineUnits, LengthsInFeetBecomeMetresInAMetricRun)
{
    EXPECT_EQ(metric.ConvertLength(10, 1), 10 * static_cast<double>(0.3048F));
    EXPECT_EQ(metric.ConvertLength(10, 0), 10);
}

TEST(EngineUnits, MassesBecomeLongTonsOrTonnes)
{
    EXPECT_EQ(british.ConvertMass(10, 0), 10 * static_cast<double>(0.9842065F));
    EXPECT_EQ(british.ConvertMass(10, 1), 10);
    EXPECT_EQ(metric.ConvertMass(10, 1), 10 * static_cast<double>(1.0160469F));
    EXPECT_EQ(metric.ConvertMass(10, 0), 10);
}

TEST(EngineUnits, InverseLengthsTakeTheFactorsTheOtherWayRound)
{
    EXPECT_EQ(british.ConvertInverseLength(10, 0), 10 * static_cast<double>(0.3048F));
    EXPECT_EQ(metric.ConvertInverseLength(10, 1), 10 * static_cast<double>(3.28084F));
    EXPECT_EQ(british.ConvertInverseLength(10, 1), 10);
    EXPECT_EQ(metric.ConvertInverseLength(10, 0), 10);
}

TEST(EngineUnits, SpeedsBecomeKnotsInEitherSystem)
{
    for (const CEngineUnits& units : {british, metric})
    {
        EXPECT_EQ(units.ConvertSpeed(10, 1), 10 * static_cast<double>(1.9438462F));
        EXPECT_EQ(units.ConvertSpeed(10, 0), 10);
    }
}

TEST(EngineUnits, AProductIsDoubleNotSingle)
{
    EXPECT_NE(british.ConvertLength(12.3F, 0), static_cast<double>(12.3F * 3.28084F));
}

TEST(EngineUnits, APlainValueIsWrittenAsStored)
{
    EXPECT_EQ(british.Factor(EQuantity::Plain, 0), 1);
    EXPECT_EQ(metric.Factor(EQuantity::Plain, 1), 1);
}

TEST(EngineUnits, AUnitFlagThatIsNeitherConvertsNothing)
{
    for (const CEngineUnits& units : {british, metric})
    {
        for (const EQuantity quantity :
             {EQuantity::Length, EQuantity::Mass, EQuantity::InverseLength, EQuantity::Speed})
        {
            EXPECT_EQ(units.Factor(quantity, 7), 1);
            EXPECT_EQ(units.Factor(quantity, -1), 1);
        }
    }
}

TEST(EngineUnits, ASystemIsBritishIfItsTextWithoutDecimalsIsZero)
{
    EXPECT_NE(CEngineUnits(0.4F).Factor(EQuantity::Length, 0), 1);
    EXPECT_EQ(CEngineUnits(0.6F).Factor(EQuantity::Length, 0), 1);
    EXPECT_EQ(CEngineUnits(-1).Factor(EQuantity::Length, 0), 1);
    EXPECT_EQ(CEngineUnits(-0.3F).Factor(EQuantity::Length, 0), 1) << "its text is \"-0\"";
}
