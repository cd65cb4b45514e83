// What all sections of irregular seas share: the loop that makes a page of each speed, seaway and place, the
// sea line in the form of each section, and the pieces of their tables.
#pragma once

#include "core/results/report/CReport.h"

#include <array>
#include <functional>
#include <initializer_list>
#include <span>
#include <vector>

/// The frame of these sections and the tables inside it.
constexpr const char* kSeasFrame =
    R"(<TABLE cellspacing="0" ALIGN=CENTER CELLPADDING=3 border="1" bordercolor="#CBD3E1" HSPACE=5 width = "100%">)";
constexpr const char* kSeasTable =
    R"(<TABLE cellspacing="0" ALIGN=CENTER CELLPADDING="1" border="0" bordercolor="#CBD3E1" HSPACE=5 width = "98%">)";
constexpr const char* kLoadsTable =
    R"(<TABLE cellspacing="0" ALIGN=CENTER CELLPADDING="2" border="0" bordercolor="#CBD3E1" HSPACE=5 width = "98%">)";

/// What one page shows, as indices into the tables of the results.
struct CSeasPage
{
    int Speed = 0;
    int Seaway = 0;
    int Place = 0;            ///< position or load station
    bool FirstSeaway = false; ///< the first of the selection
};

/// The place of a page that shows no position but the centre of gravity.
constexpr int kCentreOfGravity = -1;

/// Calls `content` for each selected speed and seaway and each of the places, in this order. Each page but
/// the first begins with a break and the section's banner; the speed's anchor stands behind the break of its
/// first page. A speed without a page has its anchor all the same.
void WritePages(CReport& report, const char* speedAnchor, const std::function<void()>& banner,
                const std::vector<int>& places, const std::function<void(const CSeasPage&)>& content);

/// The positions of the results whose kind is one of those between two limits, both included.
std::vector<int> PositionsOfKind(const CReport& report, const std::array<int, kMaxPositions>& kinds,
                                 int least, int greatest);

/// The sections whose sea lines differ in form.
enum ESeaLine
{
    kSeaLineRms,
    kSeaLineLoads,
    kSeaLineSlamming,
    kSeaLineInterruption,
    kSeaLineSickness
};

/// Steepness and slope of regular waves, or sea state, height and period of a spectrum that is given by
/// them; nothing for the others.
void SeaLine(CReport& report, ESeaLine form, int seaway);

/// The word in the titles of slamming, motion interruption and motion sickness.
const char* TitleSeas(const CReport& report);

/// In knots.
float SpeedOf(const CReport& report, int speed);
/// The station of a position as it is printed.
float PositionStationOf(const CReport& report, int position);

/// A frame with a table, up to the table's rows.
void OpenSeasTable(CReport& report, const char* table);
/// A table with its heading rows. The literals of the heading rows have no placeholders.
void OpenSeasTable(CReport& report, const char* table, std::initializer_list<const char*> headRows);
/// A row in pieces: the heading in whole degrees, then a cell for each value.
void RowInPieces(CReport& report, float heading, std::span<const float> values, CLineFormat<float> cell);
/// The row with speed, Froude number and spectrum.
void FroudeRow(CReport& report, int speed, float froudeNumber);
