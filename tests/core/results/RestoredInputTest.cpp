// Restoring a project from an input echo: adjustments, words that may be absent, derived flags, damaged
// bytes.
#include "core/results/InputEcho.h"
#include "tests/core/results/CEcho.h"
#include "tests/support/CTestProject.h"
#include "tests/support/FullProject.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>

namespace
{
struct CRestored : CTestProject
{
    CEcho Echo;
    CProjectData& P = Project;

    CProjectData& Restore(bool hasMagic = true)
    {
        const std::string bytes = hasMagic ? Echo.Bytes() : Echo.WithoutMagic();
        CResultsCursor cursor(bytes);
        RestoreInputEcho(cursor, hasMagic, Project);
        EXPECT_EQ(cursor.Position(), bytes.size());
        return Project;
    }
};

/// LOADFLAG 0, three stations, and the sectional values of a case.
struct CLoaded : CRestored
{
    explicit CLoaded(const CEchoBytes& loadStations, const CEchoBytes& sections)
    {
        Echo.Control = CEchoBytes()
                           .Floats({1, 1, 0, 1, 1, 2, 2})
                           .Floats({-1})
                           .Floats({0, 0})
                           .Floats({0.2F, 2.0F, 0.1F})
                           .Floats({3, 0, 4, 1})
                           .Floats({0, 0, 0});
        Echo.Ship = CEchoBytes().Floats({-1, 5, -1}).Floats({2, 0}).Floats({-1}); // KG is 5
        Echo.Stations = CEchoBytes().Floats({2, 3}).Floats({3, 1, 1});
        Echo.Masses = CEchoBytes().Add(loadStations).Add(sections).Floats(10, 1);
    }
};

const CEchoBytes kAllLoadStations = CEchoBytes().Floats({3}).Floats({7, 8, 9});
const CEchoBytes kAllSections = CEchoBytes().Floats(3, 100).Floats(3, 5).Floats(3, 0);

constexpr float kNotANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinite = std::numeric_limits<float>::infinity();
} // namespace

TEST(RestoredInput, ExcitationAndAddedMassHaveALeastValue)
{
    CRestored restored;
    EXPECT_EQ(restored.Restore().EXCITE.Value(), 2);
    EXPECT_EQ(restored.P.ADDMASS.Value(), 3);
    const auto control = [](float excite, float addmass)
    {
        return CEchoBytes()
            .Floats({1, 1, 0, 1, 1, 2, excite})
            .Floats({-1})
            .Floats({1, 0})
            .Floats({0.2F, 2.0F, 0.1F})
            .Floats({addmass, 0, 4, 1})
            .Floats({-1, -1, -1});
    };
    restored.Echo.Control = control(3, 4);
    EXPECT_EQ(restored.Restore().EXCITE.Value(), 3);
    EXPECT_EQ(restored.P.ADDMASS.Value(), 4);
    restored.Echo.Control = control(2.5F, 2.5F);
    EXPECT_EQ(restored.Restore().EXCITE.Value(), 2.5F);
    EXPECT_EQ(restored.P.ADDMASS.Value(), 3);
}

TEST(RestoredInput, OffsetsAreUnsetFirstAndTheMarkBecomesZero)
{
    CRestored restored;
    restored.P.YAUSER.Fill(8);
    restored.P.ZAUSERBL.Fill(8);
    restored.Echo.Stations =
        CEchoBytes().Floats({0, 1}).Floats({1, 1, 1}).Floats({4, 2}).Floats({-99.99F, 3}).Floats({0, 1});
    restored.Restore();
    EXPECT_EQ(restored.P.YAUSER.Value(0), 0);
    EXPECT_EQ(restored.P.YAUSER.Value(1), 3);
    EXPECT_EQ(restored.P.YAUSER.Value(2), -1);
    EXPECT_EQ(restored.P.YAUSER.Value(1259), -1);
    EXPECT_EQ(restored.P.ZAUSERBL.Value(1), 1);
    EXPECT_EQ(restored.P.ZAUSERBL.Value(2), -1);
    EXPECT_EQ(restored.P.XST.Value(), 4);
}

TEST(RestoredInput, AFirstOffsetWithoutMarkIsTakenAsItStands)
{
    CRestored restored;
    restored.Echo.Stations =
        CEchoBytes().Floats({0, 1}).Floats({1, 1, 1}).Floats({4, 1}).Floats({3}).Floats({2});
    EXPECT_EQ(restored.Restore().YAUSER.Value(), 3);
}

