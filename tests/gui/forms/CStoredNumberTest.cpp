#include "gui/forms/CStoredNumber.h"

#include "tests/support/CTestProject.h"

#include <cmath>

#include <gtest/gtest.h>

TEST(StoredNumber, OfAKeywordFieldIsNamedByItAndItsSlot)
{
    CTestProject project;
    EXPECT_EQ(CStoredNumber(project.Project.SHIPLEN).Name(), "SHIPLEN");
    EXPECT_EQ(CStoredNumber(project.Project.YSLOFFBL, 3).Name(), "YSLOFFBL.3");
    EXPECT_EQ(CStoredNumber(project.Project.KG).Minimum(), -100000);
    EXPECT_EQ(CStoredNumber(project.Project.KG).Maximum(), 100000);
}

TEST(StoredNumber, DiffersFloatAgainstFloat)
{
    CTestProject project;
    project.Project.KG.Set(0.2F);
    const CStoredNumber number(project.Project.KG);
    EXPECT_FALSE(number.Store(0.2F));
    EXPECT_EQ(project.Project.KG.changed, 0);
    EXPECT_TRUE(number.Store(std::nextafter(0.2F, 1.0F)));
    EXPECT_EQ(project.Project.KG.changed, 1);
    EXPECT_FALSE(number.Store(std::nextafter(0.2F, 1.0F)));
    EXPECT_EQ(project.Project.KG.changed, 1); // until the next reset
}

TEST(StoredNumber, UnitIsNoChange)
{
    CTestProject project;
    const CStoredNumber number(project.Project.KG);
    number.StoreUnit(kUnitBritish);
    EXPECT_EQ(number.Unit(), kUnitBritish);
    EXPECT_EQ(project.Project.KG.unit, kUnitBritish);
    EXPECT_EQ(project.Project.KG.changed, 0);
}

TEST(StoredNumber, MayBeAPlainFieldWithAFlagOfItsOwn)
{
    float value = 1;
    int unit = kUnitMetric;
    const CStoredNumber number("LateralPointZ", value, &unit);
    EXPECT_EQ(number.Name(), "LateralPointZ");
    EXPECT_TRUE(number.Store(2.5F));
    EXPECT_EQ(value, 2.5F);
    number.StoreUnit(kUnitBritish);
    EXPECT_EQ(unit, kUnitBritish);
}

TEST(StoredNumber, OfAnIntIsTruncated)
{
    int value = 3;
    const CStoredNumber number("StationOrigin", value);
    EXPECT_FALSE(number.Store(3));
    EXPECT_TRUE(number.Store(4.9F));
    EXPECT_EQ(value, 4);
    number.StoreUnit(kUnitBritish); // it has none
    EXPECT_EQ(number.Unit(), kUnitMetric);
}
