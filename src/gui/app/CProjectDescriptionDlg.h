// The project's description: one line, the first of the project file.
#pragma once

#include "gui/forms/CFormDlg.h"

class CProjectDescriptionDlg : public CFormDlg
{
    Q_OBJECT

public:
    explicit CProjectDescriptionDlg(CFormContext& context, QWidget* parent = nullptr);
};
