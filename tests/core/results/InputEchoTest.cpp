// The bytes of the input echo, and that what was written is read again.
#include "core/results/InputEcho.h"

#include "core/results/EchoUnits.h"
#include "tests/core/results/CEcho.h"
#include "tests/support/CTestProject.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

namespace
{
struct CEchoProject : CTestProject
{
    CProjectData& P = Project;
    CEcho Echo;

    /// The project is written as the echo says; and an echo of what was read is the same once more.
    void Expect()
    {
        ExpectSame(InputEcho(P), "written");
        CTestProject other;
        CResultsCursor cursor(m_bytes);
        ReadInputEcho(cursor, true, other.Project);
        EXPECT_EQ(cursor.Position(), m_bytes.size() - 4 * std::size(Echo.Words)) << "unit words";
        CopyUnread(P, other.Project);
        // The values read are in the units of the run already: under flags that convert nothing.
        ExpectSame(Rewritten(other.Project), "read");
    }

private:
    /// What ReadInputEcho leaves.
    static void CopyUnread(CProjectData& from, CProjectData& to)
    {
        to.BEAMSF.Set(from.BEAMSF.Value());
        to.DRAFTSF.Set(from.DRAFTSF.Value());
        const auto words = UnitWords(from);
        const auto others = UnitWords(to);
        for (std::size_t k = 0; k < words.size(); ++k)
        {
            *others[k].Tag = *words[k].Tag;
        }
    }
    /// With an INSYS under which no flag converts.
    static std::string Rewritten(CProjectData& project)
    {
        const float system = project.INSYS.Value();
        project.INSYS.Set(7);
        std::string bytes = InputEcho(project);
        std::memcpy(bytes.data(), &system, sizeof system);
        return bytes;
    }
    void ExpectSame(const std::string& bytes, const char* what)
    {
        m_bytes = Echo.Bytes();
        const auto end = std::mismatch(bytes.begin(), bytes.end(), m_bytes.begin(), m_bytes.end());
        EXPECT_TRUE(bytes == m_bytes) << what << ": differs at byte " << end.first - bytes.begin() << " of "
                                      << bytes.size() << " and " << m_bytes.size();
    }

    std::string m_bytes;
};

void SetAll(CParamArray& field, std::initializer_list<float> values)
{
    int slot = 0;
    for (const float value : values)
    {
        field.Set(slot++, value);
    }
}
} // namespace

TEST(InputEcho, AProjectAtItsDefaults)
{
    CEchoProject project;
    project.Expect();
}

TEST(InputEcho, HasSixtySixUnitWords)
{
    CEchoProject project;
    EXPECT_EQ(UnitWords(project.Project).size(), 66U);
}

TEST(InputEcho, TheNumberOfSeaDirectionsStandsBehindTheExcitation)
{
    CEchoProject project;
    project.P.NSEADIR.Set(2);
    SetAll(project.P.SEADIR, {90, 180});
    project.P.SPREADANG.Set(30);
    project.P.SPECTRUM.Set(0);
    project.P.WAVESTEEP.Set(0.02F);
    project.P.NSEAWAY.Set(1);
    project.Echo.Control = CEchoBytes()
                               .Floats({1, 1, 0, 1, 1, 2, 1})
                               .Floats({2})
                               .Floats({1, 0})
                               .Floats({0.2F, 2.0F, 0.1F})
                               .Floats({1, 0, 4, 1})
                               .Floats({-1, -1, -1});
    project.Echo.Sea = CEchoBytes().Floats({0}).Floats({2, 30}).Floats({90, 180}).Floats({1}).Floats({0.02F});
    project.Expect();
}

TEST(InputEcho, QuadraticHeightsAndPeriodsInPairs)
{
    CEchoProject project;
    project.P.SPECTRUM.Set(1);
    project.P.NSEAWAY.Set(2);
    SetAll(project.P.HSW, {1, 2, 3});
    SetAll(project.P.TSW, {7, 8, 9});
    project.Echo.Sea = CEchoBytes().Floats({1}).Floats({-1, -1}).Floats({2}).Floats({1, 7, 2, 8});
    project.Expect();
}

TEST(InputEcho, BretschneiderHeightsAndPeriodsInPairs)
{
    CEchoProject project;
    project.P.SPECTRUM.Set(2);
    project.P.NSEAWAY.Set(2);
    project.P.BretHs = {1, 2, 3};
    project.P.BretTp = {7, 8, 9};
    project.Echo.Sea = CEchoBytes().Floats({2}).Floats({-1, -1}).Floats({2}).Floats({1, 7, 2, 8});
    project.Expect();
}

