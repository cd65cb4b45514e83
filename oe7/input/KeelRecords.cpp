#include "oe7/input/InputRecords.h"
#include "oe7/input/Limits.h"

namespace oe7
{
namespace
{
CKeelPair ReadKeelPair(CRecordReader& file)
{
    constexpr int farthest = 10 * kMostStations;
    file.NextLine();
    const int first = file.Count("the first station of the bilge keel", -farthest, farthest);
    const int last = file.Count("the last station of the bilge keel", -farthest, farthest);
    if (last < first || last - first >= kMostStations)
    {
        file.Fail("the stations of the bilge keel are not from first to last");
    }
    CKeelPair pair;
    for (int station = first; station <= last; ++station)
    {
        CKeelSegment& segment = pair.emplace_back();
        file.NextLine();
        segment.Forward = file.Number("the forward station of the segment");
        segment.Aft = file.Number("the aft station of the segment");
        segment.Y = file.Length("y of the segment");
        segment.Z = file.Length("z of the segment");
        segment.Breadth = file.Length("the breadth of the segment");
    }
    return pair;
}

void ReadSkeg(CRecordReader& file, CInput& input)
{
    CSkeg skeg;
    file.NextLine();
    skeg.AftStation = file.Number("the aft station of the skeg");
    skeg.Breadth = file.Length("the breadth of the skeg");
    skeg.Length = file.Length("the length of the skeg");
    if (skeg.Breadth > 0 && skeg.Length > 0)
    {
        input.Skeg = skeg;
    }
}
} // namespace

void ReadKeels(CRecordReader& file, CInput& input)
{
    file.NextLine();
    const int pairs = file.CountOrNone("the number of bilge keel pairs", kMostKeelPairs);
    for (int pair = 0; pair < pairs; ++pair)
    {
        input.BilgeKeels.push_back(ReadKeelPair(file));
    }
    ReadSkeg(file, input);
}

} // namespace oe7
