// A small ship's results in memory, made without a file, and what a section writes of them.
#pragma once

#include "core/results/report/CReport.h"

#include <string>
#include <vector>

/// Two speeds, three headings of which the last has no data per frequency, two seaways of a Bretschneider
/// spectrum, three frequencies, two load stations, five hull stations, one position; all selected. Tests
/// change what they are about, then call Fill.
struct CReportCase
{
    CReportCase();

    /// Makes the tables of the body and the calculated section for the counts that the results have now.
    /// Numbers tell their place: those of speed 2, heading 1, third mode, fourth frequency end in "2.134".
    void Fill();
    void SetHeadings(const std::vector<float>& headings);
    void SetSpectrum(int kind);
    void SetSystems(float input, float output);
    /// What is computed at the position; without the tables of irregular seas, so for the summaries alone.
    void SetRelativeMotion(int kind);
    /// Selects all indices of the results.
    void SelectAll();

    /// What a section writes.
    std::string Section(void (*section)(CReport&)) const;

    CResults Results;
    CProjectData Project; ///< the one at hand
    std::string Company = "Larkfield Marine Limited";
    bool Breakdown = true; ///< the file has the breakdown of damping by appendage
};

/// The same with one speed, heading, seaway and load station selected, and a number of frequencies.
struct COneTable : CReportCase
{
    explicit COneTable(int frequencies, bool breakdown = false);
};

std::vector<std::string> Lines(const std::string& text);
/// How often a text stands in another.
int CountOf(const std::string& text, const std::string& part);
/// The text between the first two of the marks, both excluded; fails the running test if one isn't there.
std::string Between(const std::string& text, const std::string& from, const std::string& to);

constexpr const char* kPageBreakLine = "<p style = \"page-break-before: always\">\n";
