// Edits the hull's sectional offsets station by station, in a grid beside a plot of the section. The form
// works on a copy and writes it to the project at OK.
#pragma once

#include "gui/forms/CFormDlg.h"
#include "gui/hull/COffsetCopy.h"

#include <set>
#include <string>
#include <utility>

class CGrid;
class CSectionPlot;
class CStationBar;
class QLabel;
class QLineEdit;

/// Where the editor was opened from.
enum class EOpenedFrom
{
    HullGeometry, ///< which hands over the stations' count, draft and trim, and takes the count back
    OffsetChecks  ///< all comes from the project, and OK stores the count there
};

class COffsetEditorDlg : public CFormDlg
{
    Q_OBJECT

public:
    explicit COffsetEditorDlg(CFormContext& context, QWidget* parent = nullptr,
                              EOpenedFrom from = EOpenedFrom::HullGeometry);

protected:
    void LoadFields() override;
    bool OnOk() override;
    bool OnCancel() override;

private:
    static constexpr int kY = 0; ///< columns of the table
    static constexpr int kZ = 1;

    // The form's parts.
    QLayout* MakeTable();
    QLayout* MakeButtons();
    QLayout* MakeReadouts();
    QPushButton* GroupButton(QLayout& group, const char* name, const QString& caption,
                             std::function<void()> pressed);
    void FollowTable();
    void AddShortcuts();

    // The screen and the copy.
    void ReadScreen();
    void ReadRow(int row);
    void ShowStation(int station);
    void ShowReadouts();
    void ShowGaps();
    void Convert();
    void Store();

    // Stations.
    void PickStation(int station);
    void PickPoint(int station, int row);
    void PasteStation();
    void InsertStation();
    void DeleteStation();
    void ClearStation();
    void RestoreStation();

    // Checks; each gives false if the form has to stay.
    bool CommitStation();
    bool FirstOffsetIsThere();
    bool IsInRange(int column, float minimum, float maximum, const std::string& title);
    bool CentrelineWillDo(int station);
    bool CentrelinesWillDo();
    bool FewPointsWillDo();
    void CheckRowOrder();
    void CheckNegativeZ();
    void CheckSegments();
    void DivideLongSegments();
    void CheckCompleteness();
    void ShowRows(int station, int row, int column);
    void ShowSegment(int station, int row);

    EOpenedFrom m_from;
    COffsetCopy m_offsets;
    COffsetCopy m_original; ///< at opening, then as last stored
    CStationBar* m_stations;
    CUnitCaption* m_unit;
    CGrid* m_table;
    CSectionPlot* m_plot;
    QLineEdit* m_stationCount;
    QLabel* m_stationReadout;
    QLabel* m_yReadout;
    QLabel* m_zReadout;
    QLabel* m_gaps;
    int m_station = 0;
    int m_copiedStation = -1;
    bool m_stationsChanged = false;
    std::set<std::pair<int, int>> m_answered; ///< centreline pairs, by station and row
};
