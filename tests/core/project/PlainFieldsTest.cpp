#include "core/project/PlainFields.h"

#include "tests/core/project/CSpoiledProject.h"
#include "tests/support/CTestProject.h"

#include <map>
#include <string>
#include <type_traits>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{
using testing::Each;
using testing::ElementsAre;

/// The names of the plain fields that no longer hold what SpoilPlainFields puts there.
std::vector<std::string> PlainFieldsSet(const CProjectData& project)
{
    CProjectData spoiled;
    SpoilPlainFields(spoiled);
    std::vector<std::string> texts;
    const auto describe = [](const auto& field) { return testing::PrintToString(field); };
    spoiled.EachPlainField(
        [&](const char*, const auto& field)
        {
            if constexpr (!std::is_same_v<std::decay_t<decltype(field)>, CSummaryValues>)
            {
                texts.push_back(describe(field));
            }
        });
    std::vector<std::string> set;
    std::size_t k = 0;
    project.EachPlainField(
        [&](const char* name, const auto& field)
        {
            if constexpr (!std::is_same_v<std::decay_t<decltype(field)>, CSummaryValues>)
            {
                if (describe(field) != texts[k++])
                {
                    set.push_back(name);
                }
            }
        });
    return set;
}

void ExpectInitial(const CSummaryValues& values)
{
    EXPECT_THAT(values.Numbers, Each(-1.0F));
    EXPECT_EQ(values.Choice, -1);
    EXPECT_THAT(values.Texts, Each(""));
    EXPECT_EQ(values.Position, -1);
}

/// Compares each slot of a plain field with one value.
class CPlainFieldCheck
{
public:
    void operator()(const char* name, int field) const { EXPECT_EQ(field, Expected(name, 0)) << name; }
    void operator()(const char* name, float field) const { EXPECT_EQ(field, Expected(name, -1)) << name; }
    void operator()(const char* name, const std::string& field) const
    {
        const bool path = name == std::string("InputFilePath") || name == std::string("ResultsTitle");
        EXPECT_EQ(field, path ? "noname" : "") << name;
    }
    void operator()(const char* name, const CSelection& field) const { EXPECT_TRUE(field.empty()) << name; }
    void operator()(const char*, const CSummaryValues& field) const { ExpectInitial(field); }
    template <class CValue, std::size_t Count>
    void operator()(const char* name, const std::array<CValue, Count>& field) const
    {
        for (const CValue& value : field)
        {
            (*this)(name, value);
        }
    }

private:
    static float Expected(const std::string& name, float usual)
    {
        static const std::map<std::string, float> unusual = {{"SectionAreaUnit", 1.0F},
                                                             {"WarnMassLimit", 1.0F},
                                                             {"SeaDirectionOption", -1.0F},
                                                             {"SummaryOption", -1.0F},
                                                             {"WorkingDraft", 0.0F},
                                                             {"WorkingTrim", 0.0F},
                                                             {"RudderLateralGains", -111111.0F},
                                                             {"FinYawGains", -111111.0F},
                                                             {"RudderDihedral", -90.0F},
                                                             {"MSIExposure", 4.0F}};
        const auto found = unusual.find(name);
        return found == unusual.end() ? usual : found->second;
    }
};
} // namespace

TEST(PlainFields, AResetOfKeywordsLeavesPlainFieldsAlone)
{
    CSpoiledProject project;
    project.ResetKeywords();
    EXPECT_THAT(PlainFieldsSet(project), testing::IsEmpty());
    EXPECT_EQ(project.SummaryValues.Choice, kStrange);
}

TEST(PlainFields, TheyBeginWithTheirInitialValues)
{
    const CProjectData project;
    project.EachPlainField(CPlainFieldCheck());
}

TEST(PlainFields, ANewProjectHoldsThePlainFieldsInitialValues)
{
    CTestProject test;
    SpoilPlainFields(test.Project);
    static_cast<CSessionFields&>(test.Project) = {};
    test.File.NewProject();
    test.Project.EachPlainField(CPlainFieldCheck());
}

