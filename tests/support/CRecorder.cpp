#include "tests/support/CRecorder.h"

void CRecorder::MessageBox(const std::string& text, const std::string& title, EIcon icon)
{
    Messages.push_back(title + ": " + text);
    Icons.push_back(icon);
    Events.push_back(Messages.back());
}

bool CRecorder::AskYesNo(const std::string& text, const std::string& title, EIcon icon)
{
    MessageBox(text, title, icon);
    if (Answers.empty())
    {
        return Answer;
    }
    const bool answer = Answers.front();
    Answers.pop_front();
    return answer;
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

void CRecorder::MessageBeep()
{
    ++Beeps;
    Events.emplace_back("beep");
}

void CRecorder::SetCursor(ECursor cursor)
{
    Cursors.push_back(cursor);
    Events.emplace_back(cursor == ECursor::Wait ? "wait" : "arrow");
}

EStart CRecorder::Record(const std::string& start)
{
    Started.push_back(start);
    Events.push_back(start);
    return Start;
}

EStart CRecorder::StartProgram(const std::string& program, const std::string& baseDir)
{
    Record("start " + program + " in " + baseDir);
    if (Start == EStart::Started)
    {
        Running = true;
        AtStart();
    }
    return Start;
}

void CRecorder::EndPrograms()
{
    Record("end");
    Running = false;
}

EStart CRecorder::ShowProgram(const std::string& program, const std::string& baseDir,
                              const std::vector<std::string>& arguments)
{
    std::string start = "show " + program + " in " + baseDir + ":";
    for (const std::string& argument : arguments)
    {
        start += " " + argument;
    }
    return Record(start);
}

EStart CRecorder::ShowText(const std::string& path)
{
    return Record("text " + path);
}

EStart CRecorder::ShellOpen(const std::string& path)
{
    return Record("open " + path);
}
