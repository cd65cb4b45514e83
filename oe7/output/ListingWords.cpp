#include "oe7/output/ListingWords.h"

#include "core/platform/NumberText.h"

#include <algorithm>

namespace oe7
{
namespace
{
constexpr std::size_t kLongestTitle = 200;
constexpr std::size_t kLongestLabel = 60;

bool IsControl(char letter)
{
    const auto code = static_cast<unsigned char>(letter);
    return code < 0x20 || code == 0x7F;
}

std::string InLowerCase(std::string text)
{
    for (char& letter : text)
    {
        letter = letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    }
    return text;
}
} // namespace

std::string ListedTitle(std::string_view title)
{
    std::string listed(title.substr(0, kLongestTitle));
    std::replace_if(listed.begin(), listed.end(), IsControl, ' ');
    const bool holdsMarker =
        std::any_of(kMarkers.begin(), kMarkers.end(),
                    [&listed](std::string_view marker) { return listed.find(marker) != std::string::npos; });
    return holdsMarker ? InLowerCase(listed) : listed;
}

std::string ListedLabel(std::string_view label, int number)
{
    std::string listed(label.substr(0, kLongestLabel));
    std::replace_if(
        listed.begin(), listed.end(), [](char letter) { return letter == ' ' || IsControl(letter); }, '_');
    return listed.empty() ? "position-" + IntegerText(number) : InLowerCase(listed);
}

} // namespace oe7
