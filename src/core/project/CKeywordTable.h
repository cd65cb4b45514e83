// The constant rows of the keyword table, in the order of the project's fields.
#pragma once

#include <array>

struct CKeywordRow
{
    const char* Name;
    int Count;
    int Unit;
    int Scope;
    float Minimum;
    float Maximum;
    float Default;
};

constexpr int kKeywordCount = 171;

const std::array<CKeywordRow, kKeywordCount>& KeywordTable();
