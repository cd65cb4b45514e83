#include "tests/core/engine/CEngineProject.h"
#include "tests/support/FullProject.h"

#include <algorithm>
#include <sstream>

#include <gtest/gtest.h>

CEngineProject::CEngineProject()
{
    Project.ProjectTitle = "Test ship";
    FillToMinimum(Project);
}

std::vector<std::string> CEngineProject::Lines() const
{
    std::vector<std::string> lines;
    std::istringstream text(Text());
    for (std::string line; std::getline(text, line);)
    {
        lines.push_back(line);
    }
    return lines;
}

std::string CEngineProject::LastLine() const
{
    const auto lines = Lines();
    return lines.empty() ? "(nothing)" : lines.back();
}

std::vector<std::string> CEngineProject::LinesBehind(const std::string& line, std::size_t count)
{
    EXPECT_TRUE(Write()) << ::testing::PrintToString(Recorder.Messages);
    const auto lines = Lines();
    auto found = std::find(lines.begin(), lines.end(), line);
    if (found == lines.end() || static_cast<std::size_t>(lines.end() - found) <= count)
    {
        ADD_FAILURE() << "no " << count << " lines behind \"" << line << "\" in\n" << Text();
        return std::vector<std::string>(count);
    }
    ++found;
    return {found, found + static_cast<std::ptrdiff_t>(count)};
}

void CEngineProject::SetStations(int count)
{
    Project.NST.Set(static_cast<float>(count));
    for (int i = 0; i < count; ++i)
    {
        Project.NOFFUSER.Set(i, 3);
        for (int k = 0; k < 3; ++k)
        {
            Project.YAUSER.Set(60 * i + k, static_cast<float>(k) * 2);
            Project.ZAUSERBL.Set(60 * i + k, static_cast<float>(k) * 3);
        }
    }
}

void CEngineProject::SetSections(int count)
{
    Project.HULLDEF.Set(1);
    Project.NST.Set(static_cast<float>(count));
    Project.BEAM.Fill(10);
    Project.DRAFT.Fill(5);
    Project.ACOEF.Fill(0.9F);
}

void CEngineProject::SetPositions(int count)
{
    Project.NPOS.Set(static_cast<float>(count + 1));
    Project.XSTPOS.Fill(3);
    Project.YPOS.Fill(1);
    Project.ZPOSBL.Fill(8);
    Project.DECKHBL.Fill(9);
}

void CEngineProject::SetFoil(int pair)
{
    CProjectData& p = Project;
    for (CParamArray* field : {&p.XSTFOIL, &p.YRTFOIL, &p.ZRTFOILBL, &p.SPANFOIL, &p.RCFOIL, &p.TCFOIL})
    {
        field->Set(pair, 2);
    }
    p.DIFOIL.Set(pair, -1);
}

void CEngineProject::SetFin(int pair)
{
    CProjectData& p = Project;
    for (CParamArray* field : {&p.XSTFIN, &p.YRTFIN, &p.ZFINBL, &p.SPANFIN, &p.RCFIN, &p.TCFIN})
    {
        field->Set(pair, 2);
    }
    p.DIFIN.Set(pair, -1);
}

void CEngineProject::SetTank()
{
    CProjectData& p = Project;
    float value = 1;
    for (CParamArray* field : {&p.TANKLEN, &p.WDTANK, &p.W1TANK, &p.DPTANK, &p.ALTANK, &p.HDTANK, &p.ZTANKBL,
                               &p.XSTTANK, &p.SGTANK, &p.RESISTBTANK, &p.RESIST0TANK, &p.BFREQTANK})
    {
        field->Set(value++);
    }
}

