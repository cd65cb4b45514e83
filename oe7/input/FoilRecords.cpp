#include "oe7/input/FileNames.h"
#include "oe7/input/GainFiles.h"
#include "oe7/input/InputRecords.h"
#include "oe7/input/Limits.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace oe7
{
namespace
{
/// Stands for a dihedral angle that isn't given: the rudder hangs straight down.
constexpr double kNoDihedral = -999;
constexpr double kHangingDown = -90;

/// Stand for a gain that isn't given, as they are and through the front end's conversions between per metre
/// and per foot.
constexpr std::array kNoGains = {-111111.0, -33866.6, -364536.0};
constexpr double kNoGainTolerance = 1e-5; ///< of the number

bool IsNoGain(double gain)
{
    return std::any_of(kNoGains.begin(), kNoGains.end(),
                       [gain](double none) { return std::abs(gain - none) <= -none * kNoGainTolerance; });
}

double ReadGain(CRecordReader& file, std::string_view what, double factor)
{
    const double gain = file.Number(what);
    return IsNoGain(gain) ? 0 : gain * factor;
}

CFoil ReadRudderBlade(CRecordReader& file)
{
    CFoil blade = ReadBlade(file);
    blade.Slipstream = file.Number("the slipstream flag") > 0;
    blade.Dihedral = file.Number("the dihedral angle");
    if (blade.Dihedral == kNoDihedral)
    {
        blade.Dihedral = kHangingDown;
    }
    return blade;
}

void ReadRollGains(CRecordReader& file, CRudder& rudder)
{
    CRudderGains& gains = rudder.Gains.Fixed;
    file.NextLine();
    gains.Roll = ReadGains(file, "a roll gain of the rudder");
    rudder.Servo.Frequency = file.Number("the servo frequency of the rudder");
    rudder.Servo.Damping = file.Number("the servo damping of the rudder");
    gains.LowCut = file.Number("the low cut-off of the rudder");
    gains.HighCut = file.Number("the high cut-off of the rudder");
}

void ReadLateralGains(CRecordReader& file, CRudder& rudder)
{
    file.NextLine();
    rudder.Gains.Fixed.Lateral = ReadGains(file, "a lateral gain of the rudder", 1 / file.LengthUnit());
    rudder.GainsAtG = file.Number("the place of the lateral gains") != 0;
    if (!rudder.GainsAtG)
    {
        file.NextLine();
        rudder.LateralStation = file.Number("the station of the lateral gains");
        rudder.LateralHeight = file.Length("the height of the lateral gains");
    }
}

void ReadRudder(CRecordReader& file, CInput& input, const std::filesystem::path& folder)
{
    CRudder rudder;
    file.NextLine();
    rudder.Blade = ReadRudderBlade(file);
    file.NextLine();
    const bool gainsFromFile = file.Number("the choice of a rudder gain file") != 0;
    ReadRollGains(file, rudder);
    file.NextLine();
    rudder.Gains.Fixed.Yaw = ReadGains(file, "a yaw gain of the rudder");
    ReadLateralGains(file, rudder);
    if (rudder.Blade.Span <= 0)
    {
        return;
    }
    if (gainsFromFile)
    {
        rudder.Gains.Conditions = ParseRudderGains(
            ReadTextFile(FindFile(folder, kRudderGainFile), kRudderGainFile), input.InputUnits);
    }
    input.Rudder = rudder;
}
} // namespace

CFoil ReadBlade(CRecordReader& file)
{
    CFoil blade;
    blade.Station = file.Number("the station of the blade");
    blade.Y = file.Length("y of the root");
    blade.Z = file.Length("z of the root");
    blade.Span = file.Length("the span");
    blade.RootChord = file.Length("the root chord");
    blade.TipChord = file.Length("the tip chord");
    blade.LiftSlope = file.Number("the lift slope");
    return blade;
}

std::vector<CFoil> ReadPairs(CRecordReader& file, std::string_view what)
{
    file.NextLine();
    const int count = file.CountOrNone(what, kMostFoilPairs);
    std::vector<CFoil> pairs;
    for (int pair = 0; pair < count; ++pair)
    {
        file.NextLine();
        pairs.push_back(ReadBlade(file));
        pairs.back().Dihedral = file.Number("the dihedral angle");
    }
    return pairs;
}

CGains ReadGains(CRecordReader& file, std::string_view what, double factor)
{
    CGains gains;
    gains.Acceleration = ReadGain(file, what, factor);
    gains.Velocity = ReadGain(file, what, factor);
    gains.Motion = ReadGain(file, what, factor);
    return gains;
}

void ReadFoils(CRecordReader& file, CInput& input, const std::filesystem::path& folder)
{
    ReadRudder(file, input, folder);
    input.FoilPairs = ReadPairs(file, "the number of foil pairs");
}

} // namespace oe7
