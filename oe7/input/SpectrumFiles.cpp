#include "oe7/input/SpectrumFiles.h"

#include "oe7/input/CRecordReader.h"
#include "oe7/input/CRunLog.h"
#include "oe7/input/FileNames.h"
#include "oe7/input/InputWords.h"
#include "oe7/input/Limits.h"

#include <algorithm>
#include <numbers>
#include <numeric>

namespace fs = std::filesystem;

namespace oe7
{
namespace
{
constexpr double kRadiansPerCycle = 2 * std::numbers::pi;
constexpr int kWordsBeforeCounts =
    6; ///< of a hindcast: date, time, latitude, longitude, wind speed and direction

/// Factors from a file to SI.
struct CSpectrumScale
{
    double Frequency = 1;
    double Density = 1;
};

double NotNegativeAhead(CRecordReader& file, const char* what)
{
    const double number = file.NumberAhead(what);
    if (number < 0)
    {
        file.Fail(std::string(what) + " is less than 0");
    }
    return number;
}

/// The order of numbers that makes them rise. Throws if two are equal.
std::vector<std::size_t> RisingOrder(const std::vector<double>& numbers, const std::string& name)
{
    std::vector<std::size_t> order(numbers.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(),
              [&](std::size_t a, std::size_t b) { return numbers[a] < numbers[b]; });
    const auto same = std::adjacent_find(
        order.begin(), order.end(), [&](std::size_t a, std::size_t b) { return numbers[a] == numbers[b]; });
    if (same != order.end())
    {
        throw CInputError("the file " + name + " has a frequency twice");
    }
    return order;
}

template <class Value>
std::vector<Value> Ordered(const std::vector<Value>& values, const std::vector<std::size_t>& order)
{
    std::vector<Value> ordered;
    for (const std::size_t place : order)
    {
        ordered.push_back(values[place]);
    }
    return ordered;
}

/// Frequencies, directions and densities behind their counts.
CDirectionalSpectrum ReadTable(CRecordReader& file, int frequencies, int directions,
                               const CSpectrumScale& scale, const std::string& name)
{
    CDirectionalSpectrum spectrum;
    for (int k = 0; k < frequencies; ++k)
    {
        spectrum.Frequencies.push_back(NotNegativeAhead(file, "a frequency") * scale.Frequency);
    }
    for (int k = 0; k < directions; ++k)
    {
        spectrum.Directions.push_back(file.NumberAhead("a direction"));
    }
    for (int k = 0; k < frequencies; ++k)
    {
        std::vector<double>& row = spectrum.Densities.emplace_back();
        for (int j = 0; j < directions; ++j)
        {
            row.push_back(NotNegativeAhead(file, "a density") * scale.Density);
        }
    }
    const std::vector<std::size_t> order = RisingOrder(spectrum.Frequencies, name);
    spectrum.Frequencies = Ordered(spectrum.Frequencies, order);
    spectrum.Densities = Ordered(spectrum.Densities, order);
    return spectrum;
}

/// Metres squared per unit of the file's densities.
double SquareUnit(EUnits units)
{
    return units == EUnits::British ? kFoot * kFoot : 1;
}
} // namespace

CPointSpectrum ParsePointSpectrum(std::string_view text, const std::string& name, EUnits units, int count)
{
    CRecordReader file(text, name);
    CPointSpectrum spectrum;
    while (!file.AtEnd() && static_cast<int>(spectrum.Frequencies.size()) < count)
    {
        file.NextLine();
        if (!file.LineEnded())
        {
            spectrum.Frequencies.push_back(file.NotNegative("a frequency"));
            spectrum.Densities.push_back(file.NotNegative("a density") * SquareUnit(units));
        }
    }
    if (spectrum.Frequencies.size() < 2)
    {
        throw CInputError("a spectrum needs two points, the file " + name + " has fewer");
    }
    const std::vector<std::size_t> order = RisingOrder(spectrum.Frequencies, name);
    return {Ordered(spectrum.Frequencies, order), Ordered(spectrum.Densities, order)};
}

CDirectionalSpectrum ParseHindcast(std::string_view text, const std::string& name)
{
    CRecordReader file(text, name);
    file.NextLine();
    for (int k = 0; k < kWordsBeforeCounts; ++k)
    {
        file.Word("one of date, time, latitude, longitude, wind speed and wind direction");
    }
    const int frequencies = file.Count("the number of frequencies", 2, kMostSpectrumPoints);
    const int directions = file.Count("the number of directions", 1, kMostDirections);
    file.NextLine();
    return ReadTable(file, frequencies, directions, {kRadiansPerCycle, 1 / kRadiansPerCycle}, name);
}

CDirectionalSpectrum ParseDirectionalSpectrum(std::string_view text, const std::string& name)
{
    CRecordReader file(text, name);
    file.NextLine();
    file.NextLine();
    const EUnits units = file.Choice("the unit system", kUnitWords);
    file.NextLine();
    const int frequencies = file.Count("the number of frequencies", 2, kMostSpectrumPoints);
    const int directions = file.Count("the number of directions", 1, kMostDirections);
    return ReadTable(file, frequencies, directions, {1, SquareUnit(units)}, name);
}

CPointSpectrum ReadPointSpectrum(const fs::path& folder, const std::string& name, EUnits units, int count)
{
    return ParsePointSpectrum(ReadTextFile(folder / name, name), name, units, count);
}

CDirectionalSpectrum ReadHindcast(const fs::path& folder, const std::string& name)
{
    return ParseHindcast(ReadTextFile(folder / name, name), name);
}

CDirectionalSpectrum ReadDirectionalSpectrum(const fs::path& folder, const std::string& name)
{
    return ParseDirectionalSpectrum(ReadTextFile(folder / name, name), name);
}

} // namespace oe7
