#include "tests/support/CRecorder.h"

void CRecorder::MessageBox(const std::string& text, const std::string& title, EIcon icon)
{
    Messages.push_back(title + ": " + text);
    Icons.push_back(icon);
}

bool CRecorder::AskYesNo(const std::string& text, const std::string& title, EIcon icon)
{
    MessageBox(text, title, icon);
    return Answer;
}

std::optional<std::string> CRecorder::AskOpen(const CFileRequest& request)
{
    Requests.push_back(request);
    if (Files.empty())
    {
        return std::nullopt;
    }
    const std::string file = Files.front();
    Files.pop_front();
    return file.empty() ? std::nullopt : std::optional(file);
}

std::optional<std::string> CRecorder::AskSave(const CFileRequest& request)
{
    return AskOpen(request);
}

std::optional<std::string> CRecorder::Find(const std::string& section, const std::string& entry) const
{
    const auto found = Entries.find({section, entry});
    return found == Entries.end() ? std::nullopt : std::optional(found->second);
}

void CRecorder::WriteProfileString(const std::string& section, const std::string& entry,
                                   const std::string& value)
{
    Entries[{section, entry}] = value;
    ++ProfileWrites;
}
