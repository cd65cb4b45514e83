// What the program asks of its machine. The desktop, the command line and the tests each bring their own
// answers; nothing else in the core knows a screen, a settings store or a process.
#pragma once

#include <optional>
#include <string>
#include <vector>

enum class EIcon
{
    None,
    Stop,
    Warning,
    Question,
    Information
};

enum class ECursor
{
    Arrow,
    Wait
};

/// Message boxes, the bell and the mouse cursor.
class CMessages
{
public:
    virtual ~CMessages() = default;

    /// Shows a text that the user acknowledges with OK.
    virtual void MessageBox(const std::string& text, const std::string& title, EIcon icon) = 0;
    /// Asks a Yes/No question; true for Yes.
    virtual bool AskYesNo(const std::string& text, const std::string& title, EIcon icon) = 0;
    virtual void MessageBeep() = 0;
    /// Nothing happens where there is no mouse.
    virtual void SetCursor(ECursor) {}
};

/// What a file dialog begins with.
struct CFileRequest
{
    std::string DefaultExtension; ///< "*.od7"
    std::string InitialName;
    std::string Filter; ///< pairs of caption and patterns, each ended by '|'
    bool OverwritePrompt = false;
};

/// File dialogs. Each gives the full path that the user chose, or nothing after Cancel.
class CFileDialogs
{
public:
    virtual ~CFileDialogs() = default;

    virtual std::optional<std::string> AskOpen(const CFileRequest& request) = 0;
    virtual std::optional<std::string> AskSave(const CFileRequest& request) = 0;
};

/// The settings store: values by section and entry.
class CProfile
{
public:
    virtual ~CProfile() = default;

    virtual std::optional<std::string> Find(const std::string& section, const std::string& entry) const = 0;
    virtual void WriteProfileString(const std::string& section, const std::string& entry,
                                    const std::string& value) = 0;
    /// The folder that the store stands in; the file with the company block stands there too.
    virtual std::string Folder() const = 0;

    /// The entry's text, or `absent` where there is none.
    std::string GetProfileString(const std::string& section, const std::string& entry,
                                 const std::string& absent = {}) const;
    /// The entry's leading number, or `absent` where there is no entry.
    int GetProfileInt(const std::string& section, const std::string& entry, int absent) const;
    void WriteProfileInt(const std::string& section, const std::string& entry, int value);
};

/// How the start of a program ended.
enum class EStart
{
    Started,
    NotFound,
    OutOfMemory,
    Refused ///< it is there, but the system doesn't start it
};

/// Programs beside this one. Those that come with this one are looked for as BundledProgramPlaces tells.
class CPrograms
{
public:
    virtual ~CPrograms() = default;

    /// Starts a bundled program without a window, in the current folder; it is the engine's way to run.
    virtual EStart StartProgram(const std::string& program, const std::string& baseDir) = 0;
    /// Whether any program that StartProgram has started still runs.
    virtual bool IsRunning() = 0;
    /// Ends all programs that StartProgram has started, with what they have started themselves.
    virtual void EndPrograms() = 0;

    /// Starts a bundled program with a window. Nobody waits for it.
    virtual EStart ShowProgram(const std::string& program, const std::string& baseDir,
                               const std::vector<std::string>& arguments) = 0;
    /// Shows a text file in the system's text viewer.
    virtual EStart ShowText(const std::string& path) = 0;
    /// Opens a document with the program that the system has for it.
    virtual EStart ShellOpen(const std::string& path) = 0;
};

/// The edges of the program, as one thing to hand on.
struct CPlatform
{
    CMessages& Messages;
    CFileDialogs& FileDialogs;
    CProfile& Profile;
    CPrograms& Programs;
};
