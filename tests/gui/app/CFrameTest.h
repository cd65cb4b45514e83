// The main window on recorded edges, driven by its commands.
#pragma once

#include "core/app/COndaraApp.h"
#include "gui/app/CMainFrame.h"
#include "gui/app/Desktop.h"
#include "tests/support/CRecorder.h"
#include "tests/support/CTestFolder.h"

#include <functional>
#include <string>

#include <QAction>
#include <QDialog>

struct CFrameTest
{
    /// The program has been started in a folder of the test's own.
    CFrameTest();

    QAction& Action(const std::string& name);
    /// Gives a command that is enabled; the running test fails if it isn't.
    void Give(const std::string& name);
    /// Gives a command that opens a form, and does something with it before it is closed by Cancel; the
    /// running test fails if another form opens, or none.
    void GiveForm(
        const std::string& name, const char* form,
        const std::function<void(QDialog&)>& look = [](QDialog&) {});
    /// The text of a label.
    std::string Text(const char* name);
    /// A copy of the first sample in the folder; its path.
    std::string Sample(const std::string& name) const;
    /// Loads a copy of the first sample as Open Both does.
    void OpenSample();

    CTestFolder Folder;
    CRecorder Recorder;
    COndaraApp App{Recorder.Platform};
    CMainFrame Frame{App};
};
