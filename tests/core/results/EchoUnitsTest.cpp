// The sixty-six unit words: which values each of them converts, on the way into a file and back.
#include "core/results/EchoUnits.h"

#include "core/results/InputEcho.h"
#include "tests/support/CTestProject.h"
#include "tests/support/FullProject.h"

#include <gtest/gtest.h>

#include <cstring>
#include <functional>

namespace
{
using CProject = CProjectData;

struct CPart
{
    std::span<float> Values;
    int& Unit;
};

/// What a run into which a value does not fit by its unit makes of it.
struct CFactor
{
    float Into;
    float Out;
};

struct CQuantity
{
    CFactor MetricRun;
    CFactor BritishRun;
    int British; ///< its flag for the British unit
};

constexpr CQuantity kLength = {{0.3048F, 3.2808399F}, {3.28084F, 0.3048F}, 1};
constexpr CQuantity kMass = {{1.0160469F, 0.9842065F}, {0.9842065F, 1.0160469F}, 1};
constexpr CQuantity kSpeed = {{0.514444F, 1.9438462F}, {1.9438462F, 0.51444399F}, 0};
constexpr CQuantity kBowPitchRadius = {{0.3048F, 3.2808399F}, {3.28084F, 3.2808399F}, 1};
constexpr CQuantity kGain = {{1, 0.3048F}, {1, 3.2808399F}, 1};

struct CCase
{
    int Word; ///< from 1
    std::function<CPart(CProject&)> Part;
    int InFile; ///< how many of the values the file has
    int Back;   ///< how many of them are converted back
    CQuantity Quantity = kLength;
    std::function<void(CProject&)> Options = [](CProject&) {};
};

std::function<CPart(CProject&)> Field(CParamArray CProject::*field)
{
    return [field](CProject& p) { return CPart{(p.*field).data, (p.*field).unit}; };
}

std::function<CPart(CProject&)> Heights(CTenFloats CEnvironmentFields::*values, int CEnvironmentFields::*unit)
{
    return [values, unit](CProject& p) { return CPart{p.*values, p.*unit}; };
}

std::function<void(CProject&)> Option(CParamArray CProject::*field, float value)
{
    return [field, value](CProject& p) { (p.*field).Fill(value); };
}

using Environment = CEnvironmentFields;

const CCase kCases[] = {
    {1, Field(&CProject::HSW), 10, 10, kLength, Option(&CProject::SPECTRUM, 1)},
    {2, Heights(&Environment::BretHs, &Environment::BretUnit), 10, 10, kLength,
     Option(&CProject::SPECTRUM, 2)},
    {3, Heights(&Environment::JonswapHs, &Environment::JonswapUnit), 10, 10, kLength,
     Option(&CProject::SPECTRUM, 3)},
    {4, Heights(&Environment::OchiHs1, &Environment::OchiUnit), 10, 10},
    {4, Heights(&Environment::OchiHs2, &Environment::OchiUnit), 10, 10},
    {5, Field(&CProject::ZETA1), 10, 10, kLength, Option(&CProject::SPECTRUM, 6)},
    {6, Field(&CProject::SPDKNOT), 10, 10, kSpeed},
    {7, Field(&CProject::SHIPLEN), 1, 1},
    {8, Field(&CProject::KG), 1, 1},
    {9, Field(&CProject::PITCHRG), 1, 1},
    {10, Field(&CProject::GMUSER), 1, 1},
    {11, Field(&CProject::ROLLRG), 1, 1, kLength, Option(&CProject::ROLLRGDEF, 1)},
    {12, Field(&CProject::WETROLLRG), 1, 1, kLength, Option(&CProject::ROLLRGDEF, 2)},
    {13, Field(&CProject::YAUSER), 1260, 630},
    {15, Field(&CProject::BEAM), 21, 21, kLength, Option(&CProject::HULLDEF, 1)},
    {16, Field(&CProject::DRAFT), 21, 21, kLength, Option(&CProject::HULLDEF, 1)},
    {17, Field(&CProject::DRAFTMID), 1, 1},
    {18, Field(&CProject::TRIMST), 1, 1},
    {19, Field(&CProject::DISPUSER), 1, 1, kMass, Option(&CProject::TRIMDEF, 1)},
    {20, Field(&CProject::LCGPUSER), 1, 1, kLength, Option(&CProject::TRIMDEF, 1)},
    {21, Field(&CProject::SECTTN), 21, 21, kMass},
    {22, Field(&CProject::SECTKG), 21, 21},
    {23, Field(&CProject::SECTRRG), 21, 21},
    {24, Field(&CProject::BOWTN), 1, 1, kMass},
    {25, Field(&CProject::BOWKG), 1, 1},
    {26, Field(&CProject::BOWRRG), 1, 1},
    {27, Field(&CProject::BOWCGFP), 1, 1},
    {28, Field(&CProject::BOWPRG), 1, 1, kBowPitchRadius},
    {29, Field(&CProject::STERNTN), 1, 1, kMass},
    {30, Field(&CProject::STERNKG), 1, 1},
    {31, Field(&CProject::STERNRRG), 1, 1},
    {32, Field(&CProject::STERNCGAP), 1, 1},
    {33, Field(&CProject::STERNPRG), 1, 1},
    {34, Field(&CProject::YPOS), 9, 9},
    {35, Field(&CProject::ZPOSBL), 9, 9},
    {36, Field(&CProject::SLWIDTH), 9, 1, kLength, Option(&CProject::RELMOCALC, 1)},
    {37, Field(&CProject::YBK), 105, 105},
    {38, Field(&CProject::ZBKBL), 105, 105},
    {39, Field(&CProject::BBK), 105, 105},
    {40, Field(&CProject::BSKEG), 1, 1},
    {41, Field(&CProject::ELSKEG), 1, 1},
    {42, Field(&CProject::YRTRUD), 1, 1},
    {43, Field(&CProject::ZRTRUDBL), 1, 1},
    {44, Field(&CProject::SPANRUD), 1, 1},
    {45, Field(&CProject::RCRUD), 1, 1},
    {46, Field(&CProject::TCRUD), 1, 1},
    {47,
     [](CProject& p) {
         return CPart{{&p.RudderLateralGains[0], 1}, p.RudderLateralGainUnits[0]};
     },
     1, 1, kGain},
    {48,
     [](CProject& p) {
         return CPart{{&p.RudderLateralGains[1], 1}, p.RudderLateralGainUnits[1]};
     },
     1, 1, kGain},
    {49,
     [](CProject& p) {
         return CPart{{&p.RudderLateralGains[2], 1}, p.RudderLateralGainUnits[2]};
     },
     1, 1, kGain},
    {50,
     [](CProject& p) {
         return CPart{{&p.LateralPointZ, 1}, p.LateralPointZUnit};
     },
     1, 1},
    {51, Field(&CProject::YRTFOIL), 4, 4},
    {52, Field(&CProject::ZRTFOILBL), 4, 4},
    {53, Field(&CProject::SPANFOIL), 4, 4},
    {54, Field(&CProject::RCFOIL), 4, 4},
    {55, Field(&CProject::TCFOIL), 4, 4},
    {56, Field(&CProject::YRTFIN), 4, 4},
    {57, Field(&CProject::ZFINBL), 4, 4},
    {58, Field(&CProject::SPANFIN), 4, 4},
    {59, Field(&CProject::RCFIN), 4, 4},
    {60, Field(&CProject::TCFIN), 4, 4},
    {61, Field(&CProject::TANKLEN), 1, 1, kLength, Option(&CProject::FINTANKSTAB, 2)},
    {62, Field(&CProject::WDTANK), 1, 1, kLength, Option(&CProject::FINTANKSTAB, 2)},
    {63, Field(&CProject::W1TANK), 1, 1, kLength, Option(&CProject::FINTANKSTAB, 2)},
    {64, Field(&CProject::DPTANK), 1, 1, kLength, Option(&CProject::FINTANKSTAB, 2)},
    {65, Field(&CProject::HDTANK), 1, 1, kLength, Option(&CProject::FINTANKSTAB, 2)},
    {66, Field(&CProject::ZTANKBL), 1, 1, kLength, Option(&CProject::FINTANKSTAB, 2)},
};

/// The largest project, all of its values in the unit of the run, with the options of a case.
struct CUnitProject : CTestProject
{
    CUnitProject(const CCase& word, int inSystem)
    {
        FillToMaximum(Project);
        word.Options(Project);
        Project.INSYS.Set(static_cast<float>(inSystem));
        const int unit = 1 - inSystem;
        for (CUnitWord& each : UnitWords(Project))
        {
            *each.Tag = unit;
            for (int* follower : each.Followers)
            {
                *follower = unit;
            }
        }
        Project.SPDKNOT.unit = inSystem;
    }
};

std::string WithWord(std::string echo, int word, int tag)
{
    std::memcpy(echo.data() + echo.size() - 4 * static_cast<std::size_t>(67 - word), &tag, sizeof tag);
    return echo;
}

/// In a run of either system: the values go into the file scaled, and come back.
void ExpectConverted(const CCase& word, int inSystem)
{
    SCOPED_TRACE("word " + std::to_string(word.Word) + ", INSYS " + std::to_string(inSystem));
    const CFactor factor = inSystem == 1 ? word.Quantity.MetricRun : word.Quantity.BritishRun;
    const int tag = inSystem == 1 ? word.Quantity.British : 1 - word.Quantity.British;
    CUnitProject project(word, inSystem);
    word.Part(project.Project).Unit = tag;
    CUnitProject scaled(word, inSystem);
    for (float& value : word.Part(scaled.Project).Values)
    {
        value *= factor.Into;
    }
    const std::string echo = InputEcho(project.Project);
    std::string expected = WithWord(InputEcho(scaled.Project), word.Word, tag);
    if (word.Word == 13)
    {
        // The heights follow the flag of the breadths, and their word is the same.
        CUnitProject both(word, inSystem);
        for (float& value : both.Project.ZAUSERBL.data)
        {
            value *= factor.Into;
        }
        for (float& value : both.Project.YAUSER.data)
        {
            value *= factor.Into;
        }
        expected = WithWord(WithWord(InputEcho(both.Project), 13, tag), 14, tag);
    }
    if (word.Word == 4)
    {
        // Both systems of waves have one flag.
        CUnitProject both(word, inSystem);
        for (CTenFloats* heights : {&both.Project.OchiHs1, &both.Project.OchiHs2})
        {
            for (float& value : *heights)
            {
                value *= factor.Into;
            }
        }
        expected = WithWord(InputEcho(both.Project), 4, tag);
    }
    EXPECT_TRUE(echo == expected) << "written";

    CTestProject restored;
    CResultsCursor cursor(echo);
    RestoreInputEcho(cursor, true, restored.Project);
    EXPECT_EQ(cursor.Position(), echo.size());
    EXPECT_EQ(word.Part(restored.Project).Unit, tag);
    const auto before = word.Part(project.Project).Values;
    const auto after = word.Part(restored.Project).Values;
    for (int k = 0; k < word.InFile; ++k)
    {
        const auto slot = static_cast<std::size_t>(k);
        const float back = k < word.Back ? factor.Out : 1;
        ASSERT_EQ(after[slot], before[slot] * factor.Into * back) << "value " << k;
    }
}

CParamArray& Filled(CParamArray& field, int unit)
{
    field.unit = unit;
    return field;
}
} // namespace

