// The largest project, in a folder of its own, with everything that commands on it need.
#pragma once

#include "core/project/CInputFile.h"
#include "core/project/CProjectData.h"
#include "core/project/CProjectSession.h"
#include "tests/support/CRecorder.h"

#include <string>

class CBenchProject
{
public:
    /// Makes the folder, fills the project and saves it there.
    CBenchProject();
    ~CBenchProject();
    CBenchProject(const CBenchProject&) = delete;
    CBenchProject& operator=(const CBenchProject&) = delete;

    /// Stops the program if a message was shown: what was measured was a failure then.
    void RequireNoMessage() const;

    CRecorder Recorder;
    CProjectSession Session{Recorder};
    CProjectData Project;
    CInputFile File{Project, Session, Recorder.Platform};
    std::string Folder;
    std::string Path; ///< of the saved project
};
