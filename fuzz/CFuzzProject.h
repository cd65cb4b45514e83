// A project at its defaults with everything that commands on it need, and what must hold of it whatever was
// read.
#pragma once

#include "core/project/CInputFile.h"
#include "core/project/CProjectData.h"
#include "core/project/CProjectSession.h"
#include "tests/support/CRecorder.h"

#include <string_view>

/// Aborts, saying what doesn't hold, unless it does.
void Require(bool holds, std::string_view what);

struct CFuzzProject
{
    CFuzzProject() { File.NewProject(); }

    CRecorder Recorder;
    CProjectSession Session{Recorder};
    CProjectData Project;
    CInputFile File{Project, Session, Recorder.Platform};
};

/// What a project is written as can be read again whole, and is then written with the same bytes. Left out
/// are projects whose file can't be read back as a matter of course: lines that are longer than a reader
/// takes, texts that hold line ends, and counts that aren't whole numbers (a count of 2.7 means two, and is
/// written as 3). The two options that every reading raises are raised first.
void RequireSameAfterReading(CProjectData& project);
