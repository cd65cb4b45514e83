#include "tests/core/engine/CompletenessCase.h"

#include <gmock/gmock.h>

using ::testing::Each;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

void CCompletenessCase::ExpectMessages(const std::vector<std::string>& messages, const std::string& lastLine)
{
    std::vector<std::string> told;
    for (const std::string& message : messages)
    {
        told.push_back(Told(message));
    }
    Project.InputWritten = 1;
    EXPECT_FALSE(Write());
    EXPECT_THAT(Recorder.Messages, ElementsAreArray(told));
    EXPECT_THAT(Recorder.Icons, Each(EIcon::Stop));
    EXPECT_EQ(Recorder.Beeps, 0);
    EXPECT_EQ(LastLine(), lastLine);
    EXPECT_EQ(Text().back(), '\n') << "no line is written in part";
    EXPECT_EQ(Project.InputWritten, 1) << "left alone";
}

void CCompletenessCase::ExpectNothing()
{
    EXPECT_TRUE(Write());
    EXPECT_THAT(Recorder.Messages, IsEmpty());
}

void CCompletenessCase::SetSeas(float spectrum)
{
    CProjectData& p = Project;
    p.SPECTRUM.Set(spectrum);
    p.NSEAWAY.Set(2);
    for (CParamArray* field : {&p.HSW, &p.TSW, &p.ZETA1, &p.OMEGA1, &p.LAMB1, &p.KAPA1, &p.EXPP1, &p.ZETA2,
                               &p.OMEGA2, &p.LAMB2, &p.KAPA2, &p.EXPP2})
    {
        field->Fill(2);
    }
    for (CTenFloats* field : {&p.BretHs, &p.BretTp, &p.JonswapHs, &p.JonswapTp, &p.OchiHs1, &p.OchiTp1,
                              &p.OchiLam1, &p.OchiHs2, &p.OchiTp2, &p.OchiLam2})
    {
        field->fill(2);
    }
}

void CCompletenessCase::SetSlamming(float method)
{
    CProjectData& p = Project;
    SetPositions(2);
    p.RELMOCALC.Fill(method);
    for (CParamArray* field : {&p.SLFORM, &p.SLWIDTH, &p.NSLOFF, &p.DEADR, &p.SLHEIGHT})
    {
        field->Fill(1);
    }
}

void CCompletenessCase::SetKeels()
{
    CProjectData& p = Project;
    p.AppendedHull = p.IncludeBilgeKeels = 1;
    p.NBKPAIR.Set(2);
    p.IFIRSTBK.Fill(7);
    p.ILASTBK.Fill(8);
    for (CParamArray* field : {&p.XSTBKFORE, &p.XSTBKAFT, &p.YBK, &p.ZBKBL, &p.BBK})
    {
        field->Fill(1);
    }
}

void CCompletenessCase::SetSkeg()
{
    CProjectData& p = Project;
    p.AppendedHull = p.IncludeSkeg = 1;
    p.XSTAFTSKEG.Set(18);
    p.BSKEG.Set(1);
    p.ELSKEG.Set(2);
}

void CCompletenessCase::SetFoils()
{
    Project.AppendedHull = Project.IncludeFoils = 1;
    Project.NFOILPAIR.Set(2);
    SetFoil(0);
    SetFoil(1);
}

void CCompletenessCase::SetFins()
{
    Project.FINTANKSTAB.Set(1);
    Project.NFINPAIR.Set(2);
    SetFin(0);
    SetFin(1);
}

void CCompletenessCase::SetLaterFailures()
{
    CProjectData& p = Project;
    SetKeels();
    SetFoils();
    p.LOADFLAG.Set(0);
    p.LoadStationsUserInput = 1;
    p.MIIFLAG.Fill(-1);
    p.SPANFOIL.Fill(-1);
    p.FINTANKSTAB.Set(2);
}
