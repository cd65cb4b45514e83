// A dialog that only tells something, and goes by its button OK.
#pragma once

#include <QDialog>

class QPushButton;

class CInformationDlg : public QDialog
{
    Q_OBJECT

protected:
    CInformationDlg(const char* name, const QString& title, QWidget* parent);

    /// Lays it out: the program's icon, a heading, the text as the display "Text", and the button "OK",
    /// behind `button`.
    void LayOut(const QString& heading, const QString& text, QPushButton* button = nullptr);

    /// The Enter key closes it on OK alone; elsewhere it moves on.
    void keyPressEvent(QKeyEvent* event) override;

private:
    QPushButton* m_ok;
};
