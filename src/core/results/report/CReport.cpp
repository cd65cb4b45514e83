#include "core/results/report/CReport.h"

#include "core/project/UnitFactors.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>
#include <utility>

namespace
{
constexpr int kMetric = 1; ///< of INSYS and OUTSYS
constexpr int kBritish = 0;

constexpr float kLeastVelocity = 0.0001F;
constexpr float kCircle = 6.2832F;
constexpr float kHalfCircle = 3.14159F;

/// The indices of a selection that a table of `size` entries has.
std::vector<int> Within(const std::vector<int>& selection, std::size_t size)
{
    std::vector<int> indices;
    for (const int index : selection)
    {
        if (index >= 0 && static_cast<std::size_t>(index) < size)
        {
            indices.push_back(index);
        }
    }
    return indices;
}

/// A time stamp without its seconds and what follows them: its first two pieces between colons.
std::string ShortStamp(std::string_view stamp)
{
    std::string text;
    for (int piece = 0; piece < 2; ++piece)
    {
        const std::size_t start = stamp.find_first_not_of(':');
        if (start == std::string_view::npos)
        {
            break;
        }
        stamp.remove_prefix(start);
        const std::size_t length = std::min(stamp.find(':'), stamp.size());
        text += piece > 0 ? ":" : "";
        text += stamp.substr(0, length);
        stamp.remove_prefix(length);
    }
    return text;
}

/// The factor that takes a value from the input system to the output system; 1 within one system.
float OutputFactor(const CProjectData& input, float toBritish, float toMetric)
{
    const int from = input.INSYS.Integer();
    const int to = input.OUTSYS.Integer();
    if (from == kMetric && to == kBritish)
    {
        return toBritish;
    }
    return from == kBritish && to == kMetric ? toMetric : 1.0F;
}
} // namespace

const char* SpectrumName(int kind)
{
    constexpr std::array<const char*, 9> names = {"REGULAR",
                                                  "Quadratic Regression",
                                                  "Bretschneider",
                                                  "JONSWAP",
                                                  "Ochi & Hubble",
                                                  "Measured Uni-Directional",
                                                  "Ten Parameter Directional",
                                                  "ODGP Hindcast",
                                                  "Measured Directional"};
    const bool known = kind >= 0 && static_cast<std::size_t>(kind) < names.size();
    return known ? names[static_cast<std::size_t>(kind)] : "";
}

CReport::CReport(const CResults& results, const CProjectData& project, const std::string& company,
                 CTextSink sink)
    : Page(std::move(sink)),
      Results(results),
      m_countsFromStern(project.StationOrigin != 0),
      m_speeds(Within(project.SelectedSpeeds, results.Control.Speeds.size())),
      m_headings(Within(project.SelectedHeadings, results.Body.Headings.size())),
      m_seaways(Within(project.SelectedSeaways, results.Body.WaveHeights.size())),
      m_positions(Within(project.SelectedPositions, results.Body.LoadStations.size())),
      m_company(company)
{
}

void CReport::BeginSection(const char* anchor, EBanner banner)
{
    Anchor(anchor);
    Page.WriteLine("");
    Page.WriteLine("");
    Banner(banner);
}

void CReport::Anchor(const std::string& name)
{
    Page.WriteLine(R"(<a NAME="%s"></a>)", name);
}

void CReport::SpeedAnchor(const char* prefix, std::size_t place)
{
    Page.WriteLine(R"(<a NAME="%s%i"></a>)", prefix, static_cast<int>(place) + 1);
}

