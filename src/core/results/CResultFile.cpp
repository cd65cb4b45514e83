#include "core/results/CResultFile.h"

#include "core/platform/FileErrors.h"
#include "core/platform/Files.h"
#include "core/results/CAppendedFile.h"
#include "core/results/CListing.h"
#include "core/results/CListingScrape.h"
#include "core/results/CResultsBytes.h"
#include "core/results/ControlBytes.h"
#include "core/results/InputEcho.h"
#include "core/results/ResultsErrors.h"
#include "core/results/ResultsFile.h"
#include "core/results/ResultsSections.h"
#include "core/results/ResultsTrailer.h"
#include "core/results/RunValues.h"

#include <cstdint>
#include <fstream>
#include <utility>

namespace
{
/// More than the largest head with all its tables has.
constexpr std::size_t kLongestTables = 4096;
/// More than the listing of the largest run.
constexpr std::size_t kLongestListing = 256 << 20;

void ShowCompletionError(CMessages& messages)
{
    messages.MessageBeep();
    messages.MessageBox("Error writing results file!", "Error In Generating Output File", EIcon::Stop);
}

/// A place in a results file, which is a 32-bit integer.
int PlaceOf(std::int64_t length)
{
    if (length > static_cast<std::int64_t>(kLargestResultsFile))
    {
        throw CCompletionError();
    }
    return static_cast<int>(length);
}

/// The mark, the computed GM if the run had one, and where the sections begin. Without a GM in the listing
/// the word is that of the stations' origin.
std::string TrailerBytes(const CProjectData& project, std::optional<float> calculatedGM,
                         const CResultsTrailer& places)
{
    CResultsBytes bytes;
    bytes.Float(kTrailerMarker);
    const int code = RunGMCode(project);
    if (code == 2 || code == 3)
    {
        calculatedGM ? bytes.Float(*calculatedGM) : bytes.Integer(project.StationOrigin);
    }
    bytes.Integer(places.SectionC);
    bytes.Integer(places.SectionB);
    bytes.Integer(places.SectionA);
    return bytes.Bytes();
}
} // namespace

CResultFile::CResultFile(CProjectData& project, const std::string& baseDir, CPlatform& platform)
    : m_project(project),
      m_baseDir(baseDir),
      m_platform(platform)
{
}

bool CResultFile::EndsWithMarker(const std::string& path)
{
    if (!IsRegularFile(path))
    {
        return false;
    }
    std::ifstream file(path, std::ios::binary);
    char end[kEndMarkerLength] = {};
    file.seekg(-kEndMarkerLength, std::ios::end);
    file.read(end, kEndMarkerLength);
    return file.gcount() == kEndMarkerLength && std::string_view(end, kEndMarkerLength) == "CBDW";
}

void CResultFile::ScanCounts(const std::string& path)
{
    HeadingCount = 0;
    SeawayCount = 0;
    FreqCount = 0;
    const auto bytes = ReadRegularFile(path, kLongestTables);
    if (!bytes)
    {
        return;
    }
    try
    {
        CResultsCursor cursor(*bytes, kBodyOffset);
        const CResultsBody body = ReadBodyTables(cursor, ReadHead(*bytes));
        HeadingCount = body.HeadingCount;
        SeawayCount = body.SeawayCount;
        FreqCount = body.FreqCount;
    }
    catch (const CResultsError&)
    {
        // A damaged file has no headings that could be looked for.
    }
}

void CResultFile::Complete(const std::string& path)
{
    ScanCounts(path);
    m_project.ResultsLoaded = 0;
    CAppendedFile file(path);
    if (!file.IsOpen())
    {
        ShowSaveError(m_platform.Messages);
        return;
    }
    try
    {
        AppendSections(file);
        m_project.ResultsLoaded = 1;
    }
    catch (const CCompletionError&)
    {
        ShowCompletionError(m_platform.Messages);
    }
}

void CResultFile::AppendSections(CAppendedFile& file)
{
    if (!file.CutEnd(kEndMarkerLength))
    {
        throw CCompletionError();
    }
    CResultsTrailer places;
    places.SectionC = PlaceOf(file.Length());
    file.Append(ControlBytes(m_project));
    file.Append(TitleBytes(m_project));
    places.SectionB = PlaceOf(file.Length());
    file.Append(InputEcho(m_project));
    file.Append(FileNameBytes(m_project));
    places.SectionA = PlaceOf(file.Length());
    auto text = ReadRegularFile(JoinPath(m_baseDir, kListingFileName), kLongestListing);
    if (!text)
    {
        throw CCompletionError();
    }
    CListing listing(std::move(*text));
    CListingScrape scrape(m_project, HeadingCount, FreqCount, listing, file);
    scrape.Run();
    file.Append(TrailerBytes(m_project, scrape.CalculatedGM(), places));
    if (!file.Close())
    {
        throw CCompletionError();
    }
}

bool CResultFile::RestoreProject(const std::string& path)
{
    const auto bytes = ReadResultsFile(path);
    if (!bytes)
    {
        ShowResultsNotOpened(m_platform.Messages);
        return false;
    }
    try
    {
        RestoreFrom(*bytes);
    }
    catch (const CResultsError&)
    {
        ShowResultsDamaged(m_platform.Messages);
        return false;
    }
    m_project.ClearCompleteness();
    m_project.RecomputeCompleteness();
    return true;
}

void CResultFile::RestoreFrom(std::string_view bytes)
{
    const CResultsTrailer trailer = ReadTrailer(bytes);
    CResultsCursor control(bytes, trailer.SectionC);
    const bool hasMagic = TakeMagic(control);
    CResultsCursor echo(bytes, static_cast<std::ptrdiff_t>(trailer.SectionB) - kTitleWidth);
    m_project.ProjectTitle = echo.Text(kTitleWidth);
    RestoreInputEcho(echo, hasMagic, m_project);
    // The magic of a current file is not stepped over: it becomes the origin.
    m_project.StationOrigin = CResultsCursor(bytes, trailer.SectionC).Integer();
}