TEST(EchoUnits, EachWordConvertsItsValuesInAMetricRun)
{
    for (const CCase& word : kCases)
    {
        ExpectConverted(word, 1);
    }
}

TEST(EchoUnits, EachWordConvertsItsValuesInABritishRun)
{
    for (const CCase& word : kCases)
    {
        ExpectConverted(word, 0);
    }
}

TEST(EchoUnits, ARestoredPitchRadiusOfTheBowInABritishRunIsLargerInsteadOfSmaller)
{
    CUnitProject project(kCases[0], 0);
    Filled(project.Project.BOWPRG, 0).Set(2);
    const std::string echo = InputEcho(project.Project);
    CTestProject restored;
    CResultsCursor cursor(echo);
    RestoreInputEcho(cursor, true, restored.Project);
    EXPECT_EQ(restored.Project.BOWPRG.Value(), 2 * 3.28084F * 3.28084F);
}

TEST(EchoUnits, EachWordIsATag)
{
    CTestProject project;
    auto words = UnitWords(project.Project);
    for (std::size_t k = 0; k < words.size(); ++k)
    {
        *words[k].Tag = 101 + static_cast<int>(k);
    }
    project.Project.YAUSER.unit = 113; // the fourteenth word is the thirteenth once more
    const std::string echo = InputEcho(project.Project);
    for (std::size_t k = 0; k < words.size(); ++k)
    {
        int word = 0;
        std::memcpy(&word, echo.data() + echo.size() - 4 * (66 - k), sizeof word);
        EXPECT_EQ(word, k == 13 ? 113 : 101 + static_cast<int>(k));
    }
    CTestProject restored;
    const std::string changed = WithWord(echo, 14, 99);
    CResultsCursor cursor(changed);
    RestoreInputEcho(cursor, true, restored.Project);
    for (const CCase& word : kCases)
    {
        EXPECT_EQ(word.Part(restored.Project).Unit, 100 + word.Word);
    }
    EXPECT_EQ(restored.Project.DECKHBL.unit, 135);
    EXPECT_EQ(restored.Project.YAUSER.unit, 113);
}

