#include "oe7/input/InputRecords.h"
#include "oe7/input/InputWords.h"
#include "oe7/input/Limits.h"

#include "core/platform/NumberText.h"

namespace oe7
{
namespace
{
constexpr std::size_t kWordsBehindLabel = 3;

/// What stands before the last three words, joined, so that it is one word wherever it is printed. A position
/// without a label is named after its number, from 1.
std::string ReadLabel(CRecordReader& file, int number)
{
    const std::size_t words = file.WordsLeft().size();
    std::string label;
    for (std::size_t k = kWordsBehindLabel; k < words; ++k)
    {
        label.append(label.empty() ? "" : "_").append(file.Word("the label"));
    }
    return label.empty() ? "Position" + IntegerText(number) : label;
}

void ReadSlamOffsets(CRecordReader& file, CPosition& position)
{
    file.NextLine();
    const int count = file.Count("the number of slam offsets", 2, kMostSlamOffsets);
    position.LoadHeight = file.Length("the load height");
    file.NextLine();
    position.SlamY = file.Numbers("a half breadth of the slam offsets", count, file.LengthUnit());
    file.NextLine();
    position.SlamZ = file.Numbers("a height of the slam offsets", count, file.LengthUnit());
}

void ReadEvent(CRecordReader& file, CPosition& position)
{
    if (position.Event == EWaterEvent::SlamForm)
    {
        file.NextLine();
        position.FormFactor = file.Number("the form factor");
        position.Width = file.Length("the width of the slam");
    }
    else if (position.Event == EWaterEvent::SlamOffset)
    {
        ReadSlamOffsets(file, position);
    }
    else if (position.Event == EWaterEvent::SlamWedge)
    {
        file.NextLine();
        position.Deadrise = file.Number("the deadrise angle");
        position.WedgeHeight = file.Length("the height of the wedge");
    }
}

void ReadCrew(CRecordReader& file, CPosition& position)
{
    if (position.Interruptions)
    {
        file.NextLine();
        position.LateralTipping = file.Number("the lateral tipping coefficient");
        position.LongitudinalTipping = file.Number("the longitudinal tipping coefficient");
        position.InterruptionTime = file.Number("the time of the interruptions");
    }
    if (position.Sickness != ESickness::None)
    {
        file.NextLine();
        position.Exposure = file.Number("the exposure");
    }
}

CPosition ReadPosition(CRecordReader& file, int number)
{
    CPosition position;
    file.NextLine();
    position.Label = ReadLabel(file, number);
    position.Event = file.Choice("the motion word of the position", kEventWords);
    position.Interruptions = file.Choice("the choice of interruptions", kInterruptionWords);
    position.Sickness = file.Choice("the choice of sickness", kSicknessWords);
    file.NextLine();
    position.Station = file.Number("the station of the position");
    position.Y = file.Length("y of the position");
    position.Height = file.Length("z of the position");
    position.DeckHeight = file.Length("the deck height of the position");
    ReadEvent(file, position);
    ReadCrew(file, position);
    return position;
}
} // namespace

void ReadPositions(CRecordReader& file, CInput& input)
{
    file.NextLine();
    const int count = file.CountOrNone("the number of positions", kMostPositions);
    input.Hours = file.NotNegative("the duration in hours");
    input.Exceedance = file.NotNegative("the exceedence parameter");
    if (input.Exceedance > 1)
    {
        file.Fail("the exceedence parameter is more than 1");
    }
    for (int k = 0; k < count; ++k)
    {
        input.Positions.push_back(ReadPosition(file, k + 1));
    }
}

} // namespace oe7
