// The hull by section areas: beam, draft and area coefficient of each station.
#pragma once

#include "gui/forms/CFormDlg.h"

class CGrid;

class CSectionAreasDlg : public CFormDlg
{
    Q_OBJECT

public:
    explicit CSectionAreasDlg(CFormContext& context, QWidget* parent = nullptr);

protected:
    void LoadFields() override;
    bool CheckFields() override;
    void StoreFields() override;
    bool IsComplete() const override;
    bool OnOk() override;

private:
    void AddUnits();
    void AddTable();
    void InsertStation();
    void DeleteStation();
    void SetStationCount(int count);
    void EnableButtons();
    bool CheckColumn(int column, CParamArray& field, const std::string& title, CUnitCaption* unit);
    bool StoreColumn(int column, CParamArray& field);
    bool StoreStationCount();

    CUnitCaption* m_beamUnit;
    CUnitCaption* m_draftUnit;
    CGrid* m_table;
    QPushButton* m_insert;
    QPushButton* m_delete;
    int m_stationCount = 0;
    int m_stationsBefore = 0; ///< when the form was opened
    bool m_stationsChanged = false;
};
