#include "core/project/CInputFile.h"

#include "core/platform/FileErrors.h"
#include "core/project/OffsetImport.h"

namespace
{
/// More than the longest file that any reader takes in.
constexpr std::size_t kLongestFile = 4 << 20;

constexpr const char* kExtension = "od7";
constexpr const char* kOpenFilter = "Ondara Files (*.od7; *.od6)|*.od7; *.od6|All Files (*.*)|*.*|";
constexpr const char* kSaveFilter = "Ondara Files (*.od7)|*.od7|All Files (*.*)|*.*|";
constexpr const char* kOffsetFilter = "Ondara Files (*.csv; *.txt)|*.csv; *.txt|All Files (*.*)|*.*|";
} // namespace

CInputFile::CInputFile(CProjectData& project, CProjectSession& session, CPlatform& platform)
    : m_project(project),
      m_session(session),
      m_platform(platform)
{
}

void CInputFile::NewProject()
{
    ResetAll();
    m_session.InputFileTime = std::time(nullptr);
    static_cast<CFileFields&>(m_project) = {};
    m_project.ResetExtras();
    m_project.ClearCompleteness();
    m_session.RepaintView();
}

void CInputFile::ResetAll()
{
    m_project.ResetKeywords();
    m_session.Modified = 0;
}

void CInputFile::ResetGeometry()
{
    if (m_project.ActiveEnvironmentFile.empty())
    {
        m_session.InputFileTime = std::time(nullptr);
    }
    m_project.ResetKeywords(kScopeGeometry);
}

void CInputFile::ResetEnvironment()
{
    if (m_project.ActiveGeometryFile.empty())
    {
        m_session.InputFileTime = std::time(nullptr);
    }
    m_project.ResetKeywords(kScopeEnvironment);
}

ESaved CInputFile::Save()
{
    const ESaved saved = SaveFile(m_project.InputFilePath, InputFileText(m_project));
    if (saved == ESaved::NotOpened)
    {
        ShowSaveError(m_platform.Messages);
    }
    return saved;
}

ESaved CInputFile::SaveInput()
{
    m_project.InputFileName = WithExtension(m_project.InputFileName, kExtension);
    m_project.InputFilePath = WithExtension(m_project.InputFilePath, kExtension);
    SetActiveNames(m_project.InputFilePath, EHalf::Both);
    return Save();
}

std::optional<ESaved> CInputFile::SaveInputAs(EActiveNames names)
{
    ChangeFolder(m_session.WorkDir);
    const auto path = m_platform.FileDialogs.AskSave({"*.od7", m_project.InputFilePath, kSaveFilter, true});
    std::optional<ESaved> saved;
    if (path)
    {
        ChangeToFolderOf(*path);
        m_project.InputFilePath = WithExtension(*path, kExtension);
        m_project.InputFileName = FileName(m_project.InputFilePath);
        if (names == EActiveNames::Follow)
        {
            SetActiveNames(m_project.InputFilePath, EHalf::Both);
        }
        saved = Save();
    }
    m_session.WorkDir = CurrentFolder();
    return saved;
}

EOpened CInputFile::OpenBoth()
{
    return Open(EHalf::Both);
}

EOpened CInputFile::OpenGeometry()
{
    return Open(EHalf::Geometry);
}

EOpened CInputFile::OpenEnvironment()
{
    return Open(EHalf::Environment);
}

EOpened CInputFile::OpenPath(const std::string& path)
{
    m_project.InputFilePath = path;
    return OpenFile(path, EHalf::Both);
}

std::optional<std::string> CInputFile::AskOpen(const std::string& extension, const std::string& filter)
{
    ChangeFolder(m_session.WorkDir);
    auto path = m_platform.FileDialogs.AskOpen({extension, m_project.InputFilePath, filter, false});
    if (path)
    {
        ChangeToFolderOf(*path);
        m_project.InputFilePath = *path;
    }
    m_session.WorkDir = CurrentFolder();
    return path;
}

