// Who makes the program, and on whose work it stands.
#pragma once

#include "gui/app/CInformationDlg.h"

class CContactInfoDlg : public CInformationDlg
{
    Q_OBJECT

public:
    explicit CContactInfoDlg(QWidget* parent = nullptr);
};
