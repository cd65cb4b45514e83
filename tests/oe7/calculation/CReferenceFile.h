// The tables of a reference file: the values that the engine must reach for a reference input.
#pragma once

#include <complex>
#include <map>
#include <string>
#include <string_view>
#include <vector>

/// One row; a column that isn't there fails the running test.
class CReferenceRow
{
public:
    CReferenceRow(std::string place, std::map<std::string, std::string, std::less<>> values);

    bool Has(std::string_view column) const { return m_values.contains(column); }
    std::string Text(std::string_view column) const;
    double Number(std::string_view column) const;
    /// Of a column and the one of its phase (degrees), NAME and NAME_phase.
    std::complex<double> Amplitude(std::string_view column) const;
    /// Half a unit of a value's last digit.
    double Rounding(std::string_view column) const;
    /// File and line, for messages.
    const std::string& Place() const { return m_place; }

private:
    std::string m_place;
    std::map<std::string, std::string, std::less<>> m_values;
};

class CReferenceTable
{
public:
    /// Of tests/oe7/reference/CASE.txt; a table without rows fails the running test.
    CReferenceTable(const std::string& referenceCase, const std::string& name);

    const std::vector<CReferenceRow>& Rows() const { return m_rows; }
    /// The names of the columns behind the one that is called `last`, without those of phases.
    std::vector<std::string> ColumnsBehind(std::string_view last) const;
    /// The largest absolute value of a column among the rows of a row's speed.
    double Largest(const CReferenceRow& row, std::string_view column) const;

    /// Expects a value within `tolerance`, a part of the column's largest value of this speed, besides the
    /// rounding in the file.
    void Expect(const CReferenceRow& row, std::string_view column, double value, double tolerance) const;
    /// Expects a value within an absolute distance, besides the rounding in the file.
    void ExpectWithin(const CReferenceRow& row, std::string_view column, double value, double distance) const;
    /// As Expect for a complex amplitude: the distance in the plane is held against the tolerance, so that
    /// the phase of a small amplitude is free.
    void Expect(const CReferenceRow& row, std::string_view column, std::complex<double> value,
                double tolerance) const;

private:
    std::vector<std::string> m_columns;
    std::vector<CReferenceRow> m_rows;
};