TEST(RestoredInput, PlainReadingKeepsTheMarkAndMakesNoAdjustment)
{
    CEcho echo;
    echo.Stations =
        CEchoBytes().Floats({0, 1}).Floats({1, 1, 1}).Floats({4, 1}).Floats({-99.99F}).Floats({2});
    const std::string bytes = echo.Bytes();
    CTestProject project;
    CResultsCursor cursor(bytes);
    ReadInputEcho(cursor, true, project.Project);
    EXPECT_EQ(project.Project.YAUSER.Value(), -99.99F);
    EXPECT_EQ(project.Project.EXCITE.Value(), 1);
    EXPECT_EQ(project.Project.ADDMASS.Value(), 1);
    EXPECT_EQ(project.Project.NPOS.Value(), -1);
}

TEST(RestoredInput, LoadStationsAtAllStationsAreNotTheUsersOwn)
{
    CLoaded restored(kAllLoadStations, kAllSections);
    restored.Restore();
    EXPECT_EQ(restored.P.LoadStationsUserInput, 0);
    EXPECT_EQ(restored.P.XSTLOAD.Value(0), -1);
    EXPECT_EQ(restored.P.StationSpare[0], 0);
    EXPECT_EQ(restored.P.StationSpare[2], 2);
    EXPECT_EQ(restored.P.StationSpare[3], -1);
}

TEST(RestoredInput, LoadStationsAreKeptUnderAFlagSetBefore)
{
    CLoaded restored(kAllLoadStations, kAllSections);
    restored.P.LoadStationsUserInput = 1;
    restored.Restore();
    EXPECT_EQ(restored.P.XSTLOAD.Value(2), 9);
    EXPECT_EQ(restored.P.StationSpare[0], -1);
}

TEST(RestoredInput, ANegativeCountOfLoadStationsIsLessThanNoStations)
{
    CLoaded restored(CEchoBytes().Floats({-1}), CEchoBytes());
    restored.Echo.Stations = CEchoBytes().Floats({2, 0}).Floats({0, 1, 1});
    restored.Restore();
    EXPECT_EQ(restored.P.LoadStationsUserInput, 1);
}

TEST(RestoredInput, FewerLoadStationsThanStationsAreTheUsersOwn)
{
    CLoaded restored(CEchoBytes().Floats({2}).Floats({7, 8}), kAllSections);
    restored.Restore();
    EXPECT_EQ(restored.P.LoadStationsUserInput, 1);
    EXPECT_EQ(restored.P.XSTLOAD.Value(1), 8);
    EXPECT_EQ(restored.P.XSTLOAD.Value(2), -1);
    EXPECT_EQ(restored.P.StationSpare[0], -1);
}

TEST(RestoredInput, MassDataAreEnteredWhenNoneIsMissing)
{
    EXPECT_EQ(CLoaded(kAllLoadStations, kAllSections).Restore().MassDataEntered, 1);
    EXPECT_EQ(CLoaded(CEchoBytes().Floats({0}), kAllSections).Restore().MassDataEntered, 0);
    for (int missing = 0; missing < 3; ++missing)
    {
        CEchoBytes sections;
        for (int k = 0; k < 3; ++k)
        {
            sections.Floats({5, 5, k == missing ? -1.0F : 5.0F});
        }
        EXPECT_EQ(CLoaded(kAllLoadStations, sections).Restore().MassDataEntered, 0) << missing;
    }
    EXPECT_EQ(CRestored().Restore().MassDataEntered, 0);
}

TEST(RestoredInput, HeightsOfGravityAreTheUsersWithASectionalRollRadius)
{
    CLoaded typed(kAllLoadStations, CEchoBytes().Floats(3, 100).Floats({5, 5, 4}).Floats({-1, -1, 0}));
    EXPECT_EQ(typed.Restore().KgUserInput, 1);
    EXPECT_EQ(typed.P.KxxiUserInput, 1);
    CLoaded like(kAllLoadStations, CEchoBytes().Floats(3, 100).Floats(3, 5).Floats({-1, -1, 0}));
    EXPECT_EQ(like.Restore().KgUserInput, 1);
    EXPECT_EQ(like.P.KxxiUserInput, 0);
    CLoaded none(kAllLoadStations, CEchoBytes().Floats(3, 100).Floats({5, 5, 4}).Floats(3, -1));
    none.P.KgUserInput = none.P.KxxiUserInput = 1;
    EXPECT_EQ(none.Restore().KgUserInput, 0);
    EXPECT_EQ(none.P.KxxiUserInput, 0);
}

