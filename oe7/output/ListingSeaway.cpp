#include "oe7/output/ListingParts.h"

namespace oe7
{
namespace
{
constexpr int kRigidModes = 6;
constexpr int kAcceleration = 2;

void ListShip(CListing& listing, const CSeawayResults& seaway)
{
    const COutputUnits& units = listing.Units;
    CListingText& text = listing.Text;
    text.Add("   RMS AT CG (").Add(units.Length.Name).Line(", degrees; accelerations g, deg/s2)");
    text.Line("   Heading    Surge     Sway    Heave     Roll    Pitch      Yaw   Rudder Fin/Tank   "
              "accelerations of the "
              "first six");
    listing.HeadingRows(
        [&](std::size_t heading)
        {
            const CModeRms& rms = seaway.Rms[heading];
            for (int mode = 0; mode < kModes; ++mode)
            {
                text.Add(" ").Number(units.Rms(0, mode, rms[0][static_cast<std::size_t>(mode)]), 8, 4);
            }
            text.Add("  ");
            for (int mode = 0; mode < kRigidModes; ++mode)
            {
                const double value = rms[kAcceleration][static_cast<std::size_t>(mode)];
                text.Number(units.Rms(kAcceleration, mode, value), 9, 5);
            }
        });
}
} // namespace

void ListSeaway(CListing& listing, const CSpeedResults& speed, std::size_t seaway)
{
    const CSeawayResults& results = speed.Seaways[seaway];
    const CUnit& length = listing.Units.Length;
    CListingText& text = listing.Text;
    text.Add(" IRREGULAR SEAWAY ").Integer(static_cast<int>(seaway) + 1);
    text.Add("   significant height ").Number(length.Of(results.Height), 0, 3).Add(" ").Add(length.Name);
    text.Add(", period ").Number(results.Period, 0, 3).Line(" s");
    text.Add("   Height contained in the computed frequency band ")
        .Number(length.Of(results.BandHeight), 0, 3);
    text.Add(" ").Line(length.Name);
    text.EmptyLine();
    ListShip(listing, results);
    for (std::size_t position = 0; position < listing.Input.Positions.size(); ++position)
    {
        ListPosition(listing, speed, seaway, position);
    }
    for (std::size_t cut = 0; cut < listing.Input.LoadStations.size() && listing.Input.Loads; ++cut)
    {
        ListLoads(listing, speed, seaway, cut);
    }
}

void ListLoads(CListing& listing, const CSpeedResults& speed, std::size_t seaway, std::size_t cut)
{
    const COutputUnits& units = listing.Units;
    CListingText& text = listing.Text;
    text.Add("   RMS Sea Loads at Station").Number(listing.Input.LoadStations[cut], 7, 2);
    text.Add("   speed ").Number(speed.Knots, 0, 2).Add(" knots, seaway ");
    text.Integer(static_cast<int>(seaway) + 1).End();
    text.EmptyLine();
    text.Add("   Values: RMS, twice the RMS, zero-crossing period Tz (s).  Forces in ")
        .Add(units.LargeForce.Name);
    text.Add(", moments in ").Line(units.LargeMoment.Name);
    text.EmptyLine();
    text.Line("               Horizontal shear              Vertical shear                     Torsion       "
              "       "
              "Vertical bending            Horizontal bending");
    text.Add("   Heading");
    for (int component = 0; component < kLoadComponents; ++component)
    {
        text.Add("         RMS         SIG     Tz");
    }
    text.End();
    text.Line("   -------");
    listing.HeadingRows(
        [&](std::size_t heading)
        {
            for (int component = 0; component < kLoadComponents; ++component)
            {
                const CSeawayResults::CLoadRms& load =
                    speed.Seaways[seaway].Loads[cut][heading][static_cast<std::size_t>(component)];
                const double rms = units.LoadRms(component, load.Rms);
                text.Number(rms, 12, 3).Number(2 * rms, 12, 3).Number(load.Period, 7, 2);
            }
        });
}

} // namespace oe7
