#include "core/engine/EngineUnits.h"

#include "core/platform/NumberText.h"
#include "core/project/CParamArray.h"

namespace
{
// The engine's factors are single-precision numbers, though the products are double.
constexpr float kFeetPerMetre = 3.28084F;
constexpr float kMetresPerFoot = 0.3048F;
constexpr float kLongTonsPerTonne = 0.9842065F;
constexpr float kTonnesPerLongTon = 1.0160469F;
constexpr float kKnotsPerMetrePerSecond = 1.9438462F;

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
