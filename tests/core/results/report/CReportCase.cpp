#include "tests/core/results/report/CReportCase.h"

#include "core/results/CalculatedSection.h"

#include <gtest/gtest.h>

#include <cstring>
#include <numeric>
#include <sstream>

namespace
{
/// A number whose digits are the indices, counted from 1: 2.134.
float Place(int units, int tenths, int hundredths, int thousandths)
{
    const int number = 1000 * (units + 1) + 100 * (tenths + 1) + 10 * (hundredths + 1) + thousandths + 1;
    return static_cast<float>(number) / 1000.0F;
}

/// Writes the speed blocks of the calculated section.
class CBlockWriter
{
public:
    CBlockWriter(CResults& results, bool breakdown) : m_results(results), m_breakdown(breakdown) {}

    void Write()
    {
        m_results.Bytes.clear();
        m_results.SpeedBlocks = 0;
        const CResultsBody& body = m_results.Body;
        for (int speed = 0; speed < m_results.Control.SpeedCount; ++speed)
        {
            for (int seaway = 0; seaway < body.SeawayCount; ++seaway)
            {
                for (int heading = 0; seaway == 0 && heading < body.HeadingCount; ++heading)
                {
                    WriteHeading(speed, heading);
                }
                WriteLoads();
            }
        }
    }

private:
    void WriteHeading(int speed, int heading)
    {
        const int output = m_results.Input->OUTRAO.Integer();
        if (m_results.Body.Headings[static_cast<std::size_t>(heading)] > 180 || output < 1)
        {
            return;
        }
        Float(0.1F * static_cast<float>(speed + 1) + 0.001F * static_cast<float>(heading));
        for (int frequency = 0; frequency < m_results.Body.FreqCount; ++frequency)
        {
            Float(10 + Place(speed, heading, 0, frequency));
            Float(20 + Place(speed, heading, 0, frequency));
        }
        if (output == 2)
        {
            WriteDamping(speed, heading);
        }
    }

    void WriteDamping(int speed, int heading)
    {
        for (const float constant : {0.5F, 2.0e9F, 3.0e9F})
        {
            Float(constant * static_cast<float>(speed + 1) + static_cast<float>(heading));
        }
        // Encounter frequency 0, roll angle 1, total 2, wave 3, lift 4, eddy 5, skin 6, keel 7, foil 8,
        // mass 9.
        Rows(speed, heading, 10, 100);
        Integer(m_breakdown ? 26 : 27);
        if (m_breakdown)
        {
            Rows(speed, heading, 3 + LiftAppendages(m_results.Control), 200);
            Rows(speed, heading, 3 + ViscousAppendages(m_results.Control), 300);
        }
    }

    /// Numbers "100.xxx", "101.xxx" in the columns, for heading and frequency.
    void Rows(int speed, int heading, int columns, int base)
    {
        for (int frequency = 0; frequency < m_results.Body.FreqCount; ++frequency)
        {
            for (int column = 0; column < columns; ++column)
            {
                Float(static_cast<float>(base + column) +
                      static_cast<float>(100 * (speed + 1) + 10 * (heading + 1) + frequency % 10) / 1000.0F);
            }
        }
    }

    void WriteLoads()
    {
        const int stations =
            m_results.Head.SpectrumKind == kSpectrumRegular ? 0 : m_results.Head.LoadStationCount;
        const int headings = IsDirectional(m_results.Head.SpectrumKind) ? 24 : m_results.Body.HeadingCount;
        for (int k = 0; k < stations * headings * 10; ++k)
        {
            Float(0);
        }
    }

    void Float(float value)
    {
        char bytes[sizeof value];
        std::memcpy(bytes, &value, sizeof value);
        m_results.Bytes.append(bytes, sizeof value);
    }

    void Integer(int value)
    {
        char bytes[sizeof value];
        std::memcpy(bytes, &value, sizeof value);
        m_results.Bytes.append(bytes, sizeof value);
    }