TEST(PlainFields, ClearingTheEnvironmentSetsItsPlainFieldsAlone)
{
    CSpoiledProject project;
    project.ClearEnvironmentExtras();
    EXPECT_THAT(PlainFieldsSet(project),
                ElementsAre("OldFileText", "SpectrumFile", "HindcastFile", "DirectionalFile",
                            "SeaDirectionUnit", "SpreadOption", "SpreadAngleText", "BretHs", "BretTp",
                            "JonswapHs", "JonswapTp", "BretUnit", "JonswapUnit", "OchiUnit", "OchiHs1",
                            "OchiHs2", "OchiTp1", "OchiTp2", "OchiLam1", "OchiLam2"));
    EXPECT_EQ(project.SummaryValues.Choice, kStrange);
}

TEST(PlainFields, AClearedEnvironmentHoldsItsInitialValues)
{
    CSpoiledProject project;
    project.ClearEnvironmentExtras();
    EXPECT_EQ(project.SpreadOption, 0);
    EXPECT_EQ(project.SeaDirectionUnit, 0);
    EXPECT_EQ(project.SpreadAngleText, -1.0F);
    EXPECT_EQ(project.OldFileText + project.SpectrumFile + project.HindcastFile + project.DirectionalFile,
              "");
    EXPECT_EQ(project.BretUnit, 0);
    EXPECT_EQ(project.JonswapUnit, 0);
    EXPECT_EQ(project.OchiUnit, 0);
    for (const auto* seaways :
         {&project.BretHs, &project.BretTp, &project.JonswapHs, &project.JonswapTp, &project.OchiHs1,
          &project.OchiHs2, &project.OchiTp1, &project.OchiTp2, &project.OchiLam1, &project.OchiLam2})
    {
        EXPECT_THAT(*seaways, Each(-1.0F));
    }
}

TEST(PlainFields, ClearingTheGeometryKeepsFourOfItsPlainFields)
{
    CSpoiledProject project;
    project.ClearGeometryExtras();
    EXPECT_EQ(project.RudderRollStabilization, kStrange);
    EXPECT_EQ(project.WarnMassLimit, kStrange);
    EXPECT_EQ(project.WorkingDraftUnit, kStrange);
    EXPECT_EQ(project.WorkingTrim, static_cast<float>(kStrange));
}

TEST(PlainFields, ClearingTheGeometrySetsItsPlainFieldsAlone)
{
    CSpoiledProject project;
    project.ClearGeometryExtras();
    EXPECT_THAT(PlainFieldsSet(project),
                ElementsAre("StationOrigin", "PositionLabel", "SectionAreaUnit", "SectionAreaSource",
                            "WorkingStationCount", "WorkingDraft", "StationSpare", "LoadStationsUserInput",
                            "KxxiUserInput", "KgUserInput", "WaveFreqUserInput", "EncFreqUserInput",
                            "MassDataEntered", "SlamMidshipDraft", "SlamLoadHeight", "MSIFlag", "MSIMethod",
                            "MSIExposureOption", "MSIExposure", "AppendedHull", "IncludeSkeg", "IncludeFoils",
                            "IncludeBilgeKeels", "IncludeRudder", "IncludeStabilizer", "RudderGainFileUsed",
                            "FinGainFileUsed", "RudderGainFile", "FinGainFile", "RudderDihedral",
                            "RudderLateralGains", "RudderLateralGainUnits", "LateralPointX", "LateralPointZ",
                            "LateralPointZUnit", "LateralGainPoint", "FinYawGains"));
    ExpectInitial(project.SummaryValues);
}

