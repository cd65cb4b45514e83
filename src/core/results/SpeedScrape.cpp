// The blocks of the speeds in the calculated section.
#include "core/results/CListingScrape.h"
#include "core/results/CalculatedFormat.h"
#include "core/results/ResultsLimits.h"

namespace
{
constexpr float kDirectionalStep = 15; ///< degrees between the directions that a spectrum brings

constexpr int kGreatestHeading =
    180; ///< degrees: the listing has no tables per frequency behind the first one above

constexpr int kFieldsBeforeEncounter = 7;
constexpr std::size_t kEncounterWidth = 5;
constexpr std::size_t kRatioWidth = 7;
constexpr double kTwoPiGravity = 61.638046; ///< m/s2
} // namespace

void CListingScrape::Speed()
{
    if (IsDirectional(m_spectrum))
    {
        m_headings = kHeadingsBeforeLoads;
        for (int k = 0; k < kHeadingsBeforeLoads; ++k)
        {
            m_project.SEADIR.Set(k, kDirectionalStep * static_cast<float>(k));
        }
    }
    for (int seaway = 0; seaway < m_project.NSEAWAY.Count(kMaxSeaways); ++seaway)
    {
        if (seaway == 0)
        {
            Headings();
        }
        if (m_spectrum != kSpectrumRegular)
        {
            Seaway();
        }
    }
}

void CListingScrape::Headings()
{
    const int output = m_project.OUTRAO.Integer();
    for (int k = 0; k < m_headings && m_project.SEADIR.Integer(k) <= kGreatestHeading; ++k)
    {
        if (output > 0)
        {
            RegularWaves();
        }
        if (output == 2)
        {
            RollDamping();
        }
        Flush();
    }
}

void CListingScrape::Seaway()
{
    for (int k = 0; k < m_positions; ++k)
    {
        Position(k);
        Flush();
    }
    if (m_project.LOADFLAG.Integer() == 1)
    {
        return;
    }
    for (int k = 0; k < m_project.NSTLOAD.Count(kMaxLoadStations); ++k)
    {
        LoadStation();
        Flush();
    }
}

void CListingScrape::RegularWaves()
{
    m_listing.Scan("SHIP MOTIONS AT CG IN REGULAR WAVES", CListing::kFar);
    m_listing.ReadLines(3);
    TakeAfterColon();
    m_listing.ReadLine();
    m_listing.Scan("Enc", CListing::kNear);
    m_listing.ReadLine();
    for (int k = 0; k < m_frequencies; ++k)
    {
        FrequencyRow();
    }
}

/// Encounter frequency and the ratio of wavelength to ship length, in the row's eighth field.
void CListingScrape::FrequencyRow()
{
    m_listing.ReadLine();
    CTokens fields(m_listing.Line(), '|');
    for (int k = 0; k < kFieldsBeforeEncounter; ++k)
    {
        fields.Next();
    }
    CTokens words(fields.Rest().value_or(""));
    const auto word = words.Next();
    if (!word)
    {
        return;
    }
    const float frequency = ListingNumber(word->substr(0, kEncounterWidth));
    m_bytes.Float(frequency);
    if (word->ends_with("***"))
    {
        // The ratio is too large for its field.
        const double value = frequency;
        m_bytes.Float(SinglePrecision(kTwoPiGravity / (value * value) / m_length));
    }
    else if (word->size() > kRatioWidth)
    {
        // No blank was left between the two.
        m_bytes.Float(ListingNumber(word->substr(word->size() - kRatioWidth)));
    }
    else
    {
        Take(words, 1);
    }
}

void CListingScrape::RollDamping()
{
    m_listing.Scan("Roll natural frequency", CListing::kNear);
    TakeLinesAfterColon(3);
    m_listing.Scan("Enc", CListing::kNear);
    m_listing.ReadLine();
    TakeRows(m_frequencies, {2, 3, 4, 5, 6, 7, 8, 9, 10, 12});
    Breakdown();
}

