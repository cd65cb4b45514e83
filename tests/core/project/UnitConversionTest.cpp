#include "core/project/UnitConversion.h"

#include "tests/support/CTestProject.h"

#include <cmath>
#include <limits>
#include <map>
#include <set>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{
using testing::Each;
using testing::ElementsAre;

constexpr float kFeetPerMetre = 3.28084F;
constexpr float kMetresPerFoot = 0.3048F;
constexpr float kLongTonsPerTonne = 0.9842065F;
constexpr float kTonnesPerLongTon = 1.016047F;

/// A value that is exact in single precision.
constexpr float kHeld = 12.5F;

const std::set<std::string> kMasses = {"DISPUSER", "SECTTN", "BOWTN", "STERNTN"};

const std::set<std::string> kLengths = {
    "HSW",       "ZETA1",     "ZETA2",    "SHIPLEN", "KG",       "PITCHRG",  "GMUSER",  "ROLLRG",
    "WETROLLRG", "YAUSER",    "ZAUSERBL", "BEAM",    "DRAFT",    "DRAFTMID", "TRIMST",  "LCGPUSER",
    "SECTKG",    "SECTRRG",   "BOWKG",    "BOWRRG",  "BOWCGFP",  "BOWPRG",   "STERNKG", "STERNRRG",
    "STERNCGAP", "STERNPRG",  "YPOS",     "ZPOSBL",  "DECKHBL",  "SLWIDTH",  "YBK",     "ZBKBL",
    "BBK",       "BSKEG",     "ELSKEG",   "YRTRUD",  "ZRTRUDBL", "SPANRUD",  "RCRUD",   "TCRUD",
    "YRTFOIL",   "ZRTFOILBL", "SPANFOIL", "RCFOIL",  "TCFOIL",   "YRTFIN",   "ZFINBL",  "SPANFIN",
    "RCFIN",     "TCFIN",     "TANKLEN",  "WDTANK",  "W1TANK",   "DPTANK",   "HDTANK",  "ZTANKBL"};

/// Puts the same value and unit flag into every field that has them.
void FillAll(CProjectData& project, float value, int unit)
{
    for (CParamArray* field : project.Fields())
    {
        field->Fill(value);
        field->unit = unit;
    }
    for (auto* heights : {&project.BretHs, &project.JonswapHs, &project.OchiHs1, &project.OchiHs2})
    {
        heights->fill(value);
    }
    project.BretUnit = project.JonswapUnit = project.OchiUnit = unit;
    project.RudderLateralGains.fill(value);
    project.RudderLateralGainUnits.fill(unit);
    project.LateralPointZ = value;
    project.LateralPointZUnit = unit;
}

/// Every keyword field's slots after a conversion that found `kHeld` everywhere.
void ExpectKeywords(CProjectData& project, float lengthFactor, float massFactor, int from, int to)
{
    for (const CParamArray* field : project.Fields())
    {
        const bool isLength = kLengths.contains(field->name);
        const bool isMass = kMasses.contains(field->name);
        const float factor = isLength ? lengthFactor : isMass ? massFactor : 1.0F;
        EXPECT_THAT(field->data, Each(kHeld * factor)) << field->name;
        // The period's flag follows the height's.
        const bool converted = isLength || isMass || field->name == "TSW";
        EXPECT_EQ(field->unit, converted ? to : from) << field->name;
        EXPECT_EQ(field->changed, 0) << field->name;
    }
}

/// The numbers of all plain fields, by name.
std::map<std::string, std::vector<float>> PlainNumbers(const CProjectData& project)
{
    std::map<std::string, std::vector<float>> numbers;
    project.EachPlainField(
        [&numbers](const char* name, const auto& field)
        {
            using CField = std::decay_t<decltype(field)>;
            if constexpr (std::is_same_v<CField, float>)
            {
                numbers[name] = {field};
            }
            else if constexpr (requires { std::span<const float>(field); })
            {
                numbers[name].assign(field.begin(), field.end());
            }
        });
    return numbers;
}
} // namespace

