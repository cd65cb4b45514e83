#include "core/results/CResultsCommands.h"

#include "core/platform/EngineFolder.h"
#include "core/platform/Files.h"
#include "core/project/CInputFile.h"
#include "core/results/CResultFile.h"
#include "core/results/LastLoadName.h"

#include <array>
#include <cstdint>
#include <fstream>

namespace
{
constexpr const char* kExtension = "tv7";
constexpr const char* kOpenFilter = "Results Files (*.tv7)|*.tv7|All Files (*.*)|*.*|";
constexpr const char* kSaveFilter = "Result Files (*.tv7)|*.tv7|All Files(*.*)|*.*|";

/// The extension of a path as it is written, with its point.
std::string Extension(const std::string& path)
{
    const std::string name = FileName(path);
    const std::size_t point = name.find_last_of('.');
    return point == std::string::npos ? "" : name.substr(point);
}

/// The last part of a path that another machine may have written.
std::string ForeignFileName(const std::string& path)
{
    return path.substr(path.find_last_of("/\\:") + 1);
}
} // namespace

CResultsCommands::CResultsCommands(CProjectData& project, CProjectSession& session, CPlatform& platform)
    : RestoreProject([&project, &session, &platform](const std::string& path)
                     { CResultFile(project, session.BaseDir, platform).RestoreProject(path); }),
      m_project(project),
      m_session(session),
      m_platform(platform)
{
}

void CResultsCommands::LoadLastCalculated()
{
    const std::string path = TakeEngineFile(m_session.BaseDir, kResultsFileName);
    if (!CanBeRead(path))
    {
        ShowNotFound();
        return;
    }
    std::string name;
    if (AskToOverwriteInputs())
    {
        RestoreFrom(path);
        const std::string stored = ForeignFileName(StoredInputFile(path));
        name = stored.empty() ? "" : JoinPath(m_session.BaseDir, WithExtension(stored, kExtension));
        SetActiveNames(name);
        UpdateTitle();
    }
    m_project.ResultsFilePath = path;
    m_project.ResultsTitle = path;
    m_project.ResultsLoaded = 1;
    SetActiveNames(name);
}

void CResultsCommands::LoadResults()
{
    ChangeFolder(m_session.WorkDir);
    const auto path = m_platform.FileDialogs.AskOpen({"*.tv7", m_project.ResultsTitle, kOpenFilter, false});
    if (path)
    {
        ChangeToFolderOf(*path);
        m_project.ResultsTitle = *path;
        LoadFile(*path);
    }
    m_session.WorkDir = CurrentFolder();
}

void CResultsCommands::LoadFile(const std::string& path)
{
    const std::string extension = Extension(path);
    if (extension == ".tvt")
    {
        m_platform.Messages.MessageBox("Older file versions cannot be read.", "File Version Change",
                                       EIcon::Stop);
    }
    else if (extension != ".tv7") // in this very case
    {
        m_platform.Messages.MessageBox("The file could not be read.", "Invalid File type.", EIcon::Stop);
    }
    else if (!CanBeRead(path))
    {
        ShowNotFound();
    }
    else if (AskToOverwriteInputs())
    {
        RestoreFrom(path);
        m_project.ResultsFilePath = path;
        m_project.ResultsLoaded = 1;
        SetActiveNames(path);
        UpdateTitle();
    }
    else
    {
        // The results in use stay the ones of before.
        SetActiveNames(path);
    }
}

EKept CResultsCommands::SaveAs()
{
    ChangeFolder(m_session.WorkDir);
    const auto path = m_platform.FileDialogs.AskSave({kExtension, m_project.ResultsTitle, kSaveFilter, true});
    EKept kept = EKept::Cancelled;
    if (path)
    {
        ChangeToFolderOf(*path);
        kept = Keep(*path);
        m_project.ResultsFilePath = *path;
        m_project.ResultsTitle = *path;
    }
    m_session.WorkDir = CurrentFolder();
    return kept;
}

EKept CResultsCommands::Keep(const std::string& path)
{
    const std::string last = LastLoadName(m_platform.Profile);
    if (last.empty())
    {
        return EKept::NothingToSave;
    }
    if (last == m_project.ResultsFilePath)
    {
        SetLastLoadName(m_platform.Profile, path);
    }
    const bool copied = CopyResults(kResultsFileName, path);
    const bool listed = CopyResults(kListingFileName, WithExtension(path, "out"));
    if (copied)
    {
        return listed ? EKept::Saved : EKept::ListingNotCopied;
    }
    return listed ? EKept::ResultsNotCopied : EKept::NothingCopied;
}

bool CResultsCommands::CopyResults(const char* name, const std::string& target) const
{
    return !IsReadOnly(target) && CopyFileOver(TakeEngineFile(m_session.BaseDir, name), ResolvedPath(target));
}

bool CResultsCommands::AskToOverwriteInputs()
{
    return m_platform.Messages.AskYesNo("Would you like to overwrite the input parameters with the ones "
                                        "associated with this result file?",
                                        "Overwrite Inputs", EIcon::Question);
}

void CResultsCommands::RestoreFrom(const std::string& path)
{
    CInputFile(m_project, m_session, m_platform).NewProject();
    RestoreProject(path);
}

void CResultsCommands::SetActiveNames(const std::string& name)
{
    m_project.ActiveGeometryFile = name;
    m_project.ActiveEnvironmentFile = name;
    m_session.RepaintView();
}

void CResultsCommands::ShowNotFound()
{
    m_platform.Messages.MessageBox("The last calculated file cannot be found.", "Cannot Find File",
                                   EIcon::Warning);
}

std::string StoredInputFile(const std::string& path)
{
    constexpr std::streamoff distance = 510; // from the name to section A
    constexpr std::streamoff word = 4;
    std::ifstream file(path, std::ios::binary);
    std::array<unsigned char, word> bytes = {};
    file.seekg(-word, std::ios::end);
    file.read(reinterpret_cast<char*>(bytes.data()), word);
    std::uint32_t sectionA = 0;
    for (std::size_t k = 0; k < bytes.size(); ++k)
    {
        sectionA |= static_cast<std::uint32_t>(bytes[k]) << (8 * k);
    }
    const std::streamoff place = static_cast<std::int32_t>(sectionA) - distance;
    std::array<char, 255> name = {};
    if (!file || place < 0 || !file.seekg(place) || !file.read(name.data(), name.size()))
    {
        return {};
    }
    const std::string_view text(name.data(), name.size());
    return std::string(text.substr(0, text.find_first_of(std::string_view(" \0", 2))));
}
