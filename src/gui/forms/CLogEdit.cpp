#include "gui/forms/CLogEdit.h"

#include <QApplication>
#include <QScrollBar>

CLogEdit::CLogEdit(QWidget* parent) : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setTabChangesFocus(true);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget* before, QWidget* now)
            {
                if (now == this && !m_isFocusable && before != nullptr)
                {
                    before->setFocus();
                }
            });
}

void CLogEdit::AppendLine(const QString& line)
{
    QTextCursor end(document());
    end.movePosition(QTextCursor::End);
    end.insertText(document()->isEmpty() ? line : u'\n' + line);
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void CLogEdit::SetFocusable(bool focusable)
{
    m_isFocusable = focusable;
    setFocusPolicy(focusable ? Qt::WheelFocus : Qt::NoFocus); // the Tab key would get stuck on it
}