TEST(UnitConversion, MetricToBritishConvertsTheListedKeywordsAndNoOther)
{
    CTestProject test;
    FillAll(test.Project, kHeld, kUnitMetric);
    ConvertProject(test.Project, kUnitBritish);
    ExpectKeywords(test.Project, kFeetPerMetre, kLongTonsPerTonne, kUnitMetric, kUnitBritish);
}

TEST(UnitConversion, BritishToMetricConvertsTheListedKeywordsAndNoOther)
{
    CTestProject test;
    FillAll(test.Project, kHeld, kUnitBritish);
    ConvertProject(test.Project, kUnitMetric);
    ExpectKeywords(test.Project, kMetresPerFoot, kTonnesPerLongTon, kUnitBritish, kUnitMetric);
}

TEST(UnitConversion, SeawayHeightsOfTheTablesAreLengths)
{
    CTestProject test;
    CProjectData& project = test.Project;
    FillAll(project, kHeld, kUnitMetric);
    ConvertProject(project, kUnitBritish);
    for (const auto* heights : {&project.BretHs, &project.JonswapHs, &project.OchiHs1, &project.OchiHs2})
    {
        EXPECT_THAT(*heights, Each(kHeld * kFeetPerMetre));
    }
    EXPECT_EQ(project.BretUnit, kUnitBritish);
    EXPECT_EQ(project.JonswapUnit, kUnitBritish);
    EXPECT_EQ(project.OchiUnit, kUnitBritish);
}

TEST(UnitConversion, EachSeawayTableHasAFlagOfItsOwn)
{
    CTestProject test;
    CProjectData& project = test.Project;
    FillAll(project, kHeld, kUnitBritish);
    project.JonswapUnit = kUnitMetric;
    project.ZETA2.unit = kUnitMetric;
    ConvertProject(project, kUnitMetric);
    EXPECT_EQ(project.BretHs[9], kHeld * kMetresPerFoot);
    EXPECT_EQ(project.JonswapHs[9], kHeld);
    EXPECT_EQ(project.OchiHs1[9], kHeld * kMetresPerFoot);
    EXPECT_EQ(project.OchiHs2[9], kHeld * kMetresPerFoot);
    EXPECT_EQ(project.ZETA1.Value(9), kHeld * kMetresPerFoot);
    EXPECT_EQ(project.ZETA2.Value(9), kHeld);
}

TEST(UnitConversion, PlainFieldsOutsideTheListKeepTheirNumbers)
{
    CTestProject test;
    CProjectData& project = test.Project;
    FillAll(project, kHeld, kUnitMetric);
    project.BretTp.fill(kHeld);
    project.SlamMidshipDraft.fill(kHeld);
    project.SlamLoadHeight.fill(kHeld);
    project.LateralPointX = kHeld;
    project.WorkingDraft = kHeld;
    project.FinYawGains.fill(kHeld);
    const auto before = PlainNumbers(project);
    ConvertProject(project, kUnitBritish);
    const std::set<std::string> converted = {"BretHs",  "JonswapHs",          "OchiHs1",
                                             "OchiHs2", "RudderLateralGains", "LateralPointZ"};
    for (const auto& [name, numbers] : PlainNumbers(project))
    {
        EXPECT_EQ(numbers != before.at(name), converted.contains(name)) << name;
    }
    EXPECT_EQ(project.SectionAreaUnit, 1);
    EXPECT_EQ(project.SeaDirectionUnit, 0);
    EXPECT_EQ(project.WorkingDraftUnit, 0);
}

