#include "core/project/UnitConversion.h"

#include "core/project/UnitFactors.h"

#include <span>
#include <utility>

namespace
{
enum class EQuantity
{
    Length,
    Mass,
    InverseLength
};

struct CFactors
{
    float ToBritish;
    float ToMetric;
};

/// Here one step in the last place larger than in the engine's files.
constexpr float kTonnesOfLongTon = 1.016047F;

/// By EQuantity. The two of a pair are no exact inverses of each other.
constexpr CFactors kFactors[] = {
    {kFeetPerMetre, kMetresPerFoot},
    {kLongTonsPerTonne, kTonnesOfLongTon},
    {kMetresPerFoot, kFeetPerMetre}, // per metre, per foot
};

/// A keyword field and the field whose flag tells its system.
struct CKeywordValues
{
    CParamArray CProjectData::*Field;
    CParamArray CProjectData::*Flag;
    EQuantity Quantity;
};

#define OWN_FLAG(name, quantity)                                                                             \
    {                                                                                                        \
        &CProjectData::name, &CProjectData::name, EQuantity::quantity                                        \
    }

constexpr CKeywordValues kKeywordValues[] = {
    // Seaways
    OWN_FLAG(HSW, Length),
    OWN_FLAG(ZETA1, Length),
    OWN_FLAG(ZETA2, Length),
    // Ship and hull
    OWN_FLAG(SHIPLEN, Length),
    OWN_FLAG(KG, Length),
    OWN_FLAG(PITCHRG, Length),
    OWN_FLAG(GMUSER, Length),
    OWN_FLAG(ROLLRG, Length),
    OWN_FLAG(WETROLLRG, Length),
    OWN_FLAG(YAUSER, Length),
    {&CProjectData::ZAUSERBL, &CProjectData::YAUSER, EQuantity::Length},
    OWN_FLAG(BEAM, Length),
    OWN_FLAG(DRAFT, Length),
    OWN_FLAG(DRAFTMID, Length),
    OWN_FLAG(TRIMST, Length),
    OWN_FLAG(DISPUSER, Mass),
    OWN_FLAG(LCGPUSER, Length),
    // Mass
    OWN_FLAG(SECTTN, Mass),
    OWN_FLAG(BOWTN, Mass),
    OWN_FLAG(STERNTN, Mass),
    OWN_FLAG(SECTKG, Length),
    OWN_FLAG(SECTRRG, Length),
    OWN_FLAG(BOWKG, Length),
    OWN_FLAG(BOWRRG, Length),
    OWN_FLAG(BOWCGFP, Length),
    OWN_FLAG(BOWPRG, Length),
    OWN_FLAG(STERNKG, Length),
    OWN_FLAG(STERNRRG, Length),
    OWN_FLAG(STERNCGAP, Length),
    OWN_FLAG(STERNPRG, Length),
    // Positions
    OWN_FLAG(YPOS, Length),
    OWN_FLAG(ZPOSBL, Length),
    OWN_FLAG(DECKHBL, Length),
    OWN_FLAG(SLWIDTH, Length),
    // Bilge keels and skeg
    OWN_FLAG(YBK, Length),
    OWN_FLAG(ZBKBL, Length),
    OWN_FLAG(BBK, Length),
    OWN_FLAG(BSKEG, Length),
    OWN_FLAG(ELSKEG, Length),
    // Rudder and stationary foils
    OWN_FLAG(YRTRUD, Length),
    OWN_FLAG(ZRTRUDBL, Length),
    OWN_FLAG(SPANRUD, Length),
    OWN_FLAG(RCRUD, Length),
    OWN_FLAG(TCRUD, Length),
    OWN_FLAG(YRTFOIL, Length),
    OWN_FLAG(ZRTFOILBL, Length),
    OWN_FLAG(SPANFOIL, Length),
    OWN_FLAG(RCFOIL, Length),
    OWN_FLAG(TCFOIL, Length),
    // Fins and tank
    OWN_FLAG(YRTFIN, Length),
    OWN_FLAG(ZFINBL, Length),
    OWN_FLAG(SPANFIN, Length),
    OWN_FLAG(RCFIN, Length),
    OWN_FLAG(TCFIN, Length),
    OWN_FLAG(TANKLEN, Length),
    OWN_FLAG(WDTANK, Length),
    OWN_FLAG(W1TANK, Length),
    OWN_FLAG(DPTANK, Length),
    OWN_FLAG(HDTANK, Length),
    OWN_FLAG(ZTANKBL, Length),
};

#undef OWN_FLAG

/// A table of seaway heights and its flag.
struct CSeawayHeights
{
    CTenFloats CEnvironmentFields::*Heights;
    int CEnvironmentFields::*Unit;
};

constexpr CSeawayHeights kSeawayHeights[] = {
    {&CEnvironmentFields::BretHs, &CEnvironmentFields::BretUnit},
    {&CEnvironmentFields::JonswapHs, &CEnvironmentFields::JonswapUnit},
    {&CEnvironmentFields::OchiHs1, &CEnvironmentFields::OchiUnit},
    {&CEnvironmentFields::OchiHs2, &CEnvironmentFields::OchiUnit},
};

/// Converts values and flags to one system of units. A flag that names neither system converts nothing and
/// stays.
class CConversion
{
public:
    explicit CConversion(int unit) : m_target(unit) {}

