// Which sections count as complete, by the data.
#include "tests/support/CTestProject.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace
{
struct CCompleteness : CTestProject
{
    CProjectData& p = Project;

    void Set(std::initializer_list<CParamArray*> fields, float value = 1, int index = 0) const
    {
        for (CParamArray* field : fields)
        {
            field->Set(index, value);
        }
    }
    /// A flag after recomputing all of them.
    int operator()(int CCompletenessFlags::*flag)
    {
        p.RecomputeCompleteness();
        return p.*flag;
    }
    /// Expects the flag to be 1, and 0 as soon as any of the values is missing.
    void ExpectAllNeeded(int CCompletenessFlags::*flag, std::initializer_list<CParamArray*> fields,
                         int index = 0, float sentinel = -1)
    {
        EXPECT_EQ((*this)(flag), 1);
        for (CParamArray* field : fields)
        {
            const float value = field->Value(index);
            field->Set(index, sentinel);
            EXPECT_EQ((*this)(flag), 0) << field->name;
            field->Set(index, value);
        }
    }
};
} // namespace

TEST(Completeness, ANewProject)
{
    CCompleteness is;
    std::string complete;
    is.p.RecomputeCompleteness();
    is.p.EachCompletenessFlag([&complete](const char* name, int flag)
                              { complete += flag == 1 ? std::string(name) + " " : ""; });
    EXPECT_EQ(complete, "BilgeKeelComplete FoilComplete FrequenciesComplete SectionAreasComplete ");
}

TEST(Completeness, ClearedFlagsAreZero)
{
    CCompleteness is;
    is.p.RecomputeCompleteness();
    is.p.ClearCompleteness();
    is.p.EachCompletenessFlag([](const char* name, int flag) { EXPECT_EQ(flag, 0) << name; });
}

TEST(Completeness, TheTankNeedsItsTwelveValues)
{
    CCompleteness is;
    const auto fields = {&is.p.TANKLEN, &is.p.WDTANK,      &is.p.W1TANK,      &is.p.DPTANK,
                         &is.p.ALTANK,  &is.p.HDTANK,      &is.p.ZTANKBL,     &is.p.XSTTANK,
                         &is.p.SGTANK,  &is.p.RESISTBTANK, &is.p.RESIST0TANK, &is.p.BFREQTANK};
    is.Set(fields);
    is.ExpectAllNeeded(&CProjectData::TankComplete, fields);
}

TEST(Completeness, BilgeKeelsNeedTheRowsBetweenTheirStations)
{
    CCompleteness is;
    is.p.NBKPAIR.Set(2);
    for (int pair = 0; pair < 2; ++pair)
    {
        is.p.IFIRSTBK.Set(pair, 8);
        is.p.ILASTBK.Set(pair, 10);
        for (int row = 0; row < 3; ++row)
        {
            is.Set({&is.p.XSTBKFORE, &is.p.XSTBKAFT, &is.p.YBK, &is.p.ZBKBL, &is.p.BBK}, 1, pair * 21 + row);
        }
    }
    is.ExpectAllNeeded(&CProjectData::BilgeKeelComplete,
                       {&is.p.XSTBKFORE, &is.p.XSTBKAFT, &is.p.YBK, &is.p.ZBKBL, &is.p.BBK}, 23);
    is.ExpectAllNeeded(&CProjectData::BilgeKeelComplete, {&is.p.IFIRSTBK, &is.p.ILASTBK}, 1);
    is.p.ILASTBK.Set(1, 11);
    EXPECT_EQ(is(&CProjectData::BilgeKeelComplete), 0);
    is.p.ILASTBK.Set(1, 1e30F);
    EXPECT_EQ(is(&CProjectData::BilgeKeelComplete), 0);
}

TEST(Completeness, OffsetsNeedStationsAndTheirPoints)
{
    CCompleteness is;
    is.p.NST.Set(0);
    is.p.NOFFUSER.Fill(-1);
    EXPECT_EQ(is(&CProjectData::OffsetsComplete), 0);
    is.p.NST.Set(2);
    is.p.NOFFUSER.Fill(2);
    for (int slot : {0, 1, 60, 61})
    {
        is.Set({&is.p.YAUSER, &is.p.ZAUSERBL}, 1, slot);
    }
    is.ExpectAllNeeded(&CProjectData::OffsetsComplete, {&is.p.YAUSER, &is.p.ZAUSERBL}, 61);
    is.p.NOFFUSER.Set(1, 0);
    EXPECT_EQ(is(&CProjectData::OffsetsComplete), 0);
}