TEST(UnitConversion, TheRuddersLateralGainsArePerMetre)
{
    CTestProject test;
    CProjectData& project = test.Project;
    project.RudderLateralGains = {2.0F, -2.0F, 0.5F};
    ConvertProject(project, kUnitBritish);
    EXPECT_THAT(project.RudderLateralGains,
                ElementsAre(2.0F * kMetresPerFoot, -2.0F * kMetresPerFoot, 0.5F * kMetresPerFoot));
    EXPECT_THAT(project.RudderLateralGainUnits, Each(kUnitBritish));

    project.RudderLateralGains = {2.0F, -2.0F, 0.5F};
    ConvertProject(project, kUnitMetric);
    EXPECT_THAT(project.RudderLateralGains,
                ElementsAre(2.0F * kFeetPerMetre, -2.0F * kFeetPerMetre, 0.5F * kFeetPerMetre));
    EXPECT_THAT(project.RudderLateralGainUnits, Each(kUnitMetric));
}

TEST(UnitConversion, EachLateralGainHasAFlagOfItsOwn)
{
    CTestProject test;
    CProjectData& project = test.Project;
    project.RudderLateralGains = {2.0F, 2.0F, 2.0F};
    project.RudderLateralGainUnits = {kUnitMetric, kUnitBritish, kUnitMetric};
    ConvertProject(project, kUnitBritish);
    EXPECT_THAT(project.RudderLateralGains, ElementsAre(2.0F * kMetresPerFoot, 2.0F, 2.0F * kMetresPerFoot));
    EXPECT_THAT(project.RudderLateralGainUnits, Each(kUnitBritish));
}

TEST(UnitConversion, LateralGainsThatArentGivenStayByEitherSentinel)
{
    CTestProject test;
    CProjectData& project = test.Project;
    project.RudderLateralGains = {kNotGiven, kGainNotGiven, 3.0F};
    ConvertProject(project, kUnitBritish);
    EXPECT_THAT(project.RudderLateralGains, ElementsAre(-1.0F, -111111.0F, 3.0F * kMetresPerFoot));
    EXPECT_THAT(project.RudderLateralGainUnits, Each(kUnitBritish));
}

TEST(UnitConversion, OfTheLateralPointOnlyZIsALength)
{
    CTestProject test;
    CProjectData& project = test.Project;
    project.LateralPointX = 4.0F;
    project.LateralPointZ = 4.0F;
    ConvertProject(project, kUnitBritish);
    EXPECT_EQ(project.LateralPointX, 4.0F);
    EXPECT_EQ(project.LateralPointZ, 4.0F * kFeetPerMetre);
    EXPECT_EQ(project.LateralPointZUnit, kUnitBritish);

    project.LateralPointZ = kNotGiven;
    ConvertProject(project, kUnitMetric);
    EXPECT_EQ(project.LateralPointZ, -1.0F);
    EXPECT_EQ(project.LateralPointZUnit, kUnitMetric);
}

TEST(UnitConversion, OffsetsAreRuledByTheFlagOfYAlone)
{
    CTestProject test;
    CProjectData& project = test.Project;
    project.YAUSER.Fill(3);
    project.ZAUSERBL.Fill(5);
    project.YAUSER.unit = kUnitMetric;
    project.ZAUSERBL.unit = kUnitBritish;
    ConvertProject(project, kUnitBritish);
    EXPECT_THAT(project.YAUSER.data, Each(3.0F * kFeetPerMetre));
    EXPECT_THAT(project.ZAUSERBL.data, Each(5.0F * kFeetPerMetre));
    EXPECT_EQ(project.YAUSER.unit, kUnitBritish);
    EXPECT_EQ(project.ZAUSERBL.unit, kUnitBritish);

    project.ZAUSERBL.unit = kUnitMetric;
    ConvertProject(project, kUnitBritish);
    EXPECT_THAT(project.ZAUSERBL.data, Each(5.0F * kFeetPerMetre));
    EXPECT_EQ(project.ZAUSERBL.unit, kUnitBritish);
}

TEST(UnitConversion, AllStationSlotsAreConvertedWhateverTheCounts)
{
    CTestProject test;
    CProjectData& project = test.Project;
    project.NST.Set(2);
    project.NOFFUSER.Fill(3);
    project.YAUSER.Set(1259, 10);
    ConvertProject(project, kUnitBritish);
    EXPECT_EQ(project.YAUSER.Value(1259), 10.0F * kFeetPerMetre);
}

