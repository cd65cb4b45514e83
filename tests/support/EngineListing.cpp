#include "tests/support/EngineListing.h"

#include "core/engine/EngineWords.h"
#include "core/platform/LineFormat.h"
#include "tests/support/EngineNumbers.h"

#include <algorithm>

namespace
{
using E = EEngineNumber;

/// A caption, a colon and a number.
void Echo(CListingText& text, const std::string& caption, double value, int width, int decimals)
{
    const std::size_t behind = caption.size() < 45 ? 45 - caption.size() : 0;
    text.Add("   ").Add(caption).Add(std::string(behind, ' ')).Add(":").Number(value, width, decimals).End();
}

std::string Unit(const CEngineRun& run, const char* metric, const char* british)
{
    return std::string(" (") + (run.Metric ? metric : british) + ")";
}

void ListInput(CListingText& text, const CEngineRun& run)
{
    text.Line(" OE7   STRIP THEORY SEAKEEPING CALCULATION");
    text.Line(" " + run.Title.substr(0, 80));
    text.Line(" Run of " + run.Stamp);
    text.Line("\n INPUT DATA\n");
    text.Line(std::string("   INSYS, OUTSYS             : ") + (run.MetricInput ? "METRIC " : "BRITISH ") +
              (run.Metric ? "METRIC" : "BRITISH"));
    text.Add("   Wave frequencies (rad/s)  :").Number(static_cast<double>(run.FirstFrequency), 7, 4);
    text.Number(static_cast<double>(run.FrequencyStep), 7, 4).End();
    const char* const captions[] = {"ENFREQMIN (rad/s)", "ENFREQMAX (rad/s)", "DENFREQ (rad/s)"};
    for (std::size_t i = 0; i < 3; ++i)
    {
        Echo(text, captions[i], static_cast<double>(run.EncounterFrequencies[i]), 12, 4);
    }
    text.Line(std::string("   Spectrum                  : ") +
              kSpectrumWords.Of(static_cast<float>(run.Spectrum)));
    text.Line(std::string("   GMFLAG                    : ") + (run.MetacentreGiven ? "GMINPUT" : "GMCOMP"));
    text.Line("   ROLLRGDEF                 : DRYROLLRG");
    Echo(text, run.MetricInput ? "GMUSER (m)" : "GMUSER (ft)", static_cast<double>(run.GivenMetacentre), 12,
         4);
    text.EmptyLine();
}

void ListHull(CListingText& text, const CEngineRun& run)
{
    const std::string length = Unit(run, "m", "ft");
    text.Line(" GENERAL HULL PARAMETERS\n");
    Echo(text, "Displacement condition, draft at midships" + length, MadeUp(kHullDraft), 14, 4);
    Echo(text, "XCG, centre of gravity aft of station 0" + length, MadeUp(kHullCentre), 14, 4);
    Echo(text, "Displacement" + Unit(run, "tonnes", "long tons"), MadeUp(kHullDisplacement), 14, 4);
    Echo(text, "Block coefficient, Cb", MadeUp(E::BlockCoefficient), 14, 4);
    Echo(text, "Length between perpendiculars" + length, static_cast<double>(run.Length), 14, 4);
    Echo(text, "Largest waterline beam" + length, MadeUp(kHullBeam), 14, 4);
    Echo(text, "Trim by the stern" + length, MadeUp(kHullTrim), 14, 4);
    const char* const others[] = {"Waterplane area", "Centre of flotation aft of station 0", "KB",
                                  "BM, transverse"};
    for (int i = 0; i < 4; ++i)
    {
        Echo(text, others[i], MadeUp(E::Other, 3, i), 14, 4);
    }
    Echo(text, "KG" + length, static_cast<double>(run.KeelToGravity), 14, 4);
    Echo(text, "GM, transverse, calculated" + length, MadeUp(E::Metacentre), 14, 4);
    Echo(text, "GM, transverse, used" + length, UsedMetacentre(run), 14, 4);
    text.EmptyLine();
}

void ListSections(CListingText& text, const CEngineRun& run)
{
    text.Line(" SECTIONAL PROPERTIES\n");
    text.Line("   X is measured from the centre of gravity, positive forward\n");
    text.Line("   Station         X       Beam      Draft       Area   Area coefficient");
    text.Line(run.Metric ? "                (m)      (m)      (m)     (m2)"
                         : "               (ft)     (ft)     (ft)    (ft2)");
    for (int station = 0; station < run.StationCount; ++station)
    {
        text.Number(station, 8, 0)
            .Number(MadeUp(E::SectionX, station), 13, 4)
            .Number(MadeUp(E::SectionBeam, station), 11, 4)
            .Number(MadeUp(E::SectionDraft, station), 11, 4)
            .Number(MadeUp(E::SectionArea, station), 13, 4)
            .Number(MadeUp(E::SectionCoefficient, station), 11, 5)
            .End();
    }
    text.EmptyLine();
}

std::string InColumn(const std::string& label)
{
    const std::string listed = ListedLabel(label);
    return "   " + listed + std::string(listed.size() < 22 ? 22 - listed.size() : 1, ' ');
}

void ListPositionRows(CListingText& text, const CEngineRun& run)
{
    for (int i = 0; i < run.PositionCount(); ++i)
    {
        const CEnginePosition& position = run.Positions[static_cast<std::size_t>(i)];
        text.Add(InColumn(position.Label))
            .Number(static_cast<double>(position.Station), 7, 3)
            .Number(MadeUp(E::PositionX, i), 12, 4)
            .Number(static_cast<double>(position.Y), 11, 4)
            .Number(static_cast<double>(position.Z), 11, 4)
            .Number(MadeUp(E::PositionHeight, i), 11, 4)
            .Add("  |")
            .Number(MadeUp(E::PositionDraft, i), 10, 4)
            .Add("  |")
            .Number(MadeUp(E::PositionFreeboard, i), 11, 4)
            .End();
    }
}

/// Those with a method from 1 on, by offsets behind the two others.
void ListSlamPressures(CListingText& text, const CEngineRun& run)
{
    for (const bool byOffsets : {false, true})
    {
        for (int i = 0; i < run.PositionCount(); ++i)
        {
            const CEnginePosition& position = run.Positions[static_cast<std::size_t>(i)];
            const int kind = position.MotionKind;
            if (kind < 1 || kind > 3 || (kind == 2) != byOffsets)
            {
                continue;
            }
            text.Add(InColumn(position.Label))
                .Number(static_cast<double>(position.Station), 7, 3)
                .Add("   ")
                .Add(kSlamWords.Of(static_cast<float>(kind)))
                .Number(MadeUp(E::FormFactor, i), 17, 5)
                .Number(MadeUp(E::EffectiveWidth, i), 15, 5)
                .End();
        }
    }
    text.EmptyLine();
}

void ListPositions(CListingText& text, const CEngineRun& run)
{
    const char* const rule =
        "   ------------------------------------------------------------------------------";
    text.Line(" POSITIONS FOR SEAKEEPING CALCULATIONS\n");
    text.Line("   Label                 Station           X          Y       Z-BL       Z-CG  |     Draft  | "
              " Freeboard");
    text.Line(run.Metric
                  ? "                                        (m)       (m)       (m)       (m)  |      (m)"
                  : "                                       (ft)      (ft)      (ft)      (ft)  |     (ft)");
    text.Line(rule);
    ListPositionRows(text, run);
    text.Line("\n   X and Z-CG from the centre of gravity, Z-BL from the baseline\n");
    Echo(text, "Duration of operation (hours)", static_cast<double>(run.Hours), 11, 4);
    Echo(text, "Slamming exceedence parameter", static_cast<double>(run.Exceedence), 11, 5);
    text.Line("\n   SLAM PRESSURE\n");
    text.Line("   Pressure = form factor x 1/2 x density x (relative velocity)**2");
    text.Line("   Force per unit length = effective width x pressure\n");
    text.Line("   Position              Station   Method        Form factor   Effective width");
    text.Line(run.Metric ? "                                                               (m)"
                         : "                                                              (ft)");
    text.Line(rule);
    ListSlamPressures(text, run);
}

void ListStillWater(CListingText& text, const CEngineRun& run)
{
    constexpr double thousandth = 0.001;
    text.Line(" STILL WATER LOADING\n");
    text.Line(run.Metric
                  ? "   Station     Weight   Buoyancy      Shear     Moment   (kN, kN-m; hogging positive)"
                  : "   Station     Weight   Buoyancy      Shear     Moment   (10^3 lb, 10^3 lb-ft; hogging "
                    "positive)");
    for (int station = 0; station < run.StationCount; ++station)
    {
        text.Number(station, 8, 0)
            .Number(MadeUp(E::Weight, station), 13, 3)
            .Number(MadeUp(E::Buoyancy, station), 13, 3)
            .Number(MadeUp(E::Shear, station) * thousandth, 13, 3)
            .Number(MadeUp(E::Moment, station) * thousandth, 15, 3)
            .End();
    }
    text.EmptyLine();
}
} // namespace

