#include "core/results/EchoUnits.h"

#include "core/project/UnitFactors.h"
#include "core/results/RunValues.h"

#include <utility>

namespace
{
/// Of a value that is in the other unit than the run, by the system of the run.
struct CFactors
{
    float InMetric;
    float InBritish;
};

constexpr CFactors kLengthInto = {kMetresPerFoot, kFeetPerMetre};
constexpr CFactors kLengthOut = {kFeetPerMetre, kMetresPerFoot};
constexpr CFactors kMassInto = {kTonnesPerLongTon, kLongTonsPerTonne};
constexpr CFactors kMassOut = {kLongTonsPerTonne, kTonnesPerLongTon};
constexpr CFactors kSpeedInto = {kMetresPerSecondPerKnot, kKnotsPerMetrePerSecond};
constexpr CFactors kSpeedOut = {kKnotsPerMetrePerSecond, kMetresPerSecondPerKnot};

CFactors FactorsInto(EEchoQuantity quantity)
{
    switch (quantity)
    {
    case EEchoQuantity::Mass:
        return kMassInto;
    case EEchoQuantity::Speed:
        return kSpeedInto;
    case EEchoQuantity::LateralGain:
        return {1, 1};
    default:
        return kLengthInto;
    }
}

CFactors FactorsOut(EEchoQuantity quantity)
{
    switch (quantity)
    {
    case EEchoQuantity::Mass:
        return kMassOut;
    case EEchoQuantity::Speed:
        return kSpeedOut;
    case EEchoQuantity::LateralGain:
        return kLengthInto;
    case EEchoQuantity::OverhangRadius:
        return {kFeetPerMetre, kFeetPerMetre};
    default:
        return kLengthOut;
    }
}

float Applied(const CFactors& factors, EEchoQuantity quantity, int inSystem, int unit)
{
    // The flag of a speed runs the other way: 0 are knots, the unit of the British system.
    const int british = quantity == EEchoQuantity::Speed ? 0 : 1;
    if (inSystem == 1 && unit == british)
    {
        return factors.InMetric;
    }
    return inSystem == 0 && unit == 1 - british ? factors.InBritish : 1;
}

/// Builds the table. A row without condition converts always.
class CWordTable
{
public:
    explicit CWordTable(CProjectData& project) : m_project(project) {}

    /// Words of single fields that stand behind one another: each with its own tag, its first `count` values
    /// converted.
    void Fields(std::initializer_list<CParamArray CProjectData::*> fields, bool converts, int count = 1,
                EEchoQuantity quantity = EEchoQuantity::Length)
    {
        for (const auto member : fields)
        {
            CParamArray& field = m_project.*member;
            Add({quantity, converts, &field.unit, {Part(field, count)}, {}});
        }
    }

    void Add(CUnitWord word) { m_words.push_back(std::move(word)); }

    static CEchoValues Part(CParamArray& field, int count)
    {
        return {std::span(field.data).first(static_cast<std::size_t>(count)), &field.unit};
    }

