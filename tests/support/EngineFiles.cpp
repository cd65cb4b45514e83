#include "core/platform/NumberText.h"
#include "tests/support/EngineNumbers.h"

#include <algorithm>

namespace
{
/// Calls `each(line)` with every line, its line feed included.
template <class Each>
void EachLine(const std::string& text, Each&& each)
{
    for (std::size_t begin = 0; begin < text.size();)
    {
        const std::size_t end = std::min(text.find('\n', begin), text.size() - 1) + 1;
        each(text.substr(begin, end - begin));
        begin = end;
    }
}

std::string Log(const CEngineRun& run, const std::string& first, const std::vector<std::string>& warnings)
{
    std::string text = first + "\n";
    for (const std::string& warning : warnings)
    {
        text += "Note: " + warning + "\n";
    }
    return text + "Note: elapsed time 1.25 s\nRun of " + run.Stamp + "\n";
}
} // namespace

std::string EngineLog(const CEngineRun& run, const std::vector<std::string>& warnings)
{
    const int count = static_cast<int>(warnings.size());
    return Log(run,
               count == 0 ? "0 completed without problems"
                          : "1 completed with " + IntegerText(count) + " warning(s)",
               warnings);
}

std::string EngineErrorLog(const CEngineRun& run, const std::string& error)
{
    return Log(run, "-1 error: " + error, {});
}

std::string EngineCoefficientTable(const CEngineRun& run)
{
    std::string text =
        "Hydrodynamic coefficients of " + run.Title + "\nSpeed_kn,EncFreq_rad_s,A22,A33,B22,B33\n";
    for (int speed = 0; speed < run.SpeedCount(); ++speed)
    {
        text +=
            FormatText("%.3f,%.5f", static_cast<double>(run.Speeds[static_cast<std::size_t>(speed)]), 0.5);
        for (int column = 0; column < 4; ++column)
        {
            text += FormatText(",%.6e", MadeUp(EEngineNumber::Other, 4, speed, column));
        }
        text += "\n";
    }
    return text;
}

std::string EngineWaveForceTable(const CEngineRun& run)
{
    std::string text = "Wave forces of " + run.Title +
                       "\nSpeed_kn,Heading_deg,WaveFreq_rad_s,EncFreq_rad_s,F1_amp,F1_phase\n";
    for (int speed = 0; speed < run.SpeedCount(); ++speed)
    {
        for (int heading = 0; heading < run.HeadingCount(); ++heading)
        {
            text += FormatText("%.3f,%.2f,%.4f,%.5f,%.6e,%.2f\n",
                               static_cast<double>(run.Speeds[static_cast<std::size_t>(speed)]),
                               static_cast<double>(run.Headings[static_cast<std::size_t>(heading)]),
                               WaveFrequency(run, 0), EncounterFrequency(run, speed, heading, 0),
                               MadeUp(EEngineNumber::Other, 5, speed, heading),
                               MadeUp(EEngineNumber::RaoPhase, speed, 0, heading));
        }
    }
    return text;
}

std::string WithoutMarker(const std::string& listing, const std::string& marker)
{
    std::string kept;
    EachLine(listing,
             [&](const std::string& line)
             {
                 if (line.find(marker) == std::string::npos)
                 {
                     kept += line;
                 }
             });
    return kept;
}

std::string FirstLines(const std::string& listing, int count)
{
    std::string kept;
    EachLine(listing,
             [&](const std::string& line)
             {
                 if (count-- > 0)
                 {
                     kept += line;
                 }
             });
    return kept;
}

std::string WithCarriageReturns(const std::string& text)
{
    std::string result;
    for (const char letter : text)
    {
        result.append(letter == '\n' ? "\r" : "").push_back(letter);
    }
    return result;
}

std::string WithoutEndMark(const std::string& binary)
{
    return binary.substr(0, binary.size() - std::min<std::size_t>(binary.size(), 4));
}
