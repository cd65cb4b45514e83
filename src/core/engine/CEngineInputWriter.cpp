#include "core/engine/CEngineInputWriter.h"

#include "core/engine/EngineRecords.h"
#include "core/platform/EngineFolder.h"
#include "core/platform/FileErrors.h"
#include "core/platform/Files.h"

namespace
{
constexpr float kMetricSystem = 1; // of INSYS

void ComposeWhole(CEngineInput& input)
{
    for (const auto records : {EnvironmentRecords, HullRecords, MassRecords, PositionRecords,
                               AppendageRecords, FoilRecords, StabilizerRecords})
    {
        if (input.Ok())
        {
            records(input);
        }
    }
}

void ComposeReduced(CEngineInput& input)
{
    input.Lines({"Pre Run Waterline Calcs", "METRIC METRIC SALT BOWSPEEDCOR BOWSWELLCOR MODAMP NOPPR",
                 kResultsName, "NOLOAD RAW", kDefaultWaveFrequencies, "NOSAVEHY BOUND2D LATLONG NOHVCOR",
                 kDefaultEncounterFrequencies, "BRETSCHNEIDER", "8 90.00",
                 "0.00 45.00 90.00 135.00 180.00 225.00 270.00 315.00", "1", "2.46 8.37", "1 15.00"});
    HullRecords(input);
    input.Lines({"0 20.00 0.0100", "0", kNoSkeg, kNoRudder, "0", kNoRollGains, kNoYawGains, kNoLateralGains,
                 "0", "NOSTAB"});
}
} // namespace

CEngineInputWriter::CEngineInputWriter(CProjectData& project, const std::string& baseDir, CPlatform& platform)
    : m_project(project),
      m_baseDir(baseDir),
      m_platform(platform)
{
}

bool CEngineInputWriter::Write()
{
    const bool written = WriteInput(m_project.INSYS.Value(), ComposeWhole);
    if (written)
    {
        m_project.InputWritten = 1;
    }
    return written;
}

bool CEngineInputWriter::WriteReduced()
{
    const bool written = WriteInput(kMetricSystem, ComposeReduced);
    m_project.InputWritten = written ? 1 : 0;
    return written;
}

bool CEngineInputWriter::WriteInput(float inSystem, void (*compose)(CEngineInput& input))
{
    const std::string path = ClaimEngineFile(m_baseDir, kEngineInputName);
    // Opened before anything is tested: a file that can't be written is the only thing that the user is told
    // then.
    if (!WriteFile(path, {}))
    {
        ShowSaveError(m_platform.Messages);
        return false;
    }
    CEngineInput input(m_project, m_baseDir, m_platform.Messages, inSystem);
    compose(input);
    if (!WriteFile(path, input.Text()))
    {
        ShowSaveError(m_platform.Messages);
        return false;
    }
    return input.Ok();
}

bool NeedsWaterlinePreRun(const CProjectData& project)
{
    return Is(project.TRIMDEF, 1);
}
