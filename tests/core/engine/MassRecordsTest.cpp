#include "tests/core/engine/CEngineProject.h"

#include <gmock/gmock.h>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{
struct CLoadedProject : CEngineProject
{
    explicit CLoadedProject(int stations)
    {
        CProjectData& p = Project;
        p.LOADFLAG.Set(0);
        SetSections(stations);
        p.NSTLOAD.Set(2);
        p.XSTLOAD.Set(0, 5);
        p.XSTLOAD.Set(1, 10.5F);
        for (int i = 0; i < 21; ++i)
        {
            p.SECTTN.Set(i, static_cast<float>(i));
        }
        p.SECTKG.Fill(2);
        p.SECTRRG.Fill(3);
    }
    std::vector<std::string> Masses(std::size_t count) { return LinesBehind("6.250 0.000", count); }
};
} // namespace

TEST(MassRecords, NoLoadsNoMasses)
{
    CLoadedProject project(1);
    project.Project.LOADFLAG.Set(1);
    EXPECT_THAT(project.Masses(1), ElementsAre("0 20.00 0.0100"));
}

TEST(MassRecords, DefaultsAreStationNumbersAndZeros)
{
    CLoadedProject project(3);
    EXPECT_THAT(project.Masses(8),
                ElementsAre("2", "0 1 2", "0.00 1.00 2.00", "0.00 0.00 0.00", "0.00 0.00 0.00",
                            "-1.00 0.00 0.00 0.00 0.00", "-1.00 0.00 0.00 0.00 0.00", "0 20.00 0.0100"));
}

TEST(MassRecords, ThirteenStationsAreALineOfSevenAndOneOfSix)
{
    CLoadedProject project(13);
    const auto lines = project.Masses(8);
    EXPECT_EQ(lines[2], "0.00 1.00 2.00 3.00 4.00 5.00 6.00");
    EXPECT_EQ(lines[3], "  7.00 8.00 9.00 10.00 11.00 12.00");
    EXPECT_EQ(lines[4], "0.00 0.00 0.00 0.00 0.00 0.00 0.00") << "the default heights are wrapped too";
    EXPECT_EQ(lines[5], "  0.00 0.00 0.00 0.00 0.00 0.00");
    EXPECT_EQ(lines[6], "0.00 0.00 0.00 0.00 0.00 0.00 0.00");
    EXPECT_EQ(lines[7], "  0.00 0.00 0.00 0.00 0.00 0.00");
}

TEST(MassRecords, FourteenStationsAreTwoLinesAndNoThird)
{
    CLoadedProject project(14);
    const auto lines = project.Masses(9);
    EXPECT_EQ(lines[2], "0.00 1.00 2.00 3.00 4.00 5.00 6.00");
    EXPECT_EQ(lines[3], "  7.00 8.00 9.00 10.00 11.00 12.00 13.00");
    EXPECT_EQ(lines[4], "0.00 0.00 0.00 0.00 0.00 0.00 0.00");
    EXPECT_EQ(lines[8], "-1.00 0.00 0.00 0.00 0.00");
}

TEST(MassRecords, LoadStationsOfTheUser)
{
    CLoadedProject project(1);
    project.Project.LoadStationsUserInput = 1;
    EXPECT_THAT(project.Masses(2), ElementsAre("2", "5.00 10.50"));
}

TEST(MassRecords, AnUnsetLoadStationCountIsWrittenWithTheDefaultStations)
{
    CLoadedProject project(1);
    project.Project.NSTLOAD.Set(-1);
    EXPECT_THAT(project.Masses(2), ElementsAre("-1", "0"));
}

TEST(MassRecords, MoreLoadStationsThanTheProjectHoldsAreTwentyOne)
{
    for (const float hostile : {30.0F, 1e30F})
    {
        CLoadedProject project(1);
        project.Project.LoadStationsUserInput = 1;
        project.Project.NSTLOAD.Set(hostile);
        project.Project.XSTLOAD.Fill(1);
        std::string expected = "1.00";
        for (int i = 1; i < 21; ++i)
        {
            expected += " 1.00";
        }
        EXPECT_THAT(project.Masses(2), ElementsAre("21", expected));
    }
}

