#include "oe7/input/InputRecords.h"
#include "oe7/input/InputWords.h"
#include "oe7/input/Limits.h"

namespace oe7
{
namespace
{
constexpr double kUsualPitchRadius = 0.25; ///< of the length

void ReadSpeeds(CRecordReader& file, CInput& input)
{
    file.NextLine();
    const int count = file.CountOrNone("the number of speeds", kMostSpeeds);
    for (int k = 0; k < count; ++k)
    {
        input.Speeds.push_back(file.NotNegative("a speed"));
    }
}

void ReadDimensions(CRecordReader& file, CInput& input, CRunLog& log)
{
    file.NextLine();
    input.Length = file.Length("the length between perpendiculars");
    if (input.Length < kShortestShip)
    {
        file.Fail("the length between perpendiculars must be more than 0");
    }
    input.Kg = file.Length("KG");
    input.PitchRadius = file.Length("the pitch radius of gyration");
    if (input.PitchRadius <= 0)
    {
        input.PitchRadius = kUsualPitchRadius * input.Length;
        log.Warn("the pitch radius of gyration is not given, a quarter of the length is used");
    }
}

void ReadRoll(CRecordReader& file, CInput& input)
{
    file.NextLine();
    const bool gmGiven = file.Choice("the choice of GM", kGmWords);
    input.RollInertia = file.Choice("the kind of roll data", kRollInertiaWords);
    if (gmGiven)
    {
        file.NextLine();
        input.Gm = file.Length("GM");
    }
    file.NextLine();
    input.RollValue = input.RollInertia == ERollInertia::WetFrequency
                          ? file.Number("the roll natural frequency")
                          : file.Length("the roll radius of gyration");
}
} // namespace

void ReadShip(CRecordReader& file, CInput& input, CRunLog& log)
{
    ReadSpeeds(file, input);
    ReadDimensions(file, input, log);
    ReadRoll(file, input);
}

} // namespace oe7
