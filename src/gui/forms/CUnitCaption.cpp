#include "gui/forms/CUnitCaption.h"

#include "core/project/UnitFactors.h"

#include <algorithm>

#include <QFontMetrics>
#include <QStyle>
#include <QStylePainter>

const CUnitPair kLengthUnits = {{"meters", "feet"}, kFeetPerMetre, kMetresPerFoot};
const CUnitPair kMassUnits = {{"tonnes", "LT"}, kLongTonsPerTonne, kTonnesPerLongTon};

CUnitCaption::CUnitCaption(const CUnitPair& units, QWidget* parent) : QPushButton(parent), m_units(units)
{
    setFlat(true);
    setAutoDefault(false);
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    QFont link = font();
    link.setUnderline(true);
    setFont(link);
    QPalette colours = palette();
    colours.setColor(QPalette::Active, QPalette::ButtonText, colours.color(QPalette::Active, QPalette::Link));
    colours.setColor(QPalette::Inactive, QPalette::ButtonText,
                     colours.color(QPalette::Inactive, QPalette::Link));
    setPalette(colours);
    SetUnit(kUnitMetric);
    connect(this, &QPushButton::clicked, this, &CUnitCaption::Swap);
}

void CUnitCaption::Converts(std::function<void(float)> convert)
{
    m_converts.push_back(std::move(convert));
}

void CUnitCaption::Swap()
{
    const bool toBritish = m_unit == kUnitMetric;
    for (const auto& convert : m_converts)
    {
        convert(toBritish ? m_units.ToBritish : m_units.ToMetric);
    }
    SetUnit(toBritish ? kUnitBritish : kUnitMetric);
}

void CUnitCaption::SetUnit(int unit)
{
    m_unit = unit == kUnitMetric ? kUnitMetric : kUnitBritish;
    const auto shown = static_cast<std::size_t>(m_unit);
    setText(QString::fromLatin1(m_units.Captions[shown]));
    setToolTip(tr("Click to convert to %1").arg(QString::fromLatin1(m_units.Captions[1 - shown])));
}

QSize CUnitCaption::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    const auto width = [&metrics](const char* caption)
    { return metrics.horizontalAdvance(QString::fromLatin1(caption)); };
    return {std::max(width(m_units.Captions[0]), width(m_units.Captions[1])) + 1,
            QPushButton::sizeHint().height()};
}

void CUnitCaption::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    painter.drawItemText(rect(), Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(), text(),
                         QPalette::ButtonText);
}
