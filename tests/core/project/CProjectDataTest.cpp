#include "core/project/CProjectData.h"

#include "tests/core/project/CSpoiledProject.h"
#include "tests/support/CTestProject.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{
using testing::Each;
using testing::ElementsAre;

float DefaultOf(const CKeywordRow& row)
{
    const std::string name = row.Name;
    return name == "DIFOIL" || name == "DIFIN" ? -99.0F : row.Default;
}

void ExpectReset(const CParamArray& field, const CKeywordRow& row)
{
    EXPECT_EQ(field.name, row.Name);
    EXPECT_EQ(field.unit, row.Unit) << row.Name;
    EXPECT_EQ(field.scope, row.Scope) << row.Name;
    EXPECT_EQ(field.min, row.Minimum) << row.Name;
    EXPECT_EQ(field.max, row.Maximum) << row.Name;
    EXPECT_EQ(field.changed, 0) << row.Name;
    EXPECT_EQ(field.Capacity(), row.Count) << row.Name;
    EXPECT_THAT(field.data, Each(DefaultOf(row))) << row.Name;
}

void ExpectSpoiledButNamed(const CParamArray& field, const CKeywordRow& row)
{
    EXPECT_EQ(field.name, row.Name);
    EXPECT_EQ(field.unit, kStrange) << row.Name;
    EXPECT_EQ(field.scope, kStrange) << row.Name;
    EXPECT_EQ(field.min, static_cast<float>(kStrange)) << row.Name;
    EXPECT_EQ(field.max, static_cast<float>(kStrange)) << row.Name;
    EXPECT_EQ(field.changed, kStrange) << row.Name;
    EXPECT_THAT(field.data, Each(static_cast<float>(kStrange))) << row.Name;
}

/// Each keyword field of a spoiled project after a reset of one half.
void ExpectHalfReset(CProjectData& project, int scope)
{
    for (std::size_t k = 0; k < project.Fields().size(); ++k)
    {
        const CKeywordRow& row = KeywordTable()[k];
        if (row.Scope == scope)
        {
            ExpectReset(*project.Fields()[k], row);
        }
        else
        {
            ExpectSpoiledButNamed(*project.Fields()[k], row);
        }
    }
}
} // namespace

TEST(CProjectData, ItsFieldsAreTheKeywordsInTableOrder)
{
    CProjectData project;
    project.ResetKeywords();
    EXPECT_EQ(project.Fields().size(), 171U);
    EXPECT_EQ(project.Fields().front(), &project.INSYS);
    EXPECT_EQ(project.Fields()[20], &project.WVFREQMIN);
    EXPECT_EQ(project.Fields()[54], &project.NST);
    EXPECT_EQ(project.Fields().back(), &project.BFREQTANK);
    EXPECT_EQ(project.YAUSER.name, "YAUSER");
    EXPECT_EQ(project.YAUSER.Capacity(), 1260);
    EXPECT_EQ(project.YSLOFFBL.Capacity(), 110);
    EXPECT_EQ(project.YBK.Capacity(), 105);
    EXPECT_EQ(project.SEADIR.Capacity(), 36);
}

TEST(CProjectData, IncidencesAreNotGivenFromTheStart)
{
    const CProjectData project;
    EXPECT_THAT(project.DIFOIL.data, ElementsAre(-99.0F, -99.0F, -99.0F, -99.0F));
    EXPECT_THAT(project.DIFIN.data, ElementsAre(-99.0F, -99.0F, -99.0F, -99.0F));
}

TEST(CProjectData, AResetLeavesEveryKeywordAsTheTableHasIt)
{
    CSpoiledProject project;
    project.ResetKeywords();
    for (std::size_t k = 0; k < project.Fields().size(); ++k)
    {
        ExpectReset(*project.Fields()[k], KeywordTable()[k]);
    }
}