    void Scale(std::span<float> values, int unit, EQuantity quantity) const
    {
        if (!IsOther(unit))
        {
            return;
        }
        const CFactors& factors = kFactors[static_cast<std::size_t>(quantity)];
        const float factor = m_target == kUnitBritish ? factors.ToBritish : factors.ToMetric;
        for (float& value : values)
        {
            const bool given =
                IsGiven(value) && (quantity != EQuantity::InverseLength || IsGiven(value, kGainNotGiven));
            if (given)
            {
                value *= factor;
            }
        }
    }

    void Mark(int& unit) const
    {
        if (IsOther(unit))
        {
            unit = m_target;
        }
    }

private:
    bool IsOther(int unit) const
    {
        return m_target == kUnitBritish ? unit == kUnitMetric : unit == kUnitBritish;
    }

    int m_target;
};

void ConvertKeywords(CProjectData& project, const CConversion& conversion)
{
    for (const CKeywordValues& row : kKeywordValues)
    {
        conversion.Scale((project.*row.Field).data, (project.*row.Flag).unit, row.Quantity);
    }
    // Only now: two fields may share a flag.
    for (const CKeywordValues& row : kKeywordValues)
    {
        conversion.Mark((project.*row.Flag).unit);
    }
    // The file of a project has one tag for each of these pairs.
    project.ZAUSERBL.unit = project.YAUSER.unit;
    project.TSW.unit = project.HSW.unit;
}

void ConvertSeawayHeights(CProjectData& project, const CConversion& conversion)
{
    for (const CSeawayHeights& row : kSeawayHeights)
    {
        conversion.Scale(project.*row.Heights, project.*row.Unit, EQuantity::Length);
    }
    for (const CSeawayHeights& row : kSeawayHeights)
    {
        conversion.Mark(project.*row.Unit);
    }
}

void ConvertLateralControl(CProjectData& project, const CConversion& conversion)
{
    for (std::size_t k = 0; k < project.RudderLateralGains.size(); ++k)
    {
        int& unit = project.RudderLateralGainUnits[k];
        conversion.Scale({&project.RudderLateralGains[k], 1}, unit, EQuantity::InverseLength);
        conversion.Mark(unit);
    }
    conversion.Scale({&project.LateralPointZ, 1}, project.LateralPointZUnit, EQuantity::Length);
    conversion.Mark(project.LateralPointZUnit);
}
} // namespace

float LengthFactor(int from, int to)
{
    return from == to ? 1.0F : to == kUnitMetric ? kMetresPerFoot : kFeetPerMetre;
}

void ConvertProject(CProjectData& project, int unit)
{
    const CConversion conversion(unit);
    ConvertSeawayHeights(project, conversion);
    ConvertKeywords(project, conversion);
    ConvertLateralControl(project, conversion);
}

void StoreUnitChoices(CProjectData& project, int inputSystem, int outputSystem, int water)
{
    const std::pair<CParamArray&, int> choices[] = {
        {project.INSYS, inputSystem}, {project.OUTSYS, outputSystem}, {project.WATERDEN, water}};
    for (const auto& [field, choice] : choices)
    {
        if (field.Integer() != choice)
        {
            field.changed = 1;
            field.Set(static_cast<float>(choice));
        }
    }
}