TEST(RestoredInput, AppendagesAreIncludedByTheirValues)
{
    const auto keels = [](float pairs, float skeg)
    {
        CEchoBytes bytes = CEchoBytes().Floats({pairs});
        for (int k = 0; k < static_cast<int>(pairs); ++k)
        {
            bytes.Floats({0, 0}).Floats(5, 1);
        }
        return bytes.Floats({-1, skeg, -1});
    };
    const auto rudder = [](float area)
    {
        return CEchoBytes()
            .Floats({-1, -1, -1, -1, area, -1, 0, -1})
            .Integers({23})
            .Floats({-90})
            .Integers({5})
            .Text("")
            .Floats(10, -1);
    };
    struct
    {
        CEchoBytes Keels;
        CEchoBytes Rudder;
        float Foils;
        std::array<int, 5> Expected; ///< keels, skeg, rudder, foils, any of these
    } const cases[] = {
        {keels(-1, -1), rudder(-1), 0, {0, 0, 0, 0, 0}},  {keels(1.5F, 0), rudder(0), 0, {1, 0, 0, 0, 1}},
        {keels(0, 0.1F), rudder(-1), 0, {0, 1, 0, 0, 1}}, {keels(0, -1), rudder(2), 0, {0, 0, 1, 0, 1}},
        {keels(0, -1), rudder(-1), 1, {0, 0, 0, 1, 1}},
    };
    for (const auto& each : cases)
    {
        CRestored restored;
        CProjectData& p = restored.P;
        p.IncludeBilgeKeels = p.IncludeSkeg = p.IncludeRudder = p.IncludeFoils = p.AppendedHull = 1;
        restored.Echo.Keels = each.Keels;
        restored.Echo.Rudder = each.Rudder;
        restored.Echo.Foils = CEchoBytes().Floats({each.Foils}).Floats(each.Foils > 0 ? 8 : 0, 1);
        restored.Restore();
        EXPECT_EQ(
            (std::array{p.IncludeBilgeKeels, p.IncludeSkeg, p.IncludeRudder, p.IncludeFoils, p.AppendedHull}),
            each.Expected);
    }
}

TEST(RestoredInput, SpreadingIsChosenWithAnAngle)
{
    for (const float angle : {-1.0F, 0.0F, 30.0F})
    {
        CRestored restored;
        restored.P.SpreadOption = 1;
        restored.Echo.Sea = CEchoBytes().Floats({-1}).Floats({-1, angle}).Floats({-1});
        EXPECT_EQ(restored.Restore().SpreadOption, angle > 0 ? 1 : 0);
    }
}

TEST(RestoredInput, FrequenciesAreTheUsersUnlessTheyAreTheDefaults)
{
    const auto control = [](float last, float encounter)
    {
        return CEchoBytes()
            .Floats({1, 1, 0, 1, 1, 2, 2})
            .Floats({-1})
            .Floats({1, 0})
            .Floats({0.2F, 2.0F, last})
            .Floats({3, 0, 4, 1})
            .Floats({0, 0, encounter});
    };
    CRestored restored;
    restored.Echo.Control = control(0.1F, 0);
    EXPECT_EQ(restored.Restore().WaveFreqUserInput, 0);
    EXPECT_EQ(restored.P.EncFreqUserInput, 0);
    restored.Echo.Control = control(0.05F, 0.1F);
    EXPECT_EQ(restored.Restore().WaveFreqUserInput, 1);
    EXPECT_EQ(restored.P.EncFreqUserInput, 1);
    // Unset encounter frequencies aren't zeros.
    EXPECT_EQ(CRestored().Restore().EncFreqUserInput, 1);
}

TEST(RestoredInput, APositionLabelOfTwoWordsComesBackAsItsFirst)
{
    CRestored restored;
    restored.Echo.Positions = CEchoBytes()
                                  .Floats({1})
                                  .Floats({20, 0.01F})
                                  .Text("Bow Station", 255, ' ')
                                  .Floats({0, 0, 1, 2, 3})
                                  .Integers({27})
                                  .Integers({0, 0})
                                  .Floats({4});
    restored.Restore();
    EXPECT_EQ(restored.P.PositionLabel[0], "Bow");
    EXPECT_EQ(restored.P.NPOS.Value(), 2);
}

