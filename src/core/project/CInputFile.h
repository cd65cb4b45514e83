// The project's text file: saving, opening whole or by half, importing offsets, and the resets that go with
// them. Built for one command and dropped after it.
#pragma once

#include "core/platform/CPlatform.h"
#include "core/platform/Files.h"
#include "core/project/CProjectData.h"
#include "core/project/CProjectSession.h"
#include "core/project/InputFileText.h"

#include <string>
#include <string_view>

/// How an Open command ended.
enum class EOpened
{
    Whole,
    Cancelled,
    NotOpened,     ///< there is no such file, or it may not be read
    NotRecognised, ///< it is no project file of a generation that the command reads
    Damaged        ///< what stands before the damage did arrive
};

/// Whether the names of the active files follow the name of a save.
enum class EActiveNames
{
    Follow,
    Stay
};

class CInputFile
{
public:
    CInputFile(CProjectData& project, CProjectSession& session, CPlatform& platform);

    /// A project at its defaults.
    void NewProject();
    /// The keyword fields of the whole project, or of one half, to the keyword table's defaults.
    void ResetAll();
    void ResetGeometry();
    void ResetEnvironment();
    /// Both halves but for the names of their files, or one half with the name of its file, as an Open
    /// command clears them.
    void ClearHalf(EHalf half);

    /// Writes the project over the file that `InputFilePath` names. Shows a message if the file can't be
    /// opened. A disk that takes only part of it leaves a short file without a word; what stood in the file
    /// before then lies beside it, see SaveFile.
    ESaved Save();
    /// Forces the extension of the file in hand, which becomes both active files, then saves.
    ESaved SaveInput();
    /// Asks for a file, forces its extension, then saves. Nothing after Cancel.
    std::optional<ESaved> SaveInputAs(EActiveNames names = EActiveNames::Follow);

    /// Ask for a file and read it, whole or one half of it.
    EOpened OpenBoth();
    EOpened OpenGeometry();
    EOpened OpenEnvironment();
    /// Reads a file of the recent-file list, without a dialog. After a failure the caller takes it off the
    /// list.
    EOpened OpenPath(const std::string& path);

    /// Asks for an offset file. 1 if its stations and offsets went into the project, which is untouched
    /// otherwise.
    int ImportOffsets();
    /// The same, if the user lets the offsets there are be overwritten.
    int ImportOverOffsets();

    /// What the Open commands do with a file's content. Public so that hostile contents need no file.
    EOpened ReadContent(std::string_view content, EHalf half);

private:
    std::optional<std::string> AskOpen(const std::string& extension, const std::string& filter);
    EOpened Open(EHalf half);
    EOpened OpenFile(const std::string& path, EHalf half);
    void SetActiveNames(const std::string& path, EHalf half);

    CProjectData& m_project;
    CProjectSession& m_session;
    CPlatform& m_platform;
};
