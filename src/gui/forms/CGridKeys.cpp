// What a grid does with the keyboard.
#include "gui/forms/CGrid.h"
#include "gui/forms/NumberFilter.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace
{
bool IsPrintable(const QKeyEvent& event)
{
    const bool isCommand = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return !isCommand && !event.text().isEmpty() && event.text().front().isPrint();
}
} // namespace

void CGrid::keyPressEvent(QKeyEvent* event)
{
    if (OnCommand(*event) || OnTyped(*event))
    {
        event->accept();
        return;
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
    {
        event->setAccepted(StepRow(1)); // on the last row it is the form's
        return;
    }
    QTableView::keyPressEvent(event);
}

bool CGrid::OnCommand(const QKeyEvent& event)
{
    if (event.matches(QKeySequence::Copy))
    {
        Copy();
    }
    else if (event.matches(QKeySequence::Cut))
    {
        Cut();
    }
    else if (event.matches(QKeySequence::Paste))
    {
        Paste();
    }
    else if (event.matches(QKeySequence::Delete) || event.key() == Qt::Key_Backspace)
    {
        ClearSelected();
    }
    else
    {
        return false;
    }
    return true;
}

bool CGrid::OnTyped(QKeyEvent& event)
{
    if (!IsPrintable(event))
    {
        return false;
    }
    const bool isCheck = currentIndex().data(Qt::CheckStateRole).isValid();
    if (isCheck ? event.key() == Qt::Key_Space : MayTypeIntoNumber({}, 0, event.text().front().unicode()))
    {
        edit(currentIndex(), AnyKeyPressed, &event);
    }
    return true; // what can't begin a number doesn't look for cells that begin with it either
}

bool CGrid::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    const bool begins = QTableView::edit(index, trigger, event);
    if (begins && (trigger == EditKeyPressed || trigger == DoubleClicked))
    {
        if (auto* editor = qobject_cast<QLineEdit*>(indexWidget(index)))
        {
            editor->end(false); // the text is edited, not replaced
        }
    }
    return begins;
}

bool CGrid::focusNextPrevChild(bool next)
{
    return StepCell(next ? 1 : -1) || QTableView::focusNextPrevChild(next);
}

bool CGrid::StepRow(int step)
{
    for (int row = FocusRow() + step; row >= 0 && row < m_cells->RowCount(); row += step)
    {
        const QModelIndex cell = m_cells->index(row, qMax(FocusColumn(), 0));
        if (cell.flags().testFlag(Qt::ItemIsEnabled))
        {
            setCurrentIndex(cell);
            return true;
        }
    }
    return false;
}

/// To the next or last cell that the user may change, over the ends of rows; false if there is none.
bool CGrid::StepCell(int step)
{
    const int columns = m_cells->ColumnCount();
    const int cells = columns * m_cells->RowCount();
    const int now = currentIndex().isValid() ? FocusRow() * columns + FocusColumn() : -1;
    for (int cell = now + step; cell >= 0 && cell < cells; cell += step)
    {
        const int row = cell / columns;
        const int column = cell % columns;
        if (m_cells->MayChange(row, column) && !isColumnHidden(column) && !isRowHidden(row))
        {
            SetFocusCell(row, column);
            return true;
        }
    }
    return false;
}

void CGrid::MoveOn(int key)
{
    if (key == Qt::Key_Up || key == Qt::Key_Down)
    {
        StepRow(key == Qt::Key_Up ? -1 : 1);
        return;
    }
    focusNextPrevChild(key == Qt::Key_Tab);
}
