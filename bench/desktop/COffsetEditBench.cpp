#include "bench/desktop/COffsetEditBench.h"

#include "core/project/CInputFile.h"
#include "gui/forms/CGrid.h"
#include "gui/hull/COffsetEditorDlg.h"

#include <QApplication>
#include <QTabWidget>

namespace
{
/// Another number at each edit, in another row.
void EditCell(QAbstractItemModel& cells, int edit)
{
    cells.setData(cells.index(edit % (kMaxOffsets - 1), 1), QString::number(edit % 7) + ".5");
    QApplication::processEvents();
}
} // namespace

COffsetEditBench::COffsetEditBench() : m_plain(kMaxOffsets, 2)
{
    CInputFile(m_project, m_session, m_recorder.Platform).NewProject();
    m_project.NST.Set(kMaxStations);
    m_project.WorkingStationCount = kMaxStations;
    m_project.WorkingDraft = 5;
    for (int slot = 0; slot < kMaxStations * kMaxOffsets; ++slot)
    {
        const auto row = static_cast<float>(slot % kMaxOffsets);
        m_project.YAUSER.Set(slot, row / 5);
        m_project.ZAUSERBL.Set(slot, row * row / 200);
    }
    m_editor = std::make_unique<COffsetEditorDlg>(m_context);
    m_grid = m_editor->findChild<CGrid*>("table");
    m_editor->show();
    m_plain.show();
    QApplication::processEvents();
}

COffsetEditBench::~COffsetEditBench() = default;

void COffsetEditBench::ShowBodyPlan(bool shown)
{
    m_editor->findChild<QTabWidget*>("pictures")->setCurrentIndex(shown ? 1 : 0);
    QApplication::processEvents();
}

void COffsetEditBench::Edit()
{
    EditCell(m_grid->Cells(), m_edits++);
}

void COffsetEditBench::EditPlain()
{
    EditCell(*m_plain.model(), m_edits++);
}