    CResults& m_results;
    bool m_breakdown;
};

void FillRaos(CResultsBody& body, int speeds, int stations)
{
    body.RaoAmplitude = CHeldArray<4>({speeds, body.HeadingCount, kMotionModes, body.FreqCount});
    body.RaoPhase = body.RaoAmplitude;
    body.LoadRaoAmplitude =
        CHeldArray<5>({speeds, kLoadComponents, stations, body.HeadingCount, body.FreqCount});
    body.LoadRaoPhase = body.LoadRaoAmplitude;
    for (int speed = 0; speed < speeds; ++speed)
    {
        for (int heading = 0; heading < body.HeadingCount; ++heading)
        {
            for (int frequency = 0; frequency < body.FreqCount; ++frequency)
            {
                for (int mode = 0; mode < kMotionModes; ++mode)
                {
                    const float place = Place(speed, heading, mode, frequency);
                    body.RaoAmplitude(speed, heading, mode, frequency) = place;
                    body.RaoPhase(speed, heading, mode, frequency) = -1000 * place;
                }
                for (int k = 0; k < kLoadComponents * stations; ++k)
                {
                    const float place = Place(speed, heading, k, frequency);
                    body.LoadRaoAmplitude(speed, k / stations, k % stations, heading, frequency) = place;
                    body.LoadRaoPhase(speed, k / stations, k % stations, heading, frequency) = -1000 * place;
                }
            }
        }
    }
}

void SetInput(CProjectData& input)
{
    input.ResetKeywords();
    input.NST.Set(5);
    input.LOADFLAG.Set(0);
    input.KG.Set(7.25F);
    input.DRAFTMID.Set(5.5F);
    input.TRIMST.Set(0.25F);
    for (int station = 0; station < 5; ++station)
    {
        input.SECTTN.Set(station, 100.0F * static_cast<float>(station + 1));
        input.SECTKG.Set(station, 5.0F + static_cast<float>(station));
    }
    input.BOWTN.Set(10);
    input.BOWKG.Set(8);
    input.STERNTN.Set(20);
    input.STERNKG.Set(9);
    input.NSEAWAY.Set(2);
    input.NPOS.Set(2);
    input.PositionLabel[0] = "Bow";
    input.WAVESTEEP.Set(0.02F);
}

void SetCalculated(CCalculatedHead& calculated)
{
    calculated.InputGM = 1.5F;
    calculated.Draft = 5.56F;
    calculated.XCG = -2.5F;
    calculated.Displacement = 4321.5F;
    calculated.BlockCoefficient = 0.5678F;
    for (int station = 0; station < 5; ++station)
    {
        const auto step = static_cast<float>(station);
        calculated.Stations.push_back({60 - 30 * step, 10 + step, 5 + 0.1F * step, 0.5F + 0.1F * step});
    }
    CCalculatedHead::CPosition bow;
    bow.Station = 1;
    bow.X = 45;
    bow.Y = 2.5F;
    bow.ZFromBaseline = 12;
    bow.ZFromCG = 4.75F;
    bow.Draft = 5.125F;
    bow.Freeboard = 6.875F;
    calculated.Positions = {bow};
}

void SetBody(CResultsBody& body)
{
    body.LoadStations = {1.0F, 2.5F};
    body.StillWaterWeight = {1000, 2000, 3000, 2000, 1000};
    body.StillWaterBuoyancy = {900, 2100, 3100, 2100, 900};
    body.StillWaterShear = {0, 100000, 250000, -50000, 0};
    body.StillWaterMoment = {0, 1500000, 4000000, 1234567, 0};
    body.PositionCount = 1;
    body.PositionStation = {1};
    body.PositionY = {2.5F};
    body.PositionZ = {12};
    body.SeawayCount = 2;
    body.WaveHeights = {2.0F, 5.0F};
    body.WavePeriods = {8.0F, 10.5F};
    body.FreqCount = 3;
    body.FirstFrequency = 0.2F;
    body.FrequencyStep = 0.1F;
}
} // namespace

