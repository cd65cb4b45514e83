#include "gui/forms/CNumberField.h"

#include "gui/platform/QtText.h"

#include <QLabel>

namespace
{
/// A limit as people write it: without an exponent and without zeros behind.
std::string LimitText(float limit)
{
    std::string text = FixedText(limit, "%.6f");
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.')
    {
        text.pop_back();
    }
    return text;
}
} // namespace

CNumberField::CNumberField(CMessages& messages, const CStoredNumber& number, CFixedFormat format,
                           QWidget* parent)
    : m_messages(messages),
      m_number(number),
      m_format(format),
      m_edit(new CNumericEdit(parent)),
      m_minimum([number] { return number.Minimum(); }),
      m_maximum([number] { return number.Maximum(); })
{
    m_edit->setObjectName(ScreenText(number.Name()));
}

CNumberField& CNumberField::Label(const QString& label)
{
    m_label = new QLabel(label, m_edit->parentWidget());
    m_label->setObjectName(m_edit->objectName() + ".label");
    m_label->setBuddy(m_edit);
    return *this;
}

CNumberField& CNumberField::Units(const CUnitPair& units)
{
    auto* caption = new CUnitCaption(units, m_edit->parentWidget());
    caption->setObjectName(m_edit->objectName() + ".unit");
    m_unit = caption;
    return SharedUnits(*caption);
}

CNumberField& CNumberField::SharedUnits(CUnitCaption& caption)
{
    m_caption = &caption;
    caption.Converts(
        [this](float factor)
        { SetText(ConvertedText(Text(), factor, m_convertedFormat.value_or(m_format), m_sentinel)); });
    return *this;
}

CNumberField& CNumberField::FixedUnit(const QString& unit)
{
    m_unit = new QLabel(unit, m_edit->parentWidget());
    m_unit->setObjectName(m_edit->objectName() + ".unit");
    return *this;
}

CNumberField& CNumberField::NotGiven(float sentinel)
{
    m_sentinel = sentinel;
    return *this;
}

CNumberField& CNumberField::Limits(std::function<float()> minimum, std::function<float()> maximum)
{
    m_minimum = std::move(minimum);
    m_maximum = std::move(maximum);
    return *this;
}

CNumberField& CNumberField::Limits(float minimum, float maximum)
{
    return Limits([minimum] { return minimum; }, [maximum] { return maximum; });
}

CNumberField& CNumberField::RangeTitle(const std::string& title, ERangeText mode)
{
    m_rangeTitle = title;
    m_rangeText = mode;
    return *this;
}

CNumberField& CNumberField::CheckedIf(std::function<bool()> condition)
{
    m_checkedIf = std::move(condition);
    return *this;
}

CNumberField& CNumberField::AlwaysConverted()
{
    m_alwaysConverted = true;
    return *this;
}

CNumberField& CNumberField::Required(EBlankText blank, std::function<bool()> condition)
{
    m_blank = blank;
    m_required = condition ? std::move(condition) : [] { return true; };
    return *this;
}

CNumberField& CNumberField::Whole()
{
    m_isWhole = true;
    return *this;
}

CNumberField& CNumberField::ShowsNotGiven()
{
    m_showsNotGiven = true;
    return *this;
}

CNumberField& CNumberField::ConvertedFormat(CFixedFormat format)
{
    m_convertedFormat = format;
    return *this;
}

CNumberField& CNumberField::ModifiedByText(CFixedFormat format)
{
    m_modifiedBy = format;
    return *this;
}

CNumberField& CNumberField::MirroredByStationOrigin(const CProjectData& project)
{
    m_mirroredBy = &project;
    return *this;
}

std::string CNumberField::Text() const
{
    return PlainText(m_edit->text());
}

void CNumberField::SetText(const std::string& text)
{
    m_edit->setText(ScreenText(text));
}

float CNumberField::Value() const
{
    const std::string text = Text();
    return m_isWhole && !IsBlank(text) ? static_cast<float>(IntegerAtStart(text))
                                       : FieldValue(text, m_sentinel);
}

std::string CNumberField::ShownText(float value) const
{
    if (m_isWhole)
    {
        const bool isGiven = Truncated(value) != Truncated(m_sentinel);
        return isGiven || m_showsNotGiven ? IntegerText(Truncated(value)) : std::string();
    }
    return m_showsNotGiven ? FixedText(value, m_format) : FieldText(value, m_format, m_sentinel);
}

void CNumberField::Load()
{
    SetText(ShownText(Mirrored(m_number.Value())));
    if (m_caption != nullptr)
    {
        m_caption->SetUnit(m_number.Unit());
    }
    SetToolTip();
}

bool CNumberField::Check()
{
    if (IsEmpty())
    {
        return true;
    }
    if (!m_rangeTitle.empty() && m_checkedIf())
    {
        return CheckInSi();
    }
    SkipCheck();
    return true;
}

void CNumberField::SkipCheck()
{
    if (m_alwaysConverted && !IsEmpty() && m_caption != nullptr && m_caption->Unit() == kUnitBritish)
    {
        m_caption->Swap();
        m_caption->Swap();
    }
}

bool CNumberField::CheckInSi()
{
    const bool isBritish = m_caption != nullptr && m_caption->Unit() == kUnitBritish;
    if (isBritish)
    {
        m_caption->Swap();
    }
    const bool failed =
        CheckRange(m_messages, m_minimum(), m_maximum(), Value(), m_rangeText, m_rangeTitle) != 0;
    if (isBritish)
    {
        m_caption->Swap();
    }
    return !failed;
}

void CNumberField::Show()
{
    if (m_edit->isEnabled() && m_edit->isVisible())
    {
        m_edit->setFocus();
        m_edit->selectAll();
    }
}

bool CNumberField::Store()
{
    const float before = m_number.Value();
    const float value = Mirrored(Value());
    bool differs = m_number.Store(value);
    if (m_modifiedBy)
    {
        differs = FixedText(before, *m_modifiedBy) != FixedText(value, *m_modifiedBy);
    }
    if (m_caption != nullptr)
    {
        m_number.StoreUnit(m_caption->Unit());
    }
    return differs;
}

bool CNumberField::IsComplete() const
{
    const bool isFilled = m_blank == EBlankText::IsEmpty ? !IsEmpty() : !Text().empty();
    return isFilled || !m_required();
}

std::vector<QWidget*> CNumberField::Widgets() const
{
    std::vector<QWidget*> widgets = {m_edit};
    if (m_label != nullptr)
    {
        widgets.push_back(m_label);
    }
    if (m_caption != nullptr)
    {
        widgets.push_back(m_caption); // a fixed unit is never disabled
    }
    return widgets;
}

float CNumberField::Mirrored(float station) const
{
    const bool fromAft = m_mirroredBy != nullptr && m_mirroredBy->StationOrigin == 1;
    return fromAft && IsGiven(station) ? static_cast<float>(m_mirroredBy->NST.Integer() - 1) - station
                                       : station;
}

void CNumberField::SetToolTip()
{
    if (m_rangeTitle.empty())
    {
        return;
    }
    QString tip =
        QObject::tr("%1 to %2").arg(ScreenText(LimitText(m_minimum())), ScreenText(LimitText(m_maximum())));
    if (m_caption != nullptr)
    {
        tip += " " + m_caption->MetricCaption();
    }
    m_edit->setToolTip(tip);
}
