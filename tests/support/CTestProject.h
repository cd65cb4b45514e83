// A project at its defaults with everything that commands on it need.
#pragma once

#include "core/project/CInputFile.h"
#include "core/project/CProjectData.h"
#include "core/project/CProjectSession.h"
#include "tests/support/CRecorder.h"
#include "tests/support/CTestFolder.h"

struct CTestProject
{
    CTestProject()
    {
        Session.BaseDir = Folder.Path();
        Session.WorkDir = Folder.Path();
        File.NewProject();
    }

    CTestFolder Folder;
    CRecorder Recorder;
    CProjectSession Session{Recorder};
    CProjectData Project;
    CInputFile File{Project, Session, Recorder.Platform};
};
