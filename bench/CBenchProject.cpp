#include "bench/CBenchProject.h"

#include "core/platform/Files.h"
#include "tests/support/FullProject.h"

#include <cstdlib>
#include <filesystem>
#include <iostream>

namespace fs = std::filesystem;

CBenchProject::CBenchProject() : Folder(fs::temp_directory_path() / "ondara-bench-XXXXXX")
{
    if (::mkdtemp(Folder.data()) == nullptr)
    {
        std::cerr << "can't make the folder " << Folder << '\n';
        std::exit(EXIT_FAILURE);
    }
    Session.BaseDir = Folder;
    Session.WorkDir = Folder;
    File.NewProject();
    FillToMaximum(Project);
    Path = JoinPath(Folder, "largest.od7");
    Project.InputFilePath = Path;
    File.Save();
    RequireNoMessage();
}

CBenchProject::~CBenchProject()
{
    std::error_code ignored;
    fs::remove_all(Folder, ignored);
}

void CBenchProject::RequireNoMessage() const
{
    if (!Recorder.Messages.empty())
    {
        std::cerr << Recorder.Messages.front() << '\n';
        std::exit(EXIT_FAILURE);
    }
}
