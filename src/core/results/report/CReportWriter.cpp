#include "core/results/report/CReportWriter.h"

#include "core/platform/CReplacementFile.h"
#include "core/platform/CWaitCursor.h"
#include "core/platform/FileErrors.h"
#include "core/results/CResultsCursor.h"
#include "core/results/ResultsErrors.h"
#include "core/results/ResultsFile.h"
#include "core/results/report/ProjectHeader.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace
{
struct CContentsEntry
{
    std::vector<EReportSection> Sections; ///< stands in the contents when one of them is selected
    const char* Entry;
    const char* SpeedAnchor; ///< nullptr for a section without a list of speeds
};

const std::vector<CContentsEntry>& ContentsEntries()
{
    static const std::vector<CContentsEntry> entries = {
        {{kSectionHydrostatics}, R"(<li><a HREF="#Hydro">Hydrostatics Summary</a>)", nullptr},
        {{kSectionEnvironment}, R"(<li><a HREF="#Env">Environmental Summary</a>)", nullptr},
        {{kSectionMotionRao}, R"(<li><a HREF="#Rao">Regular Seas Response: Motion RAO</a>)", "RaoSpeed"},
        {{kSectionRollDamping},
         R"(<li><a HREF="#Roll">Regular Seas Response: Roll Damping Coefficients</a>)",
         "RollSpeed"},
        {{kSectionLoadRao},
         R"(<li><a HREF="#LoadRao">Regular Seas Response: Load RAO at Specified Locations</a>)",
         "LdRaoSpeed"},
        {{kSectionRms, kSectionRmsShortCrested},
         R"(<li><a HREF="#Rms">Irregular Seas Response: RMS Responses</a>)",
         "RmsSpeed"},
        {{kSectionRmsLoads}, R"(<li><a HREF="#RmsLd">Irregular Seas Response: RMS Loads</a>)", "RmsLdSpeed"},
        {{kSectionSlamming},
         R"(<li><a HREF="#Deck">Irregular Seas Response: Slamming And Deck Wetness</a>)",
         "DeckSpeed"},
        {{kSectionMotionInterruption},
         R"(<li><a HREF="#Interrupt">Irregular Seas Response: Motion Interruption Index</a>)",
         "MiiSpeed"},
        {{kSectionMotionSickness},
         R"(<li><a HREF="#MSI">Irregular Seas Response: Motion Sickness Incidence</a>)",
         "MsiSpeed"}};
    return entries;
}

using CSectionWriter = void (*)(CReport&);

/// The writers in the order of EReportSection. The two RMS sections are one.
constexpr std::array<CSectionWriter, kReportSectionCount> kSectionWriters = {
    HydrostaticsSection,  EnvironmentSection, MotionRaoSection, RollDampingSection, LoadRaoSection,
    RmsSection,           RmsSection,         RmsLoadsSection,  SlammingSection,    MotionInterruptionSection,
    MotionSicknessSection};

bool IsSelected(const CReportFlags& flags, EReportSection section)
{
    return flags[static_cast<std::size_t>(section)] == kSectionSelected;
}

bool IsSelected(const CReportFlags& flags, const CContentsEntry& entry)
{
    return std::any_of(entry.Sections.begin(), entry.Sections.end(),
                       [&flags](EReportSection section) { return IsSelected(flags, section); });
}

void WriteSpeedList(CReport& report, const char* anchor)
{
    CHtmlPage& page = report.Page;
    page.WriteLine("<ul>");
    int place = 0;
    for (const int speed : report.Speeds())
    {
        page.WriteLine(R"(<li><a HREF="#%s%i">Speed: %.2f</a>)", anchor, ++place,
                       report.Results.Control.Speeds[static_cast<std::size_t>(speed)]);
    }
    page.WriteLine("</ul>");
}

void WriteContents(CReport& report, const CReportFlags& flags)
{
    CHtmlPage& page = report.Page;
    page.WriteLine(R"(<a NAME="TOC"><B>CONTENTS: OUTPUT DATA</B></a>)");
    page.WriteLine("<ul>");
    for (const CContentsEntry& entry : ContentsEntries())
    {
        if (!IsSelected(flags, entry))
        {
            continue;
        }
        page.WriteLine(entry.Entry);
        if (entry.SpeedAnchor != nullptr)
        {
            WriteSpeedList(report, entry.SpeedAnchor);
        }
    }
    page.WriteLine("</ul>");
}

void WriteSections(CReport& report, const CReportFlags& flags)
{
    bool first = true;
    for (std::size_t section = 0; section < kSectionWriters.size(); ++section)
    {
        if (!IsSelected(flags, static_cast<EReportSection>(section)))
        {
            continue;
        }
        if (!first)
        {
            report.Page.PageBreak();
        }
        first = false;
        kSectionWriters[section](report);
    }
}
} // namespace

void WriteOutputReport(const CResults& results, const CProjectData& project, const CReportFlags& flags,
                       const std::string& company, const CTextSink& sink)
{
    CReport report(results, project, company, sink);
    report.Page.WriteHead("OUTPUT DATA SUMMARY");
    WriteContents(report, flags);
    WriteSections(report, flags);
    report.Page.WriteTail();
    report.Page.Flush();
}

std::string OutputReport(const CResults& results, const CProjectData& project, const CReportFlags& flags,
                         const std::string& company)
{
    std::string document;
    WriteOutputReport(results, project, flags, company,
                      [&document](std::string_view piece) { document += piece; });
    return document;
}

CReportWriter::CReportWriter(CProjectData& project, CPlatform& platform, const std::string& output)
    : m_project(project),
      m_platform(platform),
      m_output(output)
{
}

bool CReportWriter::Write(const CReportFlags& flags)
{
    CFailureMessage failure = nullptr;
    {
        const CWaitCursor wait(m_platform.Messages); // a large report takes seconds
        failure = WriteDocument(flags);
    }
    if (failure != nullptr)
    {
        failure(m_platform.Messages);
        return false;
    }
    m_project.ReportDataRead = 1;
    return true;
}

CReportWriter::CFailureMessage CReportWriter::WriteDocument(const CReportFlags& flags) const
{
    std::optional<std::string> bytes = ReadResultsFile(m_project.ResultsFilePath);
    if (!bytes)
    {
        return ShowResultsNotOpened;
    }
    CReplacementFile document(m_output);
    try
    {
        const CResults results = ReadResults(std::move(*bytes));
        WriteOutputReport(results, m_project, flags,
                          ProjectHeaderField(kHeaderCompany, m_platform.Profile.Folder()),
                          [&document](std::string_view piece) { document.Append(piece); });
    }
    catch (const CResultsError&)
    {
        return ShowResultsDamaged;
    }
    return document.Finish() ? nullptr : ShowSaveError;
}
