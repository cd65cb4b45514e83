#include "gui/results/CIndexList.h"

#include <algorithm>

#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

namespace
{
constexpr int kRows = 12; ///< at first; a list grows with the form
constexpr const char* kShortEntry = "000.00";
} // namespace

CIndexList::CIndexList(const char* name, const QString& title, const QStringList& entries, QWidget* parent)
    : QGroupBox(title, parent),
      m_list(new QListWidget(this))
{
    m_list->setObjectName(QString::fromLatin1(name));
    setObjectName(m_list->objectName() + ".group");
    m_list->setSelectionMode(QAbstractItemView::MultiSelection);
    m_list->setAccessibleName(title);
    m_list->addItems(entries);
    connect(m_list, &QListWidget::itemSelectionChanged, this, &CIndexList::SelectionChanged);
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(m_list, 1);
    const auto add = [&](const char* role, const QString& caption, void (QListWidget::*pressed)())
    {
        auto* button = new QPushButton(caption, this);
        button->setObjectName(m_list->objectName() + role);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, m_list, pressed);
        rows->addWidget(button);
    };
    add(".SelectAll", tr("Select All"), &QListWidget::selectAll);
    add(".Clear", tr("Clear"), &QListWidget::clearSelection);
    FitToEntries();
}

CSelection CIndexList::Selected() const
{
    CSelection indices;
    for (int row = 0; row < m_list->count(); ++row)
    {
        if (m_list->item(row)->isSelected())
        {
            indices.push_back(row);
        }
    }
    return indices;
}

void CIndexList::FitToEntries()
{
    const int frame = 2 * m_list->frameWidth();
    const int width = std::max(m_list->sizeHintForColumn(0), fontMetrics().horizontalAdvance(kShortEntry));
    m_list->setMinimumSize(width + m_list->verticalScrollBar()->sizeHint().width() + frame,
                           kRows * std::max(m_list->sizeHintForRow(0), fontMetrics().height()) + frame);
}