TEST(EchoUnits, TheHeightOfTheDeckGoesByItsOwnFlagAndComesBackUnderThatOfThePosition)
{
    CUnitProject project(kCases[0], 1);
    CProject& p = project.Project;
    p.RELMOCALC.Fill(4);
    Filled(p.DECKHBL, 1).Fill(10);
    Filled(p.ZPOSBL, 0).Fill(5);
    const std::string echo = InputEcho(p);
    CTestProject restored;
    CResultsCursor cursor(echo);
    RestoreInputEcho(cursor, true, restored.Project);
    EXPECT_EQ(restored.Project.DECKHBL.Value(3), 10 * 0.3048F);
    EXPECT_EQ(restored.Project.DECKHBL.unit, 0);
    EXPECT_EQ(restored.Project.ZPOSBL.Value(3), 5);
}

TEST(EchoUnits, AnUnsetLengthComesBackAsSuchAndAnUnsetMassNearly)
{
    CUnitProject project(kCases[0], 1);
    CProject& p = project.Project;
    Filled(p.SPANRUD, 1).Set(-1);
    Filled(p.SECTTN, 1).Fill(-1);
    const std::string echo = InputEcho(p);
    CTestProject restored;
    CResultsCursor cursor(echo);
    RestoreInputEcho(cursor, true, restored.Project);
    EXPECT_EQ(restored.Project.SPANRUD.Value(), -1);
    EXPECT_EQ(restored.Project.SECTTN.Value(), -0.99999994F);
}

