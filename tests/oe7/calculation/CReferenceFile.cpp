#include "tests/oe7/calculation/CReferenceFile.h"

#include "core/platform/NumberText.h"
#include "core/platform/TextReading.h"
#include "tests/support/CTestFolder.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <gtest/gtest.h>

namespace
{
constexpr std::size_t kLongestLine = 1000;
constexpr double kDegree = std::numbers::pi / 180;
/// Half a unit of a phase's last digit, in a table with one decimal.
constexpr double kPhaseRounding = 0.05 * kDegree;

std::vector<std::string> Tokens(std::string_view line)
{
    std::vector<std::string> tokens;
    CTokens rest(line);
    for (auto token = rest.Next(); token; token = rest.Next())
    {
        tokens.emplace_back(*token);
    }
    return tokens;
}

std::string PhaseOf(std::string_view column)
{
    return std::string(column) + "_phase";
}
} // namespace

CReferenceRow::CReferenceRow(std::string place, std::map<std::string, std::string, std::less<>> values)
    : m_place(std::move(place)),
      m_values(std::move(values))
{
}

std::string CReferenceRow::Text(std::string_view column) const
{
    const auto found = m_values.find(column);
    if (found == m_values.end())
    {
        ADD_FAILURE() << m_place << " has no column " << column;
        return "";
    }
    return found->second;
}

double CReferenceRow::Number(std::string_view column) const
{
    return NumberAtStart(Text(column));
}

std::complex<double> CReferenceRow::Amplitude(std::string_view column) const
{
    return std::polar(Number(column), Number(PhaseOf(column)) * kDegree);
}

double CReferenceRow::Rounding(std::string_view column) const
{
    const std::string text = Text(column);
    const std::size_t exponent = text.find('e');
    const std::string digits = text.substr(0, exponent);
    const std::size_t point = digits.find('.');
    const double decimals = point == std::string::npos ? 0 : static_cast<double>(digits.size() - point - 1);
    const double scale = exponent == std::string::npos ? 0 : NumberAtStart(text.substr(exponent + 1));
    return 0.5 * std::pow(10, scale - decimals);
}

CReferenceTable::CReferenceTable(const std::string& referenceCase, const std::string& name)
{
    const std::string file = "tests/oe7/reference/" + referenceCase + ".txt";
    const std::string text = FileContent(SourceFile(file));
    CLineReader reader(text);
    while (!reader.AtEnd() && reader.ReadLine(kLongestLine) != "table " + name)
    {
    }
    m_columns = Tokens(reader.ReadLine(kLongestLine));
    for (auto values = Tokens(reader.ReadLine(kLongestLine)); !values.empty();
         values = Tokens(reader.ReadLine(kLongestLine)))
    {
        std::map<std::string, std::string, std::less<>> row;
        for (std::size_t i = 0; i < std::min(values.size(), m_columns.size()); ++i)
        {
            row[m_columns[i]] = values[i];
        }
        m_rows.emplace_back(file + " line " + IntegerText(reader.LineNumber()), std::move(row));
    }
    EXPECT_FALSE(m_rows.empty()) << "no table " << name << " in " << file;
}

std::vector<std::string> CReferenceTable::ColumnsBehind(std::string_view last) const
{
    std::vector<std::string> columns;
    const auto begin = std::find(m_columns.begin(), m_columns.end(), last);
    EXPECT_NE(begin, m_columns.end()) << last;
    for (auto column = begin; column != m_columns.end(); ++column)
    {
        if (column != begin && !column->ends_with("_phase"))
        {
            columns.push_back(*column);
        }
    }
    return columns;
}

double CReferenceTable::Largest(const CReferenceRow& row, std::string_view column) const
{
    double largest = 0;
    for (const CReferenceRow& other : m_rows)
    {
        if (!row.Has("knots") || other.Text("knots") == row.Text("knots"))
        {
            largest = std::max(largest, std::abs(other.Number(column)));
        }
    }
    return largest;
}

void CReferenceTable::Expect(const CReferenceRow& row, std::string_view column, double value,
                             double tolerance) const
{
    ExpectWithin(row, column, value, tolerance * Largest(row, column));
}

void CReferenceTable::ExpectWithin(const CReferenceRow& row, std::string_view column, double value,
                                   double distance) const
{
    EXPECT_NEAR(value, row.Number(column), distance + row.Rounding(column)) << row.Place() << ", " << column;
}

void CReferenceTable::Expect(const CReferenceRow& row, std::string_view column, std::complex<double> value,
                             double tolerance) const
{
    const std::complex<double> expected = row.Amplitude(column);
    const double rounding = row.Rounding(column) + kPhaseRounding * std::abs(expected);
    EXPECT_LE(std::abs(value - expected), tolerance * Largest(row, column) + rounding)
        << row.Place() << ", " << column << ": " << std::abs(value) << " at " << std::arg(value) / kDegree
        << " degrees, not " << std::abs(expected) << " at " << std::arg(expected) / kDegree;
}
