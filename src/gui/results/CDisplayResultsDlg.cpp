#include "gui/results/CDisplayResultsDlg.h"

#include "core/results/report/CReportDocument.h"
#include "core/results/report/ReportLists.h"
#include "gui/forms/HelpTopics.h"
#include "gui/results/CCustomizeResultsDlg.h"
#include "gui/results/CPageCountLabel.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>

namespace
{
struct CSectionBox
{
    EReportSection Section;
    const char* Name;
    const char* Caption;
};

// In the order of the screen.
constexpr CSectionBox kGeneral[] = {
    {kSectionHydrostatics, "Summary", QT_TRANSLATE_NOOP("CDisplayResultsDlg", "Summary")},
    {kSectionEnvironment, "Environment", QT_TRANSLATE_NOOP("CDisplayResultsDlg", "Environment")}};
constexpr CSectionBox kRegular[] = {
    {kSectionMotionRao, "MotionRao", QT_TRANSLATE_NOOP("CDisplayResultsDlg", "Motion RAO")},
    {kSectionLoadRao, "LoadRao", QT_TRANSLATE_NOOP("CDisplayResultsDlg", "Load RAO")},
    {kSectionRollDamping, "RollDamping",
     QT_TRANSLATE_NOOP("CDisplayResultsDlg", "Roll Damping Coefficients")}};
constexpr CSectionBox kIrregular[] = {
    {kSectionRms, "RmsMotion", QT_TRANSLATE_NOOP("CDisplayResultsDlg", "RMS Motion Response")},
    {kSectionRmsShortCrested, "RmsShortCrested",
     QT_TRANSLATE_NOOP("CDisplayResultsDlg", "RMS Motion Response Short-Crested Seas")},
    {kSectionRmsLoads, "RmsLoad", QT_TRANSLATE_NOOP("CDisplayResultsDlg", "RMS Load Response")},
    {kSectionSlamming, "Slamming",
     QT_TRANSLATE_NOOP("CDisplayResultsDlg", "Deck Wetness/Slamming/Emergencence ")},
    {kSectionMotionInterruption, "Mii", QT_TRANSLATE_NOOP("CDisplayResultsDlg", "Motion Interruption Index")},
    {kSectionMotionSickness, "Msi", QT_TRANSLATE_NOOP("CDisplayResultsDlg", "Motion Sickness Incidence")}};
} // namespace

CDisplayResultsDlg::CDisplayResultsDlg(CFormContext& context, QWidget* parent)
    : CFormDlg(context, "CDisplayResultsDlg", tr("Display Results"), kHelpDisplayResults, parent)
{
    OkButton().setText(tr("&View"));
    AddSections();
    AddChoices();
    AddSaveButton();
}

void CDisplayResultsDlg::AddSections()
{
    auto* left = new QVBoxLayout;
    auto* right = new QVBoxLayout;
    const auto add = [this](QVBoxLayout* column, const QString& title, const char* name, const auto& boxes)
    {
        auto* group = new QGroupBox(title, this);
        group->setObjectName(QString::fromLatin1(name));
        column->addWidget(group);
        auto* rows = new QVBoxLayout(group);
        for (const CSectionBox& box : boxes)
        {
            m_sections[box.Section] = MakeBox(box.Name, tr(box.Caption));
            rows->addWidget(m_sections[box.Section]);
            connect(m_sections[box.Section], &QCheckBox::clicked, this,
                    [this, section = box.Section](bool isSet)
                    {
                        m_choice.Select(section, isSet);
                        OnChange();
                    });
        }
        rows->addStretch(1);
    };
    add(left, tr("Ship and Environment"), "General.group", kGeneral);
    add(left, tr("Regular Seas"), "Regular.group", kRegular);
    add(right, tr("Irregular Seas"), "Irregular.group", kIrregular);
    m_sections[kSectionEnvironment]->hide(); // goes with the summary
    left->setStretch(1, 1);
    auto* columns = new QHBoxLayout;
    columns->addLayout(left);
    columns->addLayout(right);
    Body().addLayout(columns);
}