TEST(EchoUnits, AnUnsetValueOfTheFileIsNotScaledButAnUnsetGainIs)
{
    CUnitProject project(kCases[0], 1);
    CProject& p = project.Project;
    p.KG.Set(-1);
    p.RudderLateralGains = {-111111, -1, 2};
    p.RudderLateralGainUnits = {1, 1, 1};
    const std::string echo = WithWord(InputEcho(p), 8, 1);
    CTestProject restored;
    CResultsCursor cursor(echo);
    RestoreInputEcho(cursor, true, restored.Project);
    EXPECT_EQ(restored.Project.KG.Value(), -1);
    EXPECT_EQ(restored.Project.RudderLateralGains, (CThreeFloats{-33866.6328F, -1, 2 * 0.3048F}));
}

TEST(EchoUnits, ASecondTenParameterHeightFollowsTheFlagOfTheFirst)
{
    CUnitProject project(kCases[5], 1);
    CProject& p = project.Project;
    p.SPECTRUM.Set(6);
    Filled(p.ZETA1, 1).Fill(2);
    Filled(p.ZETA2, 1).Fill(3);
    const std::string echo = InputEcho(p);
    CTestProject restored;
    CResultsCursor cursor(echo);
    RestoreInputEcho(cursor, true, restored.Project);
    EXPECT_EQ(restored.Project.ZETA2.Value(9), 3 * 0.3048F * 3.28084F);
    EXPECT_EQ(restored.Project.ZETA2.unit, 1);
}
