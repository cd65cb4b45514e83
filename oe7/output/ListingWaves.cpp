#include "oe7/output/ListingParts.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace oe7
{
namespace
{
constexpr double kGreatestHeading = 180; ///< degrees
constexpr double kGreatestAmplitude = 999;
/// Heave, pitch, roll, surge, sway, yaw.
constexpr std::array<std::size_t, 6> kListedModes = {2, 4, 3, 0, 1, 5};

void ListFrequency(CListing& listing, const CDirectionResults& direction, std::size_t frequency)
{
    CListingText& text = listing.Text;
    const double w = listing.Results.Frequencies.Output[frequency];
    text.Add(" ").Number(w, 6, 3);
    for (const std::size_t mode : kListedModes)
    {
        const Complex amplitude = direction.Motions[frequency][mode];
        const double size = std::abs(amplitude);
        text.Add(" |").Number(size > kGreatestAmplitude ? kGreatestAmplitude : size, 8, 4);
        text.Add(" ").Number(PhaseDegrees(amplitude), 6, 1).Add(" ");
    }
    const double wavelength = 2 * std::numbers::pi * kGravity / (w * w);
    text.Add(" | ").Encounter(direction.Encounter[frequency]);
    text.Add(" ").Number(wavelength / listing.Results.Hull.Length, 11, 4).End();
}

void ListMotions(CListing& listing, const CSpeedResults& speed, std::size_t heading)
{
    CListingText& text = listing.Text;
    text.Line(" SHIP MOTIONS AT CG IN REGULAR WAVES");
    text.Add("   Ship speed ").Number(speed.Knots, 0, 2).Line(" knots");
    text.Add("   Sea direction ").Number(listing.Results.Headings.Components[heading], 0, 2);
    text.Line(" degrees, 180 degrees are head seas");
    text.Add("   Froude number :").Number(speed.Froude, 9, 4).End();
    text.Line(
        "   Amplitudes per wave amplitude A (surge, sway, heave) and per wave slope KA (roll, pitch, yaw)");
    text.Line(
        "   Wave |      Heave     |      Pitch     |      Roll      |      Surge     |      Sway      |      "
        "Yaw       | Enc        WL/L");
    text.Line("   freq |   Amp   Phase  |   Amp   Phase  |   Amp   Phase  |   Amp   Phase  |   Amp   Phase  "
              "|   Amp   "
              "Phase  | freq");
    const CDirectionResults& direction = speed.Directions[heading];
    for (std::size_t frequency = 0; frequency < direction.Motions.size(); ++frequency)
    {
        ListFrequency(listing, direction, frequency);
    }
    text.EmptyLine();
}
} // namespace

void ListRegularWaves(CListing& listing, const CSpeedResults& speed)
{
    for (std::size_t heading = 0; heading < speed.Directions.size(); ++heading)
    {
        // Readers look at whole degrees.
        if (std::trunc(listing.Results.Headings.Components[heading]) > kGreatestHeading)
        {
            break;
        }
        ListMotions(listing, speed, heading);
        if (listing.Input.RaoTables == ERaoTables::MotionAndDamping)
        {
            ListRollDamping(listing, speed.Directions[heading]);
        }
    }
}

} // namespace oe7
