// What the sections on regular seas share: tables with a row for each frequency.
#pragma once

#include "core/results/report/CReport.h"

constexpr int kRaoRowsOnPage = 34;
constexpr int kDampingRowsOnPage = 27;

/// Wave frequency of a table's row, rad/s.
inline float WaveFrequency(const CResultsBody& body, int row)
{
    return body.FirstFrequency + static_cast<float>(row) * body.FrequencyStep;
}

/// Speed of the results, shown as knots.
inline float Speed(const CReport& report, int speed)
{
    return report.Results.Control.Speeds[static_cast<std::size_t>(speed)];
}

inline float Heading(const CReport& report, int heading)
{
    return report.Results.Body.Headings[static_cast<std::size_t>(heading)];
}

/// How many ships' speeds, headings of at most 180 degrees and load stations there are, and how many of them
/// are selected.
struct CSelectionCounts
{
    explicit CSelectionCounts(const CReport& report)
        : Speeds(static_cast<int>(report.Results.Control.Speeds.size())),
          SelectedSpeeds(static_cast<int>(report.Speeds().size())),
          Headings(HeadingsTo180(report.Results.Body)),
          SelectedHeadings(static_cast<int>(report.HeadingsTo180().size())),
          LoadStations(static_cast<int>(report.Results.Body.LoadStations.size())),
          SelectedLoadStations(static_cast<int>(report.Positions().size()))
    {
    }

    int Speeds;
    int SelectedSpeeds;
    int Headings;
    int SelectedHeadings;
    int LoadStations;
    int SelectedLoadStations;
};

/// Calls `write` with each selected speed, behind its anchor. Between two speeds, if `breaks`, begins a page.
template <class Writer>
void EachSpeed(CReport& report, const char* anchor, bool breaks, Writer&& write)
{
    for (std::size_t place = 0; place < report.Speeds().size(); ++place)
    {
        if (breaks && place > 0)
        {
            report.Page.PageBreak();
        }
        report.SpeedAnchor(anchor, place);
        write(report.Speeds()[place]);
    }
}

/// Writes a table with a row for each frequency. What doesn't fit its page, which has `pageRows`, goes to a
/// second one behind the banner. `open` writes what stands above the rows, `row` one row, `close` what closes
/// the table.
template <class Open, class Row, class Close>
void WriteFrequencyTable(CReport& report, EBanner banner, int pageRows, Open&& open, Row&& row, Close&& close)
{
    const int rows = report.Results.Body.FreqCount;
    open();
    for (int frequency = 0; frequency < rows; ++frequency)
    {
        if (frequency == pageRows)
        {
            close();
            report.NextPage(banner);
            open();
        }
        row(frequency);
    }
    close();
}
