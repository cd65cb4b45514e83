// Edits offsets of a hull of 21 stations with 60 points each, without a screen, until all is painted.
#pragma once

#include "core/project/CProjectData.h"
#include "core/project/CProjectSession.h"
#include "gui/forms/CFormContext.h"
#include "tests/support/CRecorder.h"

#include <memory>

#include <QTableWidget>

class CGrid;
class COffsetEditorDlg;

class COffsetEditBench
{
public:
    COffsetEditBench();
    ~COffsetEditBench();

    void ShowBodyPlan(bool shown);
    /// Ends the edit of one cell in the offset editor.
    void Edit();
    /// The same in a table of the toolkit's own.
    void EditPlain();

private:
    CRecorder m_recorder;
    CProjectSession m_session{m_recorder};
    CProjectData m_project;
    CFormContext m_context{m_project, m_session, m_recorder.Platform};
    std::unique_ptr<COffsetEditorDlg> m_editor;
    CGrid* m_grid;
    QTableWidget m_plain;
    int m_edits = 0;
};
