// Chooses the sections of the output report of the results at hand, tells how many pages they have, and shows
// the report.
#pragma once

#include "core/results/report/CReportChoice.h"
#include "gui/forms/CFormDlg.h"

#include <array>

class CPageCountLabel;
class QCheckBox;

class CDisplayResultsDlg : public CFormDlg
{
    Q_OBJECT

public:
    explicit CDisplayResultsDlg(CFormContext& context, QWidget* parent = nullptr);

protected:
    /// Reads what the results at the project's `ResultsFilePath` offer.
    void LoadFields() override;
    /// The command View.
    bool OnOk() override;

private:
    void AddSections();
    void AddChoices();
    void AddSaveButton();
    QCheckBox* MakeBox(const char* name, const QString& caption);
    void OnChange();
    void ShowChoice();
    bool ChooseLists();
    bool ShowReport();

    CReportChoice m_choice;
    std::array<QCheckBox*, kReportSectionCount> m_sections = {};
    QCheckBox* m_selectAll = nullptr;
    QCheckBox* m_customize = nullptr;
    CPageCountLabel* m_pages = nullptr;
    bool m_saves = false; ///< while View is to keep the report under a name too
};