    std::vector<CUnitWord> Take() { return std::move(m_words); }

private:
    CProjectData& m_project;
    std::vector<CUnitWord> m_words;
};

using CProject = CProjectData;
constexpr EEchoQuantity kLength = EEchoQuantity::Length;
constexpr EEchoQuantity kMass = EEchoQuantity::Mass;

/// Where offsets stop being converted back: in the middle of the eleventh station.
constexpr int kConvertedOffsets = 630;

void SeaWords(CWordTable& words, CProject& p)
{
    const int spectrum = p.SPECTRUM.Integer();
    const int seaways = p.NSEAWAY.Count(kMaxSeaways);
    const auto heights = [seaways](CTenFloats& values, const int& unit) {
        return CEchoValues{std::span(values).first(static_cast<std::size_t>(seaways)), &unit};
    };

    words.Fields({&CProject::HSW}, spectrum == 1, seaways);
    words.Add({kLength, spectrum == 2, &p.BretUnit, {heights(p.BretHs, p.BretUnit)}, {}});
    words.Add({kLength, spectrum == 3, &p.JonswapUnit, {heights(p.JonswapHs, p.JonswapUnit)}, {}});
    words.Add({kLength,
               spectrum == 4,
               &p.OchiUnit,
               {heights(p.OchiHs1, p.OchiUnit), heights(p.OchiHs2, p.OchiUnit)},
               {}});
    words.Add({kLength,
               spectrum == 6,
               &p.ZETA1.unit,
               {CWordTable::Part(p.ZETA1, seaways), CWordTable::Part(p.ZETA2, seaways)},
               {&p.ZETA2.unit}});
    words.Fields({&CProject::SPDKNOT}, true, p.NSPEED.Count(kMaxSpeeds), EEchoQuantity::Speed);
}

void ShipWords(CWordTable& words, CProject& p)
{
    words.Fields({&CProject::SHIPLEN, &CProject::KG, &CProject::PITCHRG}, true);
    words.Fields({&CProject::GMUSER}, p.GMFLAG.Integer() == 1);
    words.Fields({&CProject::ROLLRG}, p.ROLLRGDEF.Integer() == 1);
    words.Fields({&CProject::WETROLLRG}, p.ROLLRGDEF.Integer() == 2);
}

void HullWords(CWordTable& words, CProject& p)
{
    const bool offsets = p.HULLDEF.Integer() == 0;
    words.Add({kLength,
               offsets,
               &p.YAUSER.unit,
               {CWordTable::Part(p.YAUSER, kConvertedOffsets)},
               {&p.ZAUSERBL.unit}});
    CUnitWord heights{
        kLength, offsets, &p.YAUSER.unit, {CWordTable::Part(p.ZAUSERBL, kConvertedOffsets)}, {}};
    heights.Values[0].Unit = &p.YAUSER.unit;
    heights.IsRead = false;
    words.Add(heights);
    words.Fields({&CProject::BEAM, &CProject::DRAFT}, p.HULLDEF.Integer() == 1, p.NST.Count(kMaxStations));
    words.Fields({&CProject::DRAFTMID, &CProject::TRIMST}, p.TRIMDEF.Integer() == 0);
    words.Fields({&CProject::DISPUSER}, p.TRIMDEF.Integer() == 1, 1, kMass);
    words.Fields({&CProject::LCGPUSER}, p.TRIMDEF.Integer() == 1);
}

void MassWords(CWordTable& words, CProject& p)
{
    const bool loads = p.LOADFLAG.Integer() == 0;
    const int stations = p.NST.Count(kMaxStations);
    words.Fields({&CProject::SECTTN}, loads, stations, kMass);
    words.Fields({&CProject::SECTKG, &CProject::SECTRRG}, loads, stations);
    words.Fields({&CProject::BOWTN}, loads, 1, kMass);
    words.Fields({&CProject::BOWKG, &CProject::BOWRRG, &CProject::BOWCGFP}, loads);
    words.Fields({&CProject::BOWPRG}, loads, 1, EEchoQuantity::OverhangRadius);
    words.Fields({&CProject::STERNTN}, loads, 1, kMass);
    words.Fields({&CProject::STERNKG, &CProject::STERNRRG, &CProject::STERNCGAP, &CProject::STERNPRG}, loads);
}

void PositionWords(CWordTable& words, CProject& p)
{
    const int positions = RunPositions(p);
    words.Fields({&CProject::YPOS}, positions > 0, positions);
    // The height of the deck has a unit of its own in the project, but no word: it isn't converted back.
    words.Add({kLength,
               positions > 0,
               &p.ZPOSBL.unit,
               {CWordTable::Part(p.ZPOSBL, positions), CWordTable::Part(p.DECKHBL, 0)},
               {&p.DECKHBL.unit}});
    words.Fields({&CProject::SLWIDTH}, positions > 0);
}

void AppendageWords(CWordTable& words, CProject& p)
{
    words.Fields({&CProject::YBK, &CProject::ZBKBL, &CProject::BBK}, p.NBKPAIR.Integer() >= 1,
                 kMaxBilgeKeelPairs * kMaxBilgeKeelRows);
    words.Fields({&CProject::BSKEG, &CProject::ELSKEG}, true);
    words.Fields(
        {&CProject::YRTRUD, &CProject::ZRTRUDBL, &CProject::SPANRUD, &CProject::RCRUD, &CProject::TCRUD},
        true);
    for (std::size_t k = 0; k < p.RudderLateralGains.size(); ++k)
    {
        int& unit = p.RudderLateralGainUnits[k];
        words.Add({EEchoQuantity::LateralGain,
                   true,
                   &unit,
                   {{{&p.RudderLateralGains[k], 1}, &unit}},
                   {},
                   true,
                   true});
    }
    words.Add({kLength,
               true,
               &p.LateralPointZUnit,
               {{{&p.LateralPointZ, 1}, &p.LateralPointZUnit}},
               {},
               true,
               true});
}

void FoilAndTankWords(CWordTable& words, CProject& p)
{
    const int foils = p.NFOILPAIR.Count(kMaxFoilPairs);
    words.Fields(
        {&CProject::YRTFOIL, &CProject::ZRTFOILBL, &CProject::SPANFOIL, &CProject::RCFOIL, &CProject::TCFOIL},
        foils > 0, foils);
    words.Fields(
        {&CProject::YRTFIN, &CProject::ZFINBL, &CProject::SPANFIN, &CProject::RCFIN, &CProject::TCFIN},
        p.FINTANKSTAB.Integer() == 1, p.NFINPAIR.Count(kMaxFinPairs));
    words.Fields({&CProject::TANKLEN, &CProject::WDTANK, &CProject::W1TANK, &CProject::DPTANK,
                  &CProject::HDTANK, &CProject::ZTANKBL},
                 p.FINTANKSTAB.Integer() == 2);
}
} // namespace

float FactorIntoFile(EEchoQuantity quantity, int inSystem, int unit)
{
    return Applied(FactorsInto(quantity), quantity, inSystem, unit);
}

float FactorOutOfFile(EEchoQuantity quantity, int inSystem, int unit)
{
    return Applied(FactorsOut(quantity), quantity, inSystem, unit);
}

std::vector<CUnitWord> UnitWords(CProjectData& project)
{
    CWordTable words(project);
    SeaWords(words, project);
    ShipWords(words, project);
    HullWords(words, project);
    MassWords(words, project);
    PositionWords(words, project);
    AppendageWords(words, project);
    FoilAndTankWords(words, project);
    return words.Take();
}
