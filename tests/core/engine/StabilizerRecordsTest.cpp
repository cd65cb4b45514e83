#include "tests/core/engine/CEngineProject.h"

#include <gmock/gmock.h>

using ::testing::ElementsAre;

TEST(StabilizerRecords, FinsIgnoreTheirIncludeSwitch)
{
    CEngineProject project;
    CProjectData& p = project.Project;
    p.FINTANKSTAB.Set(1);
    p.IncludeStabilizer = 0;
    p.NFINPAIR.Set(1);
    project.SetFin(0);
    p.CLA0FIN.Set(3);
    p.CLA0COMPUTE2.Set(1);
    p.SPANFIN.unit = 1;
    float value = 1;
    for (CParamArray* field : {&p.RAGNFIN, &p.RVGNFIN, &p.RGNFIN, &p.FREQFIN, &p.DAMPFIN, &p.FREQHFIN})
    {
        field->Set(value++);
    }
    p.FinYawGains = {7, 8, -111111};
    EXPECT_THAT(project.LinesBehind("FIN", 5),
                ElementsAre("0 ", "1", "2.00 2.0000 2.0000 0.6096 2.0000 2.0000 3.0000 -1.0000",
                            "1.0000 2.0000 3.0000 4.0000 5.0000 6.0000", "7.0000 8.0000 -111111.0000"));
    EXPECT_EQ(project.LastLine(), "7.0000 8.0000 -111111.0000");
}

TEST(StabilizerRecords, WithoutFinsThereAreNoGains)
{
    CEngineProject project;
    project.Project.FINTANKSTAB.Set(1);
    EXPECT_THAT(project.LinesBehind("FIN", 2), ElementsAre("0 ", "0"));
    EXPECT_EQ(project.LastLine(), "0");
    project.Project.NFINPAIR.Set(-1);
    EXPECT_THAT(project.LinesBehind("FIN", 2), ElementsAre("0 ", "-1"));
    EXPECT_EQ(project.LastLine(), "-1");
}

TEST(StabilizerRecords, MoreFinsThanTheProjectHoldsAreFour)
{
    CEngineProject project;
    project.Project.FINTANKSTAB.Set(1);
    project.Project.NFINPAIR.Set(1e30F);
    for (int i = 0; i < 4; ++i)
    {
        project.SetFin(i);
    }
    EXPECT_EQ(project.LinesBehind("FIN", 8)[1], "4");
}

TEST(StabilizerRecords, Tank)
{
    CEngineProject project;
    CProjectData& p = project.Project;
    p.FINTANKSTAB.Set(2);
    project.SetTank();
    for (CParamArray* field : {&p.TANKLEN, &p.ALTANK, &p.ZTANKBL, &p.XSTTANK, &p.SGTANK})
    {
        field->unit = 1;
    }
    EXPECT_THAT(project.LinesBehind("UTUBETANK", 1),
                ElementsAre("0.3048 2.0000 3.0000 4.0000 5.0000 6.0000 2.1336 8.00 9.0000 10.0000 11.0000 "
                            "12.0000"));
}

TEST(StabilizerRecords, AnythingElseIsATank)
{
    for (const float flag : {-1.0F, 7.0F, std::numeric_limits<float>::quiet_NaN()})
    {
        CEngineProject project;
        project.Project.FINTANKSTAB.Set(flag);
        project.SetTank();
        EXPECT_EQ(project.LineBehind("UTUBETANK").substr(0, 6), "1.0000");
    }
}
