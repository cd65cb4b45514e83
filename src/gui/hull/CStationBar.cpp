#include "gui/hull/CStationBar.h"

#include "core/project/PlainFields.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>

CStationBar::CStationBar(QWidget* parent) : QWidget(parent)
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(1);
    for (int station = 0; station < kMaxStations; ++station)
    {
        auto* button = new QPushButton(QString::number(station), this);
        button->setObjectName(QStringLiteral("station.%1").arg(station));
        button->setToolTip(tr("Station %1").arg(station));
        button->setCheckable(true);
        button->setAutoDefault(false);
        button->setFocusPolicy(Qt::NoFocus); // the grid keeps the keyboard
        connect(button, &QPushButton::clicked, this, [this, station] { Q_EMIT Picked(station); });
        row->addWidget(button);
        m_buttons.push_back(button);
    }
    row->addStretch(1);
    FitWidths();
}

void CStationBar::Show(int count, int active)
{
    for (int station = 0; station < kMaxStations; ++station)
    {
        QPushButton& button = *m_buttons[static_cast<std::size_t>(station)];
        button.setVisible(station < count);
        button.setChecked(station == active);
        QPalette colours = palette();
        QFont shown = font();
        if (station == active)
        {
            colours.setColor(QPalette::Button, colours.color(QPalette::Highlight));
            colours.setColor(QPalette::ButtonText, colours.color(QPalette::HighlightedText));
            shown.setBold(true);
        }
        button.setPalette(colours);
        button.setFont(shown);
    }
}

void CStationBar::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
    {
        FitWidths();
    }
}

void CStationBar::FitWidths()
{
    for (QPushButton* button : m_buttons)
    {
        button->setFixedWidth(fontMetrics().averageCharWidth() * 5);
    }
}
