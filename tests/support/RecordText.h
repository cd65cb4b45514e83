// Lines of a project file by the label in front of them.
#pragma once

#include <string>

/// The line that stands `behind` lines behind the first line that begins with a label (1: the next). Fails
/// the running test if there is none.
std::string LineBehind(const std::string& text, const std::string& label, int behind = 1);
/// The text with that line replaced.
std::string WithLineBehind(const std::string& text, const std::string& label, const std::string& line,
                           int behind = 1);
/// The text with `count` lines taken out, from the one that begins with the label on.
std::string WithoutLines(const std::string& text, const std::string& label, int count);
/// A file of the current generation as the previous one wrote it: without the lines and tokens that it lacks,
/// and with 30 offsets on each offset line.
std::string AsPreviousGeneration(const std::string& text);