TEST(RestoredInput, APositionWithoutSicknessWordEndsThere)
{
    CRestored restored;
    restored.Echo.Positions = CEchoBytes()
                                  .Floats({2})
                                  .Floats({20, 0.01F})
                                  .Text("One")
                                  .Floats({0, 0, 1, 2, 3})
                                  .Text("Two")
                                  .Floats({0, 0, 4, 5, 6});
    restored.Restore();
    EXPECT_EQ(restored.P.PositionLabel[1], "Two");
    EXPECT_EQ(restored.P.XSTPOS.Value(1), 4);
    EXPECT_EQ(restored.P.MSIFlag[0], 0);
}

TEST(RestoredInput, WordsOfDihedralAndGainFilesMayBeAbsent)
{
    CRestored restored;
    restored.Echo.Rudder =
        CEchoBytes().Floats({-1, -1, -1, -1, -1, -1, 0, -1}).Floats({1, 2, 3, 4, 5, 6, 7}).Floats({8, 9, 10});
    restored.Echo.Stabilizers = CEchoBytes().Floats({0});
    restored.Restore();
    EXPECT_EQ(restored.P.RudderDihedral, -90);
    EXPECT_EQ(restored.P.RudderGainFileUsed, 0);
    EXPECT_EQ(restored.P.RAGNRUD.Value(), 1);
    EXPECT_EQ(restored.P.YGNRUD.Value(), 10);
}

TEST(RestoredInput, TheGainWordTellsWhetherTheFileIsUsed)
{
    CRestored restored;
    restored.P.FinGainFileUsed = 1;
    restored.Echo.Rudder = CEchoBytes()
                               .Floats({-1, -1, -1, -1, -1, -1, 0, -1})
                               .Integers({6})
                               .Text("gains.txt more")
                               .Floats(10, 1);
    restored.Echo.Stabilizers = CEchoBytes().Floats({0}).Integers({5}).Text("NoFile");
    restored.Restore();
    EXPECT_EQ(restored.P.RudderGainFileUsed, 1);
    EXPECT_EQ(restored.P.RudderGainFile, "gains.txt");
    EXPECT_EQ(restored.P.FinGainFileUsed, 0);
    EXPECT_EQ(restored.P.FinGainFile, "NoFile");
}

TEST(RestoredInput, FilesOfTheEarlierFormLackLateralControlAndYawGains)
{
    CRestored restored;
    restored.Echo.Stabilizers =
        CEchoBytes().Floats({1}).Integers({5}).Text("").Floats({1}).Floats(7, 2).Floats(6, 3);
    restored.Echo.Words[50] = 1; // YRTFOIL, the first behind those that lack
    restored.Restore(false);
    EXPECT_EQ(restored.P.FREQHFIN.Value(), 3);
    EXPECT_EQ(restored.P.FinYawGains, (CThreeFloats{-111111, -111111, -111111}));
    EXPECT_EQ(restored.P.RudderLateralGains, (CThreeFloats{-111111, -111111, -111111}));
    EXPECT_EQ(restored.P.YRTFOIL.unit, 1);
    EXPECT_EQ(restored.P.TCRUD.unit, 0);
}

TEST(RestoredInput, SpectraWithDirectionsOfTheirOwnLeaveTheSeaDirections)
{
    CRestored restored;
    restored.Echo.Sea = CEchoBytes().Floats({7}).Floats({3}).Text("hindcast.txt");
    restored.Restore();
    EXPECT_EQ(restored.P.NSEAWAY.Value(), 3);
    EXPECT_EQ(restored.P.NSEADIR.Value(), -1);
    EXPECT_EQ(restored.P.HindcastFile, "hindcast.txt");
}