CReportCase::CReportCase()
{
    Results.Head.RunStamp = "Mon Nov 03 14:07:52 2008";
    Results.Head.SpectrumKind = kSpectrumBretschneider;
    Results.Head.Length = 120;
    Results.Head.StationCount = 5;
    Results.Head.VerticalCentreOfGravity = 7.25F;
    Results.Head.LoadStationCount = 2;
    Results.Trailer.CalculatedGM = 1.25F;
    Results.ProjectTitle = "Trials";
    Results.GeometryFile = "ship.od7";
    Results.EnvironmentFile = "sea.od7";
    Results.Control.HasMagic = true;
    Results.Control.BilgeKeelCount = 1;
    Results.Control.FinCount = 1;
    Results.Control.PositionCount = 1;
    Results.Control.SpeedCount = 2;
    Results.Control.Speeds = {10.0F, 20.5F};
    Results.Control.HasRudderColumn = 1;
    Results.Control.HasSkegColumn = 1;
    Results.Control.HasAppendageBreakdown = 1;
    Results.Control.KeelColumns = 1;
    Results.Control.FinColumns = 1;
    SetInput(*Results.Input);
    SetCalculated(Results.Calculated);
    SetBody(Results.Body);
    SetHeadings({0, 90, 190});
    Fill();
    SelectAll();
}

void CReportCase::Fill()
{
    FillRaos(Results.Body, Results.Control.SpeedCount, static_cast<int>(Results.Body.LoadStations.size()));
    CBlockWriter(Results, Breakdown).Write();
}

void CReportCase::SetHeadings(const std::vector<float>& headings)
{
    Results.Body.Headings = headings;
    Results.Body.HeadingCount = static_cast<int>(headings.size());
}

void CReportCase::SetSpectrum(int kind)
{
    Results.Head.SpectrumKind = kind;
    Results.Input->SPECTRUM.Set(static_cast<float>(kind));
}

void CReportCase::SetSystems(float input, float output)
{
    Results.Input->INSYS.Set(input);
    Results.Input->OUTSYS.Set(output);
}

void CReportCase::SetRelativeMotion(int kind)
{
    Results.Control.RelMotionKind[0] = kind;
    if (kind >= 1 && kind <= 3)
    {
        Results.Calculated.Duration = 20.0F;
        Results.Calculated.Exceedence = 0.01F;
    }
    if (kind == 1 || (kind == 3 && Results.Control.HasMagic))
    {
        Results.Calculated.Positions[0].FormFactor = 12.5F;
        Results.Calculated.Positions[0].EffectiveWidth = 3.25F;
    }
}

void CReportCase::SelectAll()
{
    const auto all = [](std::vector<int>& selection, std::size_t size)
    {
        selection.resize(size);
        std::iota(selection.begin(), selection.end(), 0);
    };
    all(Project.SelectedSpeeds, Results.Control.Speeds.size());
    all(Project.SelectedHeadings, Results.Body.Headings.size());
    all(Project.SelectedSeaways, Results.Body.WaveHeights.size());
    all(Project.SelectedPositions, Results.Body.LoadStations.size());
}

std::string CReportCase::Section(void (*section)(CReport&)) const
{
    CReport report(Results, Project, Company);
    section(report);
    return report.Page.Text();
}

COneTable::COneTable(int frequencies, bool breakdown)
{
    Breakdown = breakdown;
    Results.Body.FreqCount = frequencies;
    Fill();
    Project.SelectedSpeeds = {0};
    Project.SelectedHeadings = {0};
    Project.SelectedSeaways = {0};
    Project.SelectedPositions = {0};
}

std::vector<std::string> Lines(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
    {
        lines.push_back(line);
    }
    return lines;
}

int CountOf(const std::string& text, const std::string& part)
{
    int count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size()))
    {
        ++count;
    }
    return count;
}

std::string Between(const std::string& text, const std::string& from, const std::string& to)
{
    const std::size_t start = text.find(from);
    EXPECT_NE(start, std::string::npos) << from;
    if (start == std::string::npos)
    {
        return {};
    }
    const std::size_t end = text.find(to, start + from.size());
    EXPECT_NE(end, std::string::npos) << to;
    return text.substr(start + from.size(), end - start - from.size());
}
