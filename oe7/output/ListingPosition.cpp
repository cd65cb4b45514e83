// The tables of a position in a seaway, but those of slamming and wetness.
#include "oe7/output/ListingParts.h"

namespace oe7
{
namespace
{
// Places in CPositionAtHeading::Local.
constexpr int kShipMotions = 9; ///< of vertical, lateral and longitudinal motion
constexpr std::size_t kLateralForce = 12;
constexpr std::size_t kLongitudinalForce = 14;
constexpr int kQuantitiesPerMotion = 3;

using CAtHeadings = std::vector<CPositionAtHeading>;

/// The marker word stands in the line behind the label.
void BeginPosition(CListing& listing, const CSpeedResults& speed, std::size_t seaway, std::size_t position)
{
    CListingText& text = listing.Text;
    text.Add("   ").Line(listing.Label(position));
    text.Add("   (Label in the line above) position ").Integer(static_cast<int>(position) + 1);
    text.Add(", speed ").Number(speed.Knots, 0, 2);
    text.Add(" knots, seaway ").Integer(static_cast<int>(seaway) + 1).End();
}

void ListMotions(CListing& listing, const CAtHeadings& headings)
{
    const COutputUnits& units = listing.Units;
    CListingText& text = listing.Text;
    text.Add("   Heading")
        .Left("   vertical (" + std::string(units.Length.Name) + ", " + std::string(units.Velocity.Name) +
                  ", g)",
              27);
    text.Line("   lateral                    longitudinal               relative, vertical");
    listing.HeadingRows(
        [&](std::size_t heading)
        {
            for (int quantity = 0; quantity < kShipMotions + kQuantitiesPerMotion; ++quantity)
            {
                const double value = headings[heading].Local[static_cast<std::size_t>(quantity)];
                text.Add(" ").Number(units.Local(quantity, value), 8, 4);
            }
        });
}

void ListInterruptions(CListing& listing, const CPosition& position, const CAtHeadings& headings)
{
    const COutputUnits& units = listing.Units;
    CListingText& text = listing.Text;
    text.Add("   MOTION INTERRUPTIONS, coefficients ").Number(position.LateralTipping, 0, 3);
    text.Add(" ").Number(position.LongitudinalTipping, 0, 3);
    text.Add(", time ").Number(position.InterruptionTime, 0, 1).Line(" s");
    text.Line("   Heading     LFE lat     MII lat    LFE long    MII long   MII total");
    text.Line("                   (g)                     (g)");
    listing.HeadingRows(
        [&](std::size_t heading)
        {
            const CPositionAtHeading& at = headings[heading];
            const auto force = [&](std::size_t quantity)
            { return units.Local(static_cast<int>(quantity), at.Local[quantity]); };
            text.Number(force(kLateralForce), 12, 5)
                .Number(at.LateralCount, 12, 5)
                .Number(force(kLongitudinalForce), 12, 5)
                .Number(at.LongitudinalCount, 12, 5)
                .Number(at.LateralCount + at.LongitudinalCount, 12, 5);
        });
}

void ListSickness(CListing& listing, const CPosition& position, const CAtHeadings& headings)
{
    CListingText& text = listing.Text;
    text.Line("   Motion Sickness Incidence");
    text.Line(position.Sickness == ESickness::BureauVeritas ? "   Formulation Bureau Veritas"
                                                            : "   Formulation Colwell");
    text.Add("   Exposure time is ").Number(position.Exposure, 10, 3);
    text.Line(" hours (0 when it is chosen for the largest incidence)");
    text.EmptyLine();
    text.Line("   Heading        MSI   Exposure");
    text.Line("                  (%)    (hours)");
    listing.HeadingRows(
        [&](std::size_t heading)
        { text.Number(headings[heading].Incidence, 11, 4).Number(headings[heading].Exposure, 11, 3); });
}
} // namespace

void ListPosition(CListing& listing, const CSpeedResults& speed, std::size_t seaway, std::size_t position)
{
    const CPosition& place = listing.Input.Positions[position];
    const CAtHeadings& headings = speed.Seaways[seaway].Positions[position];
    BeginPosition(listing, speed, seaway, position);
    ListMotions(listing, headings);
    if (place.Interruptions)
    {
        ListInterruptions(listing, place, headings);
    }
    if (place.Sickness != ESickness::None)
    {
        ListSickness(listing, place, headings);
    }
    if (place.Event != EWaterEvent::None)
    {
        ListWaterEvent(listing, speed, seaway, position);
    }
}

} // namespace oe7
