#include "tests/core/engine/CompletenessCase.h"

#include <gtest/gtest.h>

namespace
{
const std::string kPositions = "The seakeeping positions are not complete.";
const std::string kSlamming = "The slamming parameters are not complete.";
const std::string kKeels = "The bilge keel parameters is not complete.";
const std::string kSkeg = "The skeg parameters is not complete.";
const std::string kFoils = "The stationary foil data is not complete.";
const std::string kFins = "The stabilization fin data is not complete.";
const std::string kTank = "The U-Tube roll stabilization tank data is not complete.";

const std::string kPlace = "3.00 1.000 8.000 9.000";
const std::string kSurface = "2.00 2.0000 2.0000 2.0000 2.0000 2.0000 0.0 -1.0000";

constexpr int kForm = 1;
constexpr int kOffset = 2;
constexpr int kWedge = 3;

/// Two positions that slam.
struct CSlams : CCompletenessCase
{
    explicit CSlams(int method) { SetSlamming(static_cast<float>(method)); }
};

struct CKeels : CCompletenessCase
{
    CKeels() { SetKeels(); }
};

struct CSkeg : CCompletenessCase
{
    CSkeg() { SetSkeg(); }
};
} // namespace

TEST(PositionCompleteness, EachMissingValueOfAPlaceIsTold)
{
    CCompletenessCase test;
    test.SetPositions(1);
    test.Project.RELMOCALC.Set(4);
    test.Project.XSTPOS.Set(-99);
    test.Unset(&CProjectData::YPOS);
    test.Unset(&CProjectData::ZPOSBL);
    test.Unset(&CProjectData::DECKHBL);
    test.ExpectMessages({kPositions, kPositions, kPositions, kPositions}, "Position1 DECKWET NOMII NOMSI");
}

TEST(PositionCompleteness, ADeckHeightIsAskedForWhereItIsUsed)
{
    for (const auto& [method, word] : {std::pair(kForm, "SLAMFORM"), std::pair(kOffset, "SLAMOFFSET"),
                                       std::pair(kWedge, "SLAMWEDGE"), std::pair(4, "DECKWET")})
    {
        CSlams test(method);
        test.UnsetAll(&CProjectData::DECKHBL);
        test.ExpectMessages({kPositions, kPositions}, std::string("Position2 ") + word + " NOMII NOMSI");
    }
    for (const int method : {0, 5})
    {
        CSlams test(method);
        test.UnsetAll(&CProjectData::DECKHBL);
        test.ExpectNothing();
    }
}

TEST(PositionCompleteness, TwoPositionsGiveTwoMessagesWhileSlammingIsGuarded)
{
    CSlams test(kForm);
    test.UnsetAll(&CProjectData::YPOS);
    test.UnsetAll(&CProjectData::SLFORM);
    test.ExpectMessages({kPositions, kPositions}, "Position2 SLAMFORM NOMII NOMSI");
}

TEST(PositionCompleteness, OnlyTheStationSentinelIsUnset)
{
    CCompletenessCase test;
    test.SetPositions(2);
    test.Project.XSTPOS.Set(0, -1);
    test.Project.XSTPOS.Set(1, -99.001F);
    test.ExpectNothing();
}

TEST(PositionCompleteness, FormSlamTellsBothItsValues)
{
    CSlams test(kForm);
    test.UnsetAll(&CProjectData::SLFORM);
    test.UnsetAll(&CProjectData::SLWIDTH);
    test.ExpectMessages({kSlamming, kSlamming}, "Position2 SLAMFORM NOMII NOMSI");
}

TEST(PositionCompleteness, FormSlamWidth)
{
    CSlams test(kForm);
    test.Unset(&CProjectData::SLWIDTH, 1);
    test.ExpectMessage(kSlamming, kPlace);
}

TEST(PositionCompleteness, SlamOffsetCount)
{
    CSlams test(kOffset);
    test.Unset(&CProjectData::NSLOFF, 1);
    test.ExpectMessage(kSlamming, kPlace);
}

