#include "gui/forms/CGrid.h"

#include "gui/forms/CGridDelegate.h"
#include "gui/forms/CUnitCaption.h"

#include <numeric>

#include <QAbstractButton>
#include <QAction>
#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>

namespace
{
constexpr double kStripe = 0.035; ///< share of the text's colour in every other row

QColor Mixed(const QColor& ground, const QColor& tint, double share)
{
    const auto mix = [share](int from, int to) { return qRound(from + (to - from) * share); };
    return {mix(ground.red(), tint.red()), mix(ground.green(), tint.green()),
            mix(ground.blue(), tint.blue())};
}

/// A number as long as those that the column is likely to hold.
QString TypicalNumber(const CGridColumn& column)
{
    return QStringLiteral("-8888.") + QString(qMax(column.Format.Decimals(), 2), u'8');
}
} // namespace

CGrid::CGrid(std::vector<CGridColumn> columns, int rows, QWidget* parent)
    : QTableView(parent),
      m_cells(new CGridModel(std::move(columns), this))
{
    m_cells->SetRowCount(rows);
    setModel(m_cells);
    auto* delegate = new CGridDelegate(this);
    setItemDelegate(delegate);
    connect(delegate, &CGridDelegate::MovedOn, this, &CGrid::MoveOn);
    connect(m_cells, &CGridModel::CellEdited, this, &CGrid::CellEdited);
    connect(m_cells, &CGridModel::BlockEdited, this, &CGrid::BlockEdited);
    connect(m_cells, &QAbstractItemModel::headerDataChanged, this, &CGrid::FitSizes);
    for (int column = 0; column < m_cells->ColumnCount(); ++column)
    {
        if (CUnitCaption* unit = m_cells->Column(column).Unit)
        {
            unit->Converts([this, column](float factor) { ConvertColumn(column, factor); });
        }
    }
    setEditTriggers(EditKeyPressed | AnyKeyPressed | DoubleClicked);
    setTabKeyNavigation(false); // Tab also leaves the grid
    setAlternatingRowColors(true);
    QPalette colours = palette();
    colours.setColor(QPalette::AlternateBase,
                     Mixed(colours.color(QPalette::Base), colours.color(QPalette::Text), kStripe));
    setPalette(colours);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    AddMenu();
    FitSizes();
}

void CGrid::SetVisibleRows(int rows)
{
    m_visibleRows = rows;
    updateGeometry();
}

void CGrid::ShowRowNumbers()
{
    verticalHeader()->setDefaultAlignment(Qt::AlignCenter);
    verticalHeader()->show();
    updateGeometry();
}

void CGrid::SetFocusCell(int row, int column)
{
    setCurrentIndex(m_cells->index(row, column));
}

void CGrid::MarkCell(int row, int column)
{
    EndEdit();
    const QModelIndex cell = m_cells->index(row, column);
    setCurrentIndex(cell);
    selectionModel()->select(cell, QItemSelectionModel::ClearAndSelect);
    scrollTo(cell);
    setFocus();
}

void CGrid::MarkAlso(int row, int column)
{
    selectionModel()->select(m_cells->index(row, column), QItemSelectionModel::Select);
}

void CGrid::EndEdit()
{
    if (state() != EditingState)
    {
        return;
    }
    if (QWidget* editor = indexWidget(currentIndex()))
    {
        commitData(editor);
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
}

void CGrid::ConvertColumn(int column, float factor)
{
    EndEdit();
    m_cells->ConvertColumn(column, factor);
}

void CGrid::RowButtons(QAbstractButton& insert, QAbstractButton& remove, std::function<bool()> mayInsert,
                       std::function<bool()> mayDelete)
{
    connect(&insert, &QAbstractButton::clicked, this,
            [this, may = std::move(mayInsert)] { MoveRows(&CGridModel::InsertRow, may); });
    connect(&remove, &QAbstractButton::clicked, this,
            [this, may = std::move(mayDelete)] { MoveRows(&CGridModel::DeleteRow, may); });
}

void CGrid::MoveRows(void (CGridModel::*moveRows)(int, const std::vector<int>&),
                     const std::function<bool()>& may)
{
    EndEdit();
    const bool isMoved = FocusRow() >= 0 && (!may || may());
    if (isMoved)
    {
        (m_cells->*moveRows)(FocusRow(), {});
    }
    setFocus();
    if (isMoved)
    {
        Q_EMIT RowsMoved();
    }
}

QSize CGrid::sizeHint() const
{
    const int rows = qMax(qMin(m_visibleRows, m_cells->RowCount()), 3);
    return {ColumnsWidth(), RowsHeight(rows)};
}

QSize CGrid::minimumSizeHint() const
{
    return {qMin(ColumnsWidth(), fontMetrics().averageCharWidth() * 80), RowsHeight(qMin(m_visibleRows, 4))};
}

void CGrid::focusInEvent(QFocusEvent* event)
{
    if (!currentIndex().isValid() && !StepCell(1) && m_cells->RowCount() > 0)
    {
        SetFocusCell(0, 0);
    }
    if (currentIndex().isValid() && selectionModel()->selection().isEmpty())
    {
        selectionModel()->select(currentIndex(), QItemSelectionModel::Select);
    }
    QTableView::focusInEvent(event);
}

void CGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    Q_EMIT FocusCellChanged(current.row(), current.column());
}