TEST(CProjectData, EveryResetLeavesAllKeywordsWithNameUnitScopeLimitsAndUnchanged)
{
    CTestProject test;
    CProjectData& project = test.Project;
    const auto expectTable = [&project]
    {
        for (std::size_t k = 0; k < project.Fields().size(); ++k)
        {
            ExpectReset(*project.Fields()[k], KeywordTable()[k]);
        }
    };
    expectTable();
    test.File.ResetGeometry();
    expectTable();
    test.File.ResetEnvironment();
    expectTable();
    test.File.ResetAll();
    expectTable();
}

TEST(CProjectData, AResetOfTheGeometryKeepsTheOtherHalfAndWhatBelongsToBoth)
{
    CSpoiledProject project;
    project.ResetKeywords(kScopeGeometry);
    ExpectHalfReset(project, kScopeGeometry);
}

TEST(CProjectData, AResetOfTheEnvironmentKeepsTheOtherHalfAndWhatBelongsToBoth)
{
    CSpoiledProject project;
    project.ResetKeywords(kScopeEnvironment);
    ExpectHalfReset(project, kScopeEnvironment);
}

TEST(CProjectData, SevenKeywordsBelongToBothHalves)
{
    CTestProject test;
    std::vector<std::string> both;
    for (const CParamArray* field : test.Project.Fields())
    {
        if (field->scope == kScopeBoth)
        {
            both.push_back(field->name);
        }
    }
    EXPECT_THAT(both, ElementsAre("INSYS", "OUTSYS", "WATERDEN", "SPEEDCOR", "SWELLCOR", "OUTRAO", "EXCITE"));
}

TEST(CProjectData, AResetOfTheGeometryAloneSetsIncidencesToMinus99)
{
    CSpoiledProject project;
    project.ResetKeywords(kScopeGeometry);
    EXPECT_THAT(project.DIFOIL.data, Each(-99.0F));
    EXPECT_THAT(project.DIFIN.data, Each(-99.0F));
    EXPECT_EQ(project.DIFOIL.Capacity(), 4);
}

TEST(CProjectData, GainsOfBothSignsHaveTheirOwnSentinel)
{
    CTestProject test;
    CProjectData& project = test.Project;
    for (const CParamArray* gain :
         {&project.RAGNRUD, &project.RVGNRUD, &project.RGNRUD, &project.YAGNRUD, &project.YVGNRUD,
          &project.YGNRUD, &project.RAGNFIN, &project.RVGNFIN, &project.RGNFIN})
    {
        EXPECT_EQ(gain->Value(), -111111.0F) << gain->name;
    }
}

TEST(CProjectData, AResetPutsUnitsToTheTablesWhateverTheInputSystem)
{
    CTestProject test;
    test.Project.INSYS.Set(0);
    test.Project.SHIPLEN.unit = kUnitBritish;
    test.File.ResetGeometry();
    EXPECT_EQ(test.Project.SHIPLEN.unit, kUnitMetric);
    EXPECT_EQ(test.Project.INSYS.Value(), 0.0F);
}

TEST(CProjectData, ItsCompletenessFlagsAreSixteenAndClearTogether)
{
    CProjectData project;
    project.TankComplete = project.MassComplete = project.WaveComplete = 1;
    project.ClearCompleteness();
    std::vector<std::string> names;
    project.EachCompletenessFlag(
        [&names](const char* name, int flag)
        {
            names.push_back(name);
            EXPECT_EQ(flag, 0) << name;
        });
    EXPECT_THAT(names,
                ElementsAre("TankComplete", "BilgeKeelComplete", "OffsetsComplete", "FoilComplete",
                            "HullComplete", "MassComplete", "FrequenciesComplete", "SpeedsComplete",
                            "ParticularsComplete", "FinComplete", "RudderComplete", "SeaDirectionsComplete",
                            "PositionsComplete", "SectionAreasComplete", "SkegComplete", "WaveComplete"));
}
