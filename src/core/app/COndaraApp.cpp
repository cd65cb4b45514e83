#include "core/app/COndaraApp.h"

#include "core/platform/Files.h"
#include "core/platform/NumberText.h"

#include <array>
#include <utility>

COndaraApp::COndaraApp(CPlatform platform) : CProjectSession(platform.Profile), Platform(platform)
{
    InputFileTime = std::time(nullptr);
}

void COndaraApp::Start(const std::string& folder)
{
    BaseDir = FullPath(folder);
    while (BaseDir.size() > 1 && BaseDir.back() == '/')
    {
        BaseDir.pop_back();
    }
    WorkDir = BaseDir;
    UserDir = FormatText("C:\\Documents and Settings\\%s", UserName().c_str());
    InputFile().NewProject();
}

void COndaraApp::OfferSamples()
{
    if (!RecentFiles.IsEmpty())
    {
        return;
    }
    const std::string folder = JoinPath(BaseDir, "Data");
    RecentFiles.Add(JoinPath(folder, "Sample02.od7"));
    RecentFiles.Add(JoinPath(folder, "Sample01.od7"));
}

void COndaraApp::LoadSettings()
{
    constexpr const char* section = "Settings";
    constexpr int absent = 2;
    const std::array<std::pair<const char*, int*>, 4> options = {{
        {"ChkSegLenInter", &Project.ChkSegLenInter},
        {"ChkSegLenPreRun", &Project.ChkSegLenPreRun},
        {"ChkNegZInter", &Project.ChkNegZInter},
        {"ChkNegZPreRun", &Project.ChkNegZPreRun},
    }};
    for (const auto& [entry, option] : options)
    {
        const int stored = Platform.Profile.GetProfileInt(section, entry, absent);
        *option = stored == 0 ? 0 : 1;
        if (stored != 0 && stored != 1)
        {
            Platform.Profile.WriteProfileInt(section, entry, 0);
        }
    }
}

EOpened COndaraApp::OpenRecentFile(const std::string& path)
{
    const EOpened opened = InputFile().OpenPath(path);
    if (opened != EOpened::Whole)
    {
        RecentFiles.Remove(path);
    }
    return opened;
}

void COndaraApp::SetScreen(int width, int height, int iconSpacing)
{
    ScreenSize = FormatText("%d%s%d", width, " x ", height);
    IconSpacing = iconSpacing;
}
