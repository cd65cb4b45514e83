#include "core/engine/Waterline.h"

#include "core/engine/CEngineInputWriter.h"
#include "core/engine/CRunController.h"
#include "core/platform/EngineFolder.h"
#include "core/platform/Files.h"
#include "core/platform/NumberText.h"
#include "core/project/UnitFactors.h"
#include "core/results/CResultFile.h"
#include "core/results/ResultsFile.h"

#include <bit>
#include <cstdint>
#include <cstdio>

namespace
{
// Here finer than elsewhere in the program, and not the same for the length and for draft and trim.
constexpr double kMetresPerFootOfLength = 0.3047999902464003;
constexpr double kMetresPerFootOfDraft = 0.3048780487804878;

// Places in the engine's results.
constexpr std::size_t kUnitsPlace = 120;
constexpr std::size_t kDraftPlace = 216;
constexpr std::size_t kTrimPlace = 220;

float InMetres(const CParamArray& field, bool british, double factor)
{
    return british ? Narrowed(field.Value() * factor) : field.Value();
}

/// The little-endian float at a place of the results.
float FloatAt(const std::string& bytes, std::size_t place)
{
    std::uint32_t word = 0;
    for (std::size_t k = 0; k < sizeof word; ++k)
    {
        word |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[place + k])) << (8 * k);
    }
    return std::bit_cast<float>(word);
}

void MeasureShip(const CProjectData& project, bool british, CWaterline& waterline)
{
    const int stations = project.NST.Count(kMaxStations);
    waterline.Length = InMetres(project.SHIPLEN, british, kMetresPerFootOfLength);
    waterline.Spacing = stations > 1 ? waterline.Length / static_cast<float>(stations - 1) : 0;
}
} // namespace

float CWaterline::Height(int station, int stationCount, int inputSystem) const
{
    float height = Draft;
    if (Trim != 0)
    {
        const int distance = (stationCount - 1) / 2 - station;
        height -= static_cast<float>(distance) * Spacing * Trim / Length;
    }
    return inputSystem == 1 ? height : height * kFeetPerMetre;
}

CWaterline GivenWaterline(const CProjectData& project)
{
    CWaterline waterline;
    if (project.NST.Count(kMaxStations) > 1)
    {
        const auto isBritish = [](const CParamArray& field) { return field.unit == kUnitBritish; };
        MeasureShip(project, isBritish(project.SHIPLEN), waterline);
        waterline.Draft = InMetres(project.DRAFTMID, isBritish(project.DRAFTMID), kMetresPerFootOfDraft);
        waterline.Trim = InMetres(project.TRIMST, isBritish(project.TRIMST), kMetresPerFootOfDraft);
    }
    if (!IsGiven(project.DRAFTMID.Value()))
    {
        waterline.Draft = kNotGiven;
        waterline.Trim = 0; // or the trim would bring the ends above the baseline
    }
    return waterline;
}

CWaterlineRun::CWaterlineRun(CProjectData& project, const std::string& baseDir, CPlatform& platform,
                             std::function<bool()> waitForEngine)
    : m_project(project),
      m_baseDir(baseDir),
      m_platform(platform),
      m_wait(std::move(waitForEngine))
{
}

std::optional<CWaterline> CWaterlineRun::Find()
{
    if (!NeedsWaterlinePreRun(m_project))
    {
        const CWaterline given = GivenWaterline(m_project);
        Store(given.Draft, given.Trim);
        return given;
    }
    Store(kNotGiven, 0); // until the engine has told
    const std::string results = TakeEngineFile(m_baseDir, kResultsFileName);
    const std::string kept = ClaimEngineFile(m_baseDir, kKeptResultsName);
    const bool hadResults = FileExists(results);
    if (hadResults && !CopyFileOver(results, kept))
    {
        Warn("The results of the last run can't be kept, so the waterline was not calculated.");
        return Found();
    }
    CEngineInputWriter(m_project, m_baseDir, m_platform).WriteReduced();
    const bool hasWaited = m_project.InputWritten != 1 || RunEngine();
    if (hadResults && m_project.InputWritten == 1 && !CopyFileOver(kept, results))
    {
        Warn("The results of the last run can't be put back. They stand in " + kept);
    }
    return hasWaited ? std::optional(Found()) : std::nullopt;
}

bool CWaterlineRun::RunEngine()
{
    // Not emptied but made anew: the results may be a link to those that the user keeps elsewhere.
    DeleteFile(JoinPath(m_baseDir, kResultsFileName));
    for (const char* name : {kListingFileName, kResultsFileName})
    {
        WriteFile(ClaimEngineFile(m_baseDir, name), {});
    }
    ChangeFolder(m_baseDir);
    if (CurrentFolder().empty())
    {
        std::perror("_getcwd error");
    }
    m_platform.Programs.StartProgram(kEngineProgram, m_baseDir);
    m_platform.Messages.SetCursor(ECursor::Wait);
    const bool hasWaited = m_wait();
    m_platform.Messages.SetCursor(ECursor::Arrow);
    const std::string results = TakeEngineFile(m_baseDir, kResultsFileName);
    if (hasWaited)
    {
        ReadBack(results);
    }
    DeleteFile(results);
    return hasWaited;
}

void CWaterlineRun::ReadBack(const std::string& results)
{
    const auto bytes = ReadResultsFile(results);
    if (!bytes || bytes->size() < kTrimPlace + sizeof(float))
    {
        return; // the engine has left nothing
    }
    const bool isMetric = (*bytes)[kUnitsPlace] == 'M';
    const double factor = isMetric ? 1 : kMetresPerFootOfDraft;
    Store(Narrowed(FloatAt(*bytes, kDraftPlace) * factor), Narrowed(FloatAt(*bytes, kTrimPlace) * factor));
}

void CWaterlineRun::Store(float draft, float trim)
{
    m_project.WorkingDraft = draft;
    m_project.WorkingTrim = trim;
    m_project.WorkingDraftUnit = kUnitMetric;
}

CWaterline CWaterlineRun::Found() const
{
    CWaterline waterline;
    MeasureShip(m_project, m_project.SHIPLEN.unit != kUnitMetric, waterline);
    waterline.Draft = m_project.WorkingDraft;
    waterline.Trim = m_project.WorkingTrim;
    return waterline;
}

void CWaterlineRun::Warn(const std::string& text)
{
    m_platform.Messages.MessageBox(text, "Offset Checks", EIcon::Warning);
}
