// Which typed characters may enter the text of a number.
#pragma once

#include <string_view>

/// Whether a character may be typed in front of the place `caret` of a text. Digits always; a minus sign in
/// front of all and behind an "e"; one "e" behind a number's beginning; one point, not behind an "e".
bool MayTypeIntoNumber(std::u16string_view text, std::size_t caret, char16_t typed);
