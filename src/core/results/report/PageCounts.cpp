#include "core/results/report/PageEstimate.h"

#include "core/platform/NumberText.h"
#include "core/results/ResultsFile.h"
#include "core/results/ResultsSections.h"
#include "core/results/ResultsTrailer.h"

#include <algorithm>
#include <utility>

namespace
{
constexpr int kListsOffset = 28; ///< behind section C's begin, without the magic
constexpr int kOutSysOffset = 4; ///< behind section B's begin
constexpr int kOutRaoOffset = 20;
constexpr int kLoadFlagOffset = 32;
constexpr int kCommonColumns = 3; ///< of the breakdown tables, in front of the appendages

/// What the positions have, three lists of ten words.
struct CPositionKinds
{
    std::array<int, kMaxPositions> RelMotion = {};
    std::array<int, kMaxPositions> Mii = {};
    std::array<int, kMaxPositions> Msi = {};
};

/// The lists at the place where files without the magic have them.
CPositionKinds KindsOfTheForm(std::string_view bytes, int sectionC, bool hasMagic)
{
    CResultsCursor cursor(bytes, sectionC);
    cursor.Skip(kListsOffset);
    CPositionKinds kinds;
    for (auto* list : {&kinds.RelMotion, &kinds.Mii})
    {
        for (int& kind : *list)
        {
            kind = Truncated(cursor.Float());
        }
    }
    if (hasMagic)
    {
        for (int& kind : kinds.Msi)
        {
            kind = cursor.Integer();
        }
    }
    return kinds;
}

void CountPositions(CPageCounts& counts, const CPositionKinds& kinds)
{
    const auto count = [&](const std::array<int, kMaxPositions>& list, auto&& wanted)
    { return static_cast<int>(std::count_if(list.begin(), list.begin() + counts.PositionCount, wanted)); };
    counts.SlamPositions = count(kinds.RelMotion, [](int kind) { return kind > 0; });
    counts.MiiPositions = count(kinds.Mii, [](int kind) { return kind == 1; });
    counts.MsiPositions = count(kinds.Msi, [](int kind) { return kind == 1; });
}

int AppendageColumns(const CControlSection& control)
{
    const int columns = kCommonColumns + (control.HasRudderColumn == 1 ? 1 : 0) +
                        (control.HasSkegColumn == 1 ? 1 : 0) + control.KeelColumns + control.FinColumns +
                        control.FoilColumns;
    return control.HasAppendageBreakdown == 0 || columns == kCommonColumns ? 0 : columns;
}

/// A word of section B, which is a float.
int InputWord(std::string_view bytes, int sectionB, int offset)
{
    CResultsCursor cursor(bytes, sectionB);
    cursor.Skip(static_cast<std::size_t>(offset));
    return Truncated(cursor.Float());
}

/// All counts but those of the positions' lists; gives the control section.
CControlSection ReadCounts(std::string_view bytes, const CResultsTrailer& trailer, CPageCounts& counts)
{
    const CResultsHead head = ReadHead(bytes);
    CResultsCursor start(bytes, trailer.SectionC);
    const CControlSection control = ReadControlSection(start);
    CResultsCursor cursor(bytes, kBodyOffset);
    CResultsBody body = ReadBodyTables(cursor, head);
    counts.SpectrumKind = head.SpectrumKind;
    counts.SpreadAngle = head.SpreadAngle;
    counts.LoadStationCount = head.LoadStationCount;
    counts.PositionCount = body.PositionCount;
    counts.SpeedCount = control.SpeedCount;
    counts.Speeds = control.Speeds;
    counts.Headings = std::move(body.Headings);
    counts.LoadStations = std::move(body.LoadStations);
    counts.WaveHeights = std::move(body.WaveHeights);
    counts.WavePeriods = std::move(body.WavePeriods);
    counts.SeawayCount = body.SeawayCount;
    counts.FreqCount = body.FreqCount;
    counts.StationCount = head.StationCount;
    counts.StationNumbering = control.HasMagic ? control.StationNumbering : 0;
    counts.AppendageColumns = AppendageColumns(control);
    counts.OutSys = InputWord(bytes, trailer.SectionB, kOutSysOffset);
    counts.OutRao = InputWord(bytes, trailer.SectionB, kOutRaoOffset);
    counts.LoadFlag = InputWord(bytes, trailer.SectionB, kLoadFlagOffset);
    return control;
}
} // namespace

CPageCounts ReadPageCounts(std::string_view bytes)
{
    const CResultsTrailer trailer = ReadTrailer(bytes);
    CPageCounts counts;
    const CControlSection control = ReadCounts(bytes, trailer, counts);
    CountPositions(counts, KindsOfTheForm(bytes, trailer.SectionC, control.HasMagic));
    return counts;
}

std::optional<CPageCounts> LoadPageCounts(const std::string& path, CMessages& messages)
{
    const auto bytes = ReadResultsFile(path);
    if (!bytes)
    {
        messages.MessageBox("The result file could not be read.", "Error In Result File", EIcon::Stop);
        return std::nullopt;
    }
    try
    {
        return ReadPageCounts(*bytes);
    }
    catch (const CResultsError&)
    {
        messages.MessageBox("There is a problem with the results file.", "Unable To Read File", EIcon::Stop);
        return std::nullopt;
    }
}

CPageCounts ReadReportCounts(std::string_view bytes)
{
    CPageCounts counts;
    const CControlSection control = ReadCounts(bytes, ReadTrailer(bytes), counts);
    CountPositions(counts, {control.RelMotionKind, control.MiiKind, control.MsiKind});
    return counts;
}
