#include "cli/CScriptedDialogs.h"

#include <utility>

std::optional<std::string> CScriptedDialogs::AskOpen(const CFileRequest&)
{
    if (m_answers.empty())
    {
        return std::nullopt;
    }
    std::string answer = std::move(m_answers.front());
    m_answers.pop_front();
    return answer;
}

std::optional<std::string> CScriptedDialogs::AskSave(const CFileRequest& request)
{
    if (m_answers.empty())
    {
        m_messages.PlainLine("another name than " + request.InitialName +
                             " can't be asked for here; what was to be saved is dropped");
    }
    return AskOpen(request);
}