namespace
{
/// Numbers that differ from slot to slot and need all their decimals.
void FillDistinct(CProjectData& project, int unit)
{
    int number = 0;
    for (CParamArray* field : project.Fields())
    {
        ++number;
        field->unit = unit;
        for (int i = 0; i < field->Capacity(); ++i)
        {
            field->Set(i, static_cast<float>(number) + static_cast<float>(i) * 0.0625F + 0.03F);
        }
    }
}

void SetOptions(CProjectData& p)
{
    p.INSYS.Set(1);
    p.OUTSYS.Set(0);
    p.WATERDEN.Set(1);
    p.SPEEDCOR.Set(2);
    p.SWELLCOR.Set(0);
    p.OUTRAO.Set(1);
    p.LOADFLAG.Set(0);
    p.HYMETHOD.Set(1);
    p.HYEND.Set(3);
    p.LOWHVCOR.Set(0);
    p.GMFLAG.Set(1);
    p.ROLLRGDEF.Set(2);
    p.HULLDEF.Set(0);
    p.TRIMDEF.Set(1);
    p.WaveFreqUserInput = 1;
    p.EncFreqUserInput = 1;
    p.LoadStationsUserInput = 1;
    p.KgUserInput = 1;
    p.KxxiUserInput = 1;
}

void SetSea(CProjectData& p, int unit)
{
    p.SPECTRUM.Set(4);
    p.SpreadOption = 1;
    p.OchiUnit = unit;
    p.OchiHs1 = {3.125F, 2.5F};
    p.OchiTp1 = {8.25F, 9};
    p.OchiLam1 = {1.5F, 1.75F};
    p.OchiHs2 = {1.005F, 0.75F};
    p.OchiTp2 = {12, 13.5F};
    p.OchiLam2 = {2, 2.25F};
    p.NSEAWAY.Set(2);
    p.NSEADIR.Set(5);
    p.NSPEED.Set(3);
}

void SetPlaces(CProjectData& p)
{
    p.NPOS.Set(6);
    for (int i = 0; i < 5; ++i)
    {
        p.RELMOCALC.Set(i, static_cast<float>(i));
        p.MIIFLAG.Set(i, static_cast<float>(i % 2));
        p.NSLOFF.Set(i, 4);
    }
    p.PositionLabel[0] = "Bridge";
    p.PositionLabel[2] = "Bow_door";
    p.MSIFlag = {1, 1, 0, 1, 1};
    p.MSIMethod = {0, 1, 0, 0, 1};
    p.MSIExposureOption = {1, 0, 0, 0, 1};
    p.MSIExposure = {4, 2.5F, 4, 6, 8};
    p.SlamLoadHeight[2] = 1.25F;
}

void SetParts(CProjectData& p, int unit)
{
    p.AppendedHull = p.IncludeBilgeKeels = p.IncludeSkeg = p.IncludeRudder = p.IncludeFoils = 1;
    p.NBKPAIR.Set(2);
    for (int pair = 0; pair < 2; ++pair)
    {
        p.IFIRSTBK.Set(pair, static_cast<float>(6 + pair));
        p.ILASTBK.Set(pair, static_cast<float>(8 + 2 * pair));
    }
    p.ISLIPRUD.Set(1);
    p.RudderRollStabilization = 1;
    p.RudderDihedral = -85;
    p.RudderLateralGains = {0.5F, 1.5F, -2.5F};
    p.RudderLateralGainUnits = {unit, unit, unit};
    p.LateralGainPoint = 1;
    p.LateralPointX = 10.5F;
    p.LateralPointZ = 4.25F;
    p.LateralPointZUnit = unit;
    p.NFOILPAIR.Set(2);
    p.CLA0COMPUTE.Set(0, 1);
    p.FINTANKSTAB.Set(1);
    p.NFINPAIR.Set(2);
    p.CLA0COMPUTE2.Set(1, 1);
    p.FinYawGains = {0.125F, 0.25F, 0.375F};
}
} // namespace

void SetEverything(CEngineProject& project, int unit, float inSystem)
{
    CProjectData& p = project.Project;
    FillDistinct(p, unit);
    SetOptions(p);
    SetSea(p, unit);
    SetPlaces(p);
    SetParts(p, unit);
    p.ProjectTitle = "Everything on";
    p.INSYS.Set(inSystem);
    p.SPDKNOT.unit = 1;
    p.NST.Set(15);
    p.NSTLOAD.Set(4);
    for (int i = 0; i < 15; ++i)
    {
        p.NOFFUSER.Set(i, static_cast<float>(3 + i % 3));
    }
    p.RudderGainFileUsed = 1;
    p.RudderGainFile = "rudder.txt";
    project.Folder.Write("rudder.txt", "rudder gains");
}
