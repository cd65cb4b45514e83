#include "gui/hull/StationCount.h"

#include "tests/support/CTestProject.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

TEST(StationCount, AHullHasTwoToTwentyOneStations)
{
    CTestProject test;
    EXPECT_TRUE(IsStationCount(2, test.Recorder));
    EXPECT_TRUE(IsStationCount(21, test.Recorder));
    EXPECT_THAT(test.Recorder.Messages, IsEmpty());
    EXPECT_FALSE(IsStationCount(1, test.Recorder));
    EXPECT_FALSE(IsStationCount(22, test.Recorder));
    EXPECT_THAT(test.Recorder.Messages,
                ElementsAre("Number of Stations out of range: Min. = 2    Max. = 21",
                            "Number of Stations out of range: Min. = 2    Max. = 21"));
}

TEST(StationCount, TheProjectsCountStandsInForOneThatWasNotHandedOver)
{
    CTestProject test;
    test.Project.NST.Set(7);
    EXPECT_EQ(WorkingStations(test.Project), 7);
    test.Project.WorkingStationCount = 9;
    EXPECT_EQ(WorkingStations(test.Project), 9);
    test.Project.WorkingStationCount = 0;
    test.Project.NST.Set(kNotGiven);
    EXPECT_EQ(WorkingStations(test.Project), 0);
}

TEST(StationCount, AllPartsWithStationNumbersAreListed)
{
    CTestProject test;
    CProjectData& project = test.Project;
    project.IncludeBilgeKeels = 1;
    project.NBKPAIR.Set(1);
    project.IncludeSkeg = 1;
    project.IncludeRudder = 1;
    project.IncludeFoils = 1;
    project.FINTANKSTAB.Set(1);
    project.LOADFLAG.Set(0);
    project.NPOS.Set(2);
    ShowStationsChanged(project, test.Recorder);
    project.FINTANKSTAB.Set(2);
    project.NBKPAIR.Set(-1);
    project.IncludeSkeg = 0;
    project.IncludeRudder = 0;
    project.IncludeFoils = 0;
    project.LOADFLAG.Set(1);
    project.NPOS.Set(0);
    ShowStationsChanged(project, test.Recorder);
    const std::string heading = "Warning: Stations were either added or deleted.\nPlease review the station "
                                "numbers in:  \n\n";
    EXPECT_THAT(test.Recorder.Messages,
                ElementsAre(heading + "Bilge Keel Offsets \nSkeg Geometry \nRudder \nPropeller Shaft Bracket "
                                      "/ Stationary Foils \nRoll Fins \nMass / Weight Distribution \nLoad "
                                      "Positions \nSeakeeping Positions",
                            heading + "Anti-Rolling Tank \n"));
}

TEST(StationCount, WithoutSuchAPartTheHeadingStandsAlone)
{
    CTestProject test;
    test.Project.LOADFLAG.Set(1);
    ShowStationsChanged(test.Project, test.Recorder);
    EXPECT_THAT(test.Recorder.Messages, ElementsAre("Warning: Stations were either added or deleted.\nPlease "
                                                    "review the station numbers in:  \n\n"));
}
