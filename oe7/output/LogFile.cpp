#include "oe7/output/LogFile.h"

#include "core/platform/NumberText.h"

#include <algorithm>
#include <array>

namespace oe7
{
namespace
{
/// A text that holds line ends would begin lines of its own.
std::string InOneLine(std::string_view text)
{
    std::string line(text);
    std::replace_if(
        line.begin(), line.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    return line;
}

void AppendNotes(std::string& text, const std::vector<std::string>& notes)
{
    for (const std::string& note : notes)
    {
        text += "Note: " + InOneLine(note) + "\n";
    }
}

/// What every ended run tells behind its first line.
std::string Tail(const CRunLog& log, std::string_view stamp)
{
    std::string text;
    AppendNotes(text, log.Warnings());
    AppendNotes(text, log.Notes());
    return text + "Run of " + InOneLine(stamp) + "\n";
}
} // namespace

std::string UnfinishedLog()
{
    return "-1 the calculation did not come to its end\n";
}

std::string FinishedLog(const CRunLog& log, std::string_view stamp, double seconds)
{
    const int warnings = static_cast<int>(log.Warnings().size());
    const std::string outcome = warnings == 0   ? "0 completed without problems"
                                : warnings == 1 ? "1 completed with 1 warning"
                                                : FormatText("1 completed with %d warnings", warnings);
    return outcome + "\n" + Tail(log, stamp) + FormatText("Note: it took %.1f s\n", seconds);
}

std::string FailedLog(std::string_view error, const CRunLog& log, std::string_view stamp)
{
    return "-1 error: " + InOneLine(error) + "\n" + Tail(log, stamp);
}

std::string RunStamp(std::time_t moment)
{
    constexpr std::array days = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    constexpr std::array months = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                   "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    std::tm local = {};
    if (::localtime_r(&moment, &local) == nullptr)
    {
        local = {};
    }
    return FormatText("%s %s %2d %02d:%02d:%02d %d", days[static_cast<std::size_t>(local.tm_wday)],
                      months[static_cast<std::size_t>(local.tm_mon)], local.tm_mday, local.tm_hour,
                      local.tm_min, local.tm_sec, local.tm_year + 1900);
}

} // namespace oe7
