// What an unset value holds, and the names that stand for "no file" in project files.
#pragma once

/// Not given: almost every field.
constexpr float kNotGiven = -1.0F;
/// Not given: the incidence of foils and fins, where -1 is a legal angle.
constexpr float kAngleNotGiven = -99.0F;
/// Not given: control gains, which are legal on both sides of zero.
constexpr float kGainNotGiven = -111111.0F;

/// Exact equality with the sentinel; a value such as -1.0001 is given.
constexpr bool IsGiven(float value, float sentinel = kNotGiven)
{
    return value != sentinel;
}

constexpr const char* kNoSpectrumFile = "empty";
constexpr const char* kNoGainFile = "NoFile";
constexpr const char* kNoName = "noname";
