// An engine input while it is put together: its text, the line in hand, and whether a test of the project has
// failed. A failed test shows its message; from then on no line goes into the text, while the tests that
// don't depend on it still run and tell what else is missing.
#pragma once

#include "core/engine/CEngineLine.h"
#include "core/platform/CPlatform.h"
#include "core/project/CProjectData.h"

#include <initializer_list>
#include <string>

class CEngineInput
{
public:
    /// Values are converted to the units of `inSystem`, a value of INSYS.
    CEngineInput(const CProjectData& project, const std::string& baseDir, CMessages& messages,
                 float inSystem);

    /// The line in hand, emptied.
    CEngineLine& Line() { return m_line.Restart(); }
    /// Puts the line in hand into the text, if no test has failed.
    void End();
    /// Puts the line in hand into the text, whether a test has failed or not.
    void EndAlways();
    /// Lines that are the same for every project.
    void Lines(std::initializer_list<const char*> lines);

    /// Shows the message and fails unless `complete`; gives `complete` back.
    bool Test(bool complete, const char* message);
    /// Fails without a word.
    void Fail() { m_ok = false; }

    bool Ok() const { return m_ok; }
    const std::string& Text() const { return m_text; }
    const std::string& BaseDir() const { return m_baseDir; }
    CMessages& Messages() const { return m_messages; }

    const CProjectData& Project;

private:
    const std::string& m_baseDir;
    CMessages& m_messages;
    CEngineLine m_line;
    std::string m_text;
    bool m_ok = true;
};

/// Exact equality of a flag with one of its values. The choice of records looks at the number, the words at
/// its text.
bool Is(const CParamArray& flag, int value, int index = 0);
/// False if one of the fields holds -1 in that slot.
bool AllGiven(std::initializer_list<const CParamArray*> fields, int index = 0);