TEST(Completeness, FoilsCountAnIncidenceOfMinusOneAsMissing)
{
    CCompleteness is;
    is.p.NFOILPAIR.Set(2);
    for (int pair = 0; pair < 2; ++pair)
    {
        is.Set({&is.p.XSTFOIL, &is.p.YRTFOIL, &is.p.ZRTFOILBL, &is.p.SPANFOIL, &is.p.RCFOIL, &is.p.TCFOIL}, 1,
               pair);
    }
    // The incidence that isn't given passes here, for its sentinel is another.
    is.ExpectAllNeeded(&CProjectData::FoilComplete,
                       {&is.p.XSTFOIL, &is.p.YRTFOIL, &is.p.ZRTFOILBL, &is.p.SPANFOIL, &is.p.RCFOIL,
                        &is.p.TCFOIL, &is.p.DIFOIL},
                       1);
    is.p.CLA0COMPUTE.Set(1, 1);
    EXPECT_EQ(is(&CProjectData::FoilComplete), 1);
    is.p.CLA0COMPUTE.Set(0, 1);
    EXPECT_EQ(is(&CProjectData::FoilComplete), 0);
    is.Set({&is.p.CLA0FOIL}, 5, 0);
    EXPECT_EQ(is(&CProjectData::FoilComplete), 0);
    is.Set({&is.p.CLA0FOIL}, 5, 1);
    EXPECT_EQ(is(&CProjectData::FoilComplete), 1);
}

TEST(Completeness, TheHullNeedsTheLoadingThatItIsGivenBy)
{
    CCompleteness is;
    is.p.NST.Set(3);
    is.p.DRAFTMID.Set(5);
    is.ExpectAllNeeded(&CProjectData::HullComplete,
                       {&is.p.DRAFTMID, &is.p.TRIMST, &is.p.HULLDEF, &is.p.TRIMDEF});
    is.p.TRIMDEF.Set(1);
    EXPECT_EQ(is(&CProjectData::HullComplete), 0);
    is.Set({&is.p.DISPUSER, &is.p.LCGPUSER}, 50);
    is.ExpectAllNeeded(&CProjectData::HullComplete, {&is.p.DISPUSER, &is.p.LCGPUSER});
    is.p.NST.Set(0);
    EXPECT_EQ(is(&CProjectData::HullComplete), 0);
}

TEST(Completeness, MassesAreAskedForOnlyWithALoadFlagOfOne)
{
    CCompleteness is;
    is.p.LOADFLAG.Set(0);
    EXPECT_EQ(is(&CProjectData::MassComplete), 1);
    is.p.LOADFLAG.Set(1);
    EXPECT_EQ(is(&CProjectData::MassComplete), 0);
    is.p.NST.Set(2);
    const auto overhangs = {&is.p.BOWTN,   &is.p.BOWKG,   &is.p.BOWRRG,   &is.p.BOWCGFP,   &is.p.BOWPRG,
                            &is.p.STERNTN, &is.p.STERNKG, &is.p.STERNRRG, &is.p.STERNCGAP, &is.p.STERNPRG};
    is.Set(overhangs);
    is.Set({&is.p.SECTTN}, 1, 0);
    is.Set({&is.p.SECTTN}, 1, 1);
    is.ExpectAllNeeded(&CProjectData::MassComplete, overhangs);
    is.ExpectAllNeeded(&CProjectData::MassComplete, {&is.p.SECTTN}, 1);
    is.p.KgUserInput = 1;
    EXPECT_EQ(is(&CProjectData::MassComplete), 0);
    is.Set({&is.p.SECTKG}, 1, 0);
    is.Set({&is.p.SECTKG}, 1, 1);
    EXPECT_EQ(is(&CProjectData::MassComplete), 1);
    is.p.KxxiUserInput = 1;
    EXPECT_EQ(is(&CProjectData::MassComplete), 0);
}

