#include "gui/forms/CGridDelegate.h"

#include "gui/forms/CNumericEdit.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyle>

namespace
{
bool IsCheck(const QModelIndex& index)
{
    return index.data(Qt::CheckStateRole).isValid();
}

QRect CheckRect(const QStyleOptionViewItem& option)
{
    const QStyle& style = *option.widget->style();
    const QSize size(style.pixelMetric(QStyle::PM_IndicatorWidth, &option, option.widget),
                     style.pixelMetric(QStyle::PM_IndicatorHeight, &option, option.widget));
    return QStyle::alignedRect(option.direction, Qt::AlignCenter, size, option.rect);
}

bool IsToggle(const QEvent& event, const QStyleOptionViewItem& option)
{
    if (event.type() == QEvent::KeyPress)
    {
        const int key = static_cast<const QKeyEvent&>(event).key();
        return key == Qt::Key_Space || key == Qt::Key_Select;
    }
    if (event.type() != QEvent::MouseButtonRelease)
    {
        return false;
    }
    const auto& mouse = static_cast<const QMouseEvent&>(event);
    return mouse.button() == Qt::LeftButton && CheckRect(option).contains(mouse.position().toPoint());
}
} // namespace

QWidget* CGridDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex&) const
{
    auto* edit = new CNumericEdit(parent);
    edit->setObjectName(QStringLiteral("CellEdit"));
    edit->setFrame(false);
    edit->setAlignment(Qt::AlignCenter);
    return edit;
}

void CGridDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                         const QModelIndex&) const
{
    editor->setGeometry(option.rect);
}

void CGridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const
{
    if (!IsCheck(index))
    {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem look = option;
    initStyleOption(&look, index);
    const QStyle& style = *look.widget->style();
    look.features &= ~QStyleOptionViewItem::HasCheckIndicator;
    style.drawControl(QStyle::CE_ItemViewItem, &look, painter, look.widget);
    look.state &= ~QStyle::State_HasFocus;
    look.state |= look.checkState == Qt::Checked ? QStyle::State_On : QStyle::State_Off;
    look.rect = CheckRect(look);
    style.drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &look, painter, look.widget);
}

bool CGridDelegate::editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                                const QModelIndex& index)
{
    if (!IsCheck(index))
    {
        return QStyledItemDelegate::editorEvent(event, model, option, index);
    }
    if (!index.flags().testFlag(Qt::ItemIsUserCheckable) || !IsToggle(*event, option))
    {
        return false;
    }
    const bool isChecked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    return model->setData(index, isChecked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

bool CGridDelegate::eventFilter(QObject* editor, QEvent* event)
{
    auto* edit = qobject_cast<QWidget*>(editor);
    if (event->type() != QEvent::KeyPress || edit == nullptr)
    {
        return QStyledItemDelegate::eventFilter(editor, event);
    }
    const int key = static_cast<QKeyEvent*>(event)->key();
    switch (key)
    {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Up:
    case Qt::Key_Down:
        // At once, so that what looks at the cells next finds the text there.
        Q_EMIT commitData(edit);
        Q_EMIT closeEditor(edit, NoHint);
        if (key != Qt::Key_Return && key != Qt::Key_Enter)
        {
            Q_EMIT MovedOn(key);
        }
        return true;
    default:
        return QStyledItemDelegate::eventFilter(editor, event);
    }
}

void CGridDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const bool isFixed = !(index.flags() & (Qt::ItemIsEditable | Qt::ItemIsUserCheckable));
    if (isFixed && !index.data(Qt::BackgroundRole).isValid())
    {
        option->backgroundBrush = option->palette.window();
    }
}
