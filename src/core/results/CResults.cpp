#include "core/results/CResults.h"

#include "core/results/InputEcho.h"
#include "core/results/ResultsSections.h"
#include "core/results/ResultsTrailer.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace
{
/// A field that begins at a distance in front of a section.
std::string TextBefore(std::string_view bytes, int section, std::ptrdiff_t distance, std::size_t width)
{
    return CResultsCursor(bytes, section - distance).Text(width);
}

void ReadTexts(CResults& results)
{
    const std::string_view bytes = results.Bytes;
    const CResultsTrailer& trailer = results.Trailer;
    results.GeometryFile = TextBefore(bytes, trailer.SectionA, 2 * kFileNameWidth, kFileNameWidth);
    results.EnvironmentFile = TextBefore(bytes, trailer.SectionA, kFileNameWidth, kFileNameWidth);
    results.ProjectTitle = TextBefore(bytes, trailer.SectionB, kTitleWidth, kTitleWidth);
}

void ReadInput(CResults& results)
{
    CResultsCursor cursor(results.Bytes, results.Trailer.SectionB);
    results.Input->ResetKeywords();
    ReadInputEcho(cursor, results.Control.HasMagic, *results.Input);
}

void ReadBody(CResults& results)
{
    CResultsCursor cursor(results.Bytes, kBodyOffset);
    results.Body = ReadBodyTables(cursor, results.Head);
    ReadSpeedBlocks(cursor, results.Head, results.Control, results.Body);
}
} // namespace

CResults ReadResults(std::string bytes)
{
    CResults results;
    results.Bytes = std::move(bytes);
    results.Trailer = ReadTrailer(results.Bytes);
    results.Head = ReadHead(results.Bytes);
    CResultsCursor control(results.Bytes, results.Trailer.SectionC);
    results.Control = ReadControlSection(control);
    ReadTexts(results);
    ReadInput(results);
    ReadBody(results);
    CResultsCursor calculated(results.Bytes, results.Trailer.SectionA);
    results.Calculated =
        ReadCalculatedHead(calculated, results.Head, results.Control, results.Body.PositionCount);
    results.SpeedBlocks = calculated.Position();
    return results;
}

int HeadingsTo180(const CResultsBody& body)
{
    return static_cast<int>(std::count_if(body.Headings.begin(), body.Headings.end(),
                                          [](float heading) { return heading <= kGreatestReportedHeading; }));
}

int SeaState(double height)
{
    constexpr double kLimits[] = {0.1, 0.5, 1.25, 2.5, 4, 6, 9, 14}; // metres, of the states from 1 on
    const auto* const limit =
        std::find_if(std::begin(kLimits), std::end(kLimits), [&](double each) { return height < each; });
    return 1 + static_cast<int>(std::distance(std::begin(kLimits), limit));
}