std::string ListedLabel(const std::string& label)
{
    std::string listed = label.substr(0, 60);
    for (char& letter : listed)
    {
        const bool blank = letter == ' ' || letter == '\t' || letter == '\r' || letter == '\n';
        letter = blank                            ? '_'
                 : letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a')
                                                  : letter;
    }
    return listed;
}

void ListHead(CListingText& text, const CEngineRun& run)
{
    ListInput(text, run);
    ListHull(text, run);
    ListSections(text, run);
    if (run.PositionCount() > 0)
    {
        ListPositions(text, run);
    }
    if (run.Loads)
    {
        ListStillWater(text, run);
    }
}

std::string EngineListing(const CEngineRun& run)
{
    CListingText text;
    ListHead(text, run);
    for (int speed = 0; speed < run.SpeedCount(); ++speed)
    {
        text.Add(" SPEED ").Number(static_cast<double>(run.Speeds[static_cast<std::size_t>(speed)]), 0, 2);
        text.Line(" KNOTS\n");
        if (run.OutputLevel > 0)
        {
            ListRegularWaves(text, run, speed);
        }
        for (int seaway = 0; seaway < run.SeawayCount() && !run.Regular(); ++seaway)
        {
            ListSeaway(text, run, speed, seaway);
        }
    }
    text.Line(" END OF CALCULATION");
    return text.Take();
}
