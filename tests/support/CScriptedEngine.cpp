#include "tests/support/CScriptedEngine.h"

#include "core/platform/Files.h"
#include "core/platform/NumberText.h"

#include <filesystem>
#include <stdexcept>

CScriptedEngine::CScriptedEngine(const std::string& baseDir) : m_folder(baseDir)
{
    const std::string program = JoinPath(baseDir, "OE7");
    std::filesystem::remove(program);
    std::filesystem::create_symlink(ONDARA_SCRIPTED_ENGINE, program);
    std::filesystem::remove(JoinPath(baseDir, kScriptedEngineDescription));
}

CScriptedEngine& CScriptedEngine::Sleep(int milliseconds)
{
    return Add("sleep " + IntegerText(milliseconds));
}

CScriptedEngine& CScriptedEngine::Add(const std::string& line)
{
    m_description += line + "\n";
    if (!WriteFile(JoinPath(m_folder, kScriptedEngineDescription), m_description))
    {
        throw std::runtime_error("the scripted engine's description can't be written to " + m_folder);
    }
    return *this;
}