TEST(InputEcho, JonswapInThrees)
{
    CEchoProject project;
    project.P.SPECTRUM.Set(3);
    project.P.NSEAWAY.Set(2);
    project.P.JonswapHs = {1, 2};
    project.P.JonswapTp = {7, 8};
    SetAll(project.P.PEAKENSW, {3, 4});
    project.Echo.Sea = CEchoBytes().Floats({3}).Floats({-1, -1}).Floats({2}).Floats({1, 7, 3, 2, 8, 4});
    project.Expect();
}

TEST(InputEcho, OchiHubbleInSixes)
{
    CEchoProject project;
    project.P.SPECTRUM.Set(4);
    project.P.NSEAWAY.Set(1);
    project.P.OchiHs1 = {1};
    project.P.OchiTp1 = {2};
    project.P.OchiLam1 = {3};
    project.P.OchiHs2 = {4};
    project.P.OchiTp2 = {5};
    project.P.OchiLam2 = {6};
    project.Echo.Sea = CEchoBytes().Floats({4}).Floats({-1, -1}).Floats({1}).Floats({1, 2, 3, 4, 5, 6});
    project.Expect();
}

TEST(InputEcho, AMeasuredSpectrumIsItsFile)
{
    CEchoProject project;
    project.P.SPECTRUM.Set(5);
    project.P.NSEAWAY.Set(1);
    project.P.SpectrumFile = "sea.txt";
    project.P.NFREQSPUNI.Set(12);
    project.Echo.Sea = CEchoBytes().Floats({5}).Floats({-1, -1}).Floats({1}).Text("sea.txt").Floats({1, 12});
    project.Expect();
}

TEST(InputEcho, SpectraWithDirectionsOfTheirOwnHaveNoSeaDirections)
{
    CEchoProject project;
    project.P.NSEADIR.Set(2);
    project.P.NSEAWAY.Set(1);
    project.P.HindcastFile = "hindcast.txt";
    project.P.DirectionalFile = "directional.txt";
    project.Echo.Control = CEchoBytes()
                               .Floats({1, 1, 0, 1, 1, 2, 1})
                               .Floats({2})
                               .Floats({1, 0})
                               .Floats({0.2F, 2.0F, 0.1F})
                               .Floats({1, 0, 4, 1})
                               .Floats({-1, -1, -1});
    project.P.SPECTRUM.Set(7);
    project.Echo.Sea = CEchoBytes().Floats({7}).Floats({1}).Text("hindcast.txt");
    {
        SCOPED_TRACE("hindcast");
        CTestProject other;
        EXPECT_EQ(InputEcho(project.P), project.Echo.Bytes());
    }
    project.P.SPECTRUM.Set(8);
    project.Echo.Sea = CEchoBytes().Floats({8}).Floats({1}).Text("directional.txt");
    EXPECT_EQ(InputEcho(project.P), project.Echo.Bytes());
    project.P.SPECTRUM.Set(9);
    project.Echo.Sea = CEchoBytes().Floats({9}).Floats({1});
    EXPECT_EQ(InputEcho(project.P), project.Echo.Bytes());
}

TEST(InputEcho, TenParametersInTens)
{
    CEchoProject project;
    CProjectData& p = project.P;
    p.SPECTRUM.Set(6);
    p.NSEAWAY.Set(2);
    float value = 1;
    for (CParamArray* field : {&p.ZETA1, &p.OMEGA1, &p.LAMB1, &p.KAPA1, &p.EXPP1, //
                               &p.ZETA2, &p.OMEGA2, &p.LAMB2, &p.KAPA2, &p.EXPP2})
    {
        SetAll(*field, {value, value + 10});
        ++value;
    }
    project.Echo.Sea = CEchoBytes()
                           .Floats({6})
                           .Floats({2})
                           .Floats({1, 2, 3, 4, 5, 6, 7, 8, 9, 10})
                           .Floats({11, 12, 13, 14, 15, 16, 17, 18, 19, 20});
    project.Expect();
}

