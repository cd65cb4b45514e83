#include "tests/support/gui/CFormDriver.h"

#include "gui/platform/QtText.h"

#include <QApplication>
#include <QTest>

CFormDriver::CFormDriver(std::unique_ptr<QDialog> form) : m_form(std::move(form))
{
    m_form->open();
    m_form->activateWindow();
    QApplication::setActiveWindow(m_form.get());
}

void CFormDriver::Type(const char* name, const char* text)
{
    auto& edit = Find<QLineEdit>(name);
    edit.setFocus();
    edit.selectAll();
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QTest::keyClicks(&edit, QString::fromLatin1(text));
}

void CFormDriver::Set(const char* name, const char* text)
{
    auto& edit = Find<QLineEdit>(name);
    edit.selectAll();
    edit.insert(QString::fromLatin1(text));
}

std::string CFormDriver::Text(const char* name)
{
    return PlainText(Find<QLineEdit>(name).text());
}

std::string CFormDriver::Caption(const char* name)
{
    return PlainText(Find<QWidget>(name).property("text").toString());
}

void CFormDriver::Click(const char* name)
{
    auto& widget = Find<QWidget>(name);
    // On the mark of a check box or radio button, which may be wider than its caption.
    const auto* button = qobject_cast<QAbstractButton*>(&widget);
    const bool isMarked = button != nullptr && button->isCheckable();
    const QPoint place = isMarked ? QPoint(widget.height() / 2, widget.height() / 2) : widget.rect().center();
    QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, place);
}

void CFormDriver::Press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QWidget* focus = m_form->focusWidget();
    QTest::keyClick(focus != nullptr ? focus : m_form.get(), key, modifiers);
}

std::string CFormDriver::Focus() const
{
    const QWidget* focus = m_form->focusWidget();
    return focus != nullptr ? PlainText(focus->objectName()) : "";
}

std::string CFormDriver::Selected() const
{
    const auto* edit = qobject_cast<QLineEdit*>(m_form->focusWidget());
    return edit != nullptr ? PlainText(edit->selectedText()) : "";
}
