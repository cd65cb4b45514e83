#include "tests/support/EngineListing.h"
#include "tests/support/EngineNumbers.h"

#include <array>

namespace
{
using E = EEngineNumber;

constexpr int kLiftTableColumns = 15;
constexpr int kViscousTableColumns = 14;
/// The modes of a row of motions, by their number in the binary file.
constexpr std::array<int, 6> kListedModes = {2, 4, 3, 0, 1, 5};

/// A table of one speed and heading.
struct CTable
{
    CListingText& Text;
    const CEngineRun& Run;
    int Speed;
    int Heading;
};

/// In five characters.
void EncounterCell(const CTable& table, int frequency)
{
    const double value = EncounterFrequency(table.Run, table.Speed, table.Heading, frequency);
    table.Text.Number(value, 5, value < 9.9995 ? 3 : value < 99.995 ? 2 : 1);
}

/// The encounter frequency and the wavelength by ship length, with the variants of the run.
void LastField(const CTable& table, int frequency)
{
    EncounterCell(table, frequency);
    const double ratio = WavelengthRatio(table.Run, table.Speed, table.Heading, frequency);
    if (frequency == table.Run.OverflowAt)
    {
        table.Text.Add("*******");
    }
    else if (frequency == table.Run.RunTogetherAt)
    {
        const std::string digits = FormatText("%07.*f", ratio < 99.9999 ? 4 : ratio < 999.999 ? 3 : 1, ratio);
        table.Text.Add(digits);
    }
    else
    {
        table.Text.Add(" ").Number(ratio, 11, 4);
    }
    table.Text.End();
}

void MotionTable(const CTable& table)
{
    const CEngineRun& run = table.Run;
    CListingText& text = table.Text;
    text.Line(" SHIP MOTIONS AT CG IN REGULAR WAVES");
    text.Add("   Ship speed ")
        .Number(static_cast<double>(run.Speeds[static_cast<std::size_t>(table.Speed)]), 0, 2);
    text.Line(" knots");
    text.Add("   Sea direction ")
        .Number(static_cast<double>(run.Headings[static_cast<std::size_t>(table.Heading)]), 0, 2)
        .Line(" degrees, 180 degrees are head seas");
    text.Add("   Froude number :").Number(MadeUp(E::Froude, table.Speed, table.Heading), 9, 4).End();
    text.Line(
        "   Amplitudes per wave amplitude A (surge, sway, heave) and per wave slope KA (roll, pitch, yaw)");
    text.Line(
        "   Wave |      Heave     |      Pitch     |      Roll      |      Surge     |      Sway      |      "
        "Yaw       | Enc        WL/L");
    text.Line(
        "   freq |   Amp   Phase  |   Amp   Phase  |   Amp   Phase  |   Amp   Phase  |   Amp   Phase  |   "
        "Amp   Phase  | freq");
    for (int frequency = 0; frequency < run.FrequencyCount; ++frequency)
    {
        text.Add(" ").Number(WaveFrequency(run, frequency), 6, 3);
        for (const int mode : kListedModes)
        {
            text.Add(" |")
                .Number(MadeUp(E::RaoAmplitude, table.Speed, mode, table.Heading, frequency), 8, 4)
                .Add(" ")
                .Number(MadeUp(E::RaoPhase, table.Speed, mode, table.Heading, frequency), 6, 1)
                .Add(" ");
        }
        text.Add(" | ");
        LastField(table, frequency);
    }
    text.EmptyLine();
}

/// What the rows of the three damping tables begin with.
void BeginRow(const CTable& table, int frequency)
{
    table.Text.Add("  ").Number(WaveFrequency(table.Run, frequency), 7, 3).Add(" ");
    EncounterCell(table, frequency);
    table.Text.Add(" ").Number(MadeUp(E::RollAngle, table.Speed, table.Heading, frequency), 8, 3);
}

void Exponential(CListingText& text, const char* caption, double value)
{
    text.Add(caption).Add(FormatText("%14.6e", value)).End();
}

void DampingTable(const CTable& table)
{
    constexpr int components = 7;
    CListingText& text = table.Text;
    text.Line(" ROLL DAMPING");
    Exponential(text, "   Roll natural frequency (rad/s)     :",
                MadeUp(E::RollFrequency, table.Speed, table.Heading));
    Exponential(text, "   Roll stiffness C44                 :",
                MadeUp(E::RollStiffness, table.Speed, table.Heading));
    Exponential(
        text, "   Roll inertia (dry) I44             :", MadeUp(E::RollInertia, table.Speed, table.Heading));
    text.Line(
        "   Coefficients are fractions of critical damping; added mass is a fraction of the dry inertia");
    text.Line("    Wave    Enc    Roll    Total   Wave    Lift    Eddy    Skin    Keels   Foils   |  Added");
    text.Line("    freq   freq   angle                                                           |   mass");
    for (int frequency = 0; frequency < table.Run.FrequencyCount; ++frequency)
    {
        BeginRow(table, frequency);
        for (int component = 0; component < components; ++component)
        {
            text.Add(" ").Number(MadeUp(E::Damping, table.Speed, table.Heading, frequency, component), 8, 5);
        }
        text.Add(" | ").Number(MadeUp(E::AddedMass, table.Speed, table.Heading, frequency), 9, 5).End();
    }
}

/// Zeros stand in the columns behind those of the ship's parts.
void BreakdownTable(const CTable& table, const char* title, E number, int parts, int columns)
{
    CListingText& text = table.Text;
    text.EmptyLine();
    text.Line(title);
    text.Line("   columns: one for each part, zeros");
    text.Line("    Wave  WE     Roll");
    text.Line("    freq         angle");
    for (int frequency = 0; frequency < table.Run.FrequencyCount; ++frequency)
    {
        BeginRow(table, frequency);
        for (int column = 0; column < columns; ++column)
        {
            const double value = MadeUp(number, table.Speed, table.Heading, frequency, column);
            text.Add(" ").Number(column < parts ? value : 0, 9, 6);
        }
        text.End();
    }
}
} // namespace

void ListRegularWaves(CListingText& text, const CEngineRun& run, int speed)
{
    for (int heading = 0; heading < run.HeadingCount(); ++heading)
    {
        if (run.Headings[static_cast<std::size_t>(heading)] > kGreatestReportedHeading)
        {
            break;
        }
        const CTable table{text, run, speed, heading};
        MotionTable(table);
        if (run.OutputLevel > 1)
        {
            DampingTable(table);
            BreakdownTable(table, "   Appendage lift roll damping, fractions of critical", E::LiftDamping,
                           run.LiftColumns(), kLiftTableColumns);
            BreakdownTable(table, "   Appendage viscous roll damping, fractions of critical",
                           E::ViscousDamping, run.ViscousColumns(), kViscousTableColumns);
            text.EmptyLine();
        }
    }
}