void CGrid::AddMenu()
{
    // The keys stand in the captions only: keyPressEvent has them.
    const auto add = [this](const QString& caption, QKeySequence::StandardKey key, auto command)
    {
        auto* action =
            new QAction(caption + u'\t' + QKeySequence(key).toString(QKeySequence::NativeText), this);
        connect(action, &QAction::triggered, this, command);
        addAction(action);
    };
    add(tr("Cu&t"), QKeySequence::Cut, &CGrid::Cut);
    add(tr("&Copy"), QKeySequence::Copy, &CGrid::Copy);
    add(tr("&Paste"), QKeySequence::Paste, &CGrid::Paste);
    add(tr("C&lear"), QKeySequence::Delete, &CGrid::ClearSelected);
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

void CGrid::commitData(QWidget* editor)
{
    if (m_isCommitting) // what is done for an edit may mark a cell or show a message, which end edits too
    {
        return;
    }
    m_isCommitting = true;
    QTableView::commitData(editor);
    m_isCommitting = false;
}

void CGrid::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint)
{
    if (!editor->isHidden()) // a cell marked meanwhile has closed it
    {
        QTableView::closeEditor(editor, hint);
    }
}

void CGrid::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    FitColumns();
}

void CGrid::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
    {
        FitSizes();
    }
}

void CGrid::FitSizes()
{
    const int gap = fontMetrics().height() / 3;
    verticalHeader()->setMinimumSectionSize(fontMetrics().height());
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + gap);
    horizontalHeader()->setMinimumSectionSize(fontMetrics().averageCharWidth() * 3);
    m_columnWidths.clear();
    for (int column = 0; column < m_cells->ColumnCount(); ++column)
    {
        const CGridColumn& shown = m_cells->Column(column);
        const int header = horizontalHeader()->sectionSizeHint(column) + gap;
        const int number = shown.Kind == EGridCell::Number
                               ? fontMetrics().horizontalAdvance(TypicalNumber(shown)) + 2 * gap
                               : 0;
        m_columnWidths.push_back(qMax(header, number));
    }
    FitColumns();
    updateGeometry();
}

/// What the grid is wider than its columns need goes to all of them by their widths.
void CGrid::FitColumns()
{
    const auto seen = ColumnsInView(0);
    const int needed = std::accumulate(seen.begin(), seen.end(), 0,
                                       [this](int sum, int column)
                                       { return sum + m_columnWidths[static_cast<std::size_t>(column)]; });
    int neededLeft = needed;
    int left = qMax(viewport()->width(), needed);
    for (const int column : seen)
    {
        const int own = m_columnWidths[static_cast<std::size_t>(column)];
        const int width = qRound(static_cast<double>(left) * own / neededLeft);
        setColumnWidth(column, width);
        left -= width;
        neededLeft -= own;
    }
}

std::vector<int> CGrid::ColumnsInView(int from) const
{
    std::vector<int> columns;
    for (int column = from; column < m_cells->ColumnCount(); ++column)
    {
        if (!isColumnHidden(column))
        {
            columns.push_back(column);
        }
    }
    return columns;
}

int CGrid::RowsHeight(int rows) const
{
    return horizontalHeader()->sizeHint().height() + rows * verticalHeader()->defaultSectionSize() +
           2 * frameWidth();
}

int CGrid::ColumnsWidth() const
{
    const int numbers = verticalHeader()->isHidden() ? 0 : verticalHeader()->sizeHint().width();
    int width = numbers + verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
    for (const int column : ColumnsInView(0))
    {
        width += m_columnWidths[static_cast<std::size_t>(column)];
    }
    return width;
}
