// Fills the calculated section of a results file with the numbers of the engine's printed results.
#pragma once

#include "core/project/CProjectData.h"
#include "core/results/CAppendedFile.h"
#include "core/results/CListing.h"
#include "core/results/CResultsBytes.h"

#include <initializer_list>
#include <optional>

class CListingScrape
{
public:
    /// The counts are those of the engine's part of the file.
    CListingScrape(CProjectData& project, int headings, int frequencies, CListing& listing,
                   CAppendedFile& file);

    /// Appends the section. Spectra that bring their own sea directions put these into the project. Throws
    /// CCompletionError when the listing lacks a marker; what was found before it stands in the file.
    void Run();

    /// The GM that the engine computed, if the listing gives it.
    std::optional<float> CalculatedGM() const { return m_calculatedGM; }

private:
    using CColumns = std::initializer_list<int>; ///< ascending, from 1

    // What precedes the speeds.
    void Head();
    void HullParameters();
    void Stations();
    void Positions();
    void SlamForms();
    bool HasSlamming() const;

    // The groups of a speed.
    void Speed();
    void Headings();
    void Seaway();
    void RegularWaves();
    void RollDamping();
    void Breakdown();
    void BreakdownTable(int columns);
    void FrequencyRow();
    void BreakdownRow(int columns);
    void Position(int position);
    void Interruption();
    void Sickness(std::size_t position);
    void Slamming();
    void WetnessOrEmergence(const char* marker);
    void LoadStation();

    // Numbers on their way from the listing to the file.
    void Take(std::optional<float> number);
    void TakeAfterColon() { Take(m_listing.AfterColon()); }
    /// The numbers behind the colons of this line and of those below it.
    void TakeLinesAfterColon(int lines);
    /// The next words, as many as there are.
    void Take(CTokens& words, int count);
    /// Words of the line at hand, or of the next one, by their places.
    void TakeColumns(CColumns columns);
    void TakeRow(CColumns columns);
    void TakeRows(int rows, CColumns columns);
    void Flush();

    CProjectData& m_project;
    CListing& m_listing;
    CAppendedFile& m_file;
    CResultsBytes m_bytes; ///< not in the file yet
    int m_headings;
    int m_frequencies;
    int m_positions;
    int m_spectrum;
    float m_length; ///< of the ship, in the unit of the run
    std::optional<float> m_calculatedGM;
};
