// The entry to the hull: number of stations and where they count from, offsets or section areas, and the
// loading condition. From here the user reaches the offset editor, the section areas and the import of
// offsets.
#pragma once

#include "gui/forms/CFormDlg.h"

class CHullGeometryDlg : public CFormDlg
{
    Q_OBJECT

public:
    explicit CHullGeometryDlg(CFormContext& context, QWidget* parent = nullptr);

protected:
    bool CheckFields() override;
    void StoreFields() override;
    bool IsComplete() const override;

private:
    void AddLoading();
    void AddCommands();
    void ShowEdit();
    void ImportOffsets();
    bool StationCountWillDo();
    void HandOver();

    CNumberField* m_stations;
    COptionField* m_origin;
    COptionField* m_method;
    COptionField* m_loading;
    CNumberField* m_draft;
    CNumberField* m_trim;
};
