// What every section of the output report works with: the page that it writes to, the results, the user's
// selection, and the rules that all sections share.
#pragma once

#include "core/project/CProjectData.h"
#include "core/results/CResults.h"
#include "core/results/report/CHtmlPage.h"

#include <string>
#include <vector>

/// Sections of the output report, in the order in which they are written.
enum EReportSection
{
    kSectionHydrostatics,
    kSectionEnvironment,
    kSectionMotionRao,
    kSectionRollDamping,
    kSectionLoadRao,
    kSectionRms,
    kSectionRmsShortCrested,
    kSectionRmsLoads,
    kSectionSlamming,
    kSectionMotionInterruption,
    kSectionMotionSickness,
    kReportSectionCount
};

/// Banner of a section; the numbers are the banner kinds.
enum EBanner
{
    kBannerHydrostatics = 1,
    kBannerEnvironment,
    kBannerMotionRao,
    kBannerRollDamping,
    kBannerLoadRao,
    kBannerRms,
    kBannerRmsLoads,
    kBannerSlamming,
    kBannerMotionInterruption
};

/// The name under which reports show a spectrum; empty for an unknown one.
const char* SpectrumName(int kind);

/// A station of a hull of `stationCount` stations, numbered from the end that is wanted.
template <class Number>
constexpr Number StationLabel(Number station, int stationCount, bool fromStern)
{
    return fromStern ? static_cast<Number>(stationCount - 1) - station : station;
}

class CReport
{
public:
    /// `project` is the project at hand, of which a report takes `StationOrigin` and the four selection lists
    /// and nothing else. Indices that the results don't have are left out. The sink is the page's.
    CReport(const CResults& results, const CProjectData& project, const std::string& company,
            CTextSink sink = {});

    CHtmlPage Page;
    const CResults& Results;

    // Frame.
    /// The anchor of a section, two empty lines, the banner.
    void BeginSection(const char* anchor, EBanner banner);
    void Anchor(const std::string& name);
    /// The anchor of a selected speed, "RaoSpeed%i": `place` in the selection, from 0.
    void SpeedAnchor(const char* prefix, std::size_t place);
    void Banner(EBanner kind);
    /// A page break and the banner.
    void NextPage(EBanner kind);
    /// The lines of a banner behind its title: company, run stamp and project title ...
    void CompanyLines();
    /// ... then the two input files, with `gap` ("&nbsp&nbsp&nbsp") before each name.
    void FileNameLines(const char* gap);

    // Selection.
    const std::vector<int>& Speeds() const { return m_speeds; }
    const std::vector<int>& Headings() const { return m_headings; }
    const std::vector<int>& Seaways() const { return m_seaways; }
    const std::vector<int>& Positions() const { return m_positions; }
    /// The selected headings of at most 180 degrees, in the order of the selection.
    std::vector<int> HeadingsTo180() const;

    // Stations.
    bool CountsFromStern() const { return m_countsFromStern; }
    /// A station as it is printed: numbered from the end that the project at hand names.
    float StationLabel(float station) const;
    int StationLabel(int station) const;

    // Units.
    bool MetricOutput() const;
    const char* Length() const { return MetricOutput() ? "meters" : "feet"; } ///< behind a number
    const char* Mass() const { return MetricOutput() ? "tonnes" : "LT"; }
    const char* ShortLength() const { return MetricOutput() ? "m" : "ft"; } ///< in the head of a column
    const char* Area() const { return MetricOutput() ? "m^2" : "ft^2"; }
    /// A value of the input, from the run's input system to its output system; single precision.
    float LengthOut(float value) const;
    float MassOut(float value) const;

    // Seas.
    /// "Short-Crested Seas", "Directional Seas" or "Unidirectional Seas".
    const char* SeasName() const;
    bool IsShortCrested() const { return Results.Head.SpreadAngle > 0; }
    /// Of a seaway of the file.
    int SeaStateOf(int seaway) const;
    /// Slope of the regular waves: steepness x 3.14159, in single precision.
    float WaveSlope() const;

    /// Label of a position, from the run's input.
    const std::string& PositionLabel(int position) const;
    /// RMS zero-crossing period in seconds: 0 for a velocity below 0.0001 or one that is no number.
    static float ZeroCrossingPeriod(float displacement, float velocity);

private:
    bool m_countsFromStern;
    std::vector<int> m_speeds;
    std::vector<int> m_headings;
    std::vector<int> m_seaways;
    std::vector<int> m_positions;
    std::string m_company;
};

// The section writers. Each ends with the link to the contents.
void HydrostaticsSection(CReport& report);
void EnvironmentSection(CReport& report);
void MotionRaoSection(CReport& report);
void RollDampingSection(CReport& report);
void LoadRaoSection(CReport& report);
void RmsSection(CReport& report);
void RmsLoadsSection(CReport& report);
void SlammingSection(CReport& report);
void MotionInterruptionSection(CReport& report);
void MotionSicknessSection(CReport& report);
