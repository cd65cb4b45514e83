#include "oe7/input/FileNames.h"
#include "oe7/input/GainFiles.h"
#include "oe7/input/InputRecords.h"
#include "oe7/input/InputWords.h"

namespace oe7
{
namespace
{
void ReadFins(CRecordReader& file, CInput& input, const std::filesystem::path& folder)
{
    CFins fins;
    file.NextLine();
    const bool gainsFromFile = file.Number("the choice of a fin gain file") != 0;
    fins.Pairs = ReadPairs(file, "the number of fin pairs");
    if (fins.Pairs.empty())
    {
        return;
    }
    file.NextLine();
    fins.Gains.Fixed.Roll = ReadGains(file, "a roll gain of the fins");
    fins.Servo.Frequency = file.Number("the servo frequency of the fins");
    fins.Servo.Damping = file.Number("the servo damping of the fins");
    fins.Gains.Fixed.HighCut = file.Number("the high cut-off of the fins");
    file.NextLine();
    fins.Gains.Fixed.Yaw = ReadGains(file, "a yaw gain of the fins");
    if (gainsFromFile)
    {
        fins.Gains.Conditions = ParseFinGains(ReadTextFile(FindFile(folder, kFinGainFile), kFinGainFile));
    }
    input.Fins = fins;
}

void ReadTank(CRecordReader& file, CInput& input)
{
    CUTubeTank tank;
    file.NextLine();
    tank.Length = file.Length("the length of the tank");
    tank.DuctWidth = file.Length("the width of the tank's duct");
    tank.LegWidth = file.Length("the width of the tank's legs");
    tank.FluidDepth = file.Length("the depth of the tank's fluid");
    tank.Inclination = file.Number("the inclination of the tank's walls");
    tank.DuctHeight = file.Length("the height of the tank's duct");
    tank.Height = file.Length("the height of the tank");
    tank.Station = file.Number("the station of the tank");
    tank.SpecificGravity = file.Number("the specific gravity of the tank's fluid");
    tank.HighResistance = file.Number("the tank's resistance above the break frequency");
    tank.ZeroResistance = file.Number("the tank's resistance at frequency 0");
    tank.BreakFrequency = file.Number("the tank's break frequency");
    input.Tank = tank;
}
} // namespace

void ReadStabilizer(CRecordReader& file, CInput& input, const std::filesystem::path& folder)
{
    file.NextLine();
    switch (file.Choice("the stabilizer", kStabilizerWords))
    {
    case EStabilizer::None:
        break;
    case EStabilizer::Fins:
        ReadFins(file, input, folder);
        break;
    case EStabilizer::Tank:
        ReadTank(file, input);
        break;
    }
}

} // namespace oe7
