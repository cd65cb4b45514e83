#include "core/results/ResultsSections.h"

#include <algorithm>
#include <iterator>

namespace
{
constexpr std::size_t kRunStampOffset = 20;
constexpr std::size_t kRunStampWidth = 100;
constexpr std::size_t kSpectrumOffset = 180;
constexpr std::size_t kSpectrumWidth = 20;
constexpr std::size_t kLengthOffset = 200;
constexpr std::size_t kCentreOfGravityOffset = 224;
constexpr std::size_t kSpreadAngleOffset = 232;
constexpr std::size_t kLoadStationsOffset = 244;

/// In the order of their kinds.
constexpr const char* kSpectrumKeywords[] = {"REGULAR",      "QUADRATIC",    "BRETSCHNEIDER",
                                             "JONSWAP",      "OCHIHUBBLE",   "INPUTUNI",
                                             "TENPARAMETER", "ODGPHINDCAST", "INPUTDIR"};

int SpectrumKind(const std::string& keyword)
{
    const auto* const found = std::find(std::begin(kSpectrumKeywords), std::end(kSpectrumKeywords), keyword);
    return found == std::end(kSpectrumKeywords)
               ? static_cast<int>(kSpectrumUnknown)
               : static_cast<int>(std::distance(std::begin(kSpectrumKeywords), found));
}

/// The stamp is one text with blanks inside; its padding is dropped.
std::string RunStamp(std::string_view bytes)
{
    std::string_view stamp = bytes.substr(kRunStampOffset, kRunStampWidth);
    stamp = stamp.substr(0, stamp.find('\0'));
    return std::string(stamp.substr(0, stamp.find_last_not_of(' ') + 1));
}
} // namespace

CResultsHead ReadHead(std::string_view bytes)
{
    CResultsCursor cursor(bytes);
    cursor.Seek(kBodyOffset); // the whole head is there
    CResultsHead head;
    head.RunStamp = RunStamp(bytes);
    cursor.Seek(kSpectrumOffset);
    head.SpectrumKind = SpectrumKind(cursor.Text(kSpectrumWidth));
    cursor.Seek(kLengthOffset);
    head.Length = cursor.Float();
    head.StationCount = cursor.Count(kMaxStations);
    cursor.Seek(kCentreOfGravityOffset);
    head.VerticalCentreOfGravity = cursor.Float();
    cursor.Seek(kSpreadAngleOffset);
    head.SpreadAngle = cursor.Float();
    cursor.Seek(kLoadStationsOffset);
    head.LoadStationCount = cursor.Count(kMaxLoadStations);
    return head;
}
