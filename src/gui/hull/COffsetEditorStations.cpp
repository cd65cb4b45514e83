// What the offset editor does with whole stations.
#include "gui/forms/CGrid.h"
#include "gui/hull/COffsetEditorDlg.h"
#include "gui/hull/StationCount.h"

#include <algorithm>

void COffsetEditorDlg::PickStation(int station)
{
    if (CommitStation())
    {
        ShowStation(station);
    }
    else
    {
        ShowStation(m_station); // the button that was clicked isn't the active one
    }
}

void COffsetEditorDlg::PickPoint(int station, int row)
{
    if (station != m_station)
    {
        PickStation(station);
    }
    if (station == m_station)
    {
        m_table->EndEdit();
        m_table->MarkCell(row, std::max(m_table->FocusColumn(), 0));
    }
}

void COffsetEditorDlg::PasteStation()
{
    ReadScreen();
    if (m_copiedStation >= 0)
    {
        m_offsets.CopyStation(m_copiedStation, m_station);
        ShowStation(m_station);
    }
}

void COffsetEditorDlg::InsertStation()
{
    ReadScreen();
    if (IsStationCount(m_offsets.StationCount() + 1, Messages()))
    {
        m_offsets.InsertStation(m_station);
        m_stationsChanged = true;
        ShowStation(m_station);
    }
}

void COffsetEditorDlg::DeleteStation()
{
    ReadScreen();
    if (IsStationCount(m_offsets.StationCount() - 1, Messages()))
    {
        m_offsets.DeleteStation(m_station);
        m_stationsChanged = true;
        ShowStation(std::min(m_station, m_offsets.StationCount() - 1));
    }
}

void COffsetEditorDlg::ClearStation()
{
    m_table->EndEdit();
    m_offsets.ClearStation(m_station);
    ShowStation(m_station);
}

void COffsetEditorDlg::RestoreStation()
{
    m_table->EndEdit();
    m_offsets.TakeStation(m_station, m_original);
    ShowStation(m_station);
}
