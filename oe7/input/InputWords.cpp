#include "oe7/input/InputWords.h"

#include "oe7/input/InputFile.h"

#include <algorithm>

namespace oe7
{
namespace
{
/// Nothing for a value that has no word.
template <class Table, class Value>
std::string_view WordOf(const Table& table, const Value& value)
{
    const auto row =
        std::find_if(table.begin(), table.end(), [&](const auto& entry) { return entry.Meaning == value; });
    return row == table.end() ? std::string_view() : row->Word;
}
} // namespace

std::string_view MethodName(ESectionMethod method)
{
    return method == ESectionMethod::BoundaryElement ? "boundary element" : "conformal mapping";
}

std::string_view UnitsWord(EUnits units)
{
    return WordOf(kUnitWords, units);
}

std::string_view WaterWord(EWater water)
{
    return WordOf(kWaterWords, water);
}

std::string_view SpectrumWord(ESpectrum spectrum)
{
    return WordOf(kSpectrumWords, spectrum);
}

std::string_view SpeedCorrectionWord(EWaterRise rise)
{
    return WordOf(kSpeedCorrectionWords, rise);
}

std::string_view SwellCorrectionWord(EWaterRise rise)
{
    return WordOf(kSwellCorrectionWords, rise);
}

std::string_view EndTermsWord(const CEndTerms& terms)
{
    return WordOf(kEndTermWords, terms);
}

std::string_view RollInertiaWord(ERollInertia kind)
{
    return WordOf(kRollInertiaWords, kind);
}

std::string_view EventWord(EWaterEvent event)
{
    return WordOf(kEventWords, event);
}

} // namespace oe7