TEST(Completeness, FrequenciesAreNeededWhereTheUserGivesThem)
{
    CCompleteness is;
    is.p.WaveFreqUserInput = 1;
    is.ExpectAllNeeded(&CProjectData::FrequenciesComplete, {&is.p.WVFREQMIN, &is.p.WVFREQMAX, &is.p.DWVFREQ});
    is.p.EncFreqUserInput = 1;
    EXPECT_EQ(is(&CProjectData::FrequenciesComplete), 0);
    is.Set({&is.p.ENFREQMIN, &is.p.ENFREQMAX, &is.p.DENFREQ});
    is.ExpectAllNeeded(&CProjectData::FrequenciesComplete, {&is.p.ENFREQMIN, &is.p.ENFREQMAX, &is.p.DENFREQ});
}

TEST(Completeness, OneSpeedIsEnough)
{
    CCompleteness is;
    EXPECT_EQ(is(&CProjectData::SpeedsComplete), 0);
    is.p.NSPEED.Set(1);
    EXPECT_EQ(is(&CProjectData::SpeedsComplete), 1);
}

TEST(Completeness, ParticularsNeedTheRollValueInUse)
{
    CCompleteness is;
    is.Set({&is.p.SHIPLEN, &is.p.KG, &is.p.PITCHRG, &is.p.ROLLNF});
    is.ExpectAllNeeded(&CProjectData::ParticularsComplete,
                       {&is.p.SHIPLEN, &is.p.KG, &is.p.PITCHRG, &is.p.ROLLNF});
    is.p.ROLLRGDEF.Set(1);
    EXPECT_EQ(is(&CProjectData::ParticularsComplete), 0);
    is.p.ROLLRG.Set(3);
    EXPECT_EQ(is(&CProjectData::ParticularsComplete), 1);
    is.p.ROLLRGDEF.Set(2);
    EXPECT_EQ(is(&CProjectData::ParticularsComplete), 0);
    is.p.WETROLLRG.Set(3);
    EXPECT_EQ(is(&CProjectData::ParticularsComplete), 1);
    is.p.GMFLAG.Set(1);
    EXPECT_EQ(is(&CProjectData::ParticularsComplete), 0);
    is.p.GMUSER.Set(1);
    EXPECT_EQ(is(&CProjectData::ParticularsComplete), 1);
}

TEST(Completeness, FinsNeedTheirControlTableOrAGainFile)
{
    CCompleteness is;
    is.Set({&is.p.RAGNFIN, &is.p.RVGNFIN, &is.p.RGNFIN}, -1);
    is.Set({&is.p.FREQFIN, &is.p.DAMPFIN, &is.p.FREQHFIN});
    EXPECT_EQ(is(&CProjectData::FinComplete), 0);
    is.p.FinYawGains = {0, 0, 0};
    is.ExpectAllNeeded(&CProjectData::FinComplete, {&is.p.RAGNFIN, &is.p.RVGNFIN, &is.p.RGNFIN}, 0, -111111);
    is.ExpectAllNeeded(&CProjectData::FinComplete, {&is.p.FREQFIN, &is.p.DAMPFIN, &is.p.FREQHFIN});
    is.p.FinGainFileUsed = 1;
    EXPECT_EQ(is(&CProjectData::FinComplete), 0);
    for (const char* none : {"NoFile", "NOFILE"})
    {
        is.p.FinGainFile = none;
        EXPECT_EQ(is(&CProjectData::FinComplete), 0);
    }
    is.p.FinGainFile = "gains.txt";
    EXPECT_EQ(is(&CProjectData::FinComplete), 1);
}

TEST(Completeness, FinPairsNeedTheirPlaceAndTheirTypedLiftCurve)
{
    CCompleteness is;
    is.p.FinGainFileUsed = 1;
    is.p.FinGainFile = "gains.txt";
    is.p.NFINPAIR.Set(1);
    const auto fields = {&is.p.XSTFIN, &is.p.YRTFIN, &is.p.ZFINBL, &is.p.SPANFIN, &is.p.RCFIN, &is.p.TCFIN};
    is.Set(fields);
    is.p.DIFIN.Set(-1);
    is.ExpectAllNeeded(&CProjectData::FinComplete, fields);
    is.ExpectAllNeeded(&CProjectData::FinComplete, {&is.p.DIFIN}, 0, -99);
    is.p.CLA0COMPUTE2.Set(1);
    EXPECT_EQ(is(&CProjectData::FinComplete), 0);
    is.p.CLA0FIN.Set(2);
    EXPECT_EQ(is(&CProjectData::FinComplete), 1);
}

