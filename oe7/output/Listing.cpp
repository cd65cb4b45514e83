#include "oe7/output/EngineFiles.h"
#include "oe7/output/ListingParts.h"
#include "oe7/output/ListingWords.h"

namespace oe7
{
namespace
{
void ListHead(CListing& listing, std::string_view stamp)
{
    ListInput(listing, stamp);
    ListHull(listing);
    ListSections(listing);
    if (!listing.Input.Positions.empty())
    {
        ListPositions(listing);
    }
    if (listing.Input.Loads)
    {
        ListStillWater(listing);
    }
}

void ListSpeed(CListing& listing, const CSpeedResults& speed)
{
    listing.Text.Add(" SPEED ").Number(speed.Knots, 0, 2).Line(" KNOTS");
    listing.Text.EmptyLine();
    if (listing.Input.RaoTables != ERaoTables::None)
    {
        ListRegularWaves(listing, speed);
    }
    for (std::size_t seaway = 0; seaway < speed.Seaways.size(); ++seaway)
    {
        ListSeaway(listing, speed, seaway);
    }
}
} // namespace

std::string CListing::Label(std::size_t position) const
{
    return ListedLabel(Input.Positions[position].Label, static_cast<int>(position) + 1);
}

std::string Listing(const CInput& input, const CResults& results, std::string_view stamp, CRunLog& log)
{
    CListing listing{input, results, COutputUnits(input.OutputUnits), CListingText(log)};
    ListHead(listing, stamp);
    for (const CSpeedResults& speed : results.Speeds)
    {
        ListSpeed(listing, speed);
    }
    listing.Text.Line(" END OF CALCULATION");
    return listing.Text.Take();
}

} // namespace oe7