TEST(UnitConversion, ThePeriodKeepsItsNumberAndTakesTheFlagOfTheHeight)
{
    CTestProject test;
    CProjectData& project = test.Project;
    project.HSW.Set(0, 2);
    project.TSW.Set(0, 8);
    ConvertProject(project, kUnitBritish);
    EXPECT_EQ(project.HSW.Value(), 2.0F * kFeetPerMetre);
    EXPECT_EQ(project.TSW.Value(), 8.0F);
    EXPECT_EQ(project.TSW.unit, kUnitBritish);
}

TEST(UnitConversion, ValuesThatArentGivenStayAndTheirFlagsFollow)
{
    CTestProject test;
    CProjectData& project = test.Project;
    FillAll(project, kNotGiven, kUnitMetric);
    ConvertProject(project, kUnitBritish);
    for (const CParamArray* field : project.Fields())
    {
        EXPECT_THAT(field->data, Each(-1.0F)) << field->name;
    }
    EXPECT_EQ(project.SHIPLEN.unit, kUnitBritish);
    EXPECT_EQ(project.DISPUSER.unit, kUnitBritish);
    EXPECT_THAT(project.BretHs, Each(-1.0F));
    EXPECT_EQ(project.BretUnit, kUnitBritish);
    EXPECT_EQ(project.LateralPointZ, -1.0F);
}

TEST(UnitConversion, OnlyTheExactSentinelIsSpared)
{
    CTestProject test;
    test.Project.KG.Set(-1.0001F);
    test.Project.TRIMST.Set(-2);
    ConvertProject(test.Project, kUnitBritish);
    EXPECT_EQ(test.Project.KG.Value(), -1.0001F * kFeetPerMetre);
    EXPECT_EQ(test.Project.TRIMST.Value(), -2.0F * kFeetPerMetre);
}

TEST(UnitConversion, AValueThatBecomesMinusOneReadsAsNotGivenFromThenOn)
{
    CTestProject test;
    CProjectData& project = test.Project;
    // The neighbours of -1/3.28084 are tried too: one of them gives exactly -1.
    float metres = std::nextafter(-1.0F / kFeetPerMetre, -1.0F);
    while (metres * kFeetPerMetre != -1.0F && metres < -0.304F)
    {
        metres = std::nextafter(metres, 0.0F);
    }
    ASSERT_EQ(metres * kFeetPerMetre, -1.0F);
    project.KG.Set(metres);
    ConvertProject(project, kUnitBritish);
    EXPECT_EQ(project.KG.Value(), -1.0F);
    ConvertProject(project, kUnitMetric);
    EXPECT_EQ(project.KG.Value(), -1.0F);
}

TEST(UnitConversion, ThereAndBackReturnsTheValueWithinTheProductOfTheFactors)
{
    CTestProject test;
    CProjectData& project = test.Project;
    project.SHIPLEN.Set(10);
    project.DISPUSER.Set(10);
    ConvertProject(project, kUnitBritish);
    EXPECT_EQ(project.SHIPLEN.Value(), 32.8084F);
    EXPECT_EQ(project.DISPUSER.Value(), 9.842065F);
    ConvertProject(project, kUnitMetric);
    EXPECT_EQ(FixedText(static_cast<double>(project.SHIPLEN.Value()), "%.6f"), "10.000000");
    EXPECT_NEAR(static_cast<double>(project.SHIPLEN.Value()), 10.0, 2e-6);
    EXPECT_NEAR(static_cast<double>(project.DISPUSER.Value()), 10.0 * 0.9842065 * 1.016047, 2e-6);
}

