// Numbers of the project as texts of a form, and back. A value that isn't given shows as an empty text.
#pragma once

#include "core/platform/NumberText.h"
#include "core/project/Sentinels.h"

#include <string>

/// A value through its format. Empty if that gives the text of the sentinel, also for a value that is only
/// close to it.
std::string FieldText(float value, CFixedFormat format, float sentinel = kNotGiven);
/// The number at the text's start, 0 if there is none; the sentinel for a text that is empty or one blank.
float FieldValue(const std::string& text, float sentinel = kNotGiven);
/// An empty text or one of a single blank: two blanks are a text, which reads as 0.
bool IsBlank(const std::string& text);
/// The text in another unit: its value times the factor, in single precision, through the format. A text that
/// reads as the sentinel stays as it is; the product may well show the sentinel's text.
std::string ConvertedText(const std::string& text, float factor, CFixedFormat format,
                          float sentinel = kNotGiven);
