// The parts of the printed listing, in the order in which they stand.
#pragma once

#include "oe7/output/CListingText.h"
#include "oe7/output/COutputUnits.h"

namespace oe7
{

/// What every part is made of.
struct CListing
{
    const CInput& Input;
    const CResults& Results;
    const COutputUnits Units;
    CListingText Text;

    std::string Label(std::size_t position) const;

    /// Calls `row(heading)` for what stands behind each reported heading; an empty line follows.
    template <class Row>
    void HeadingRows(Row&& row)
    {
        for (std::size_t heading = 0; heading < Results.Headings.Reported.size(); ++heading)
        {
            Text.Number(Results.Headings.Reported[heading], 10, 2);
            row(heading);
            Text.End();
        }
        Text.EmptyLine();
    }
};

/// What the engine was given, and what it doesn't model.
void ListInput(CListing& listing, std::string_view stamp);
/// The ship at rest.
void ListHull(CListing& listing);
void ListSections(CListing& listing);
/// The positions, with the form of their slamming.
void ListPositions(CListing& listing);
void ListStillWater(CListing& listing);

/// The motions in regular waves of one speed from headings up to 180 degrees, with roll damping if that is
/// wanted.
void ListRegularWaves(CListing& listing, const CSpeedResults& speed);
void ListRollDamping(CListing& listing, const CDirectionResults& direction);

/// A seaway at a speed: the ship, her positions, her loads. Seaways and positions count from 0.
void ListSeaway(CListing& listing, const CSpeedResults& speed, std::size_t seaway);
void ListPosition(CListing& listing, const CSpeedResults& speed, std::size_t seaway, std::size_t position);
/// Slamming, deck wetness or emergence, behind the position's other tables.
void ListWaterEvent(CListing& listing, const CSpeedResults& speed, std::size_t seaway, std::size_t position);
void ListLoads(CListing& listing, const CSpeedResults& speed, std::size_t seaway, std::size_t cut);

} // namespace oe7
