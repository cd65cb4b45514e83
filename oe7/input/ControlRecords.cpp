#include "oe7/input/FileNames.h"
#include "oe7/input/InputRecords.h"
#include "oe7/input/InputWords.h"
#include "oe7/input/Limits.h"

#include "core/platform/NumberText.h"

#include <algorithm>
#include <cmath>

namespace oe7
{
namespace
{
/// A count that comes out a little below a whole number by rounding is that number.
constexpr double kCountTolerance = 1e-6;

void ReadWords(CRecordReader& file, CInput& input)
{
    file.NextLine();
    input.InputUnits = file.Choice("the input system", kUnitWords);
    input.OutputUnits = file.Choice("the output system", kUnitWords);
    input.Water = file.Choice("the water", kWaterWords);
    input.SpeedCorrection = file.Choice("the speed correction", kSpeedCorrectionWords);
    input.SwellCorrection = file.Choice("the swell correction", kSwellCorrectionWords);
    input.RaoTables = file.Choice("the choice of tables", kRaoWords);
    file.Word("the last word, NOPPR,"); // without effect
    file.SetUnits(input.InputUnits);
}

void ReadBinaryFile(CRecordReader& file, CInput& input)
{
    file.NextLine();
    input.BinaryFile = file.Line();
    if (!IsBinaryFileName(input.BinaryFile))
    {
        file.Fail("the name of the binary file is missing, or is not that of a file in this folder that ends "
                  "in .bin");
    }
}

void ReadFrequencies(CRecordReader& file, CInput& input, CRunLog& log)
{
    file.NextLine();
    input.LowestFrequency = file.Positive("the lowest wave frequency");
    const double highest = file.Positive("the highest wave frequency");
    input.FrequencyStep = file.Positive("the step of the wave frequencies");
    if (input.LowestFrequency < kLowestFrequency || highest > kHighestFrequency)
    {
        file.Fail(FormatText("wave frequencies must lie between %g and %g rad/s", kLowestFrequency,
                             kHighestFrequency));
    }
    if (highest < input.LowestFrequency)
    {
        file.Fail("the highest wave frequency is less than the lowest");
    }
    const double steps =
        std::floor((highest - input.LowestFrequency) / input.FrequencyStep + kCountTolerance);
    input.FrequencyCount = static_cast<int>(std::min<double>(steps + 1, kMostFrequencies));
    if (steps >= kMostFrequencies)
    {
        log.Note("only the first " + IntegerText(kMostFrequencies) + " wave frequencies are used");
    }
}

void ReadGrid(CRecordReader& file, CInput& input)
{
    file.NextLine();
    const double lowest = file.Number("the lowest encounter frequency");
    const double highest = file.NotNegative("the highest encounter frequency");
    const double step = file.NotNegative("the step of the encounter frequencies");
    const bool given = lowest != 0 || highest != 0 || step != 0;
    if (given && (step == 0 || highest <= lowest))
    {
        file.Fail("encounter frequencies need a highest above the lowest and a step, or three zeros");
    }
    input.Grid = {lowest, highest, step};
}
} // namespace

void ReadControls(CRecordReader& file, CInput& input, CRunLog& log)
{
    file.NextLine();
    input.Title = file.Line();
    ReadWords(file, input);
    ReadBinaryFile(file, input);
    file.NextLine();
    input.Loads = file.Choice("the choice of loads", kLoadWords);
    file.Word("the second word, RAW,"); // without effect
    ReadFrequencies(file, input, log);
    file.NextLine();
    file.Word("the first word, NOSAVEHY,"); // without effect
    input.Method = file.Choice("the section method", kMethodWords);
    input.EndTerms = file.Choice("the choice of end terms", kEndTermWords);
    input.HeaveCorrection = file.Choice("the heave correction", kHeaveCorrectionWords);
    ReadGrid(file, input);
}

} // namespace oe7
