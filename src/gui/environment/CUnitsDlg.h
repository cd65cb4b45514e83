// Units of input and output, and the water. Another system of input converts the whole project at the click.
#pragma once

#include "gui/forms/CFormDlg.h"

class CUnitsDlg : public CFormDlg
{
    Q_OBJECT

public:
    explicit CUnitsDlg(CFormContext& context, QWidget* parent = nullptr);

protected:
    void StoreFields() override;

private:
    COptionField* m_input;
    COptionField* m_output;
    COptionField* m_water;
};
