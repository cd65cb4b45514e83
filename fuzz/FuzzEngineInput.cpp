// Any bytes as the engine's input file, without other files beside it; or, behind "@" and a letter, as one of
// those.
#include "fuzz/CFuzzProject.h"
#include "fuzz/CScratchFolder.h"
#include "fuzz/FuzzTarget.h"

#include "oe7/input/GainFiles.h"
#include "oe7/input/InputFile.h"
#include "oe7/input/Limits.h"
#include "oe7/input/SpectrumFiles.h"

#include <algorithm>
#include <cmath>

using namespace oe7;

namespace
{
bool AllFinite(const std::vector<double>& numbers)
{
    return std::all_of(numbers.begin(), numbers.end(), [](double number) { return std::isfinite(number); });
}

void RequireRising(const std::vector<double>& frequencies)
{
    Require(frequencies.size() >= 2 && AllFinite(frequencies) && frequencies.front() >= 0,
            "a spectrum has frequencies");
    Require(std::is_sorted(frequencies.begin(), frequencies.end(), std::less_equal<>()),
            "frequencies of a spectrum rise");
}

void RequireWhole(const CDirectionalSpectrum& spectrum)
{
    RequireRising(spectrum.Frequencies);
    Require(spectrum.Densities.size() == spectrum.Frequencies.size(), "each frequency has densities");
    for (const std::vector<double>& row : spectrum.Densities)
    {
        Require(row.size() == spectrum.Directions.size() && AllFinite(row), "each direction has a density");
    }
}

/// Files that an input names.
void ReadOther(char kind, std::string_view text)
{
    switch (kind)
    {
    case 'm':
        RequireRising(ParsePointSpectrum(text, "spectrum", EUnits::British, kMostSpectrumPoints).Frequencies);
        break;
    case 'd':
        RequireWhole(ParseDirectionalSpectrum(text, "spectrum"));
        break;
    case 'h':
        RequireWhole(ParseHindcast(text, "spectrum"));
        break;
    case 'r':
        Require(!ParseRudderGains(text, EUnits::British).empty(), "a gain file has lines");
        break;
    default:
        Require(!ParseFinGains(text).empty(), "a gain file has lines");
        break;
    }
}

void RequireSaneHull(const CInput& input)
{
    Require(input.StationCount >= 2 && input.StationCount <= kMostStations, "there are stations");
    const auto stations = static_cast<std::size_t>(input.StationCount);
    Require(input.Offsets.size() + input.Dimensions.size() == stations, "each station has one section");
    for (const COffsets& offsets : input.Offsets)
    {
        Require(offsets.Y.size() == offsets.Z.size() && offsets.Y.size() <= kMostOffsets,
                "each point has breadth and height");
        Require(AllFinite(offsets.Y) && AllFinite(offsets.Z), "points are finite");
    }
    Require(!input.Loads || input.Masses.Masses.size() == stations, "each station has a mass");
}

void RequireSane(const CInput& input, std::string_view text)
{
    RequireSaneHull(input);
    Require(input.FrequencyCount >= 1 && input.FrequencyCount <= kMostFrequencies, "there are frequencies");
    Require(input.Length > 0 && input.PitchRadius > 0 && input.FrequencyStep > 0,
            "lengths and steps are positive");
    Require(AllFinite({input.Length, input.Kg, input.Draft, input.Trim, input.Displacement, input.RollValue}),
            "numbers are finite");
    Require(AllFinite(input.Directions) && AllFinite(input.Speeds), "lists are finite");
    Require(BinaryFileName(text) == input.BinaryFile, "the binary file's name is found without reading all");
}
} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const CScratchFolder folder;
    const std::string text(data, data + size);
    try
    {
        if (size >= 2 && text[0] == '@')
        {
            ReadOther(text[1], std::string_view(text).substr(2));
            return 0;
        }
        CRunLog log;
        RequireSane(ParseInput(text, folder.Path(), log), text);
    }
    catch (const CInputError& error)
    {
        Require(std::string_view(error.what()).size() < 1000, "an error can be read");
    }
    return 0;
}
