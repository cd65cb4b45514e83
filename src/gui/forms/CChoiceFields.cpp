#include "gui/forms/CChoiceFields.h"

#include "core/platform/NumberText.h"
#include "gui/platform/QtText.h"

#include <algorithm>

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QRadioButton>

void CChoiceField::Enables(int value, std::vector<const CField*> fields)
{
    Follows(
        [this, value, fields = std::move(fields)]
        {
            for (const CField* field : fields)
            {
                field->SetEnabled(EffectiveChoice() == value);
            }
        });
}

void CChoiceField::Follow() const
{
    for (const auto& follow : m_follows)
    {
        follow();
    }
}

COptionField::COptionField(const QString& title, const CStoredNumber& number, QWidget* parent)
    : m_number(number),
      m_group(new QGroupBox(title, parent)),
      m_rows(new QGridLayout(m_group)),
      m_buttons(new QButtonGroup(m_group))
{
    m_group->setObjectName(ScreenText(number.Name()) + ".group");
}

COptionField& COptionField::Button(int value, const QString& caption)
{
    auto* button = new QRadioButton(caption, m_group);
    button->setObjectName(ScreenText(m_number.Name() + "." + IntegerText(value)));
    m_buttons->addButton(button, value);
    m_rows->addWidget(button, m_rows->rowCount(), 0);
    QObject::connect(button, &QRadioButton::clicked, button,
                     [this, value]
                     {
                         for (const auto& clicked : m_clicked)
                         {
                             clicked(value);
                         }
                     });
    QObject::connect(button, &QRadioButton::toggled, button,
                     [this](bool isOn)
                     {
                         if (isOn)
                         {
                             StopAtChosen();
                             Follow();
                         }
                     });
    return *this;
}

QRadioButton* COptionField::ButtonOf(int value) const
{
    return static_cast<QRadioButton*>(m_buttons->button(value));
}

/// The Tab key comes to the button that is on, from where the arrow keys go on.
void COptionField::StopAtChosen() const
{
    for (QAbstractButton* button : m_buttons->buttons())
    {
        button->setFocusPolicy(button->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

void COptionField::SetChoice(int value)
{
    if (QRadioButton* button = ButtonOf(value))
    {
        button->setChecked(true);
        return;
    }
    m_buttons->setExclusive(false);
    for (QAbstractButton* button : m_buttons->buttons())
    {
        button->setChecked(false);
        button->setFocusPolicy(Qt::StrongFocus);
    }
    m_buttons->setExclusive(true);
}

void COptionField::Load()
{
    SetChoice(Truncated(m_number.Value()));
    Follow();
}

bool COptionField::Store()
{
    return m_buttons->checkedId() >= 0 && m_number.Store(static_cast<float>(Choice()));
}

std::vector<QWidget*> COptionField::Widgets() const
{
    return {m_group};
}

int COptionField::Choice() const
{
    const int checked = m_buttons->checkedId();
    return checked >= 0 ? checked : Truncated(m_number.Value());
}

int COptionField::EffectiveChoice() const
{
    return std::max(0, m_buttons->checkedId());
}

CCheckField::CCheckField(const QString& caption, const CStoredNumber& number, QWidget* parent)
    : m_number(number),
      m_box(new QCheckBox(caption, parent))
{
    m_box->setObjectName(ScreenText(number.Name()));
    QObject::connect(m_box, &QCheckBox::toggled, m_box, [this] { Follow(); });
}

CCheckField& CCheckField::Values(int set, int clear)
{
    m_set = set;
    m_clear = clear;
    return *this;
}

void CCheckField::Load()
{
    m_box->setChecked(Truncated(m_number.Value()) == m_set);
    Follow();
}

bool CCheckField::Store()
{
    return m_number.Store(static_cast<float>(Choice()));
}

std::vector<QWidget*> CCheckField::Widgets() const
{
    return {m_box};
}

int CCheckField::Choice() const
{
    return m_box->isChecked() ? m_set : m_clear;
}