void CDisplayResultsDlg::AddChoices()
{
    auto* row = new QHBoxLayout;
    m_selectAll = MakeBox("SelectAll", tr("Select &All"));
    m_customize = MakeBox("Customize", tr("Customize"));
    m_customize->setToolTip(
        tr("View asks for the speeds, directions, seaways and load positions to report."));
    connect(m_selectAll, &QCheckBox::clicked, this,
            [this](bool isSet)
            {
                m_choice.SelectAll(isSet);
                OnChange();
            });
    connect(m_customize, &QCheckBox::clicked, this,
            [this](bool isSet)
            {
                m_choice.Customize(isSet);
                ShowChoice();
            });
    m_pages = new CPageCountLabel(this);
    row->addWidget(m_selectAll);
    row->addWidget(m_customize);
    row->addStretch(1);
    m_pages->AddTo(*row);
    Body().addLayout(row);
}

void CDisplayResultsDlg::AddSaveButton()
{
    AddButton("SaveHtml", tr("&Save HTML File and View"),
              [this]
              {
                  m_saves = true;
                  accept();
                  m_saves = false;
              });
}

QCheckBox* CDisplayResultsDlg::MakeBox(const char* name, const QString& caption)
{
    auto* box = new QCheckBox(caption, this);
    box->setObjectName(QString::fromLatin1(name));
    return box;
}

void CDisplayResultsDlg::LoadFields()
{
    CFormDlg::LoadFields();
    Project().CustomReport.fill(0);
    Project().ReportDataRead = 0;
    const auto counts = LoadPageCounts(Project().ResultsFilePath, Messages());
    m_choice = counts ? CReportChoice(*counts) : CReportChoice();
    for (int section = 0; section < kReportSectionCount; ++section)
    {
        const bool isOffered = m_choice.Offers(static_cast<EReportSection>(section));
        QCheckBox& box = *m_sections[static_cast<std::size_t>(section)];
        box.setEnabled(isOffered);
        box.setToolTip(isOffered ? QString() : tr("The results have no data for this section."));
    }
    m_selectAll->setEnabled(counts.has_value());
    m_customize->setEnabled(counts.has_value());
    ShowChoice();
}

void CDisplayResultsDlg::OnChange()
{
    ShowChoice();
    if (m_choice.IsRefused())
    {
        ShowPageLimit(Messages());
        m_choice.ClearIrregular();
        ShowChoice();
    }
}

void CDisplayResultsDlg::ShowChoice()
{
    for (int section = 0; section < kReportSectionCount; ++section)
    {
        m_sections[static_cast<std::size_t>(section)]->setChecked(
            m_choice.IsSelected(static_cast<EReportSection>(section)));
    }
    m_selectAll->setChecked(m_choice.IsAllSelected());
    m_customize->setChecked(m_choice.IsCustomized());
    m_pages->ShowPages(m_choice.Pages());
}

bool CDisplayResultsDlg::OnOk()
{
    if (!m_choice.IsAnythingSelected())
    {
        Messages().MessageBox("There are no reports selected.  Please select a report to view and click on "
                              "the OK button.  Otherwise click on the Cancel button.",
                              "Error", EIcon::Stop);
        return true;
    }
    return ChooseLists() && ShowReport();
}

/// Hands the speeds, directions, seaways and load stations of the report to the project. False if the user is
/// to choose anew.
bool CDisplayResultsDlg::ChooseLists()
{
    if (!m_choice.IsCustomized())
    {
        StoreLists(Project(), WholeLists(m_choice.Counts()));
        return true;
    }
    if (m_choice.MixesFamilies())
    {
        Messages().MessageBox("Cannot customize both Regular and Irregular Seas Responses", "Error",
                              EIcon::Stop);
        m_choice.ClearIrregular();
        OnChange();
        return false;
    }
    CCustomizeResultsDlg form(Context(), m_choice.Counts(), m_choice.Flags(), this);
    if (form.exec() != QDialog::Accepted)
    {
        return false;
    }
    m_pages->ShowPages(form.PageCount());
    return true;
}

/// A report that can't be written leaves the form as it is, for another try.
bool CDisplayResultsDlg::ShowReport()
{
    CReportDocument document(Project(), Context().Session, Context().Platform);
    if (!document.Write(m_choice.Flags()))
    {
        return false;
    }
    if (m_saves)
    {
        document.SaveAs();
    }
    document.Show();
    return true;
}