void CListingScrape::Breakdown()
{
    const CProjectData& p = m_project;
    const int skegs = p.IncludeSkeg == 1 ? 1 : 0;
    const int columns = kBreakdownColumns + (p.IncludeRudder == 1 ? 1 : 0) + skegs +
                        p.NBKPAIR.Count(kMaxBilgeKeelPairs) + p.NFOILPAIR.Count(kMaxFoilPairs) +
                        p.NFINPAIR.Count(kMaxFinPairs);
    if (columns == kBreakdownColumns)
    {
        m_bytes.Integer(kTagNoData);
        return;
    }
    m_bytes.Integer(kTagData);
    BreakdownTable(columns);
    BreakdownTable(columns - skegs);
}

void CListingScrape::BreakdownTable(int columns)
{
    m_listing.ReadLines(5);
    for (int k = 0; k < m_frequencies; ++k)
    {
        BreakdownRow(columns);
    }
}

void CListingScrape::BreakdownRow(int columns)
{
    m_listing.ReadLine();
    CTokens words = m_listing.Tokens();
    Take(words, 1);
    for (int k = 1; k < columns; ++k)
    {
        CTokens behind = words;
        if (behind.Next() == "|")
        {
            words = behind;
        }
        Take(words, 1);
    }
}

void CListingScrape::Position(int position)
{
    m_listing.Scan("Label", CListing::kFar);
    if (m_project.MIIFLAG.Integer(position) == 1)
    {
        Interruption();
    }
    if (m_project.MSIFlag[static_cast<std::size_t>(position)] == 1)
    {
        Sickness(static_cast<std::size_t>(position));
    }
    switch (m_project.RELMOCALC.Integer(position))
    {
    case 1:
    case 2:
    case 3:
        Slamming();
        break;
    case 4:
        WetnessOrEmergence("Freeboard");
        break;
    case 5:
        WetnessOrEmergence("Depth");
        break;
    default:
        break;
    }
}

void CListingScrape::Interruption()
{
    m_listing.Scan("LFE", CListing::kNear);
    m_listing.ReadLine();
    TakeRows(m_headings, {1, 2, 3, 4, 5, 6});
}

void CListingScrape::Sickness(std::size_t position)
{
    const bool isFixed = m_project.MSIExposureOption[position] != 1;
    m_listing.Scan("Sickness", CListing::kNear);
    m_bytes.Integer(m_project.MSIMethod[position] != 0 ? 1 : 0);
    m_bytes.Integer(isFixed ? 1 : 0);
    m_listing.ReadLines(2);
    if (isFixed)
    {
        TakeColumns({4});
    }
    else
    {
        m_bytes.Float(0);
    }
    m_listing.ReadLines(3);
    for (int k = 0; k < m_headings; ++k)
    {
        m_listing.ReadLine();
        CTokens words = m_listing.Tokens();
        Take(words, isFixed ? 2 : 3);
        if (isFixed)
        {
            m_bytes.Float(0);
        }
    }
}

void CListingScrape::Slamming()
{
    m_listing.Scan("Draft", CListing::kFar);
    TakeColumns({2, 4});
    TakeRow({2, 4});
    m_listing.ReadLines(4);
    for (int k = 0; k < m_headings; ++k)
    {
        m_listing.ReadLine();
        CTokens words = m_listing.Tokens();
        Take(words, 7);
        m_bytes.Integer(kTagData);
        Take(words, 6);
    }
}

void CListingScrape::WetnessOrEmergence(const char* marker)
{
    m_listing.Scan(marker, CListing::kFar);
    TakeColumns({2, 4});
    m_listing.ReadLines(4);
    TakeRows(m_headings, {1, 2, 3, 4, 5});
}

void CListingScrape::LoadStation()
{
    m_listing.Scan("RMS Sea Loads at Station", CListing::kFar);
    m_listing.ReadLines(6);
    if (IsDirectional(m_spectrum))
    {
        m_headings = kHeadingsFromLoadsOn;
    }
    TakeRows(m_headings, {2, 4, 5, 7, 8, 10, 11, 13, 14, 16});
}
