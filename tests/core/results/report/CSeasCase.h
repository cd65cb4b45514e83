// Results of irregular seas in memory, with a different number in every place, and the sections written of
// them.
#pragma once

#include "core/project/CProjectData.h"
#include "core/results/CResults.h"
#include "core/results/report/CReport.h"

#include <string>
#include <vector>

struct CSeasPosition
{
    std::string Label;
    int RelMotionKind = 0;
    int MiiKind = 0;
    int MsiKind = 0;
    // Of motion sickness.
    int Formulation = 0;
    int ExposureFlag = 0;
    float Exposure = 0;
};

class CSeasCase
{
public:
    /// One speed of 15 knots, one seaway of 3.25 m and 9.5 s, headings 0 and 45; JONSWAP, metric,
    /// long-crested.
    CSeasCase();

    void SetSpeeds(const std::vector<float>& speeds);
    void SetSeaways(const std::vector<float>& heights);
    /// So many headings, 5 degrees apart.
    void SetHeadings(int count);
    void SetLoadStations(const std::vector<float>& stations);
    void Add(const CSeasPosition& position);

    /// Makes the tables and the calculated section. Values of the tables may be changed afterwards.
    void Fill();
    /// A section as it is written; fills first what was not filled.
    std::string Section(void (*section)(CReport&));

    CResults Results;
    CProjectData Project; ///< selects everything until it is changed
    std::string Company = "Larkfield";
    int RowsOfPositions = 0;      ///< rows of the second group if not one for each heading
    int RowsOfLoads = 0;          ///< of the third group
    bool HasUnshownValues = true; ///< two values stand behind the tag of a slamming row

private:
    void FillTables();
    void FillCalculated();
    void Position(int speed, int seaway, int position);
    void Rows(int count, int columns, float base);
    void SlammingRows(int count, float base);
    void Float(float value);
    void Integer(int value);

    std::vector<CSeasPosition> m_positions;
    bool m_filled = false;
};

/// The lines from the first one that is `from` up to and with the next one that is `to`.
std::string LinesBetween(const std::string& text, const std::string& from, const std::string& to);
/// The line behind the first one that is `line`.
std::string LineBehind(const std::string& text, const std::string& line);

constexpr const char* kBreakLine = R"(<p style = "page-break-before: always">)";
