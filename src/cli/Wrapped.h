// Fills text into lines.
#pragma once

#include <string>

/// The words of a text in lines of at most `width` bytes, without a line feed at the end. A longer word has a
/// line of its own.
std::string Wrapped(const std::string& text, std::size_t width);
