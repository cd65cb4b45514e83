#include "core/engine/EngineLog.h"

#include "core/platform/EngineFolder.h"
#include "core/platform/Files.h"
#include "core/platform/TextReading.h"

namespace
{
constexpr std::size_t kLongestLine = 255;
constexpr std::size_t kLongestLog = 64 << 20; ///< more is not looked at
} // namespace

bool ReportsProblem(std::string_view log)
{
    CLineReader lines(log);
    while (!lines.AtEnd())
    {
        const std::string_view word = CTokens(lines.ReadLine(kLongestLine)).Next().value_or("");
        if (word == "0" || word == "1" || word == "-1")
        {
            return word != "0";
        }
    }
    return false;
}

void CheckLog(const std::string& baseDir, CPlatform& platform)
{
    const std::string path = TakeEngineFile(baseDir, kLogFileName);
    const auto log = ReadFile(path, kLongestLog);
    if (!log)
    {
        platform.Messages.MessageBox("Error reading log file!", "File Read Error", EIcon::Stop);
        return;
    }
    if (!ReportsProblem(*log))
    {
        return;
    }
    const EStart start = platform.Programs.ShowText(path);
    if (start == EStart::OutOfMemory)
    {
        ShowOutOfMemory(platform.Messages);
    }
    else if (start == EStart::NotFound)
    {
        platform.Messages.MessageBox("Notepad was not found!", "Notepad Not Found", EIcon::None);
    }
}

void ShowOutOfMemory(CMessages& messages)
{
    messages.MessageBox("There was insufficient memory to start the application.", "Out of Memory",
                        EIcon::None);
}
