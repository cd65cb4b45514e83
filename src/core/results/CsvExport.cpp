#include "core/results/CsvExport.h"

#include "core/platform/EngineFolder.h"
#include "core/platform/Files.h"

namespace
{
constexpr float kHydrodynamicsToFile = 4; // of ADDMASS
constexpr float kWaveForcesToFile = 3;    // of EXCITE

/// One of the engine's tables.
struct CTable
{
    const char* EngineName;
    const char* OwnName; ///< of the copy when the project has no name
    const char* Suffix;  ///< behind the project's name else
};

constexpr CTable kHydrodynamics = {kCoefficientTableName, "Ondara7_HyCo", "_Hyd"};
constexpr CTable kWaveForces = {kWaveForceTableName, "Ondara7_WaveFrc", "_Wav"};

/// Beside the input file; in the current folder if that has none.
std::string TargetOf(const CTable& table, const std::string& inputFile)
{
    const std::string extension = ".csv";
    const std::string bare = WithExtension(inputFile, "");
    const std::string stem = bare.substr(0, bare.size() - 1); // the point
    return FileName(stem).empty() ? stem + table.OwnName + extension : stem + table.Suffix + extension;
}

/// A copy that can't be made isn't told of.
void CopyUnlessReadOnly(const std::string& source, const std::string& target)
{
    if (!IsReadOnly(target))
    {
        CopyFileOver(source, ResolvedPath(target));
    }
}

void CopyUnderAnotherName(const std::string& source, const std::string& target, CPlatform& platform)
{
    const bool rename = platform.Messages.AskYesNo(
        "Ondara cannot write the output file" + target +
            " \nbecause a file having that name already exists and has been set as Read-Only. \n\nWould you "
            "like to save the new output file using a different file name?",
        "Save File?", EIcon::None);
    if (!rename)
    {
        return;
    }
    const auto chosen = platform.FileDialogs.AskSave(
        {"csv", target, "Comma Separated Files (*.csv)|*.csv|All Files(*.*)|*.*|", true});
    if (chosen)
    {
        CopyUnlessReadOnly(source, *chosen);
    }
}

void Export(const CTable& table, bool wanted, const CProjectData& project, const std::string& baseDir,
            CPlatform& platform)
{
    const std::string source = TakeEngineFile(baseDir, table.EngineName);
    if (wanted)
    {
        const std::string target = TargetOf(table, project.InputFilePath);
        if (IsReadOnly(target))
        {
            CopyUnderAnotherName(source, target, platform);
        }
        else
        {
            CopyFileOver(source, ResolvedPath(target));
        }
    }
    DeleteFile(source);
}
} // namespace

void ExportHydrodynamicCoefficients(const CProjectData& project, const std::string& baseDir,
                                    CPlatform& platform)
{
    Export(kHydrodynamics, project.ADDMASS.Value() == kHydrodynamicsToFile, project, baseDir, platform);
}

void ExportWaveForces(const CProjectData& project, const std::string& baseDir, CPlatform& platform)
{
    Export(kWaveForces, project.EXCITE.Value() == kWaveForcesToFile, project, baseDir, platform);
}
