// The application object: owns the one project of the program, and the few values that are global to a run of
// it.
#pragma once

#include "core/platform/CPlatform.h"
#include "core/project/CInputFile.h"
#include "core/project/CProjectData.h"
#include "core/project/CProjectSession.h"

#include <string>

class COndaraApp : public CProjectSession
{
public:
    explicit COndaraApp(CPlatform platform);

    /// Finds the folders and fills the project with its defaults. `folder` takes the place of the current
    /// folder, in which the engine is expected.
    void Start(const std::string& folder);
    /// On a first start, that is with an empty recent-file list, puts the two samples into the list.
    void OfferSamples();
    /// Loads the four check options from the settings. Anything but 0 turns an option on, and anything but 0
    /// and 1, an absent entry too, is written back as 0: the checks are on for the first run of the program
    /// alone.
    void LoadSettings();
    /// Notes the screen: size in pixels, and the spacing of icons.
    void SetScreen(int width, int height, int iconSpacing);

    /// A command on the input file.
    CInputFile InputFile() { return {Project, *this, Platform}; }
    /// Opens a file whole without a dialog. One that can't be read whole leaves the recent-file list.
    EOpened OpenRecentFile(const std::string& path);

    CPlatform Platform;
    CProjectData Project;
    std::string UserDir;
    std::string ScreenSize; ///< "WIDTH x HEIGHT"
    int IconSpacing = 0;
};
