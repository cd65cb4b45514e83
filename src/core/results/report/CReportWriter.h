// The output report: one results file as one HTML document.
#pragma once

#include "core/platform/CPlatform.h"
#include "core/project/CProjectData.h"
#include "core/results/report/CReport.h"

#include <array>
#include <string>

constexpr const char* kOutputReportName = "oview.html";

/// The form's convention: 0 for a section that is selected, -1 for one that is not.
using CReportFlags = std::array<int, kReportSectionCount>;
constexpr int kSectionSelected = 0;
constexpr int kSectionNotSelected = -1;

class CReportWriter
{
public:
    /// The results file is the project's `ResultsFilePath`. `output` is the path of the document.
    CReportWriter(CProjectData& project, CPlatform& platform, const std::string& output);

    /// Writes the sections with flag 0 as the project's selection lists narrow them. Sets `ReportDataRead` to
    /// 1 once the results were read to their end. False, and a message, if the results can't be read or the
    /// document can't be written; no finished document is left then. The cursor is a wait cursor meanwhile.
    bool Write(const CReportFlags& flags);

private:
    using CFailureMessage = void (*)(CMessages& messages);

    /// Gives what tells the user of a failure, nullptr without one.
    CFailureMessage WriteDocument(const CReportFlags& flags) const;

    CProjectData& m_project;
    CPlatform& m_platform;
    std::string m_output;
};

/// Writes the whole document, which may be far larger than the results, piece by piece. Throws CResultsError
/// for results that end too early.
void WriteOutputReport(const CResults& results, const CProjectData& project, const CReportFlags& flags,
                       const std::string& company, const CTextSink& sink);
/// The same in memory.
std::string OutputReport(const CResults& results, const CProjectData& project, const CReportFlags& flags,
                         const std::string& company);