TEST(PositionCompleteness, WedgeAngleGuardsItsHeight)
{
    CSlams test(kWedge);
    test.UnsetAll(&CProjectData::DEADR);
    test.UnsetAll(&CProjectData::SLHEIGHT);
    test.ExpectMessage(kSlamming, "Position2 SLAMWEDGE NOMII NOMSI");
}

TEST(PositionCompleteness, WedgeHeight)
{
    CSlams test(kWedge);
    test.Unset(&CProjectData::SLHEIGHT, 1);
    test.ExpectMessage(kSlamming, kPlace);
}

TEST(PositionCompleteness, PlacesBehindAFailedSlamAreStillTested)
{
    CSlams test(kWedge);
    test.Unset(&CProjectData::DEADR);
    test.Unset(&CProjectData::ZPOSBL, 1);
    test.ExpectMessages({kSlamming, kPositions}, "Position2 SLAMWEDGE NOMII NOMSI");
}

TEST(PositionCompleteness, FailedPositionsStopAllGroupsBehind)
{
    CCompletenessCase test;
    test.SetLaterFailures();
    test.Project.LOADFLAG.Set(1);
    test.SetPositions(1);
    test.UnsetAll(&CProjectData::YPOS);
    test.ExpectMessage(kPositions, "Position1 NOSLAM MII NOMSI");
}

TEST(KeelCompleteness, APairLooksAtThePositionOfItsIndex)
{
    CKeels test;
    test.UnsetAll(&CProjectData::MIIFLAG);
    test.ExpectMessages({kKeels, kKeels}, "2");
}

TEST(KeelCompleteness, APairsTestIsNotGuarded)
{
    CKeels test;
    test.UnsetAll(&CProjectData::YBK);
    test.Unset(&CProjectData::MIIFLAG, 1);
    test.ExpectMessages({kKeels, kKeels}, "7 8");
}

TEST(KeelCompleteness, UnsetFirstAndLastStationsPass)
{
    CKeels test;
    test.UnsetAll(&CProjectData::IFIRSTBK);
    test.UnsetAll(&CProjectData::ILASTBK);
    test.ExpectNothing();
}

TEST(KeelCompleteness, EachValueOfARowIsToldOnceForAllRows)
{
    for (const CField field : {&CProjectData::YBK, &CProjectData::ZBKBL, &CProjectData::BBK})
    {
        CKeels test;
        test.UnsetAll(field);
        test.ExpectMessage(kKeels, "7 8");
    }
}

TEST(KeelCompleteness, OneMessageForARowThatLacksAll)
{
    CKeels test;
    test.UnsetAll(&CProjectData::YBK);
    test.UnsetAll(&CProjectData::ZBKBL);
    test.UnsetAll(&CProjectData::BBK);
    test.ExpectMessage(kKeels, "7 8");
}

TEST(KeelCompleteness, OnlyTheRowsOfTheKeelsStationsAreTested)
{
    CKeels test;
    test.Unset(&CProjectData::BBK, 22);
    test.ExpectMessage(kKeels, "1.00 1.00 1.000 1.000 1.000");
    CKeels behind;
    behind.Unset(&CProjectData::BBK, 23);
    behind.ExpectNothing();
}

TEST(SkegCompleteness, TheStationIsAskedForBehindFailedKeelsButNotTheSize)
{
    CKeels test;
    test.SetSkeg();
    test.UnsetAll(&CProjectData::YBK);
    test.Unset(&CProjectData::XSTAFTSKEG);
    test.ExpectMessages({kKeels, kSkeg}, "7 8");
    CKeels size;
    size.SetSkeg();
    size.UnsetAll(&CProjectData::YBK);
    size.Unset(&CProjectData::BSKEG);
    size.Unset(&CProjectData::ELSKEG);
    size.ExpectMessage(kKeels, "7 8");
}

TEST(SkegCompleteness, EachValueGuardsThoseBehind)
{
    CSkeg all;
    all.Unset(&CProjectData::XSTAFTSKEG);
    all.Unset(&CProjectData::BSKEG);
    all.Unset(&CProjectData::ELSKEG);
    all.ExpectMessage(kSkeg, "0");
    CSkeg size;
    size.Unset(&CProjectData::BSKEG);
    size.Unset(&CProjectData::ELSKEG);
    size.ExpectMessage(kSkeg, "0");
    CSkeg length;
    length.Unset(&CProjectData::ELSKEG);
    length.ExpectMessage(kSkeg, "0");
}