TEST(InputEcho, AGivenMetacentreHasItsHeight)
{
    CEchoProject project;
    project.P.GMFLAG.Set(1);
    project.P.GMUSER.Set(1.5F);
    project.P.ROLLRGDEF.Set(1);
    project.P.ROLLRG.Set(4);
    project.Echo.Ship = CEchoBytes().Floats({-1, -1, -1}).Floats({1, 1}).Floats({1.5F}).Floats({4});
    project.Expect();
}

TEST(InputEcho, AComputedMetacentreStandsAsTwoAndSoDoesTheSecondChoice)
{
    CEchoProject project;
    project.P.ROLLRGDEF.Set(2);
    project.P.WETROLLRG.Set(5);
    project.Echo.Ship = CEchoBytes().Floats({-1, -1, -1}).Floats({2, 2}).Floats({5});
    for (const float flag : {0.0F, 0.9F, 2.0F})
    {
        project.P.GMFLAG.Set(flag);
        project.Expect();
    }
    project.P.GMFLAG.Set(3);
    project.P.ROLLRGDEF.Set(3);
    project.Echo.Ship = CEchoBytes().Floats({-1, -1, -1}).Floats({3, 3});
    project.Expect();
}

TEST(InputEcho, TheFirstOffsetTravelsAsAMarkAndTheProjectLosesIt)
{
    CEchoProject project;
    CProjectData& p = project.P;
    p.NST.Set(2);
    SetAll(p.XST, {0, 10});
    SetAll(p.NOFFUSER, {2, 1});
    SetAll(p.YAUSER, {5, 6});
    SetAll(p.ZAUSERBL, {1, 2});
    p.YAUSER.Set(60, 7);
    p.ZAUSERBL.Set(60, 3);
    p.YAUSER.unit = 1;
    p.BEAMSF.Set(2);
    p.DRAFTSF.Set(3);
    project.Echo.Stations = CEchoBytes()
                                .Floats({0, 2})
                                .Floats({2, 2, 3})
                                .Floats({0, 2})
                                .Floats({-99.99F, 6 * 0.3048F})
                                .Floats({1 * 0.3048F, 2 * 0.3048F})
                                .Floats({10, 1})
                                .Floats({7 * 0.3048F})
                                .Floats({3 * 0.3048F});
    project.Echo.Words[12] = project.Echo.Words[13] = 1;
    project.Expect();
    EXPECT_EQ(p.YAUSER.Value(), 0);
    EXPECT_EQ(p.YAUSER.Value(1), 6);
}

TEST(InputEcho, WithoutAFirstOffsetNoMarkTravelsButTheProjectLosesItAllTheSame)
{
    CEchoProject project;
    CProjectData& p = project.P;
    p.YAUSER.Set(5);
    project.Expect(); // no station at all
    EXPECT_EQ(p.YAUSER.Value(), 0);
    p.YAUSER.Set(5);
    p.NST.Set(1);
    p.NOFFUSER.Set(0);
    p.XST.Set(4);
    project.Echo.Stations = CEchoBytes().Floats({0, 1}).Floats({1, 1, 1}).Floats({4, 0});
    project.Expect();
    EXPECT_EQ(p.YAUSER.Value(), 0);
}

TEST(InputEcho, SectionAreasInPlaceOfOffsetsLeaveTheOffsetsAlone)
{
    CEchoProject project;
    CProjectData& p = project.P;
    p.YAUSER.Set(5);
    p.HULLDEF.Set(1);
    p.NST.Set(2);
    SetAll(p.XST, {0, 10});
    SetAll(p.BEAM, {11, 12});
    SetAll(p.DRAFT, {5, 6});
    SetAll(p.ACOEF, {0.8F, 0.9F});
    project.Echo.Stations =
        CEchoBytes().Floats({1, 2}).Floats({2, 1, 1}).Floats({0, 11, 5, 0.8F}).Floats({10, 12, 6, 0.9F});
    project.Expect();
    EXPECT_EQ(p.YAUSER.Value(), 5);
    p.HULLDEF.Set(2);
    project.Echo.Stations = CEchoBytes().Floats({2, 2}).Floats({2, 1, 1});
    project.Expect();
}

TEST(InputEcho, DisplacementInPlaceOfDraft)
{
    CEchoProject project;
    project.P.TRIMDEF.Set(1);
    project.P.DISPUSER.Set(4000);
    project.P.LCGPUSER.Set(60);
    project.Echo.Trim = CEchoBytes().Floats({1}).Floats({4000, 60});
    project.Expect();
    project.P.TRIMDEF.Set(2);
    project.Echo.Trim = CEchoBytes().Floats({2});
    project.Expect();
}

