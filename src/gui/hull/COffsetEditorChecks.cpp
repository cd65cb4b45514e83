// What the offset editor looks at before it leaves a station and at OK.
#include "core/project/UnitConversion.h"
#include "gui/forms/CGrid.h"
#include "gui/hull/COffsetEditorDlg.h"
#include "gui/hull/CSectionPlot.h"
#include "gui/hull/CSegmentPass.h"

#include <algorithm>

namespace
{
constexpr float kLowestZ = -50;  ///< also below the baseline, as the import takes it
constexpr int kFewestPoints = 3; ///< of a complete station
} // namespace

bool COffsetEditorDlg::CommitStation()
{
    ReadScreen();
    const CParamArray& y = Project().YAUSER;
    return FirstOffsetIsThere() && IsInRange(kY, y.min, y.max, "Horizontal offset (Y) out of Range") &&
           CentrelineWillDo(m_station) &&
           IsInRange(kZ, kLowestZ, Project().ZAUSERBL.max, "Vertical Offset (Z) out of Range");
}

bool COffsetEditorDlg::FirstOffsetIsThere()
{
    if (IsGiven(m_offsets.Y(m_station, 0)) || m_offsets.PointCount(m_station) == 0)
    {
        return true;
    }
    Messages().MessageBox("First Y value must be 0.00", "Error", EIcon::Stop);
    m_table->MarkCell(0, kY);
    return false;
}

bool COffsetEditorDlg::IsInRange(int column, float minimum, float maximum, const std::string& title)
{
    const float toMetres = LengthFactor(m_offsets.Unit(), kUnitMetric);
    for (int row = 0; row < kMaxOffsets; ++row)
    {
        const float value = column == kY ? m_offsets.Y(m_station, row) : m_offsets.Z(m_station, row);
        if (IsGiven(value) &&
            CheckRange(Messages(), minimum, maximum, value * toMetres, kTwoDecimals, title) != 0)
        {
            m_table->MarkCell(row, column);
            m_plot->Draw();
            return false;
        }
    }
    return true;
}

/// Asks about each pair once while the form is open, whatever the answer.
bool COffsetEditorDlg::CentrelineWillDo(int station)
{
    const auto next = [this, station](int from) { return CentrelinePair(m_offsets.Station(station), from); };
    for (int row = next(1); row > 0; row = next(row + 1))
    {
        if (!m_answered.insert({station, row}).second)
        {
            continue;
        }
        ShowRows(station, row - 1, kY);
        if (Messages().AskYesNo(
                FormatText("Y offsets - Station %i: 2 consecutive values of 0.0 exactly on the centreline at "
                           "the keel will result in a calculation error. \n\nWould you like to modify the "
                           "second value",
                           station),
                "Input Warning", EIcon::Warning))
        {
            m_table->MarkCell(row, kY);
            return false;
        }
    }
    return true;
}

bool COffsetEditorDlg::CentrelinesWillDo()
{
    for (int station = 0; station < m_offsets.StationCount(); ++station)
    {
        if (!CentrelineWillDo(station))
        {
            return false;
        }
    }
    return true;
}

void COffsetEditorDlg::CheckRowOrder()
{
    for (int station = 0; station < m_offsets.StationCount(); ++station)
    {
        for (int row = 0; row + 1 < kMaxOffsets; ++row)
        {
            if (!MayBeInWrongOrder(m_offsets.Station(station), row))
            {
                continue;
            }
            ShowRows(station, row, kY);
            if (Messages().AskYesNo(FormatText("Station %i: Rows %i and %i may be ordered incorrectly. "
                                               "\n\nInterchange these 2 rows?",
                                               station, row + 1, row + 2),
                                    "Input Error", EIcon::Warning))
            {
                m_offsets.SwapRows(station, row);
                ShowStation(station);
            }
        }
    }
}

void COffsetEditorDlg::CheckNegativeZ()
{
    if (Project().ChkNegZInter == 1 && HasNegativeZ(m_offsets.AllZ()))
    {
        Messages().MessageBox("There are Z offset points with values less than 0!!", "Warning",
                              EIcon::Warning);
    }
}

void COffsetEditorDlg::CheckSegments()
{
    ReadScreen();
    const int station = m_station;
    CSegmentPass pass(Context(), this, m_offsets, [this](int at, int row) { ShowSegment(at, row); });
    if (!pass.Check(station))
    {
        Messages().MessageBox(FormatText("Segment lengths at Station %i are acceptable.", station),
                              "Data Check", EIcon::Information);
    }
    m_plot->MarkSegment(-1);
    ShowStation(station);
}

void COffsetEditorDlg::DivideLongSegments()
{
    const int station = m_station;
    CSegmentPass pass(Context(), this, m_offsets, [this](int at, int row) { ShowSegment(at, row); });
    for (int at = 0; at < m_offsets.StationCount(); ++at)
    {
        pass.Check(at);
    }
    m_plot->MarkSegment(-1);
    ShowStation(station);
}

bool COffsetEditorDlg::FewPointsWillDo()
{
    const std::vector<int> stations =
        StationsWithFewPoints(m_offsets.AllY(), m_offsets.AllZ(), m_offsets.StationCount());
    if (stations.empty() ||
        !Messages().AskYesNo("Station(s) " + StationList(stations) +
                                 " have relatively few points defining them, when compared to the rest of "
                                 "the vessel.\n\nWould you like to modify these stations?",
                             "Input Warning", EIcon::Warning))
    {
        return true;
    }
    ShowStation(stations.front());
    return false;
}

void COffsetEditorDlg::CheckCompleteness()
{
    int complete = 1;
    for (int station = 0; station + 1 < m_offsets.StationCount(); ++station)
    {
        complete = m_offsets.PointCount(station) >= kFewestPoints ? complete : 0;
    }
    if (complete == 0)
    {
        Messages().MessageBox("Incomplete set of information", "Incomplete Data Set", EIcon::Warning);
    }
    Project().OffsetsComplete = complete;
}

/// Brings a row and the next before the user's eyes.
void COffsetEditorDlg::ShowRows(int station, int row, int column)
{
    if (station != m_station)
    {
        ShowStation(station);
    }
    m_table->MarkCell(row, column);
    for (const int each : {row, row + 1})
    {
        m_table->MarkAlso(each, column);
    }
}

void COffsetEditorDlg::ShowSegment(int station, int row)
{
    ShowStation(station); // also after a division of the segment before
    ShowRows(station, row, kY);
    m_table->MarkAlso(row, kZ);
    m_table->MarkAlso(row + 1, kZ);
    m_plot->MarkSegment(row);
}