TEST(Completeness, TheRudderNeedsItsGeometry)
{
    CCompleteness is;
    const auto fields = {&is.p.XSTRUD, &is.p.YRTRUD, &is.p.ZRTRUDBL, &is.p.SPANRUD,
                         &is.p.RCRUD,  &is.p.TCRUD,  &is.p.CLA0RUD};
    is.Set(fields);
    is.ExpectAllNeeded(&CProjectData::RudderComplete, fields);
    is.p.RudderDihedral = -99;
    EXPECT_EQ(is(&CProjectData::RudderComplete), 0);
}

TEST(Completeness, ARollStabilizingRudderNeedsItsGainsOrAGainFile)
{
    CCompleteness is;
    CProjectData& p = is.p;
    is.Set({&p.XSTRUD, &p.YRTRUD, &p.ZRTRUDBL, &p.SPANRUD, &p.RCRUD, &p.TCRUD, &p.CLA0RUD});
    p.RudderRollStabilization = 1;
    EXPECT_EQ(is(&CProjectData::RudderComplete), 0);
    is.Set({&p.FREQRUD, &p.DAMPRUD, &p.FREQLRUD, &p.FREQHRUD});
    is.Set({&p.RAGNRUD, &p.RVGNRUD, &p.RGNRUD, &p.YAGNRUD, &p.YVGNRUD, &p.YGNRUD}, -1);
    EXPECT_EQ(is(&CProjectData::RudderComplete), 0);
    p.RudderLateralGains = {0, 0, 0};
    is.ExpectAllNeeded(&CProjectData::RudderComplete, {&p.FREQRUD, &p.DAMPRUD, &p.FREQLRUD, &p.FREQHRUD});
    is.ExpectAllNeeded(&CProjectData::RudderComplete, {&p.RAGNRUD, &p.YGNRUD}, 0, -111111);
    p.LateralGainPoint = 1;
    EXPECT_EQ(is(&CProjectData::RudderComplete), 0);
    p.LateralPointX = 10;
    p.LateralPointZ = 4;
    EXPECT_EQ(is(&CProjectData::RudderComplete), 1);
    p.RAGNRUD.Set(-111111);
    p.RudderGainFileUsed = 1;
    EXPECT_EQ(is(&CProjectData::RudderComplete), 0);
    p.RudderGainFile = "gains.txt";
    EXPECT_EQ(is(&CProjectData::RudderComplete), 1);
    p.DAMPRUD.Set(-1);
    EXPECT_EQ(is(&CProjectData::RudderComplete), 0);
}

TEST(Completeness, SeaDirectionsNeedEachOfTheirSlots)
{
    CCompleteness is;
    is.p.NSEADIR.Set(2);
    is.p.SEADIR.Set(0, 0);
    EXPECT_EQ(is(&CProjectData::SeaDirectionsComplete), 0);
    is.p.SEADIR.Set(1, 180);
    EXPECT_EQ(is(&CProjectData::SeaDirectionsComplete), 1);
}

TEST(Completeness, SpectraAboveFiveBringTheirOwnDirections)
{
    CCompleteness is;
    is.p.SPECTRUM.Set(6);
    EXPECT_EQ(is(&CProjectData::SeaDirectionsComplete), 1);
    is.p.SPECTRUM.Set(5);
    EXPECT_EQ(is(&CProjectData::SeaDirectionsComplete), 0);
}

