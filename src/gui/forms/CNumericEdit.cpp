#include "gui/forms/CNumericEdit.h"

#include "gui/forms/NumberFilter.h"

#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>

namespace
{
constexpr int kFigures = 11; ///< room for "-100000.00"

/// Whether a line edit takes a key's text into its own; all else are commands, as those with Ctrl.
bool IsTyped(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers command = event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    const QString text = event.text();
    return !text.isEmpty() && command != Qt::ControlModifier &&
           text.front().category() != QChar::Other_Control;
}
} // namespace

CNumericEdit::CNumericEdit(QWidget* parent) : CSizedEdit(parent)
{
    ShowsCharacters(kFigures);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setInputMethodHints(Qt::ImhFormattedNumbersOnly);
}

void CNumericEdit::keyPressEvent(QKeyEvent* event)
{
    if (!IsTyped(*event) || MayType(event->text()))
    {
        QLineEdit::keyPressEvent(event);
    }
    else
    {
        event->accept(); // it shall not reach the form's shortcuts either
    }
}

void CNumericEdit::inputMethodEvent(QInputMethodEvent* event)
{
    if (MayType(event->commitString()))
    {
        QLineEdit::inputMethodEvent(event);
        return;
    }
    QInputMethodEvent nothing; // takes away what was being composed
    QLineEdit::inputMethodEvent(&nothing);
}

void CNumericEdit::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason)
    {
        Q_EMIT FocusLost();
    }
}

bool CNumericEdit::MayType(const QString& typed) const
{
    // What is selected will be gone.
    QString before = text();
    qsizetype caret = cursorPosition();
    if (hasSelectedText())
    {
        caret = selectionStart();
        before.remove(caret, selectionLength());
    }
    for (const QChar& character : typed)
    {
        if (!MayTypeIntoNumber(before.toStdU16String(), static_cast<std::size_t>(caret), character.unicode()))
        {
            return false;
        }
        before.insert(caret++, character);
    }
    return true;
}
