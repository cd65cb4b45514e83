#include "oe7/output/ListingParts.h"

namespace oe7
{
namespace
{
constexpr int kCaptionWidth = 47;

void Echo(CListingText& text, std::string_view caption, double value)
{
    text.Add("   ").Left(caption, kCaptionWidth).Add(":").Number(value, 15, 4).End();
}

/// In the given unit, whose name stands behind the caption.
void Echo(CListingText& text, const std::string& caption, const CUnit& unit, double value)
{
    Echo(text, caption + " " + unit.InBrackets(), unit.Of(value));
}

void ListFrequencies(CListing& listing)
{
    const CResults& results = listing.Results;
    listing.Text.Add("   ").Left("Heave and pitch natural frequency (rad/s)", kCaptionWidth).Add(":");
    listing.Text.Number(results.HeaveFrequency, 15, 4).Number(results.PitchFrequency, 9, 4).End();
    if (results.TankFrequency)
    {
        Echo(listing.Text, "Natural frequency of the tank (rad/s)", *results.TankFrequency);
    }
}
} // namespace

void ListHull(CListing& listing)
{
    const CHullCondition& hull = listing.Results.Hull;
    const COutputUnits& units = listing.Units;
    const double midship = hull.Length / 2;
    CListingText& text = listing.Text;
    text.Line(" GENERAL HULL PARAMETERS");
    text.EmptyLine();
    Echo(text, "Displacement condition, draft at midships", units.Length, hull.Draft);
    Echo(text, "XCG, centre of gravity aft of station 0", units.Length, midship - hull.Xg);
    Echo(text, "Displacement", units.Mass, hull.Mass);
    Echo(text, "Block coefficient, Cb", hull.BlockCoefficient);
    Echo(text, "Length between perpendiculars", units.Length, hull.Length);
    Echo(text, "Largest waterline beam", units.Length, hull.LargestBeam);
    Echo(text, "Trim by the stern", units.Length, hull.Trim);
    Echo(text, "Waterplane area", units.Area, hull.WaterplaneArea);
    Echo(text, "Centre of flotation aft of station 0", units.Length, midship - hull.Lcf);
    Echo(text, "KB", units.Length, hull.Kb);
    Echo(text, "BM, transverse", units.Length, hull.Bm);
    Echo(text, "KG", units.Length, hull.Kg);
    // The ninth and the tenth line behind the block coefficient: a reader counts.
    Echo(text, "GM, transverse, calculated", units.Length, hull.Gm);
    Echo(text, "GM, transverse, used", units.Length, hull.GmUsed);
    Echo(text, "Pitch and yaw radius of gyration", units.Length, listing.Input.PitchRadius);
    Echo(text, "Roll radius of gyration in air", units.Length,
         listing.Results.Inertia.DryRollRadius(hull.Mass));
    Echo(text, "Wetted surface", units.Area, hull.WettedSurface);
    ListFrequencies(listing);
    text.EmptyLine();
}

void ListSections(CListing& listing)
{
    const CHullCondition& hull = listing.Results.Hull;
    const COutputUnits& units = listing.Units;
    CListingText& text = listing.Text;
    const std::string length = units.Length.InBrackets();
    text.Line(" SECTIONAL PROPERTIES");
    text.EmptyLine();
    text.Line("   X is measured from the centre of gravity, positive forward");
    text.EmptyLine();
    text.Line("   Station           X       Beam      Draft         Area   Area coefficient");
    text.Right(length, 21).Right(length, 11).Right(length, 11).Right(units.Area.InBrackets(), 13).End();
    for (int station = 0; station < hull.StationCount(); ++station)
    {
        const CSection& section = hull.Sections[static_cast<std::size_t>(station)];
        const double rectangle = section.Beam * section.Draft;
        text.Integer(station, 8)
            .Number(units.Length.Of(hull.X(station)), 13, 4)
            .Number(units.Length.Of(section.Beam), 11, 4)
            .Number(units.Length.Of(section.Draft), 11, 4)
            .Number(units.Area.Of(section.Area), 13, 4)
            .Number(rectangle > 0 ? section.Area / rectangle : 0, 11, 5)
            .End();
    }
    text.EmptyLine();
}

} // namespace oe7
