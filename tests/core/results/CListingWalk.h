// Walks through an engine listing by marker words, line counts and token places, and compares each number
// with the one that the run is made of. Knows the layout for itself, so that the maker of listings can be
// held against it.
#pragma once

#include "tests/support/EngineNumbers.h"

#include <string>
#include <vector>

class CListingWalk
{
public:
    CListingWalk(const CEngineRun& run, const std::string& listing);

    /// Walks from the first line to the last table. Fails the running test at the first difference.
    void Walk();

    /// How many numbers have been compared.
    int Numbers() const { return m_numbers; }

private:
    bool Find(const std::string& marker);
    const std::string& Next(int lines = 1);
    void Expect(const std::string& what, const std::string& token, double value);
    void Colon(const std::string& what, double value);
    std::vector<std::string> Tokens() const;
    /// Compares tokens from the first one given (counted from 1) on.
    void Row(const std::string& what, std::size_t first, const std::vector<double>& values);
    /// The next lines, one for each heading: its degrees, then what `values(heading)` gives.
    template <class Values>
    void HeadingRows(const std::string& what, Values&& values);

    void Head();
    void Positions();
    void RegularWaves(int speed, int heading);
    void FrequencyRow(int speed, int heading, int frequency);
    void Damping(int speed, int heading);
    void Breakdown(const std::string& what, EEngineNumber number, int columns, int speed, int heading);
    void Position(int speed, int seaway, int position);
    void Clearances(int speed, int seaway, int position, int first);
    void Motion(int speed, int seaway, int position);
    void Loads(int speed, int seaway, int station);

    const CEngineRun& m_run;
    std::vector<std::string> m_lines;
    std::size_t m_at = 0;
    int m_numbers = 0;
    bool m_failed = false;
};
