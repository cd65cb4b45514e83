#include "oe7/input/InputFile.h"

#include "oe7/input/FileNames.h"
#include "oe7/input/InputRecords.h"
#include "oe7/input/Limits.h"

#include <algorithm>
#include <cmath>

namespace fs = std::filesystem;

namespace oe7
{
namespace
{
constexpr int kBinaryFileLine = 3;
constexpr double kLargestStep = 0.025; ///< rad/s, of the computed frequencies
constexpr double kMostParts = 1000;    ///< a guard against steps that are no frequencies

/// Each count may be sane by itself and all together too many.
void CheckSize(const CInput& input)
{
    const auto speeds = static_cast<double>(input.Speeds.size());
    const double headings =
        input.IsDirectional() ? kCompassDirections : static_cast<double>(input.Directions.size());
    const double ofOneSea = input.IsDirectional() || input.SpreadingAngle > 0 ? headings : 1;
    const double frequencies = static_cast<double>(input.FrequencyCount) * RefinedParts(input.FrequencyStep);
    const double places = static_cast<double>(input.Positions.size() + input.LoadStations.size()) + 1;
    const double seaResults = speeds * static_cast<double>(input.Seaways.size()) * headings * places;
    if (speeds * headings * frequencies > kMostWaves || headings * frequencies * places > kMostTransfers ||
        speeds * headings * input.FrequencyCount * places > kMostResponses || seaResults > kMostSeaResults ||
        seaResults * ofOneSea * frequencies > kMostSummands)
    {
        throw CInputError("the run is too large: speeds, sea directions, frequencies, seaways, positions and "
                          "load stations are too many taken together");
    }
}
} // namespace

int RefinedParts(double step)
{
    if (!(step > 0))
    {
        return 1;
    }
    const double parts = std::ceil(step / kLargestStep - 1e-6);
    return static_cast<int>(std::clamp(parts, 1.0, kMostParts));
}

CInput ParseInput(std::string_view text, const fs::path& folder, CRunLog& log)
{
    CRecordReader file(text);
    CInput input;
    ReadControls(file, input, log);
    ReadSea(file, input, folder);
    ReadShip(file, input, log);
    ReadHull(file, input);
    ReadMasses(file, input);
    ReadPositions(file, input);
    ReadKeels(file, input);
    ReadFoils(file, input, folder);
    ReadStabilizer(file, input, folder);
    CheckSize(input);
    return input;
}

CInput ReadInput(const fs::path& folder, CRunLog& log)
{
    return ParseInput(ReadInputText(folder), folder, log);
}

std::string ReadInputText(const fs::path& folder)
{
    return ReadTextFile(FindFile(folder, kInputFile), kInputFile);
}

std::optional<std::string> BinaryFileName(std::string_view text)
{
    CRecordReader file(text);
    for (int line = 0; line < kBinaryFileLine; ++line)
    {
        file.NextLine();
    }
    std::string name(file.Line());
    bool isAlone = IsBinaryFileName(name);
    while (!file.AtEnd())
    {
        file.NextLine();
        isAlone = isAlone && file.Line() != name;
    }
    return isAlone ? std::optional(std::move(name)) : std::nullopt;
}

} // namespace oe7