TEST(Completeness, PositionsNeedWhatTheirCalculationAsks)
{
    CCompleteness is;
    CProjectData& p = is.p;
    EXPECT_EQ(is(&CProjectData::PositionsComplete), 0);
    p.NPOS.Set(2);
    for (int k = 0; k < 2; ++k)
    {
        is.Set({&p.XSTPOS, &p.YPOS, &p.ZPOSBL}, 2, k);
    }
    is.ExpectAllNeeded(&CProjectData::PositionsComplete, {&p.XSTPOS, &p.YPOS, &p.ZPOSBL}, 1);
    is.ExpectAllNeeded(&CProjectData::PositionsComplete, {&p.SLAMHOUR, &p.SLAMEX, &p.NPOS});
    p.RELMOCALC.Set(1, 4);
    EXPECT_EQ(is(&CProjectData::PositionsComplete), 0);
    p.DECKHBL.Set(1, 9);
    EXPECT_EQ(is(&CProjectData::PositionsComplete), 1);
    p.RELMOCALC.Set(1, 1);
    is.Set({&p.SLFORM, &p.SLWIDTH}, 1, 1);
    is.ExpectAllNeeded(&CProjectData::PositionsComplete, {&p.SLFORM, &p.SLWIDTH, &p.DECKHBL}, 1);
    p.RELMOCALC.Set(1, 3);
    is.Set({&p.DEADR, &p.SLHEIGHT}, 1, 1);
    is.ExpectAllNeeded(&CProjectData::PositionsComplete, {&p.DEADR, &p.SLHEIGHT}, 1);
    p.RELMOCALC.Set(1, 5);
    p.DECKHBL.Set(1, -1);
    EXPECT_EQ(is(&CProjectData::PositionsComplete), 1);
}

TEST(Completeness, SlammingByOffsetsNeedsItsPointsAndDrafts)
{
    CCompleteness is;
    CProjectData& p = is.p;
    p.NPOS.Set(1);
    p.RELMOCALC.Set(2);
    is.Set({&p.XSTPOS, &p.YPOS, &p.ZPOSBL, &p.DECKHBL, &p.ZSLUPBL});
    p.NSLOFF.Set(2);
    is.Set({&p.YSLOFFBL, &p.ZSLOFFBL}, 0, 0);
    is.Set({&p.YSLOFFBL, &p.ZSLOFFBL}, 1, 1);
    EXPECT_EQ(is(&CProjectData::PositionsComplete), 0);
    p.SlamMidshipDraft[0] = 5;
    p.SlamLoadHeight[0] = 0.5F;
    is.ExpectAllNeeded(&CProjectData::PositionsComplete, {&p.NSLOFF, &p.ZSLUPBL, &p.DECKHBL});
    is.ExpectAllNeeded(&CProjectData::PositionsComplete, {&p.YSLOFFBL, &p.ZSLOFFBL}, 1);
    p.SlamLoadHeight[0] = -1;
    EXPECT_EQ(is(&CProjectData::PositionsComplete), 0);
}

TEST(Completeness, MotionSicknessByExposureTimeNeedsTheExposure)
{
    CCompleteness is;
    is.p.NPOS.Set(1);
    is.Set({&is.p.XSTPOS, &is.p.YPOS, &is.p.ZPOSBL});
    is.p.MSIFlag[0] = 1;
    is.p.MSIExposure[0] = -1;
    EXPECT_EQ(is(&CProjectData::PositionsComplete), 0);
    is.p.MSIExposureOption[0] = 1;
    EXPECT_EQ(is(&CProjectData::PositionsComplete), 1);
}

TEST(Completeness, SectionAreasNeedThreeValuesPerStation)
{
    CCompleteness is;
    is.p.NST.Set(1);
    EXPECT_EQ(is(&CProjectData::SectionAreasComplete), 0);
    is.Set({&is.p.BEAM, &is.p.DRAFT, &is.p.ACOEF});
    is.ExpectAllNeeded(&CProjectData::SectionAreasComplete, {&is.p.BEAM, &is.p.DRAFT, &is.p.ACOEF});
}

TEST(Completeness, TheSkegNeedsThreeValues)
{
    CCompleteness is;
    is.Set({&is.p.XSTAFTSKEG, &is.p.BSKEG, &is.p.ELSKEG});
    is.ExpectAllNeeded(&CProjectData::SkegComplete, {&is.p.XSTAFTSKEG, &is.p.BSKEG, &is.p.ELSKEG});
}

