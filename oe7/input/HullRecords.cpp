#include "oe7/input/InputRecords.h"
#include "oe7/input/InputWords.h"
#include "oe7/input/Limits.h"

#include "core/platform/NumberText.h"

namespace oe7
{
namespace
{
/// What all breadths and all heights of the stations are multiplied by.
struct CHullFactors
{
    double Breadth = 1;
    double Height = 1;
};

/// None or a single point is no contour: the station is dry.
COffsets ReadOffsets(CRecordReader& file, const CHullFactors& factors)
{
    COffsets offsets;
    file.NextLine();
    const int count = file.Count("the number of points", 0, kMostOffsets);
    file.NextLine();
    for (int k = 0; k < count; ++k)
    {
        offsets.Y.push_back(file.NotNegative("a half breadth") * file.LengthUnit() * factors.Breadth);
    }
    file.NextLine();
    offsets.Z = file.Numbers("a height", count, file.LengthUnit() * factors.Height);
    return offsets;
}

CSectionDimensions ReadSectionDimensions(CRecordReader& file, const CHullFactors& factors)
{
    CSectionDimensions dimensions;
    file.NextLine();
    dimensions.Beam = file.Length("the beam of the station") * factors.Breadth;
    dimensions.Draft = file.Length("the draft of the station") * factors.Height;
    dimensions.Coefficient = file.Number("the area coefficient of the station");
    return dimensions;
}

/// A number that isn't the station's own tells that the lines before it were not as many as their count says.
void ReadStationNumber(CRecordReader& file, int station)
{
    file.NextLine();
    if (file.Number("the station number") != station)
    {
        file.Fail("here should stand the number of station " + IntegerText(station));
    }
}

void ReadLoading(CRecordReader& file, CInput& input)
{
    file.NextLine();
    input.ByDisplacement = file.Choice("the kind of loading condition", kLoadingWords);
    file.NextLine();
    // A front end that has neither leaves the line out, so that another record's line stands here.
    if (file.WordsLeft().size() != 2)
    {
        file.Fail(input.ByDisplacement ? "displacement and LCG are missing" : "draft and trim are missing");
    }
    if (input.ByDisplacement)
    {
        input.Displacement = file.Mass("the displacement");
        input.CentreFromStation0 = file.Length("LCG");
    }
    else
    {
        input.Draft = file.Length("the draft");
        input.Trim = file.Length("the trim");
    }
}
} // namespace

void ReadHull(CRecordReader& file, CInput& input)
{
    file.NextLine();
    const bool byDimensions = file.Choice("the kind of hull data", kHullWords);
    file.NextLine();
    input.StationCount = file.Count("the number of stations", 2, kMostStations);
    file.Number("the number of stations, given again,");
    CHullFactors factors;
    factors.Breadth = file.Positive("the beam factor");
    factors.Height = file.Positive("the draft factor");
    for (int station = 0; station < input.StationCount; ++station)
    {
        ReadStationNumber(file, station);
        if (byDimensions)
        {
            input.Dimensions.push_back(ReadSectionDimensions(file, factors));
        }
        else
        {
            input.Offsets.push_back(ReadOffsets(file, factors));
        }
    }
    ReadLoading(file, input);
}

} // namespace oe7
