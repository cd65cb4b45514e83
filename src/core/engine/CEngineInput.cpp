#include "core/engine/CEngineInput.h"

#include <algorithm>

CEngineInput::CEngineInput(const CProjectData& project, const std::string& baseDir, CMessages& messages,
                           float inSystem)
    : Project(project),
      m_baseDir(baseDir),
      m_messages(messages),
      m_line(CEngineUnits(inSystem))
{
}

void CEngineInput::End()
{
    if (m_ok)
    {
        EndAlways();
    }
}

void CEngineInput::EndAlways()
{
    m_text += m_line.Text();
    m_text += '\n';
}

void CEngineInput::Lines(std::initializer_list<const char*> lines)
{
    for (const char* line : lines)
    {
        Line().Word(line);
        End();
    }
}

bool CEngineInput::Test(bool complete, const char* message)
{
    if (!complete)
    {
        m_messages.MessageBox(message, "Execution Cannot Continue", EIcon::Stop);
        m_ok = false;
    }
    return complete;
}

bool Is(const CParamArray& flag, int value, int index)
{
    return flag.Value(index) == static_cast<float>(value);
}

bool AllGiven(std::initializer_list<const CParamArray*> fields, int index)
{
    return std::all_of(fields.begin(), fields.end(),
                       [index](const CParamArray* field) { return IsGiven(field->Value(index)); });
}
