// The desktop program: the main window on this machine's messages, dialogs, settings and programs.
#pragma once

#include "core/app/COndaraApp.h"
#include "core/platform/CIniProfile.h"
#include "core/platform/CSystemPrograms.h"
#include "gui/app/CMainFrame.h"
#include "gui/platform/CQtFileDialogs.h"
#include "gui/platform/CQtMessages.h"

#include <functional>
#include <string>

/// Its parts, in the order in which they are built. It needs a QApplication.
struct CDesktop
{
    explicit CDesktop(const std::string& profile = CIniProfile::DefaultPath()) : Profile(profile) {}

    CQtMessages Messages;
    CQtFileDialogs FileDialogs;
    CIniProfile Profile;
    CSystemPrograms Programs;
    COndaraApp App{{Messages, FileDialogs, Profile, Programs}};
    CMainFrame Frame{App};
};

/// Shows the main window, then finds the folders of the program, a new project and the first samples. The
/// engine is expected in `folder`.
void StartFrame(COndaraApp& app, CMainFrame& frame, const std::string& folder);

/// What a bench or a test wants to hear of.
struct CDesktopHooks
{
    std::function<void(CDesktop& desktop)>
        OnFrontPage; ///< the front page has been painted for the first time
};

/// The whole program; gives its exit code. A second instance ends at once without a word.
int RunDesktop(int argc, char** argv, const CDesktopHooks& hooks = {});
