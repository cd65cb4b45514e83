// The few values that are global to a run of the program and that commands on the project change.
#pragma once

#include "core/platform/CRecentFileList.h"

#include <ctime>
#include <functional>
#include <string>

struct CProjectSession
{
    explicit CProjectSession(CProfile& profile) : RecentFiles(profile) {}

    std::string BaseDir;           ///< folder of the engine; all its files are named from it
    std::string WorkDir;           ///< folder of the last file dialog
    std::time_t InputFileTime = 0; ///< time of the input file in hand
    int Modified = 0;              ///< set by forms when a value changes
    CRecentFileList RecentFiles;
    std::function<void()> RepaintView = [] {}; ///< repaints the active file names of the front page
};