void CReport::Banner(EBanner kind)
{
    switch (kind)
    {
    case kBannerHydrostatics:
        Page.WriteLine("<CENTER><B>HYDROSTATICS SUMMARY</B></CENTER>");
        break;
    case kBannerEnvironment:
        Page.WriteLine("<CENTER><B>ENVIRONMENTAL SUMMARY</B></CENTER>");
        break;
    case kBannerMotionRao:
        Page.WriteLine("<CENTER><B>REGULAR SEAS RESPONSE: MOTION RAO</B></CENTER>");
        break;
    case kBannerRollDamping:
        Page.WriteLine("<CENTER><B>REGULAR SEAS RESPONSE: ROLL DAMPING COEFFICIENTS</B></CENTER>");
        break;
    case kBannerLoadRao:
        Page.WriteLine("<CENTER><B>REGULAR SEAS RESPONSE: LOAD RAO AT SPECIFIED LOCATIONS</B></CENTER>");
        break;
    case kBannerRms:
        Page.WriteLine("<CENTER><B>IRREGULAR SEAS RESPONSE: RMS RESPONSES - %s</B></CENTER>", SeasName());
        break;
    case kBannerRmsLoads:
        Page.WriteLine("<CENTER><B>IRREGULAR SEAS RESPONSE: RMS LOADS - %s</B></CENTER>", SeasName());
        break;
    case kBannerSlamming:
        Page.WriteLine("<CENTER><B>IRREGULAR SEAS RESPONSE  -  Slamming And Deck Wetness</B></CENTER>");
        break;
    case kBannerMotionInterruption:
        Page.WriteLine("<CENTER><B>IRREGULAR SEAS RESPONSE  -  Motion Interruption Index</B></CENTER>");
        break;
    }
    CompanyLines();
    FileNameLines("&nbsp&nbsp&nbsp");
}

void CReport::NextPage(EBanner kind)
{
    Page.PageBreak();
    Banner(kind);
}

void CReport::CompanyLines()
{
    Page.WriteLine("<CENTER><I>%s</CENTER></I>", m_company);
    Page.WriteLine("<CENTER>%s</CENTER><BR>", ShortStamp(Results.Head.RunStamp));
    Page.WriteLine("<CENTER>%s</CENTER><BR>", Results.ProjectTitle);
}

void CReport::FileNameLines(const char* gap)
{
    Page.WriteLine("Input Geometry File:%s <I>%s</I><BR>", gap, Results.GeometryFile);
    Page.WriteLine("Input Environment File:%s <I>%s</I><BR><BR>", gap, Results.EnvironmentFile);
}

std::vector<int> CReport::HeadingsTo180() const
{
    std::vector<int> headings;
    for (const int heading : m_headings)
    {
        if (Results.Body.Headings[static_cast<std::size_t>(heading)] <= kGreatestReportedHeading)
        {
            headings.push_back(heading);
        }
    }
    return headings;
}

float CReport::StationLabel(float station) const
{
    return ::StationLabel(station, Results.Head.StationCount, m_countsFromStern);
}

int CReport::StationLabel(int station) const
{
    return ::StationLabel(station, Results.Head.StationCount, m_countsFromStern);
}

bool CReport::MetricOutput() const
{
    return Results.Input->OUTSYS.Integer() == kMetric;
}

float CReport::LengthOut(float value) const
{
    return value * OutputFactor(*Results.Input, kFeetPerMetre, kMetresPerFoot);
}

float CReport::MassOut(float value) const
{
    return value * OutputFactor(*Results.Input, kLongTonsPerTonne, kTonnesPerLongTon);
}

const char* CReport::SeasName() const
{
    if (IsShortCrested())
    {
        return "Short-Crested Seas";
    }
    return IsDirectional(Results.Head.SpectrumKind) ? "Directional Seas" : "Unidirectional Seas";
}

int CReport::SeaStateOf(int seaway) const
{
    const float height = Results.Body.WaveHeights[static_cast<std::size_t>(seaway)];
    return SeaState(static_cast<double>(MetricOutput() ? height : height * kMetresPerFoot));
}

float CReport::WaveSlope() const
{
    return Results.Input->WAVESTEEP.Value() * kHalfCircle;
}

const std::string& CReport::PositionLabel(int position) const
{
    return Results.Input->PositionLabel[static_cast<std::size_t>(position)];
}

float CReport::ZeroCrossingPeriod(float displacement, float velocity)
{
    return velocity >= kLeastVelocity ? displacement * kCircle / velocity : 0.0F;
}
