#include "core/project/CKeywordTable.h"

#include "core/platform/TextReading.h"
#include "core/project/CProjectData.h"
#include "tests/support/CTestFolder.h"

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

namespace
{
const CKeywordRow& Row(const std::string& name)
{
    const auto& table = KeywordTable();
    const auto found = std::find_if(table.begin(), table.end(),
                                    [&name](const CKeywordRow& row) { return row.Name == name; });
    EXPECT_NE(found, table.end()) << name;
    return found == table.end() ? table.front() : *found;
}

int IndexOf(const std::string& name)
{
    return static_cast<int>(&Row(name) - KeywordTable().data());
}

int Scope(std::string_view text)
{
    return text == "BOTH" ? kScopeBoth : text == "ENV" ? kScopeEnvironment : kScopeGeometry;
}

float Number(CTokens& tokens)
{
    return static_cast<float>(NumberAtStart(tokens.Next().value_or("")));
}
} // namespace

TEST(CKeywordTable, Its171RowsAreThoseOfTheReferenceInOrder)
{
    const std::string reference = FileContent(SourceFile("tests/golden/project/Keywords.txt"));
    CLineReader lines(reference);
    for (const CKeywordRow& row : KeywordTable())
    {
        CTokens tokens(lines.ReadLine(reference.size()));
        EXPECT_EQ(tokens.Next(), row.Name);
        EXPECT_EQ(tokens.Next(), IntegerText(row.Count)) << row.Name;
        EXPECT_EQ(Scope(tokens.Next().value_or("")), row.Scope) << row.Name;
        EXPECT_EQ(Number(tokens), row.Minimum) << row.Name;
        EXPECT_EQ(Number(tokens), row.Maximum) << row.Name;
        EXPECT_EQ(Number(tokens), row.Default) << row.Name;
        EXPECT_EQ(row.Unit, kUnitMetric) << row.Name;
    }
    EXPECT_EQ(lines.LineNumber(), 171);
    EXPECT_TRUE(lines.AtEnd());
}

TEST(CKeywordTable, GroupsFollowEachOther)
{
    const std::pair<const char*, int> groups[] = {
        {"INSYS", 20},   {"WVFREQMIN", 6}, {"NSEADIR", 21}, {"SHIPLEN", 7},    {"NST", 15},
        {"NSTLOAD", 15}, {"NPOS", 20},     {"NBKPAIR", 9},  {"XSTAFTSKEG", 3}, {"XSTRUD", 18},
        {"XSTFOIL", 9},  {"NFINPAIR", 16}, {"TANKLEN", 12}};
    int first = 0;
    for (const auto& [name, count] : groups)
    {
        EXPECT_EQ(IndexOf(name), first);
        first += count;
    }
    EXPECT_EQ(first, kKeywordCount);
}

TEST(CKeywordTable, TheLimitsOfTheSternsKgAreInverted)
{
    EXPECT_EQ(Row("STERNKG").Minimum, 0.0F);
    EXPECT_EQ(Row("STERNKG").Maximum, -1000.0F);
    EXPECT_EQ(Row("BOWKG").Minimum, -1000.0F);
    EXPECT_EQ(Row("BOWKG").Maximum, 1000.0F);
}
