#include "gui/hull/CSegmentDivisionDlg.h"

#include "gui/forms/HelpTopics.h"
#include "gui/hull/SegmentDivision.h"
#include "gui/platform/QtText.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

CSegmentDivisionDlg::CSegmentDivisionDlg(CFormContext& context, const CSegmentQuestion& question,
                                         QWidget* parent)
    : CFormDlg(context, "CSegmentDivisionDlg", tr("Offset Segment Length Division"), kHelpOffsets, parent),
      m_question(question)
{
    AddQuestion();
    AddButtons();
}

void CSegmentDivisionDlg::AddQuestion()
{
    auto* explanation =
        new QLabel(tr("This segment is considerably longer than the others, \nand the inconsistency may "
                      "degrade the fidelity of the \nhydrodynamic modelling."),
                   this);
    explanation->setObjectName("Explanation");
    AddRow(explanation);
    auto* progress = new QLabel(Progress(), this);
    progress->setObjectName("Progress");
    AddRow(progress);

    m_pieces = new CNumericEdit(this);
    m_pieces->setObjectName("Pieces");
    m_pieces->setMaximumWidth(fontMetrics().averageCharWidth() * 8);
    m_pieces->setToolTip(tr("2 or more; with less the segment stays as it is"));
    auto* label = new QLabel(tr("Divide this segment into"), this);
    label->setBuddy(m_pieces);
    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(m_pieces);
    row->addWidget(new QLabel(tr("pieces"), this));
    row->addStretch(1);
    AddRow(row);

    m_always = new QCheckBox(tr("Always Check Segment Lengths"), this);
    m_always->setObjectName("ChkSegLenInter");
    AddRow(m_always);
}

void CSegmentDivisionDlg::AddButtons()
{
    CancelButton().hide(); // Ignore stands for it
    HelpButton().hide();
    const auto add = [this](const char* name, const QString& caption, std::function<void()> pressed)
    {
        m_answers.push_back(MakeButton(name, caption, std::move(pressed)));
        ButtonRow().addWidget(m_answers.back());
    };
    m_answers.push_back(&OkButton());
    add("YesToAll", tr("&Yes to All"),
        [this]
        {
            m_answerOfOk = ESegmentAnswer::DivideAll;
            accept();
            m_answerOfOk = ESegmentAnswer::Divide;
        });
    add("Ignore", tr("&Ignore"), [this] { reject(); });
    add("IgnoreAll", tr("I&gnore All"),
        [this]
        {
            m_answer = ESegmentAnswer::IgnoreAll;
            reject();
        });
}

QString CSegmentDivisionDlg::Progress() const
{
    return ScreenText(FormatText("This is %i of %i segments to be broken up. \n"
                                 "The remaining number of offsets available is %i.",
                                 m_question.Number, m_question.Total, m_question.PointsLeft));
}

void CSegmentDivisionDlg::LoadFields()
{
    CFormDlg::LoadFields();
    m_pieces->setText(ScreenText(IntegerText(m_question.Pieces)));
    m_always->setChecked(Project().ChkSegLenInter == 1);
}

void CSegmentDivisionDlg::showEvent(QShowEvent* event)
{
    CFormDlg::showEvent(event);
    for (std::size_t place = 1; place < m_answers.size(); ++place)
    {
        setTabOrder(m_answers[place - 1], m_answers[place]);
    }
}

int CSegmentDivisionDlg::Pieces() const
{
    const int pieces = IntegerAtStart(PlainText(m_pieces->text()));
    const bool isDivided = m_answer == ESegmentAnswer::Divide || m_answer == ESegmentAnswer::DivideAll;
    return isDivided && pieces > 1 ? pieces : 0;
}

bool CSegmentDivisionDlg::OnOk()
{
    if (!HasRoom(m_question.Points, IntegerAtStart(PlainText(m_pieces->text()))))
    {
        Messages().MessageBox(FormatText("There can only be a total of 60 offsets. \n"
                                         "There are currently %i offsets. \n\n"
                                         "Please decrease the number of segments.",
                                         m_question.Points),
                              "Warning", EIcon::Warning);
        m_pieces->setFocus();
        m_pieces->selectAll();
        return false;
    }
    m_answer = m_answerOfOk;
    return CFormDlg::OnOk();
}

void CSegmentDivisionDlg::done(int result)
{
    Project().ChkSegLenInter = m_always->isChecked() ? 1 : 0;
    Context().Platform.Profile.WriteProfileInt("Settings", "ChkSegLenInter", Project().ChkSegLenInter);
    CFormDlg::done(result);
}
