#include "core/engine/GainFiles.h"

#include "core/platform/EngineFolder.h"
#include "core/platform/FileErrors.h"
#include "core/platform/Files.h"

CGainFile RudderGains(const CProjectData& project)
{
    return {project.RudderGainFileUsed == 1, project.RudderGainFile, "RudderGain.inp"};
}

CGainFile FinGains(const CProjectData& project)
{
    return {project.FinGainFileUsed == 1, project.FinGainFile, "FinGain.inp"};
}

std::string GainFilePath(const std::string& path, const std::string& baseDir)
{
    return IsAbsolute(path) ? path : JoinPath(baseDir, path);
}

bool GainFilesExist(const CProjectData& project, const std::string& baseDir, CMessages& messages)
{
    for (const CGainFile& file : {RudderGains(project), FinGains(project)})
    {
        const std::string path = GainFilePath(file.Path, baseDir);
        if (file.Used && !FileExists(path))
        {
            messages.MessageBox(
                path + " does not exist.  Please make sure the file is created prior to calculations.",
                "Select a file", EIcon::Stop);
            return false;
        }
    }
    return true;
}

void GainFileLine(CEngineInput& input, const CGainFile& file)
{
    const std::string path = GainFilePath(file.Path, input.BaseDir());
    if (file.Used && !FileExists(path))
    {
        input.Fail();
        return;
    }
    if (file.Used && !CopyFileOver(path, JoinPath(input.BaseDir(), file.EngineName)))
    {
        ShowSaveError(input.Messages());
        input.Fail();
        return;
    }
    input.Line().Word(file.Used ? "1" : "0").Blank();
    input.End();
}
