#include "tests/cli/CCliTest.h"

#include "core/platform/CIniProfile.h"
#include "tests/support/FullProject.h"

#include <algorithm>
#include <filesystem>
#include <ostream>
#include <sstream>

namespace fs = std::filesystem;

void PrintTo(const CCliRun& run, std::ostream* stream)
{
    *stream << "exit " << run.ExitCode << "\noutput:\n" << run.Output << "\nerrors:\n" << run.Errors;
}

CCliTest::CCliTest()
{
    fs::current_path(Folder.Path());
}

CCliRun CCliTest::Run(const std::vector<std::string>& words) const
{
    fs::current_path(Folder.Path());
    std::vector<std::string> all = {"--profile", Profile};
    all.insert(all.end(), words.begin(), words.end());
    std::ostringstream output;
    std::ostringstream errors;
    const int exitCode = RunCommandLine(all, output, errors);
    return {exitCode, output.str(), errors.str()};
}

std::string CCliTest::Write(const std::string& name) const
{
    return Write(name, InputFileText(Project));
}

std::string CCliTest::Write(const std::string& name, const std::string& content) const
{
    Folder.Write(name, content);
    return content;
}

std::vector<std::string> CCliTest::Files() const
{
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(Folder.Path()))
    {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::vector<std::string> CCliTest::RecentFiles() const
{
    CIniProfile profile(Profile);
    std::vector<std::string> files;
    for (const std::string& path : CRecentFileList(profile).Paths())
    {
        if (!path.empty())
        {
            files.push_back(path);
        }
    }
    return files;
}

void CCliTest::Fill()
{
    CProjectData& p = Project;
    p.ProjectTitle = "Everything at once";
    p.NSEADIR.Set(kMaxSeaDirections);
    p.NSEAWAY.Set(kMaxSeaways);
    p.NSPEED.Set(kMaxSpeeds);
    p.NST.Set(kMaxStations);
    p.NOFFUSER.Fill(kMaxOffsets);
    p.NSTLOAD.Set(kMaxStations);
    p.NPOS.Set(kMaxPositions);
    p.NSLOFF.Fill(kMaxSlamOffsets);
    p.NBKPAIR.Set(kMaxBilgeKeelPairs);
    p.IFIRSTBK.Fill(0);
    p.ILASTBK.Fill(kMaxBilgeKeelRows - 1);
    p.NFOILPAIR.Set(kMaxFoilPairs);
    p.NFINPAIR.Set(kMaxFinPairs);
    p.FINTANKSTAB.Set(1);
    p.EXCITE.Set(2);
    p.ADDMASS.Set(3);
    for (std::size_t k = 0; k < p.YAUSER.data.size(); ++k)
    {
        p.YAUSER.data[k] = static_cast<float>(k) / 100;
        p.ZAUSERBL.data[k] = static_cast<float>(k) / 50;
    }
}

void CCliTest::Complete()
{
    FillToMinimum(Project);
}
