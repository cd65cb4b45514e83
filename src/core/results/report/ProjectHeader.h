// The company block that the user's firm keeps in one file for all reports.
#pragma once

#include <string>

constexpr int kHeaderCompany = 1;
constexpr int kHeaderClient = 2;
constexpr int kHeaderContract = 3;

/// One value of the company block, from the section "Project" of the file "odview.ini" in a folder; empty if
/// file or entry is missing, and for any other number. At most 179 bytes.
std::string ProjectHeaderField(int field, const std::string& folder);
