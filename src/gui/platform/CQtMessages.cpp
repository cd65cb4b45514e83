#include "gui/platform/CQtMessages.h"

#include "gui/platform/DialogParent.h"
#include "gui/platform/QtText.h"

#include <QApplication>
#include <QMessageBox>

namespace
{
QMessageBox::Icon IconOf(EIcon icon)
{
    switch (icon)
    {
    case EIcon::Stop:
        return QMessageBox::Critical;
    case EIcon::Warning:
        return QMessageBox::Warning;
    case EIcon::Question:
        return QMessageBox::Question;
    case EIcon::Information:
        return QMessageBox::Information;
    case EIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}
} // namespace

void CQtMessages::MessageBox(const std::string& text, const std::string& title, EIcon icon)
{
    Ask(text, title, icon, QMessageBox::Ok);
}

bool CQtMessages::AskYesNo(const std::string& text, const std::string& title, EIcon icon)
{
    return Ask(text, title, icon, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

void CQtMessages::MessageBeep()
{
    QApplication::beep();
}

void CQtMessages::SetCursor(ECursor cursor)
{
    const bool waits = cursor == ECursor::Wait;
    if (waits == m_waiting)
    {
        return;
    }
    m_waiting = waits;
    if (waits)
    {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    }
    else
    {
        QApplication::restoreOverrideCursor();
    }
}

int CQtMessages::Ask(const std::string& text, const std::string& title, EIcon icon, int buttons)
{
    QMessageBox box(DialogParent());
    box.setObjectName("MessageBox");
    box.setIcon(IconOf(icon));
    box.setWindowTitle(ScreenText(title));
    box.setTextFormat(Qt::PlainText);
    box.setText(ScreenText(text));
    box.setStandardButtons(QMessageBox::StandardButtons(buttons));

    const bool wasWaiting = m_waiting;
    SetCursor(ECursor::Arrow);
    const int answer = box.exec();
    SetCursor(wasWaiting ? ECursor::Wait : ECursor::Arrow);
    return answer;
}
