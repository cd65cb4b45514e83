// A calculation whose numbers are made up, each different from the others, for the files that are written
// from it.
#pragma once

#include "oe7/calculation/CResults.h"

#include <string>
#include <vector>

constexpr const char* kStamp = "Fri Nov 20 17:31:18 2026";

/// Two speeds, three headings, two seaways, four frequencies, loads, every kind of appendage and of position.
oe7::CInput SmallInput();

struct CMadeRun
{
    explicit CMadeRun(const oe7::CInput& input = SmallInput());

    oe7::CInput Input;
    oe7::CResults Results;
    oe7::CRunLog Log;

    std::string Binary();
    std::string Listing();
};

/// A text line by line.
std::vector<std::string> LinesOf(const std::string& text);
std::vector<std::string> TokensOf(const std::string& line);
