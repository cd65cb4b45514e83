// Slamming, deck wetness and emergence of a position.
#include "oe7/input/InputFile.h"
#include "oe7/output/ListingParts.h"

namespace oe7
{
namespace
{
constexpr int kRelativeDisplacement = 9; ///< in CPositionAtHeading::Local; behind it the velocity

class CWaterEventTable
{
public:
    CWaterEventTable(CListing& listing, const CPositionGeometry& geometry,
                     const std::vector<CPositionAtHeading>& headings)
        : m_listing(listing),
          m_text(listing.Text),
          m_geometry(geometry),
          m_headings(headings)
    {
    }

    void Slamming(EWaterEvent event);
    void Wetness();
    void Emergence();

private:
    /// A height at zero speed and at speed.
    CListingText& Clearance(std::string_view name, double atRest, double atSpeed);
    void Units();
    void RelativeMotion(const CPositionAtHeading& at);
    void Chance(double probability, double rate);
    void OneEvent(std::string_view name, double CPositionAtHeading::*probability,
                  double CPositionAtHeading::*rate);

    CListing& m_listing;
    CListingText& m_text;
    const CPositionGeometry& m_geometry;
    const std::vector<CPositionAtHeading>& m_headings;
};

CListingText& CWaterEventTable::Clearance(std::string_view name, double atRest, double atSpeed)
{
    const CUnit& length = m_listing.Units.Length;
    return m_text.Add("   ")
        .Left(name, 10)
        .Number(length.Of(atRest), 10, 4)
        .Add(" (zero-speed)")
        .Number(length.Of(atSpeed), 11, 4)
        .Add(" (at-speed)");
}

void CWaterEventTable::Units()
{
    m_text.Right(m_listing.Units.Length.InBrackets(), 20).Right(m_listing.Units.Velocity.InBrackets(), 10);
    m_text.End();
}

void CWaterEventTable::RelativeMotion(const CPositionAtHeading& at)
{
    const auto quantity = [&](int index)
    { return m_listing.Units.Local(index, at.Local[static_cast<std::size_t>(index)]); };
    m_text.Number(quantity(kRelativeDisplacement), 10, 4).Number(quantity(kRelativeDisplacement + 1), 10, 4);
}

void CWaterEventTable::Chance(double probability, double rate)
{
    m_text.Add(" ").Number(probability, 9, 6).Add(" ").Number(rate, 10, 4);
}

void CWaterEventTable::Slamming(EWaterEvent event)
{
    const COutputUnits& units = m_listing.Units;
    m_text.Add("   SLAMMING AND WETNESS OF THE DECK, ").Line(EventWord(event));
    Clearance("Freeboard", m_geometry.Freeboard, m_geometry.FreeboardAtSpeed())
        .Line("   Draft in the next line");
    Clearance("Draft", m_geometry.Draft, m_geometry.DraftAtSpeed()).End();
    m_text.EmptyLine();
    m_text.Add(
        "            Relative  Relative  Deck wetness         Keel emergence       Slamming             ");
    m_text.Left("Pressure " + units.Pressure.InBrackets(), 22);
    m_text.Add("Force ").Line(units.ForcePerLength.InBrackets());
    m_text.Line(
        "   Heading      disp      velo   Prob      Rate/hr    Prob      Rate/hr    Prob      Rate/hr   "
        "Expected    Extreme     Expected      Extreme");
    Units();
    m_listing.HeadingRows(
        [&](std::size_t heading)
        {
            const CPositionAtHeading& at = m_headings[heading];
            RelativeMotion(at);
            Chance(at.DeckProbability, at.DeckRate);
            Chance(at.KeelProbability, at.KeelRate);
            Chance(at.SlamProbability, at.SlamRate);
            m_text.Add(" ").Number(units.Pressure.Of(at.ExpectedPressure), 10, 3);
            m_text.Add(" ").Number(units.Pressure.Of(at.ExtremePressure), 10, 3);
            m_text.Add(" ").Number(units.ForcePerLength.Of(at.ExpectedForce), 12, 2);
            m_text.Add(" ").Number(units.ForcePerLength.Of(at.ExtremeForce), 12, 2);
        });
}

void CWaterEventTable::OneEvent(std::string_view name, double CPositionAtHeading::*probability,
                                double CPositionAtHeading::*rate)
{
    m_text.EmptyLine();
    m_text.Add("            Relative  Relative  ").Line(name);
    m_text.Line("   Heading      disp      velo   Prob      Rate/hr");
    Units();
    m_listing.HeadingRows(
        [&](std::size_t heading)
        {
            const CPositionAtHeading& at = m_headings[heading];
            RelativeMotion(at);
            Chance(at.*probability, at.*rate);
        });
}

void CWaterEventTable::Wetness()
{
    m_text.Line("   DECK WETNESS");
    Clearance("Freeboard", m_geometry.Freeboard, m_geometry.FreeboardAtSpeed()).End();
    OneEvent("Wetness", &CPositionAtHeading::DeckProbability, &CPositionAtHeading::DeckRate);
}

void CWaterEventTable::Emergence()
{
    m_text.Line("   EMERGENCE");
    Clearance("Depth", m_geometry.Depth, m_geometry.DepthAtSpeed()).End();
    OneEvent("Emergence", &CPositionAtHeading::EmergenceProbability, &CPositionAtHeading::EmergenceRate);
}
} // namespace

void ListWaterEvent(CListing& listing, const CSpeedResults& speed, std::size_t seaway, std::size_t position)
{
    const EWaterEvent event = listing.Input.Positions[position].Event;
    CWaterEventTable table(listing, speed.Positions[position], speed.Seaways[seaway].Positions[position]);
    switch (event)
    {
    case EWaterEvent::None:
        break;
    case EWaterEvent::DeckWetness:
        table.Wetness();
        break;
    case EWaterEvent::Emergence:
        table.Emergence();
        break;
    case EWaterEvent::SlamForm:
    case EWaterEvent::SlamOffset:
    case EWaterEvent::SlamWedge:
        table.Slamming(event);
        break;
    }
}

} // namespace oe7
