#include "oe7/output/ListingParts.h"

#include <cmath>

namespace oe7
{
namespace
{
/// What the masses along the ship give beside what the motions are calculated with.
class CComparison
{
public:
    explicit CComparison(CListing& listing) : m_text(listing.Text) {}

    void Line(const std::string& caption, const CUnit& unit, double ofMasses, std::string_view other,
              double used)
    {
        m_text.Add("   ").Left(caption + " " + unit.InBrackets(), 55).Number(unit.Of(ofMasses), 13, 4);
        m_text.Add(", ").Add(other).Number(unit.Of(used), 13, 4).End();
    }

private:
    CListingText& m_text;
};

double Radius(double moment, double mass)
{
    return mass > 0 && moment > 0 ? std::sqrt(moment / mass) : 0;
}

void CompareMasses(CListing& listing)
{
    const CHullCondition& hull = listing.Results.Hull;
    const CMassMoments& masses = listing.Results.Masses.value();
    const CUnit& length = listing.Units.Length;
    const double centre = hull.Length / 2 - hull.Xg;
    const double offCentre = masses.M0 > 0 ? masses.M1 / masses.M0 : 0;
    CComparison comparison(listing);
    comparison.Line("Total mass", listing.Units.Mass, masses.M0, "displacement", hull.Mass);
    comparison.Line("Centre of the sectional masses aft of station 0", length, centre - offCentre,
                    "centre used", centre);
    comparison.Line("Pitch radius of the sectional masses", length, Radius(masses.M2, masses.M0),
                    "radius used", listing.Input.PitchRadius);
    comparison.Line("Roll radius of the sectional masses", length, Radius(masses.Mk, masses.M0),
                    "radius used", listing.Results.Inertia.DryRollRadius(hull.Mass));
}
} // namespace

void ListStillWater(CListing& listing)
{
    const COutputUnits& units = listing.Units;
    const CStillWater& still = listing.Results.StillWater.value();
    CListingText& text = listing.Text;
    text.Line(" STILL WATER LOADING");
    text.EmptyLine();
    CompareMasses(listing);
    text.EmptyLine();
    text.Add("   Station       Weight     Buoyancy        Shear         Moment   (");
    text.Add(units.LargeForce.Name).Add(", ").Add(units.LargeMoment.Name).Line("; hogging positive)");
    for (std::size_t station = 0; station < still.Weight.size(); ++station)
    {
        text.Integer(static_cast<int>(station), 8)
            .Number(units.LargeForce.Of(still.Weight[station]), 15, 3)
            .Number(units.LargeForce.Of(still.Buoyancy[station]), 13, 3)
            .Number(units.LargeForce.Of(still.Shear[station]), 13, 3)
            .Number(units.LargeMoment.Of(still.Moment[station]), 15, 3)
            .End();
    }
    text.EmptyLine();
}

} // namespace oe7