TEST(PlainFields, AClearedRudderHangsAt0DegreesAndItsLateralGainsAreMinusOne)
{
    CSpoiledProject project;
    project.ClearGeometryExtras();
    EXPECT_EQ(project.RudderDihedral, 0.0F);
    EXPECT_THAT(project.RudderLateralGains, Each(-1.0F));
    EXPECT_THAT(project.RudderLateralGainUnits, Each(0));
    EXPECT_EQ(project.LateralPointX, -1.0F);
    EXPECT_EQ(project.LateralPointZ, -1.0F);
    EXPECT_EQ(project.LateralPointZUnit, 0);
    EXPECT_EQ(project.LateralGainPoint, 0);
}

TEST(PlainFields, ClearedYawGainsOfTheFinsAreMinusOne)
{
    CSpoiledProject project;
    project.ClearGeometryExtras();
    EXPECT_THAT(project.FinYawGains, Each(-1.0F));
}

TEST(PlainFields, ClearedPositionsHaveNoLabelAndFourHoursOfExposure)
{
    CSpoiledProject project;
    project.ClearGeometryExtras();
    EXPECT_THAT(project.PositionLabel, Each(""));
    EXPECT_THAT(project.SlamMidshipDraft, Each(-1.0F));
    EXPECT_THAT(project.SlamLoadHeight, Each(-1.0F));
    EXPECT_THAT(project.MSIFlag, Each(0));
    EXPECT_THAT(project.MSIMethod, Each(0));
    EXPECT_THAT(project.MSIExposureOption, Each(0));
    EXPECT_THAT(project.MSIExposure, Each(4.0F));
}

TEST(PlainFields, AClearedGeometryHasItsFlagsAndWorkingValuesBack)
{
    CSpoiledProject project;
    project.ClearGeometryExtras();
    EXPECT_EQ(project.SectionAreaUnit, 1);
    EXPECT_EQ(project.SectionAreaSource, 0);
    EXPECT_EQ(project.WorkingStationCount, 0);
    EXPECT_EQ(project.WorkingDraft, 0.0F);
    EXPECT_EQ(project.MassDataEntered, 0);
    EXPECT_THAT(project.StationSpare, Each(-1.0F));
    EXPECT_EQ(project.RudderGainFile + project.FinGainFile, "");
    for (const int flag :
         {project.StationOrigin, project.LoadStationsUserInput, project.KgUserInput, project.KxxiUserInput,
          project.WaveFreqUserInput, project.EncFreqUserInput, project.AppendedHull, project.IncludeSkeg,
          project.IncludeFoils, project.IncludeBilgeKeels, project.IncludeRudder, project.IncludeStabilizer,
          project.RudderGainFileUsed, project.FinGainFileUsed})
    {
        EXPECT_EQ(flag, 0);
    }
}

TEST(PlainFields, ResettingTheExtrasSetsBothHalvesAndWhatFormsRemember)
{
    CSpoiledProject project;
    project.ResetExtras();
    EXPECT_EQ(project.RudderDihedral, -90.0F);
    EXPECT_THAT(project.RudderLateralGains, Each(-111111.0F));
    EXPECT_THAT(project.FinYawGains, Each(-111111.0F));
    EXPECT_EQ(project.WarnMassLimit, 1);
    EXPECT_EQ(project.WorkingTrim, 0.0F);
    EXPECT_THAT(project.OchiLam2, Each(-1.0F));
    EXPECT_EQ(project.SeaDirectionOption, -1);
    EXPECT_EQ(project.SummaryOption, -1);
    EXPECT_EQ(project.SummaryOption2, 0);
}

TEST(PlainFields, ResettingTheExtrasKeepsTitlePathsResultsAndCheckOptions)
{
    CSpoiledProject project;
    project.ResetExtras();
    EXPECT_EQ(project.ProjectTitle, "strange");
    EXPECT_EQ(project.InputFilePath, "strange");
    EXPECT_EQ(project.ResultsFilePath, "strange");
    EXPECT_EQ(project.ResultsLoaded, kStrange);
    EXPECT_EQ(project.ChkNegZPreRun, kStrange);
    EXPECT_THAT(project.SelectedSpeeds, ElementsAre(kStrange));
}
