#include "oe7/input/InputRecords.h"
#include "oe7/input/InputWords.h"
#include "oe7/input/Limits.h"
#include "oe7/input/SpectrumFiles.h"

namespace oe7
{
namespace
{
constexpr double kFullTurn = 360; ///< degrees
constexpr double kWidestSpread = 180;
constexpr double kSteepestWave = 1;

/// Sea directions and how the sea spreads about them.
void ReadDirections(CRecordReader& file, CInput& input)
{
    file.NextLine();
    const int count = file.CountOrNone("the number of sea directions", kMostDirections);
    const double angle = file.LineEnded() ? 0 : file.Number("the spreading angle");
    if (angle > kWidestSpread)
    {
        file.Fail("the spreading angle is more than 180 degrees");
    }
    const bool spreads = angle > 0 && input.Spectrum != ESpectrum::Regular;
    input.SpreadingAngle = spreads ? angle : 0;
    file.NextLine();
    input.Directions = file.Numbers("a sea direction", count);
    for (const double direction : input.Directions)
    {
        if (direction < -kFullTurn || direction > kFullTurn)
        {
            file.Fail("a sea direction is beyond a full turn");
        }
    }
}

COchiHubbleSystem ReadSystem(CRecordReader& file)
{
    COchiHubbleSystem system;
    system.Height = file.Length("the significant wave height");
    system.PeakFrequency = file.Number("the peak frequency");
    system.Lambda = file.Number("lambda");
    return system;
}

COchiHubbleSystem ReadSpreadSystem(CRecordReader& file)
{
    COchiHubbleSystem system = ReadSystem(file);
    system.Direction = file.Number("the direction of the waves");
    system.SpreadingPower = file.Number("the power of the spreading");
    return system;
}

CSeaway ReadSeaway(CRecordReader& file, ESpectrum spectrum)
{
    CSeaway seaway;
    file.NextLine();
    if (spectrum == ESpectrum::OchiHubble)
    {
        seaway.Systems = {ReadSystem(file), ReadSystem(file)};
    }
    else if (spectrum == ESpectrum::TenParameter)
    {
        seaway.Systems = {ReadSpreadSystem(file), ReadSpreadSystem(file)};
    }
    else
    {
        seaway.Height = file.NotNegative("the significant wave height") * file.LengthUnit();
        seaway.Period = file.Positive("the wave period");
        seaway.PeakEnhancement = spectrum == ESpectrum::Jonswap ? file.Positive("the peak factor") : 0;
    }
    return seaway;
}

void ReadSteepness(CRecordReader& file, CInput& input)
{
    file.NextLine();
    input.Steepness = file.NotNegative("the wave steepness");
    if (input.Steepness > kSteepestWave)
    {
        file.Fail("the wave steepness is more than 1");
    }
}

/// A line that names a file.
std::string ReadFileName(CRecordReader& file, const CInput& input)
{
    file.NextLine();
    const std::string name(file.Line());
    if (name.empty())
    {
        file.Fail("the name of the spectrum's file is missing");
    }
    if (name == input.BinaryFile)
    {
        file.Fail("the spectrum's file has the name of the binary file");
    }
    return name;
}

void ReadMeasured(CRecordReader& file, CInput& input, const std::filesystem::path& folder)
{
    const std::string name = ReadFileName(file, input);
    file.NextLine();
    const EUnits units = file.Choice("the units of the spectrum's file", kUnitWords);
    file.NextLine();
    const int count = file.Count("the number of frequencies", 1, kMostSpectrumPoints);
    input.Points = ReadPointSpectrum(folder, name, units, count);
}

/// Spectra that have one record, whatever the number of seaways.
void ReadCommonSpectrum(CRecordReader& file, CInput& input, const std::filesystem::path& folder)
{
    switch (input.Spectrum)
    {
    case ESpectrum::Regular:
        ReadSteepness(file, input);
        break;
    case ESpectrum::Points:
        ReadMeasured(file, input, folder);
        break;
    case ESpectrum::Hindcast:
        input.DirectionalPoints = ReadHindcast(folder, ReadFileName(file, input));
        break;
    default:
        input.DirectionalPoints = ReadDirectionalSpectrum(folder, ReadFileName(file, input));
        break;
    }
}

bool HasLinePerSeaway(ESpectrum spectrum)
{
    switch (spectrum)
    {
    case ESpectrum::Quadratic:
    case ESpectrum::Bretschneider:
    case ESpectrum::Jonswap:
    case ESpectrum::OchiHubble:
    case ESpectrum::TenParameter:
        return true;
    default:
        return false;
    }
}
} // namespace

void ReadSea(CRecordReader& file, CInput& input, const std::filesystem::path& folder)
{
    file.NextLine();
    input.Spectrum = file.Choice("the spectrum", kSpectrumWords);
    if (!input.IsDirectional())
    {
        ReadDirections(file, input);
    }
    file.NextLine();
    const int seaways = file.CountOrNone("the number of seaways", kMostSeaways);
    if (!HasLinePerSeaway(input.Spectrum))
    {
        ReadCommonSpectrum(file, input, folder);
        input.Seaways.resize(static_cast<std::size_t>(seaways));
        return;
    }
    for (int seaway = 0; seaway < seaways; ++seaway)
    {
        input.Seaways.push_back(ReadSeaway(file, input.Spectrum));
    }
}

} // namespace oe7
