// The rigid-body numbers of the vessel: length, centre of gravity, pitch radius, metacentric height, and the
// one roll quantity that the user chooses to give.
#pragma once

#include "gui/forms/CFormDlg.h"

class CShipParticularsDlg : public CFormDlg
{
    Q_OBJECT

public:
    explicit CShipParticularsDlg(CFormContext& context, QWidget* parent = nullptr);

private:
    /// A button, and beside it the number that counts and is enabled while the button is on.
    CNumberField& Choice(COptionField& options, int value, const QString& caption, CParamArray& field,
                         CFixedFormat format, const char* rangeTitle);
    void SuggestPitchRadius();

    CNumberField* m_length;
    CNumberField* m_pitchRadius;
};
