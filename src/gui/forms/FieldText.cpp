#include "gui/forms/FieldText.h"

std::string FieldText(float value, CFixedFormat format, float sentinel)
{
    const std::string text = FixedText(value, format);
    return text == FixedText(sentinel, format) ? std::string() : text;
}

float FieldValue(const std::string& text, float sentinel)
{
    return IsBlank(text) ? sentinel : Narrowed(NumberAtStart(text));
}

bool IsBlank(const std::string& text)
{
    return text.empty() || text == " ";
}

std::string ConvertedText(const std::string& text, float factor, CFixedFormat format, float sentinel)
{
    const float value = FieldValue(text, sentinel);
    return IsGiven(value, sentinel) ? FixedText(value * factor, format) : text;
}
