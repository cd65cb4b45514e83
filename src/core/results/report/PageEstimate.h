// What the choice of report sections goes by: the counts of a results file, which sections the file offers,
// and how many pages they would have.
#pragma once

#include "core/results/report/CReportWriter.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

constexpr int kGreatestPageCount = 499; ///< more pages are refused

struct CPageCounts
{
    int SpectrumKind = kSpectrumUnknown;
    float SpreadAngle = 0; ///< degrees
    int OutRao = 0;        ///< `OUTRAO` of the run
    int LoadFlag = 0;      ///< `LOADFLAG` of the run
    std::vector<float> Speeds;
    std::vector<float> Headings;     ///< degrees, at most kMaxHeadings
    std::vector<float> LoadStations; ///< from the forward end
    std::vector<float> WaveHeights;  ///< of the seaways, in the output system
    std::vector<float> WavePeriods;  ///< seconds
    int SpeedCount = 0;
    int SeawayCount = 0;
    int FreqCount = 0;
    int LoadStationCount = 0;
    int PositionCount = 0;
    int SlamPositions = 0; ///< with slamming, deck wetness or emergence
    int MiiPositions = 0;
    int MsiPositions = 0;
    int AppendageColumns = 0; ///< of the breakdown tables; 0 for a file without them
    int StationCount = 0;     ///< of the hull
    int OutSys = 0;           ///< `OUTSYS` of the run
    int StationNumbering = 0; ///< the numbering word of the run; 0 for a file without the magic
};

/// The counts as the form reads them: the three lists of what positions have are taken where files without
/// the magic have them, so that in a current file they are one word out. Throws CResultsError.
CPageCounts ReadPageCounts(std::string_view bytes);
/// The counts as the form reads them, of a file; nothing, and a message, if it can't be read.
std::optional<CPageCounts> LoadPageCounts(const std::string& path, CMessages& messages);
/// The counts with the lists taken where they stand. Throws CResultsError.
CPageCounts ReadReportCounts(std::string_view bytes);

/// How many headings have data per frequency: those of 0 to 180 degrees.
int CountHeadings180(const CPageCounts& counts);

/// 0 for each section that a file with these counts offers, -1 for the others.
CReportFlags OfferedSections(const CPageCounts& counts);

/// How many pages the sections with flag 0 have.
int EstimatePages(const CPageCounts& counts, const CReportFlags& flags);
