// What the program asks of its machine. The desktop, the command line and the tests each bring their own
// answers; nothing else in the core knows a screen or a settings store.
#pragma once

#include <optional>
#include <string>

enum class EIcon
{
    None,
    Stop,
    Warning,
    Question,
    Information
};

/// Message boxes and the bell.
class CMessages
{
public:
    virtual ~CMessages() = default;

    /// Shows a text that the user acknowledges with OK.
    virtual void MessageBox(const std::string& text, const std::string& title, EIcon icon) = 0;
    /// Asks a Yes/No question; true for Yes.
    virtual bool AskYesNo(const std::string& text, const std::string& title, EIcon icon) = 0;
    virtual void MessageBeep() = 0;
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

    /// The entry's text, or `absent` where there is none.
    std::string GetProfileString(const std::string& section, const std::string& entry,
                                 const std::string& absent = {}) const;
    /// The entry's leading number, or `absent` where there is no entry.
    int GetProfileInt(const std::string& section, const std::string& entry, int absent) const;
    void WriteProfileInt(const std::string& section, const std::string& entry, int value);
};

/// The edges of the program, as one thing to hand on.
struct CPlatform
{
    CMessages& Messages;
    CFileDialogs& FileDialogs;
    CProfile& Profile;
};