TEST(MassRecords, ALoadStationCountThatIsNoNumberHasNoStations)
{
    CLoadedProject project(1);
    project.Project.LoadStationsUserInput = 1;
    project.Project.NSTLOAD.Set(std::numeric_limits<float>::quiet_NaN());
    EXPECT_THAT(project.Masses(2), ElementsAre("nan", ""));
}

TEST(MassRecords, NoStationsGiveAnEmptyLineAndNoValues)
{
    CLoadedProject project(0);
    EXPECT_THAT(project.Masses(4),
                ElementsAre("2", "", "-1.00 0.00 0.00 0.00 0.00", "-1.00 0.00 0.00 0.00 0.00"));
}

TEST(MassRecords, MassesAndRadiiAreConvertedOnce)
{
    CLoadedProject project(1);
    CProjectData& p = project.Project;
    p.KgUserInput = p.KxxiUserInput = 1;
    p.SECTTN.Set(0, 1000.004F);
    p.SECTTN.unit = p.SECTKG.unit = p.SECTRRG.unit = 1;
    EXPECT_THAT(project.Masses(5), ElementsAre("2", "0", "1016.05", "0.61", "0.91"));
    p.SECTTN.unit = p.SECTKG.unit = p.SECTRRG.unit = 0;
    p.INSYS.Set(0);
    p.SECTKG.Set(0, 1.00499F);
    EXPECT_THAT(project.LinesBehind("20.505 0.000", 5), ElementsAre("2", "0", "984.21", "3.30", "9.84"))
        << "not rounded first";
}

TEST(MassRecords, OverhangsOfBowAndStern)
{
    CLoadedProject project(1);
    CProjectData& p = project.Project;
    p.KgUserInput = p.KxxiUserInput = 1;
    float value = 1;
    for (CParamArray* field : {&p.BOWTN, &p.BOWKG, &p.BOWRRG, &p.BOWCGFP, &p.BOWPRG, &p.STERNTN, &p.STERNKG,
                               &p.STERNRRG, &p.STERNCGAP, &p.STERNPRG})
    {
        field->Set(value++);
    }
    const std::vector<std::string> lines = project.Masses(7);
    EXPECT_EQ(lines[5], "1.00 2.00 3.00 4.00 5.00");
    EXPECT_EQ(lines[6], "6.00 7.00 8.00 9.00 10.00");
    for (CParamArray* field : {&p.BOWTN, &p.BOWKG, &p.BOWRRG, &p.BOWCGFP, &p.BOWPRG})
    {
        field->unit = 1;
    }
    EXPECT_EQ(project.Masses(6)[5], "1.02 0.61 0.91 1.22 1.52");
}

TEST(MassRecords, AnOptionOtherThanOneWritesStationValuesButNoOverhang)
{
    CLoadedProject project(1);
    CProjectData& p = project.Project;
    p.KgUserInput = p.KxxiUserInput = 2;
    p.BOWKG.Set(5);
    p.BOWRRG.Set(5);
    const auto lines = project.Masses(6);
    EXPECT_EQ(lines[3], "2.00");
    EXPECT_EQ(lines[4], "3.00");
    EXPECT_EQ(lines[5], "-1.00 0.00 0.00 0.00 0.00");
}

TEST(MassRecords, OnlyALoadFlagOfZeroWritesMasses)
{
    for (const float flag : {2.0F, 0.5F, -1.0F})
    {
        CEngineProject project;
        project.Project.LOADFLAG.Set(flag);
        EXPECT_TRUE(project.Write());
        EXPECT_EQ(project.Lines()[3], "LOAD RAW");
        EXPECT_EQ(project.LineBehind("6.250 0.000"), "0 20.00 0.0100");
    }
}
