#include "core/engine/EngineWords.h"
#include "tests/support/EngineListing.h"
#include "tests/support/EngineNumbers.h"

namespace
{
using E = EEngineNumber;

// Of a position's motion.
constexpr int kSlamForm = 1;
constexpr int kSlamWedge = 3;
constexpr int kDeckWetness = 4;
constexpr int kEmergence = 5;

/// Rows that tell of one speed, seaway and place, one for each heading.
struct CRows
{
    CListingText& Text;
    const CEngineRun& Run;
    int Speed;
    int Seaway;
    int Place; ///< position or load station

    double Of(E number, int heading, int column = 0) const
    {
        return MadeUp(number, Speed, Seaway, Place, heading, column);
    }
    /// Calls `row(heading)` for what stands behind each heading.
    template <class Row>
    void Write(Row&& row) const
    {
        for (int heading = 0; heading < Run.HeadingCount(); ++heading)
        {
            Text.Number(static_cast<double>(Run.Headings[static_cast<std::size_t>(heading)]), 10, 2);
            row(heading);
            Text.End();
        }
        Text.EmptyLine();
    }
};

void ShipTable(CListingText& text, const CEngineRun& run, int speed, int seaway)
{
    text.Line("   RMS AT CG (displacements; accelerations in g, deg/s2)");
    text.Line("   Heading    Surge     Sway    Heave     Roll    Pitch      Yaw   Rudder Fin/Tank   "
              "accelerations of "
              "the first six");
    CRows{text, run, speed, seaway, 0}.Write(
        [&](int heading)
        {
            for (int mode = 0; mode < kMotionModes; ++mode)
            {
                text.Add(" ").Number(MadeUp(E::Rms, speed, seaway, 0, mode, heading), 8, 4);
            }
            for (int mode = 0; mode < 6; ++mode)
            {
                text.Add(" ").Number(MadeUp(E::Rms, speed, seaway, 2, mode, heading), 9, 4);
            }
        });
}

void BeginPosition(const CRows& rows, const CEnginePosition& position)
{
    CListingText& text = rows.Text;
    text.Line("   " + ListedLabel(position.Label));
    text.Add("   (Label in the line above) position ").Number(rows.Place + 1, 0, 0);
    text.Add(", speed ")
        .Number(static_cast<double>(rows.Run.Speeds[static_cast<std::size_t>(rows.Speed)]), 0, 2);
    text.Add(" knots, seaway ").Number(rows.Seaway + 1, 0, 0).End();
    text.Line("   Heading   vertical                   lateral                    longitudinal");
    rows.Write(
        [&](int heading)
        {
            for (int quantity = 0; quantity < 9; ++quantity)
            {
                text.Add(" ").Number(
                    MadeUp(E::LocalRms, rows.Speed, rows.Seaway, quantity, rows.Place, heading), 8, 4);
            }
        });
}

void Interruptions(const CRows& rows)
{
    rows.Text.Line("   MOTION INTERRUPTIONS, coefficients 0.250 0.170, time 60.0 s");
    rows.Text.Line("   Heading     LFE lat     MII lat    LFE long    MII long   MII total");
    rows.Text.Line("                 (g)                     (g)");
    rows.Write(
        [&](int heading)
        {
            for (int column = 0; column < 5; ++column)
            {
                rows.Text.Add(" ").Number(rows.Of(E::Interruption, heading, column), 11, 5);
            }
        });
}

void Sickness(const CRows& rows, const CEnginePosition& position)
{
    CListingText& text = rows.Text;
    const double given = static_cast<double>(position.Exposure);
    text.Line("   Motion Sickness Incidence");
    text.Line(position.BureauVeritas ? "   Formulation Bureau Veritas" : "   Formulation Colwell");
    text.Add("   Exposure time is ").Number(position.LongestExposure ? 0 : given, 10, 3);
    text.Line(" hours (0 when it is chosen for the largest incidence)\n");
    text.Line("   Heading      MSI    Exposure");
    text.Line("                (%)     (hours)");
    rows.Write(
        [&](int heading)
        {
            const double exposure = position.LongestExposure ? rows.Of(E::Exposure, heading) : given;
            text.Add(" ").Number(rows.Of(E::Incidence, heading), 10, 4).Add(" ").Number(exposure, 10, 3);
        });
}

/// Two clearances, at zero speed and at speed.
CListingText& Clearances(const CRows& rows, const char* name, int first)
{
    return rows.Text.Add("   ")
        .Add(name)
        .Number(rows.Of(E::Clearance, first), 20 - static_cast<int>(std::string_view(name).size()), 4)
        .Add(" (zero-speed)")
        .Number(rows.Of(E::Clearance, first + 1), 11, 4)
        .Add(" (at-speed)");
}

void RelativeMotion(const CRows& rows, int heading, int events)
{
    rows.Text.Number(rows.Of(E::RelativeMotion, heading, 0), 10, 4)
        .Number(rows.Of(E::RelativeMotion, heading, 1), 10, 4);
    for (int event = 0; event < events; ++event)
    {
        rows.Text.Add(" ")
            .Number(rows.Of(E::Probability, heading, event), 9, 6)
            .Add(" ")
            .Number(rows.Of(E::Rate, heading, event), 10, 4);
    }
}

void Slamming(const CRows& rows, int kind)
{
    CListingText& text = rows.Text;
    text.Line(std::string("   SLAMMING AND WETNESS OF THE DECK, ") + kSlamWords.Of(static_cast<float>(kind)));
    Clearances(rows, "Freeboard", 0).Line("   Draft in the next line");
    Clearances(rows, "Draft", 2).End();
    text.Line("\n            Relative  Relative  Deck wetness        Keel emergence      Slamming            "
              "Pressure"
              "              Force");
    text.Line("   Heading      disp      velo   Prob    Rate/hr      Prob    Rate/hr      Prob    Rate/hr  "
              "Expected    "
              "Extreme  Expected    Extreme");
    text.Line(rows.Run.Metric ? "               (m)    (m/s)" : "              (ft)   (ft/s)");
    rows.Write(
        [&](int heading)
        {
            RelativeMotion(rows, heading, 3);
            for (int column = 0; column < 2; ++column)
            {
                text.Add(" ").Number(rows.Of(E::Pressure, heading, column), 10, 3);
            }
            for (int column = 0; column < 2; ++column)
            {
                text.Add(" ").Number(rows.Of(E::Force, heading, column), 12, 2);
            }
        });
}

void WetnessOrEmergence(const CRows& rows, bool wetness)
{
    CListingText& text = rows.Text;
    text.Line(wetness ? "   DECK WETNESS" : "   EMERGENCE");
    Clearances(rows, wetness ? "Freeboard" : "Depth", 0).End();
    text.Line(wetness ? "\n            Relative  Relative  Wetness"
                      : "\n            Relative  Relative  Emergence");
    text.Line("   Heading      disp      velo   Prob     Rate/hr");
    text.Line(rows.Run.Metric ? "               (m)    (m/s)" : "              (ft)   (ft/s)");
    rows.Write([&](int heading) { RelativeMotion(rows, heading, 1); });
}

void Position(const CRows& rows)
{
    const CEnginePosition& position = rows.Run.Positions[static_cast<std::size_t>(rows.Place)];
    BeginPosition(rows, position);
    if (position.Interruptions)
    {
        Interruptions(rows);
    }
    if (position.Sickness)
    {
        Sickness(rows, position);
    }
    if (position.MotionKind >= kSlamForm && position.MotionKind <= kSlamWedge)
    {
        Slamming(rows, position.MotionKind);
    }
    else if (position.MotionKind == kDeckWetness || position.MotionKind == kEmergence)
    {
        WetnessOrEmergence(rows, position.MotionKind == kDeckWetness);
    }
}

void Loads(const CRows& rows)
{
    CListingText& text = rows.Text;
    const CEngineRun& run = rows.Run;
    text.Add("   RMS Sea Loads at Station")
        .Number(static_cast<double>(run.LoadStations[static_cast<std::size_t>(rows.Place)]), 7, 2);
    text.Add("   speed ").Number(static_cast<double>(run.Speeds[static_cast<std::size_t>(rows.Speed)]), 0, 2);
    text.Add(" knots, seaway ").Number(rows.Seaway + 1, 0, 0).End();
    text.Add("\n   Values: RMS, twice the RMS, zero-crossing period Tz (s).  ");
    text.Line(run.Metric ? "Forces in kN, moments in kN-m\n" : "Forces in 10^3 lb, moments in 10^3 ft-lb\n");
    text.Line("               Horizontal shear              Vertical shear                     Torsion       "
              "       "
              "Vertical bending            Horizontal bending");
    text.Line("   Heading         RMS         SIG     Tz         RMS         SIG     Tz         RMS         "
              "SIG     Tz  "
              "       RMS         SIG     Tz         RMS         SIG     Tz");
    text.Line("   -------");
    rows.Write(
        [&](int heading)
        {
            for (int component = 0; component < kLoadComponents; ++component)
            {
                const double rms =
                    MadeUp(E::LoadRms, rows.Speed, rows.Seaway, component, rows.Place, heading);
                const double period =
                    MadeUp(E::LoadPeriod, rows.Speed, rows.Seaway, component, rows.Place, heading);
                text.Number(rms, 12, 3).Add(" ").Number(2 * rms, 11, 3).Number(period, 7, 2);
            }
        });
}
} // namespace

void ListSeaway(CListingText& text, const CEngineRun& run, int speed, int seaway)
{
    const CEngineSeaway& sea = run.Seaways[static_cast<std::size_t>(seaway)];
    text.Add(" IRREGULAR SEAWAY ").Number(seaway + 1, 0, 0);
    text.Add("   significant height ").Number(static_cast<double>(sea.Height), 0, 3);
    text.Add(run.Metric ? " m" : " ft")
        .Add(", period ")
        .Number(static_cast<double>(sea.Period), 0, 3)
        .Line(" s\n");
    ShipTable(text, run, speed, seaway);
    for (int position = 0; position < run.PositionCount(); ++position)
    {
        Position({text, run, speed, seaway, position});
    }
    for (int station = 0; station < run.LoadStationCount(); ++station)
    {
        Loads({text, run, speed, seaway, station});
    }
}
