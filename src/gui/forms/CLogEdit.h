// A box of lines that the user reads and copies from, as a program's report of what it does.
#pragma once

#include <QPlainTextEdit>

class CLogEdit : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit CLogEdit(QWidget* parent = nullptr);

    /// Adds a line break if the box isn't empty, then the line, and scrolls to the last line.
    void AppendLine(const QString& line);
    /// A box that isn't focusable hands the focus back to the widget that had it.
    void SetFocusable(bool focusable);

private:
    bool m_isFocusable = true;
};
