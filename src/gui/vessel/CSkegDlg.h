// The skeg: its three numbers, and whether it enters the calculation.
#pragma once

#include "gui/forms/CFormDlg.h"

class CSkegDlg : public CFormDlg
{
    Q_OBJECT

public:
    explicit CSkegDlg(CFormContext& context, QWidget* parent = nullptr);

protected:
    void StoreFields() override;

private:
    CCheckField* m_include;
};
