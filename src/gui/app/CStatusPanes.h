// The status bar of the main window: a message, the time and the date.
#pragma once

#include <ctime>

#include <QLabel>
#include <QStatusBar>

class CStatusPanes : public QStatusBar
{
    Q_OBJECT

public:
    explicit CStatusPanes(QWidget* parent = nullptr);

    /// Says what the highlighted command does; without one that the program is ready.
    void ShowStatus(const QString& text);
    void ShowTime(const std::tm& localTime);

private:
    QLabel* m_message;
    QLabel* m_time;
    QLabel* m_date;
};

/// "02:41 PM", whatever the language of the user.
QString TimeText(const std::tm& time);
/// "2026 11 22": year, month, day.
QString DateText(const std::tm& time);
