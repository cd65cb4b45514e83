#include "oe7/input/GainFiles.h"

#include "oe7/input/FileNames.h"
#include "oe7/input/InputRecords.h"
#include "oe7/input/Limits.h"

namespace oe7
{
namespace
{
/// Blanks in place of comments.
std::string WithoutComments(std::string_view text)
{
    std::string plain(text);
    bool comment = false;
    for (char& c : plain)
    {
        comment = c != '\n' && (comment || c == '#');
        c = comment ? ' ' : c;
    }
    return plain;
}

CRudderGains ReadRudderGains(CRecordReader& file)
{
    CRudderGains gains;
    gains.Roll = ReadGains(file, "a roll gain");
    gains.LowCut = file.Number("the low cut-off");
    gains.HighCut = file.Number("the high cut-off");
    gains.Yaw = ReadGains(file, "a yaw gain");
    gains.Lateral = ReadGains(file, "a lateral gain", 1 / file.LengthUnit());
    return gains;
}

CFinGains ReadFinGains(CRecordReader& file)
{
    CFinGains gains;
    gains.Roll = ReadGains(file, "a roll gain");
    gains.HighCut = file.Number("the high cut-off");
    gains.Yaw = ReadGains(file, "a yaw gain");
    return gains;
}

template <class Gains>
std::vector<CGainCondition<Gains>> ReadConditions(CRecordReader& file, Gains (*readGains)(CRecordReader&))
{
    std::vector<CGainCondition<Gains>> conditions;
    while (!file.AtEnd())
    {
        file.NextLine();
        if (file.LineEnded())
        {
            continue;
        }
        if (conditions.size() == kMostGainLines)
        {
            file.Fail("there are too many lines of gains");
        }
        CGainCondition<Gains>& condition = conditions.emplace_back();
        condition.Speed = file.Number("the speed");
        condition.Heading = file.Number("the heading");
        condition.Values = readGains(file);
    }
    if (conditions.empty())
    {
        file.Fail("there are no gains in the file");
    }
    return conditions;
}
} // namespace

std::vector<CGainCondition<CRudderGains>> ParseRudderGains(std::string_view text, EUnits units)
{
    const std::string plain = WithoutComments(text);
    CRecordReader file(plain, kRudderGainFile);
    file.SetUnits(units);
    return ReadConditions(file, ReadRudderGains);
}

std::vector<CGainCondition<CFinGains>> ParseFinGains(std::string_view text)
{
    const std::string plain = WithoutComments(text);
    CRecordReader file(plain, kFinGainFile);
    return ReadConditions(file, ReadFinGains);
}

} // namespace oe7
