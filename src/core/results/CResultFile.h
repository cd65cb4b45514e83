// The results file of a finished run: completes what the engine left, and restores a project from the input
// that a completed file carries.
#pragma once

#include "core/platform/CPlatform.h"
#include "core/project/CProjectData.h"

#include <string>
#include <string_view>

class CAppendedFile;

constexpr const char* kResultsFileName = "ondara7.bin"; ///< in the engine's folder
constexpr const char* kListingFileName = "ondara7.out"; ///< the engine's printed results, beside it
constexpr int kEndMarkerLength = 4;

class CResultFile
{
public:
    /// `baseDir` is the engine's folder, in which the listing stands.
    CResultFile(CProjectData& project, const std::string& baseDir, CPlatform& platform);

    /// Whether the engine ended its run: the last four bytes of the file are "CBDW". False for a file that
    /// can't be opened or is shorter.
    static bool EndsWithMarker(const std::string& path);

    /// Turns the engine's binary file into the complete results file: takes the end marker off (whatever the
    /// last four bytes are) and appends what reports need, taken from the project and from the printed
    /// listing. `ResultsLoaded` of the project is 1 afterwards for a complete file and 0 otherwise; failures
    /// are shown.
    void Complete(const std::string& path);

    /// Puts the input that a completed results file carries into the project, over what it holds: the caller
    /// clears it before. False, and a message, if the file can't be read; the project may then hold a part.
    bool RestoreProject(const std::string& path);

    /// Takes the counts of headings, seaways and frequencies from the engine's part of the file; they stay 0
    /// for a file that can't be read.
    void ScanCounts(const std::string& path);

    int HeadingCount = 0;
    int SeawayCount = 0;
    int FreqCount = 0;

private:
    void AppendSections(CAppendedFile& file);
    void RestoreFrom(std::string_view bytes);

    CProjectData& m_project;
    std::string m_baseDir;
    CPlatform& m_platform;
};
