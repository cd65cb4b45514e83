#include "gui/forms/NumberFilter.h"

namespace
{
bool IsExponent(char16_t character)
{
    return character == u'e' || character == u'E';
}

bool HoldsExponent(std::u16string_view text)
{
    return text.find_first_of(u"eE") != std::u16string_view::npos;
}
} // namespace

bool MayTypeIntoNumber(std::u16string_view text, std::size_t caret, char16_t typed)
{
    const bool isNegative = text.starts_with(u'-');
    if (typed >= u'0' && typed <= u'9')
    {
        return true;
    }
    if (typed == u'-')
    {
        return caret == 0 ? !isNegative : IsExponent(text[caret - 1]);
    }
    if (IsExponent(typed))
    {
        return caret > 0 && !(caret == 1 && isNegative) && !HoldsExponent(text);
    }
    if (typed == u'.')
    {
        return text.find(u'.') == std::u16string_view::npos && !HoldsExponent(text.substr(0, caret));
    }
    return false;
}