TEST(InputEcho, MassesOnlyWithLoads)
{
    CEchoProject project;
    CProjectData& p = project.P;
    p.HULLDEF.Set(2);
    p.NST.Set(3);
    p.NSTLOAD.Set(2);
    SetAll(p.XSTLOAD, {4, 5, 6});
    SetAll(p.SECTTN, {10, 11, 12, 13});
    SetAll(p.SECTKG, {1, 2, 3, 4});
    SetAll(p.SECTRRG, {5, 6, 7, 8});
    float value = 20;
    for (CParamArray* field : {&p.BOWTN, &p.BOWKG, &p.BOWRRG, &p.BOWCGFP, &p.BOWPRG, //
                               &p.STERNTN, &p.STERNKG, &p.STERNRRG, &p.STERNCGAP, &p.STERNPRG})
    {
        field->Set(value++);
    }
    project.Echo.Stations = CEchoBytes().Floats({2, 3}).Floats({3, 1, 1});
    project.Expect(); // LOADFLAG is 1
    p.LOADFLAG.Set(0);
    project.Echo.Control = CEchoBytes()
                               .Floats({1, 1, 0, 1, 1, 2, 1})
                               .Floats({-1})
                               .Floats({0, 0})
                               .Floats({0.2F, 2.0F, 0.1F})
                               .Floats({1, 0, 4, 1})
                               .Floats({-1, -1, -1});
    project.Echo.Masses = CEchoBytes()
                              .Floats({2})
                              .Floats({4, 5})
                              .Floats({10, 11, 12})
                              .Floats({1, 2, 3})
                              .Floats({5, 6, 7})
                              .Floats({20, 21, 22, 23, 24})
                              .Floats({25, 26, 27, 28, 29});
    project.Expect();
}

TEST(InputEcho, ThePositionCountLeavesTheCentreOfGravityOut)
{
    CEchoProject project;
    project.P.NPOS.Set(0);
    project.Echo.Positions = CEchoBytes().Floats({-1}).Floats({20, 0.01F});
    project.Expect();
    project.P.NPOS.Set(1);
    project.Echo.Positions = CEchoBytes().Floats({0}).Floats({20, 0.01F});
    project.Expect();
}

TEST(InputEcho, PositionsOfEachKind)
{
    CEchoProject project;
    CProjectData& p = project.P;
    p.NPOS.Set(7);
    p.PositionLabel = {"Bow", "Wedge"};
    SetAll(p.RELMOCALC, {1, 2, 3, 4, 5, 0});
    SetAll(p.MIIFLAG, {0, 1});
    for (int k = 0; k < 6; ++k)
    {
        const auto value = static_cast<float>(10 * k);
        p.XSTPOS.Set(k, value + 1);
        p.YPOS.Set(k, value + 2);
        p.ZPOSBL.Set(k, value + 3);
        p.DECKHBL.Set(k, value + 4);
        p.SLFORM.Set(k, value + 5);
        p.SLWIDTH.Set(k, value + 6);
        p.DEADR.Set(k, value + 7);
        p.SLHEIGHT.Set(k, value + 8);
    }
    p.NSLOFF.Set(1, 2);
    p.ZSLUPBL.Set(1, 9);
    p.YSLOFFBL.Set(11, 100);
    p.YSLOFFBL.Set(12, 101);
    p.ZSLOFFBL.Set(11, 102);
    p.ZSLOFFBL.Set(12, 103);
    p.SlamMidshipDraft = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    p.SlamLoadHeight = {11, 12, 13, 14, 15, 16, 17, 18, 19, 20};
    SetAll(p.TCLAT, {0.25F, 0.3F});
    SetAll(p.TCLONG, {0.17F, 0.2F});
    SetAll(p.TIMEOP, {60, 70});
    p.MSIFlag = {0, 0, 1, 2};
    p.MSIMethod = {0, 0, 1};
    p.MSIExposureOption = {0, 0, 1};
    p.MSIExposure[2] = 2;
    const CEchoBytes noSickness = CEchoBytes().Integers({27}).Integers({0, 0}).Floats({4});
    project.Echo.Positions = CEchoBytes()
                                 .Floats({6})
                                 .Floats({20, 0.01F})
                                 .Text("Bow")
                                 .Floats({1, 0, 1, 2, 3, 4})
                                 .Floats({5, 6})
                                 .Add(noSickness)
                                 .Text("Wedge")
                                 .Floats({2, 1, 11, 12, 13, 14})
                                 .Floats({2, 9, 100, 101, 102, 103})
                                 .Floats({1, 2, 3, 4, 5, 6, 7, 8, 9, 10})
                                 .Floats({11, 12, 13, 14, 15, 16, 17, 18, 19, 20})
                                 .Floats({0.3F, 0.2F, 70})
                                 .Add(noSickness)
                                 .Text("")
                                 .Floats({3, 0, 21, 22, 23, 24})
                                 .Floats({27, 28})
                                 .Integers({26})
                                 .Integers({1, 1})
                                 .Floats({2})
                                 .Text("")
                                 .Floats({4, 0, 31, 32, 33, 34})
                                 .Add(noSickness)
                                 .Text("")
                                 .Floats({5, 0, 41, 42, 43})
                                 .Add(noSickness)
                                 .Text("")
                                 .Floats({0, 0, 51, 52, 53})
                                 .Add(noSickness);
    project.Expect();
}

