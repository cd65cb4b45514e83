#include "oe7/output/ListingParts.h"

#include <algorithm>

namespace oe7
{
namespace
{
// Columns of the breakdown tables, whatever parts the ship has: readers may expect those of parts that aren't
// used.
constexpr std::size_t kLiftColumns = 15;
constexpr std::size_t kViscousColumns = 14;

/// What makes a damping a fraction of the critical one.
double PerCritical(const CResults& results)
{
    return results.Inertia.RollFrequency / (2 * results.Hull.C44);
}

/// What the rows of the three tables begin with.
CListingText& BeginRow(CListing& listing, const CDirectionResults& direction, std::size_t frequency)
{
    return listing.Text.Add("  ")
        .Number(listing.Results.Frequencies.Output[frequency], 7, 3)
        .Add(" ")
        .Encounter(direction.Encounter[frequency])
        .Add(" ")
        .Number(direction.Damping[frequency].RollAngle / kDegree, 8, 3);
}

void ListComponents(CListing& listing, const CDirectionResults& direction)
{
    const double perCritical = PerCritical(listing.Results);
    CListingText& text = listing.Text;
    text.Line("     Wave   Enc     Roll    Total     Wave     Lift     Eddy     Skin    Keels    Foils |     "
              "Added");
    text.Line("     freq  freq    angle" + std::string(63, ' ') + " |      mass");
    for (std::size_t frequency = 0; frequency < direction.Damping.size(); ++frequency)
    {
        const CDampingRow& row = direction.Damping[frequency];
        const CRollComponents& parts = row.Components;
        const double total = row.Wave + parts.Lift() + parts.Eddy + parts.Skin + parts.Keels + parts.Foils;
        BeginRow(listing, direction, frequency);
        for (const double damping :
             {total, row.Wave, parts.Lift(), parts.Eddy, parts.Skin, parts.Keels, parts.Foils})
        {
            text.Add(" ").Number(damping * perCritical, 8, 5);
        }
        text.Add(" | ").Number(row.AddedMass / listing.Results.Inertia.I44, 9, 5).End();
    }
}

struct CBreakdown
{
    const char* Title;
    const std::vector<std::string>& Names;
    std::vector<double> CDampingRow::*Values;
    std::size_t Columns;
};

/// Zeros stand in the columns behind those of the ship's parts.
void ListBreakdown(CListing& listing, const CDirectionResults& direction, const CBreakdown& table)
{
    const double perCritical = PerCritical(listing.Results);
    CListingText& text = listing.Text;
    text.EmptyLine();
    text.Add("   ").Line(table.Title);
    text.Add("   columns: ");
    for (const std::string& name : table.Names)
    {
        text.Add(name).Add(" ");
    }
    text.Line("zeros");
    text.Line("     Wave    WE     Roll");
    text.Line("     freq          angle");
    for (std::size_t frequency = 0; frequency < direction.Damping.size(); ++frequency)
    {
        const std::vector<double>& values = direction.Damping[frequency].*table.Values;
        BeginRow(listing, direction, frequency);
        for (std::size_t column = 0; column < table.Columns; ++column)
        {
            text.Add(" ").Number(column < values.size() ? values[column] * perCritical : 0, 9, 6);
        }
        text.End();
    }
}
} // namespace

void ListRollDamping(CListing& listing, const CDirectionResults& direction)
{
    const CResults& results = listing.Results;
    const COutputUnits& units = listing.Units;
    CListingText& text = listing.Text;
    const auto constant = [&text](const std::string& caption, double value)
    { text.Add("   ").Left(caption, 35).Add(":").Exponential(value, 15).End(); };
    text.Line(" ROLL DAMPING");
    constant("Roll natural frequency (rad/s)", results.Inertia.RollFrequency);
    constant("Roll stiffness C44 " + units.Moment.InBrackets(), units.Moment.Of(results.Hull.C44));
    constant("Roll inertia (dry) I44 " + units.Inertia.InBrackets(), units.Inertia.Of(results.Inertia.I44));
    text.Line(
        "   Coefficients are fractions of critical damping; added mass is a fraction of the dry inertia");
    ListComponents(listing, direction);
    ListBreakdown(listing, direction,
                  {"Appendage lift roll damping, fractions of critical", results.LiftColumns,
                   &CDampingRow::AppendageLift, kLiftColumns});
    ListBreakdown(listing, direction,
                  {"Appendage viscous roll damping, fractions of critical", results.ViscousColumns,
                   &CDampingRow::AppendageViscous, kViscousColumns});
    text.EmptyLine();
}

} // namespace oe7
