#include "core/engine/EngineUnits.h"

#include "core/platform/NumberText.h"
#include "core/project/CParamArray.h"
#include "core/project/UnitFactors.h"

namespace
{
// The products are double, though the factors are single-precision numbers.
struct CFactors
{
    float ToBritish;
    float ToMetric;
};

constexpr CFactors FactorsOf(EQuantity quantity)
{
    switch (quantity)
    {
    case EQuantity::Length:
        return {kFeetPerMetre, kMetresPerFoot};
    case EQuantity::Mass:
        return {kLongTonsPerTonne, kTonnesPerLongTon};
    case EQuantity::InverseLength:
        return {kMetresPerFoot, kFeetPerMetre};
    default:
        return {1, 1};
    }
}
} // namespace

CEngineUnits::CEngineUnits(float inSystem) : m_british(FixedText(inSystem, "%.0f") == "0") {}

double CEngineUnits::Factor(EQuantity quantity, int unit) const
{
    if (quantity == EQuantity::Speed)
    {
        return unit == 1 ? kKnotsPerMetrePerSecond : 1;
    }
    const CFactors factors = FactorsOf(quantity);
    if (m_british && unit == kUnitMetric)
    {
        return factors.ToBritish;
    }
    return !m_british && unit == kUnitBritish ? factors.ToMetric : 1;
}
