#include "gui/app/CStatusPanes.h"

#include "core/platform/NumberText.h"
#include "gui/platform/QtText.h"

namespace
{
QLabel* Pane(const char* name, QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    label->setMargin(label->fontMetrics().averageCharWidth() / 2);
    return label;
}
} // namespace

CStatusPanes::CStatusPanes(QWidget* parent)
    : QStatusBar(parent),
      m_message(Pane("Status.Message", this)),
      m_time(Pane("Status.Time", this)),
      m_date(Pane("Status.Date", this))
{
    m_message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a long text widens no window
    addWidget(m_message, 1);
    addPermanentWidget(m_time);
    addPermanentWidget(m_date);
    ShowStatus({});
}

void CStatusPanes::ShowStatus(const QString& text)
{
    m_message->setText(text.isEmpty() ? tr("Ready") : text);
}

void CStatusPanes::ShowTime(const std::tm& localTime)
{
    m_time->setText(TimeText(localTime));
    m_date->setText(DateText(localTime));
}

QString TimeText(const std::tm& time)
{
    const int hour = time.tm_hour % 12 == 0 ? 12 : time.tm_hour % 12;
    return ScreenText(FormatText("%02d:%02d %s", hour, time.tm_min, time.tm_hour < 12 ? "AM" : "PM"));
}

QString DateText(const std::tm& time)
{
    constexpr int firstYear = 1900;
    return ScreenText(FormatText("%04d %02d %02d", time.tm_year + firstYear, time.tm_mon + 1, time.tm_mday));
}