TEST(RestoredInput, ACountBeyondItsBoundIsAnError)
{
    struct
    {
        const char* Name;
        float Greatest;
        std::function<void(CEcho&, float)> Set;
    } const cases[] = {
        {"NSEADIR", 36,
         [](CEcho& e, float n) {
             e.Sea = CEchoBytes().Floats({0}).Floats({n, 0}).Floats(36, 1).Floats({1, 0.1F});
         }},
        {"NSEAWAY", 10,
         [](CEcho& e, float n) {
             e.Sea = CEchoBytes().Floats({1}).Floats({-1, 0}).Floats({n}).Floats(20, 1);
         }},
        {"NSEAWAY without rows", 10, [](CEcho& e, float n) { e.Sea = CEchoBytes().Floats({9}).Floats({n}); }},
        {"NSPEED", 10, [](CEcho& e, float n) { e.Speeds = CEchoBytes().Floats({n}).Floats(10, 1); }},
        {"NST", 21,
         [](CEcho& e, float n) {
             e.Stations = CEchoBytes().Floats({1, n}).Floats({n, 1, 1}).Floats(21 * 4, 1);
         }},
        {"NST without rows", 21,
         [](CEcho& e, float n) {
             e.Stations = CEchoBytes().Floats({2, n}).Floats({n, 1, 1});
         }},
        {"NOFFUSER", 60,
         [](CEcho& e, float n) {
             e.Stations = CEchoBytes().Floats({0, 1}).Floats({1, 1, 1}).Floats({0, n}).Floats(120, 1);
         }},
        {"NPOS", 10,
         [](CEcho& e, float n)
         {
             e.Positions = CEchoBytes().Floats({n}).Floats({20, 0.01F});
             for (int k = 0; k < 10; ++k)
             {
                 e.Positions.Text("").Floats({0, 0, 1, 2, 3});
             }
         }},
        {"NSLOFF", 11,
         [](CEcho& e, float n)
         {
             e.Positions = CEchoBytes()
                               .Floats({1})
                               .Floats({20, 0.01F})
                               .Text("")
                               .Floats({2, 0, 1, 2, 3, 4})
                               .Floats({n, 1})
                               .Floats(22, 1)
                               .Floats(20, 1);
         }},
        {"NBKPAIR", 5,
         [](CEcho& e, float n)
         {
             e.Keels = CEchoBytes().Floats({n});
             for (int k = 0; k < 5; ++k)
             {
                 e.Keels.Floats({0, 0}).Floats(5, 1);
             }
             e.Keels.Floats(3, 1);
         }},
        {"rows of a keel", 21,
         [](CEcho& e, float n) {
             e.Keels = CEchoBytes().Floats({1}).Floats({1, n}).Floats(21 * 5, 1).Floats(3, 1);
         }},
        {"NFOILPAIR", 4, [](CEcho& e, float n) { e.Foils = CEchoBytes().Floats({n}).Floats(4 * 8, 1); }},
        {"NFINPAIR", 4,
         [](CEcho& e, float n)
         {
             e.Stabilizers =
                 CEchoBytes().Floats({1}).Integers({5}).Text("").Floats({n}).Floats(4 * 7, 1).Floats(9, 1);
         }},
    };
    for (const auto& each : cases)
    {
        SCOPED_TRACE(each.Name);
        CRestored good;
        each.Set(good.Echo, each.Greatest);
        good.Restore();
        for (const float wrong : {each.Greatest + 1, 1e9F, 1e20F, kNotANumber, kInfinite, -kInfinite})
        {
            CRestored bad;
            each.Set(bad.Echo, wrong);
            EXPECT_THROW(bad.Restore(), CResultsError) << wrong;
        }
    }
}

TEST(RestoredInput, NSTLOADBeyondItsBoundIsAnError)
{
    for (const float count : {22.0F, kNotANumber})
    {
        CLoaded restored(CEchoBytes().Floats({count}).Floats(21, 1), kAllSections);
        EXPECT_THROW(restored.Restore(), CResultsError);
    }
}

TEST(RestoredInput, NegativeCountsAreNone)
{
    CRestored restored;
    restored.Echo.Speeds = CEchoBytes().Floats({-2147483648.0F});
    restored.Echo.Keels = CEchoBytes().Floats({1}).Floats({7, 3}).Floats({-1, -1, -1}); // less than no rows
    restored.Restore();
    EXPECT_EQ(restored.P.ILASTBK.Value(), 3);
}

TEST(RestoredInput, EndsOfAKeelThatNoIntegerHoldsAreAnError)
{
    CRestored restored;
    restored.Echo.Keels = CEchoBytes().Floats({1}).Floats({1e30F, 1e30F}).Floats(5, 1).Floats(3, 1);
    EXPECT_THROW(restored.Restore(), CResultsError);
}

TEST(RestoredInput, AFileCutAnywhereIsAnError)
{
    CTestProject full;
    FillToMaximum(full.Project);
    const std::string bytes = InputEcho(full.Project);
    CTestProject restored;
    for (std::size_t length = 0; length < bytes.size(); length += length < 2000 ? 1 : 13)
    {
        const std::string cut = bytes.substr(0, length);
        CResultsCursor cursor(cut);
        ASSERT_THROW(RestoreInputEcho(cursor, true, restored.Project), CResultsError) << length;
    }
}