EOpened CInputFile::Open(EHalf half)
{
    const auto path = AskOpen("*.od7", kOpenFilter);
    if (!path)
    {
        return EOpened::Cancelled;
    }
    if (half != EHalf::Both)
    {
        // At once, before the file has been looked at.
        ClearHalf(half);
        m_project.RecomputeCompleteness();
    }
    return OpenFile(*path, half);
}

EOpened CInputFile::OpenFile(const std::string& path, EHalf half)
{
    const auto content = ReadFile(path, kLongestFile);
    if (!content)
    {
        ShowReadError(m_platform.Messages);
        return EOpened::NotOpened;
    }
    const EOpened opened = ReadContent(*content, half);
    if (opened == EOpened::NotRecognised)
    {
        return opened;
    }
    m_session.RecentFiles.Add(path);
    SetActiveNames(path, half);
    const std::time_t now = std::time(nullptr);
    if (half != EHalf::Environment)
    {
        m_session.InputFileTime = FileTime(path).value_or(now);
    }
    else if (m_project.ActiveGeometryFile.empty())
    {
        m_session.InputFileTime = now;
    }
    return opened;
}

EOpened CInputFile::ReadContent(std::string_view content, EHalf half)
{
    CLineReader lines(content);
    const std::string title(lines.ReadLine(kLongestTitle));
    const std::string magic(CTokens(lines.ReadLine(kLongestTitle)).Next().value_or(""));
    m_project.FileMagic = magic;
    // Open Environment knows the previous generation only: users open newer files whole or by their geometry.
    const bool current = magic == kMagicCurrent && half != EHalf::Environment;
    if (!current && magic != kMagicPrevious)
    {
        m_project.InputFilePath.clear();
        ShowReadError(m_platform.Messages);
        return EOpened::NotRecognised;
    }
    ClearHalf(half);
    if (half != EHalf::Geometry)
    {
        m_project.ProjectTitle = title;
    }
    const bool whole =
        ReadInputFileText(lines, m_project, half, current ? kRevisionCurrent : kRevisionPrevious);
    if (!whole)
    {
        ShowReadError(m_platform.Messages);
    }
    m_project.ClearCompleteness();
    m_project.RecomputeCompleteness();
    return whole ? EOpened::Whole : EOpened::Damaged;
}

void CInputFile::ClearHalf(EHalf half)
{
    switch (half)
    {
    case EHalf::Both:
        ResetAll();
        m_project.ResetExtras();
        break;
    case EHalf::Geometry:
        ResetGeometry();
        m_project.ClearGeometryExtras();
        m_project.ActiveGeometryFile.clear();
        break;
    case EHalf::Environment:
        ResetEnvironment();
        m_project.ClearEnvironmentExtras();
        m_project.ActiveEnvironmentFile.clear();
        break;
    }
}

void CInputFile::SetActiveNames(const std::string& path, EHalf half)
{
    if (half != EHalf::Environment)
    {
        m_project.ActiveGeometryFile = path;
    }
    if (half != EHalf::Geometry)
    {
        m_project.ActiveEnvironmentFile = path;
    }
    m_session.RepaintView();
}

int CInputFile::ImportOverOffsets()
{
    return m_platform.Messages.AskYesNo("Are you sure you want to overwrite existing offsets?",
                                        "Import Geometry", EIcon::Question)
               ? ImportOffsets()
               : 0;
}

int CInputFile::ImportOffsets()
{
    const auto path = AskOpen("*.csv", kOffsetFilter);
    if (!path)
    {
        return 0;
    }
    const auto content = ReadFile(*path, kLongestFile);
    if (!content)
    {
        ShowReadError(m_platform.Messages);
        return 0;
    }
    COffsetTable offsets;
    const std::string failure = ReadOffsets(*content, offsets);
    if (!failure.empty())
    {
        m_platform.Messages.MessageBeep();
        m_platform.Messages.MessageBox("There was an error importing offsets. \n " + failure +
                                           " \n\n Please check your inputs.",
                                       "Error Reading File", EIcon::Stop);
        return 0;
    }
    StoreOffsets(offsets, m_project);
    m_session.Modified = 1;
    return 1;
}
