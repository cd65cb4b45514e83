#include "core/platform/LineFormat.h"

namespace
{
/// A placeholder's decimals if it is nothing but "%.2f" with one digit; -1 for any other.
int PlainDecimals(std::string_view placeholder)
{
    const bool plain = placeholder.size() == 4 && placeholder[1] == '.' && placeholder[3] == 'f';
    return plain ? placeholder[2] - '0' : -1;
}

void AppendValue(std::string& text, std::string_view placeholder, const CFormatValue& value)
{
    const std::string format(placeholder);
    switch (value.Kind())
    {
    case CFormatValue::EKind::Number:
        if (const int decimals = PlainDecimals(placeholder); decimals >= 0)
        {
            AppendDecimals(text, value.Number(), decimals);
        }
        else
        {
            text += FormatText(format.c_str(), value.Number());
        }
        return;
    case CFormatValue::EKind::Integer:
        text += placeholder.size() == 2 ? IntegerText(value.Integer())
                                        : FormatText(format.c_str(), value.Integer());
        return;
    case CFormatValue::EKind::Text:
        text += value.Text();
    }
}
} // namespace

void AppendFormat(std::string& text, std::string_view format, std::span<const CFormatValue> values)
{
    for (const CFormatValue& value : values)
    {
        const std::size_t at = format.find('%');
        text += format.substr(0, at);
        format.remove_prefix(at);
        const std::size_t length = PlaceholderLength(format);
        AppendValue(text, format.substr(0, length), value);
        format.remove_prefix(length);
    }
    text += format;
}
