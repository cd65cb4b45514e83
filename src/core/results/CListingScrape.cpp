// The head of the calculated section, and how numbers are taken over.
#include "core/results/CListingScrape.h"

#include "core/results/RunValues.h"

#include <algorithm>

CListingScrape::CListingScrape(CProjectData& project, int headings, int frequencies, CListing& listing,
                               CAppendedFile& file)
    : m_project(project),
      m_listing(listing),
      m_file(file),
      m_headings(headings),
      m_frequencies(frequencies),
      m_positions(RunPositions(project)),
      m_spectrum(project.SPECTRUM.Integer()),
      m_length(RunLength(project))
{
}

void CListingScrape::Run()
{
    try
    {
        m_listing.ReadLine();
        Head();
        Flush();
        for (int speed = 0; speed < m_project.NSPEED.Count(kMaxSpeeds); ++speed)
        {
            Speed();
        }
    }
    catch (const CCompletionError&)
    {
        Flush();
        throw;
    }
}

void CListingScrape::Head()
{
    m_listing.Scan("ENFREQMIN", CListing::kNear);
    TakeLinesAfterColon(3);
    m_listing.Scan("GMFLAG", CListing::kNear);
    m_listing.ReadLines(2);
    TakeAfterColon();
    HullParameters();
    Stations();
    if (m_positions > 0)
    {
        Positions();
        SlamForms();
    }
}

void CListingScrape::HullParameters()
{
    m_listing.Scan("GENERAL HULL PARAMETERS", CListing::kFar);
    m_listing.Scan("Displacement", CListing::kNear);
    TakeLinesAfterColon(3);
    m_listing.Scan("Cb", CListing::kNear);
    TakeAfterColon();
    // Behind it the computed GM stands, and a line below the one that was used.
    const int code = RunGMCode(m_project);
    if (code == 2 || code == 3)
    {
        m_listing.ReadLines(code == 2 ? 9 : 10);
        m_calculatedGM = m_listing.AfterColon();
    }
}

void CListingScrape::Stations()
{
    m_listing.Scan("SECTIONAL PROPERTIES", CListing::kNear);
    m_listing.ReadLines(5);
    TakeRows(m_project.NST.Count(kMaxStations), {2, 3, 4, 5, 6});
}

bool CListingScrape::HasSlamming() const
{
    const auto begin = m_project.RELMOCALC.data.begin();
    return std::any_of(begin, begin + m_positions,
                       [](float kind) { return Truncated(kind) >= 1 && Truncated(kind) <= 3; });
}

void CListingScrape::Positions()
{
    m_listing.Scan("POSITIONS FOR SEAKEEPING CALCULATIONS", CListing::kNear);
    m_listing.Scan("Label", CListing::kNear);
    m_listing.ReadLines(2);
    TakeRows(m_positions, {2, 3, 4, 5, 6, 8, 10});
    m_listing.ReadLines(4);
    if (HasSlamming())
    {
        TakeAfterColon();
    }
    m_listing.ReadLine();
    if (HasSlamming())
    {
        TakeAfterColon();
    }
}

void CListingScrape::SlamForms()
{
    bool isFirst = true;
    for (int k = 0; k < m_positions; ++k)
    {
        const int kind = m_project.RELMOCALC.Integer(k);
        if (kind != 1 && kind != 3)
        {
            continue;
        }
        m_listing.ReadLines(isFirst ? 10 : 1);
        isFirst = false;
        CTokens words = m_listing.Tokens();
        for (int word = 1; word < 4; ++word)
        {
            words.Next();
        }
        // The method may be told in two words.
        CTokens behind = words;
        if (behind.Next() == "factor")
        {
            words = behind;
        }
        Take(words, 2);
    }
}

void CListingScrape::Take(std::optional<float> number)
{
    if (number)
    {
        m_bytes.Float(*number);
    }
}

void CListingScrape::TakeLinesAfterColon(int lines)
{
    TakeAfterColon();
    for (int k = 1; k < lines; ++k)
    {
        m_listing.ReadLine();
        TakeAfterColon();
    }
}

void CListingScrape::Take(CTokens& words, int count)
{
    for (int k = 0; k < count; ++k)
    {
        if (const auto word = words.Next())
        {
            m_bytes.Float(ListingNumber(*word));
        }
    }
}

void CListingScrape::TakeColumns(CColumns columns)
{
    CTokens words = m_listing.Tokens();
    int place = 1;
    for (const int column : columns)
    {
        for (; place < column; ++place)
        {
            words.Next();
        }
        Take(words, 1);
        ++place;
    }
}

void CListingScrape::TakeRow(CColumns columns)
{
    m_listing.ReadLine();
    TakeColumns(columns);
}

void CListingScrape::TakeRows(int rows, CColumns columns)
{
    for (int k = 0; k < rows; ++k)
    {
        TakeRow(columns);
    }
}

void CListingScrape::Flush()
{
    m_file.Append(m_bytes.Bytes());
    m_bytes.Clear();
}