TEST(InputEcho, BilgeKeelsHaveARowForEachOfTheirStations)
{
    CEchoProject project;
    CProjectData& p = project.P;
    p.NBKPAIR.Set(2);
    SetAll(p.IFIRSTBK, {4, 0});
    SetAll(p.ILASTBK, {5, 0});
    float value = 1;
    for (const int row : {0, 1, 21})
    {
        for (CParamArray* field : {&p.XSTBKFORE, &p.XSTBKAFT, &p.YBK, &p.ZBKBL, &p.BBK})
        {
            field->Set(row, value++);
        }
    }
    p.XSTAFTSKEG.Set(17);
    p.BSKEG.Set(2);
    p.ELSKEG.Set(9);
    project.Echo.Keels = CEchoBytes()
                             .Floats({2})
                             .Floats({4, 5})
                             .Floats({1, 2, 3, 4, 5, 6, 7, 8, 9, 10})
                             .Floats({0, 0})
                             .Floats({11, 12, 13, 14, 15})
                             .Floats({17, 2, 9});
    project.Expect();
}

TEST(InputEcho, RudderWithItsGainFileAndLateralControl)
{
    CEchoProject project;
    CProjectData& p = project.P;
    float value = 1;
    for (CParamArray* field :
         {&p.XSTRUD, &p.YRTRUD, &p.ZRTRUDBL, &p.SPANRUD, &p.RCRUD, &p.TCRUD, &p.CLA0RUD, &p.ISLIPRUD,
          &p.RAGNRUD, &p.RVGNRUD, &p.RGNRUD, &p.FREQRUD, &p.DAMPRUD, &p.FREQLRUD, &p.FREQHRUD, //
          &p.YAGNRUD, &p.YVGNRUD, &p.YGNRUD})
    {
        field->Set(value++);
    }
    p.RudderDihedral = 30;
    p.RudderGainFileUsed = 1;
    p.RudderGainFile = "gains.txt";
    p.LateralGainPoint = 1;
    p.RudderLateralGains = {0.1F, 0.2F, 0.3F};
    p.LateralPointX = 40;
    p.LateralPointZ = 5;
    project.Echo.Rudder = CEchoBytes()
                              .Floats({1, 2, 3, 4, 5, 6, 7, 8})
                              .Integers({23})
                              .Floats({30})
                              .Integers({6})
                              .Text("gains.txt")
                              .Floats({9, 10, 11, 12, 13, 14, 15})
                              .Floats({16, 17, 18});
    project.Echo.Lateral = CEchoBytes().Integers({1}).Floats({0.1F, 0.2F, 0.3F}).Floats({40, 5});
    project.Expect();
}

TEST(InputEcho, LateralGainsOfMixedUnitsGoAsStored)
{
    CEchoProject project;
    CProjectData& p = project.P;
    p.RudderLateralGains = {0.1F, 0.2F, 0.3F};
    p.RudderLateralGainUnits = {1, 1, 1};
    p.LateralPointX = 40;
    p.LateralPointZ = 5;
    p.LateralPointZUnit = 1;
    project.Echo.Lateral = CEchoBytes().Integers({0}).Floats({0.1F, 0.2F, 0.3F}).Floats({40, 5 * 0.3048F});
    std::fill(project.Echo.Words + 46, project.Echo.Words + 50, 1);
    project.Expect();
}