TEST(Completeness, WavesNeedTheRowsOfTheirSpectrum)
{
    CCompleteness is;
    CProjectData& p = is.p;
    EXPECT_EQ(is(&CProjectData::WaveComplete), 0);
    p.SPECTRUM.Set(0);
    p.WAVESTEEP.Set(0.05F);
    is.ExpectAllNeeded(&CProjectData::WaveComplete, {&p.WAVESTEEP});
    p.NSEAWAY.Set(2);
    p.SPECTRUM.Set(1);
    is.Set({&p.HSW, &p.TSW}, 3, 0);
    is.Set({&p.HSW, &p.TSW}, 3, 1);
    is.ExpectAllNeeded(&CProjectData::WaveComplete, {&p.HSW, &p.TSW}, 1);
    p.SPECTRUM.Set(2);
    EXPECT_EQ(is(&CProjectData::WaveComplete), 0);
    p.BretHs.fill(2);
    p.BretTp.fill(9);
    EXPECT_EQ(is(&CProjectData::WaveComplete), 1);
    p.SPECTRUM.Set(3);
    p.JonswapHs.fill(2);
    p.JonswapTp.fill(9);
    is.ExpectAllNeeded(&CProjectData::WaveComplete, {&p.PEAKENSW}, 1);
    p.SPECTRUM.Set(4);
    for (auto* values : {&p.OchiHs1, &p.OchiTp1, &p.OchiLam1, &p.OchiHs2, &p.OchiTp2, &p.OchiLam2})
    {
        EXPECT_EQ(is(&CProjectData::WaveComplete), 0);
        values->fill(1);
    }
    EXPECT_EQ(is(&CProjectData::WaveComplete), 1);
    p.SPECTRUM.Set(6);
    const auto ten = {&p.ZETA1, &p.OMEGA1, &p.LAMB1, &p.KAPA1, &p.EXPP1,
                      &p.ZETA2, &p.OMEGA2, &p.LAMB2, &p.KAPA2, &p.EXPP2};
    is.Set(ten, 1, 0);
    is.Set(ten, 1, 1);
    is.ExpectAllNeeded(&CProjectData::WaveComplete, ten, 1);
}

TEST(Completeness, AWaveTableWithoutSeawaysIsIncomplete)
{
    CCompleteness is;
    is.p.SPECTRUM.Set(2);
    for (float count : {-1.0F, 0.0F})
    {
        is.p.NSEAWAY.Set(count);
        EXPECT_EQ(is(&CProjectData::WaveComplete), 0);
    }
}

TEST(Completeness, ShortCrestedSeasNeedTheirSpreadingAngle)
{
    CCompleteness is;
    is.p.SPECTRUM.Set(2);
    is.p.NSEAWAY.Set(1);
    is.p.BretHs.fill(2);
    is.p.BretTp.fill(9);
    is.p.SpreadOption = 1;
    EXPECT_EQ(is(&CProjectData::WaveComplete), 0);
    is.p.SPREADANG.Set(90);
    EXPECT_EQ(is(&CProjectData::WaveComplete), 1);
}

TEST(Completeness, OnlyTheSpectraThatCanSpreadNeedTheAngle)
{
    CCompleteness is;
    CProjectData& p = is.p;
    p.SpreadOption = 1;
    p.SPECTRUM.Set(0);
    p.WAVESTEEP.Set(0.05F);
    EXPECT_EQ(is(&CProjectData::WaveComplete), 1);
    p.SPECTRUM.Set(7);
    p.HindcastFile = "hindcast.txt";
    EXPECT_EQ(is(&CProjectData::WaveComplete), 1);
    p.SPECTRUM.Set(5);
    p.SpectrumFile = "sea.txt";
    p.NFREQSPUNI.Set(20);
    EXPECT_EQ(is(&CProjectData::WaveComplete), 0);
    p.SPREADANG.Set(90);
    EXPECT_EQ(is(&CProjectData::WaveComplete), 1);
}

TEST(Completeness, SpectraFromFilesNeedTheirFile)
{
    CCompleteness is;
    is.p.SPECTRUM.Set(5);
    is.p.SpectrumFile = "sea.txt";
    EXPECT_EQ(is(&CProjectData::WaveComplete), 0);
    is.p.NFREQSPUNI.Set(20);
    EXPECT_EQ(is(&CProjectData::WaveComplete), 1);
    is.p.SpectrumFile = "empty";
    EXPECT_EQ(is(&CProjectData::WaveComplete), 0);
    is.p.SPECTRUM.Set(7);
    EXPECT_EQ(is(&CProjectData::WaveComplete), 0);
    is.p.HindcastFile = "hindcast.txt";
    EXPECT_EQ(is(&CProjectData::WaveComplete), 1);
    is.p.SPECTRUM.Set(8);
    EXPECT_EQ(is(&CProjectData::WaveComplete), 0);
    is.p.DirectionalFile = "directional.txt";
    EXPECT_EQ(is(&CProjectData::WaveComplete), 1);
}
