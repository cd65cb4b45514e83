#include "gui/app/CInformationDlg.h"

#include "gui/app/ProgramIcon.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace
{
constexpr int kIconHeight = 4;   ///< lines of text
constexpr int kTextWidth = 56;   ///< average characters
constexpr double kHeading = 1.6; ///< times the text's size

QLabel* IconLabel(QDialog& dialog)
{
    const int side = kIconHeight * dialog.fontMetrics().height();
    auto* icon = new QLabel(&dialog);
    icon->setPixmap(ProgramIcon().pixmap(side, side));
    icon->setAlignment(Qt::AlignTop);
    return icon;
}

QLabel* HeadingLabel(QDialog& dialog, const QString& heading)
{
    auto* label = new QLabel(heading, &dialog);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * kHeading);
    font.setBold(true);
    label->setFont(font);
    return label;
}

QLabel* TextLabel(QDialog& dialog, const QString& text)
{
    auto* label = new QLabel(text, &dialog);
    label->setObjectName("Text");
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(kTextWidth * dialog.fontMetrics().averageCharWidth());
    label->setTextInteractionFlags(Qt::TextSelectableByMouse); // a version is copied into a report
    return label;
}
} // namespace

CInformationDlg::CInformationDlg(const char* name, const QString& title, QWidget* parent)
    : QDialog(parent),
      m_ok(new QPushButton(tr("OK"), this))
{
    setObjectName(QString::fromLatin1(name));
    setWindowTitle(title);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_ok->setObjectName("OK");
    connect(m_ok, &QPushButton::clicked, this, &QDialog::accept);
}

void CInformationDlg::LayOut(const QString& heading, const QString& text, QPushButton* button)
{
    auto* texts = new QVBoxLayout;
    texts->addWidget(HeadingLabel(*this, heading));
    texts->addWidget(TextLabel(*this, text));
    auto* above = new QHBoxLayout;
    above->addWidget(IconLabel(*this));
    above->setSpacing(fontMetrics().height());
    above->addLayout(texts, 1);
    auto* below = new QHBoxLayout;
    below->addStretch(1);
    if (button != nullptr)
    {
        button->setAutoDefault(false);
        below->addWidget(button);
        setTabOrder(button, m_ok);
    }
    m_ok->setAutoDefault(false);
    m_ok->setFocus();
    below->addWidget(m_ok);

    auto* whole = new QVBoxLayout(this);
    whole->setSizeConstraint(QLayout::SetFixedSize);
    whole->addLayout(above);
    whole->addSpacing(fontMetrics().height() / 2);
    whole->addLayout(below);
}

void CInformationDlg::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
    {
        QDialog::keyPressEvent(event);
    }
    else if (focusWidget() == m_ok)
    {
        accept();
    }
    else
    {
        focusNextChild();
    }
}