TEST(InputEcho, FoilsWithTheirIncidenceFinsWithout)
{
    CEchoProject project;
    CProjectData& p = project.P;
    p.NFOILPAIR.Set(1);
    p.NFINPAIR.Set(1);
    p.FINTANKSTAB.Set(1);
    p.FinGainFileUsed = 1;
    p.FinGainFile = "fins.txt";
    float value = 1;
    for (CParamArray* field :
         {&p.XSTFOIL, &p.YRTFOIL, &p.ZRTFOILBL, &p.SPANFOIL, &p.RCFOIL,  &p.TCFOIL, &p.CLA0FOIL, &p.DIFOIL, //
          &p.XSTFIN,  &p.YRTFIN,  &p.ZFINBL,    &p.SPANFIN,  &p.RCFIN,   &p.TCFIN,  &p.CLA0FIN,  &p.RAGNFIN,
          &p.RVGNFIN, &p.RGNFIN,  &p.FREQFIN,   &p.DAMPFIN,  &p.FREQHFIN})
    {
        field->Set(value++);
    }
    p.FinYawGains = {31, 32, 33};
    p.RudderRollStabilization = 1;
    p.WarnMassLimit = 0;
    SetAll(p.CLA0COMPUTE, {1, 0, 1, 0});
    SetAll(p.CLA0COMPUTE2, {0, 1, 0, 1});
    project.Echo.Foils = CEchoBytes().Floats({1}).Floats({1, 2, 3, 4, 5, 6, 7, 8});
    project.Echo.Stabilizers = CEchoBytes()
                                   .Floats({1})
                                   .Integers({6})
                                   .Text("fins.txt")
                                   .Floats({1})
                                   .Floats({9, 10, 11, 12, 13, 14, 15})
                                   .Floats({16, 17, 18, 19, 20, 21})
                                   .Floats({31, 32, 33});
    project.Echo.Last = CEchoBytes().Integers({1, 0}).Integers({1, 0, 1, 0}).Integers({0, 1, 0, 1});
    project.Expect();
    p.NFINPAIR.Set(0);
    project.Echo.Stabilizers = CEchoBytes().Floats({1}).Integers({6}).Text("fins.txt").Floats({0});
    EXPECT_EQ(InputEcho(p), project.Echo.Bytes());
}

TEST(InputEcho, TheTank)
{
    CEchoProject project;
    CProjectData& p = project.P;
    p.FINTANKSTAB.Set(2);
    float value = 1;
    for (CParamArray* field : {&p.TANKLEN, &p.WDTANK, &p.W1TANK, &p.DPTANK, &p.ALTANK, &p.HDTANK, &p.ZTANKBL,
                               &p.XSTTANK, &p.SGTANK, &p.RESISTBTANK, &p.RESIST0TANK, &p.BFREQTANK})
    {
        field->Set(value++);
    }
    project.Echo.Stabilizers =
        CEchoBytes().Floats({2}).Integers({5}).Text("").Floats({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
    project.Expect();
}

TEST(InputEcho, ATextHasAZeroBehindItAndIsTheProjectsAsItStands)
{
    CEchoProject project;
    CProjectData& p = project.P;
    p.RudderGainFile = std::string(300, 'g');
    p.FinGainFile = "No File";
    project.Echo.Rudder = CEchoBytes()
                              .Floats({-1, -1, -1, -1, -1, -1, 0, -1})
                              .Integers({23})
                              .Floats({-90})
                              .Integers({5})
                              .Text(std::string(254, 'g'))
                              .Floats({-111111, -111111, -111111, -1, -1, -1, -1})
                              .Floats({-111111, -111111, -111111});
    project.Echo.Stabilizers = CEchoBytes().Floats({0}).Integers({5}).Text("No File");
    EXPECT_EQ(InputEcho(p), project.Echo.Bytes());
}

TEST(InputEcho, UnsetLengthsAreScaledToo)
{
    CEchoProject project;
    project.P.SHIPLEN.unit = 1;
    project.P.KG.Set(4);
    project.P.KG.unit = 1;
    project.Echo.Ship = CEchoBytes().Floats({-0.3048F, 4 * 0.3048F, -1}).Floats({2, 0}).Floats({-1});
    project.Echo.Words[6] = project.Echo.Words[7] = 1;
    project.Expect();
}