TEST(SkegCompleteness, AFailedSkegStopsFoilsAndStabilizers)
{
    CSkeg test;
    test.SetFoils();
    test.UnsetAll(&CProjectData::SPANFOIL);
    test.Project.FINTANKSTAB.Set(2);
    test.Unset(&CProjectData::ELSKEG);
    test.ExpectMessage(kSkeg, "0");
}

TEST(FoilCompleteness, EachValueOfAFoil)
{
    for (const CField field : {&CProjectData::XSTFOIL, &CProjectData::YRTFOIL, &CProjectData::ZRTFOILBL,
                               &CProjectData::SPANFOIL, &CProjectData::RCFOIL, &CProjectData::TCFOIL})
    {
        CCompletenessCase test;
        test.SetFoils();
        test.Unset(field);
        test.ExpectMessage(kFoils, "2");
    }
}

TEST(FoilCompleteness, AnIncidenceOfMinusOneIsGiven)
{
    CCompletenessCase test;
    test.SetFoils();
    test.ExpectNothing();
    test.Project.DIFOIL.Set(1, -99);
    test.ExpectMessage(kFoils, kSurface);
}

TEST(FoilCompleteness, EachIncompleteFoilIsToldOnceAndStopsTheStabilizers)
{
    CCompletenessCase test;
    test.SetFoils();
    test.UnsetAll(&CProjectData::SPANFOIL);
    test.UnsetAll(&CProjectData::RCFOIL);
    test.Project.FINTANKSTAB.Set(2);
    test.ExpectMessages({kFoils, kFoils}, "2");
}

TEST(FinCompleteness, EachValueOfAFin)
{
    for (const CField field : {&CProjectData::XSTFIN, &CProjectData::YRTFIN, &CProjectData::ZFINBL,
                               &CProjectData::SPANFIN, &CProjectData::RCFIN, &CProjectData::TCFIN})
    {
        CCompletenessCase test;
        test.SetFins();
        test.Unset(field);
        test.ExpectMessage(kFins, "2");
    }
}

TEST(FinCompleteness, AnIncidenceOfMinusOneIsGiven)
{
    CCompletenessCase test;
    test.SetFins();
    test.ExpectNothing();
    test.Project.DIFIN.Set(1, -99);
    test.ExpectMessage(kFins, kSurface);
}

TEST(FinCompleteness, EachIncompleteFinIsTold)
{
    CCompletenessCase test;
    test.SetFins();
    test.UnsetAll(&CProjectData::SPANFIN);
    test.ExpectMessages({kFins, kFins}, "2");
}

TEST(TankCompleteness, EachValueOfTheTank)
{
    for (const CField field :
         {&CProjectData::TANKLEN, &CProjectData::WDTANK, &CProjectData::W1TANK, &CProjectData::DPTANK,
          &CProjectData::ALTANK, &CProjectData::HDTANK, &CProjectData::ZTANKBL, &CProjectData::XSTTANK,
          &CProjectData::SGTANK, &CProjectData::RESISTBTANK, &CProjectData::RESIST0TANK,
          &CProjectData::BFREQTANK})
    {
        CCompletenessCase test;
        test.Project.FINTANKSTAB.Set(2);
        test.SetTank();
        test.Unset(field);
        test.ExpectMessage(kTank, "UTUBETANK");
    }
}

TEST(PartCompleteness, PartsThatAreNotIncludedAreNotTested)
{
    CCompletenessCase test;
    test.SetKeels();
    test.SetSkeg();
    test.SetFoils();
    test.UnsetAll(&CProjectData::YBK);
    test.Unset(&CProjectData::ELSKEG);
    test.UnsetAll(&CProjectData::SPANFOIL);
    test.Project.AppendedHull = 0;
    test.ExpectNothing();
}
