// Opens the forms of the program on the second sample and its results, without a screen.
#pragma once

#include "bench/desktop/CScratchFolder.h"
#include "core/app/COndaraApp.h"
#include "gui/app/Forms.h"
#include "tests/support/CRecorder.h"

#include <string>

class CFormBench
{
public:
    /// Calculates with the programs of a folder, so that there are results to show.
    explicit CFormBench(const std::string& programs);

    /// Makes a form, shows it and paints it; all of this is undone at the end. Stops the program if the
    /// form says something: what is measured would be a failure.
    void Open(const CFormEntry& form);
    /// The same with a dialog of as many plain controls, all in one column.
    static void OpenPlain(int controls);
    /// How many controls a form has.
    int ControlCount(const CFormEntry& form);

private:
    CScratchFolder m_folder;
    CRecorder m_recorder;
    COndaraApp m_app{m_recorder.Platform};
    CFormContext m_context{m_app.Project, m_app, m_app.Platform};
};
