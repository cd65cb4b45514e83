// What the program is, which version of it runs, and under which terms.
#pragma once

#include "gui/app/CInformationDlg.h"

class CAboutDlg : public CInformationDlg
{
    Q_OBJECT

public:
    explicit CAboutDlg(QWidget* parent = nullptr);
};