TEST(UnitConversion, AProjectOfMixedUnitsBecomesUniform)
{
    CTestProject test;
    CProjectData& project = test.Project;
    FillAll(project, kHeld, kUnitBritish);
    project.SHIPLEN.unit = kUnitMetric;
    project.BEAM.unit = kUnitMetric;
    project.OchiUnit = kUnitMetric;
    ConvertProject(project, kUnitBritish);
    EXPECT_EQ(project.SHIPLEN.Value(), kHeld * kFeetPerMetre);
    EXPECT_THAT(project.BEAM.data, Each(kHeld * kFeetPerMetre));
    EXPECT_THAT(project.OchiHs1, Each(kHeld * kFeetPerMetre));
    EXPECT_THAT(project.OchiHs2, Each(kHeld * kFeetPerMetre));
    EXPECT_THAT(project.DRAFT.data, Each(kHeld)) << "held in feet already";
    EXPECT_EQ(project.SECTTN.Value(), kHeld);
    for (const CParamArray* field : project.Fields())
    {
        EXPECT_EQ(field->unit, kUnitBritish) << field->name;
    }
    EXPECT_EQ(project.OchiUnit, kUnitBritish);
}

TEST(UnitConversion, ASecondConversionToTheSameSystemChangesNothing)
{
    CTestProject test;
    CProjectData& project = test.Project;
    FillAll(project, kHeld, kUnitMetric);
    ConvertProject(project, kUnitBritish);
    const auto plain = PlainNumbers(project);
    ConvertProject(project, kUnitBritish);
    ExpectKeywords(project, kFeetPerMetre, kLongTonsPerTonne, kUnitMetric, kUnitBritish);
    EXPECT_EQ(PlainNumbers(project), plain);
}

TEST(UnitConversion, AFlagThatNamesNeitherSystemConvertsNothingAndStays)
{
    CTestProject test;
    CProjectData& project = test.Project;
    for (const int unit : {kUnitBritish, kUnitMetric})
    {
        FillAll(project, kHeld, 7);
        ConvertProject(project, unit);
        ExpectKeywords(project, 1, 1, 7, 7);
        EXPECT_THAT(project.BretHs, Each(kHeld));
        EXPECT_EQ(project.BretUnit, 7);
        EXPECT_THAT(project.RudderLateralGains, Each(kHeld));
        EXPECT_THAT(project.RudderLateralGainUnits, Each(7));
    }
}

TEST(UnitConversion, NumbersBeyondAllShipsAreConvertedAsTheyAre)
{
    CTestProject test;
    CProjectData& project = test.Project;
    project.SHIPLEN.Set(std::numeric_limits<float>::max());
    project.KG.Set(std::numeric_limits<float>::quiet_NaN());
    ConvertProject(project, kUnitBritish);
    EXPECT_TRUE(std::isinf(project.SHIPLEN.Value()));
    EXPECT_TRUE(std::isnan(project.KG.Value()));
}

TEST(UnitChoices, AChoiceThatDiffersIsStoredAndMarked)
{
    CTestProject test;
    StoreUnitChoices(test.Project, 0, 1, 1);
    EXPECT_EQ(test.Project.INSYS.Value(), 0);
    EXPECT_EQ(test.Project.INSYS.changed, 1);
    EXPECT_EQ(test.Project.OUTSYS.Value(), 1);
    EXPECT_EQ(test.Project.OUTSYS.changed, 0);
    EXPECT_EQ(test.Project.WATERDEN.Value(), 1);
    EXPECT_EQ(test.Project.WATERDEN.changed, 1);
}

TEST(UnitChoices, DoNotCountAsAModifiedProject)
{
    CTestProject test;
    StoreUnitChoices(test.Project, 0, 0, 1);
    EXPECT_EQ(test.Session.Modified, 0);
}

TEST(UnitChoices, AStoredFractionIsReadByItsIntegerPart)
{
    CTestProject test;
    test.Project.OUTSYS.Set(1.75F);
    StoreUnitChoices(test.Project, 1, 1, 0);
    EXPECT_EQ(test.Project.OUTSYS.Value(), 1.75F);
    EXPECT_EQ(test.Project.OUTSYS.changed, 0);
}
