// Says that the engine runs, and for how long it has. The user goes on working in the main window meanwhile.
#pragma once

#include <QDialog>
#include <QElapsedTimer>

class QLabel;

class CRunningDlg : public QDialog
{
    Q_OBJECT

public:
    explicit CRunningDlg(QWidget* parent = nullptr);

    /// Gives the user a way to stop waiting, where nothing else can be done meanwhile.
    void AllowCancel();
    /// Nothing, unless the user may stop waiting: the window goes when the engine has ended.
    void reject() override;

private:
    void ShowElapsed();

    QElapsedTimer m_since;
    QLabel* m_elapsed;
    bool m_mayCancel = false;
};

/// A time span, as "M:SS" or "H:MM:SS".
QString ElapsedText(qint64 seconds);
