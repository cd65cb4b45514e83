#include "core/project/FieldChecks.h"

#include "core/platform/NumberText.h"
#include "core/project/Sentinels.h"

#include <bit>
#include <cstdint>

namespace
{
/// Users know these two numbers: the low and the high half of the minimum's bits stand where the limits
/// belong.
std::string IntegerLimits(double minimum)
{
    const auto bits = std::bit_cast<std::uint64_t>(minimum);
    const auto low = static_cast<std::int32_t>(static_cast<std::uint32_t>(bits));
    const auto high = static_cast<std::int32_t>(static_cast<std::uint32_t>(bits >> 32));
    return FormatText("Min. = %i   Max. = %i", low, high);
}

/// The text of the limits; empty for an unknown mode.
std::string LimitsText(double minimum, double maximum, int mode)
{
    switch (mode)
    {
    case kTwoDecimals:
        return FormatText("Min. = %.2f   Max. = %.2f", minimum, maximum);
    case kIntegers:
        return IntegerLimits(minimum);
    case kFourDecimals:
        return FormatText("Min. = %.4f   Max. = %.2f", minimum, maximum);
    case kFiveDecimals:
        return FormatText("Min. = %.5f   Max. = %.2f", minimum, maximum);
    case kSixDecimals:
        return FormatText("Min. = %.6f   Max. = %.2f", minimum, maximum);
    default:
        return {};
    }
}
} // namespace

int CheckRange(CMessages& messages, float minimum, float maximum, float value, int mode,
               const std::string& caption)
{
    if (minimum <= value && value <= maximum)
    {
        return 0;
    }
    const std::string limits = LimitsText(static_cast<double>(minimum), static_cast<double>(maximum), mode);
    if (limits.empty())
    {
        return 0;
    }
    messages.MessageBox(limits, caption, EIcon::Stop);
    return 1;
}

bool CheckEntered(CMessages& messages, float value, const std::string& name)
{
    if (IsGiven(value))
    {
        return false;
    }
    messages.MessageBox("Please enter a value for " + name, "Enter a value", EIcon::Stop);
    return true;
}
