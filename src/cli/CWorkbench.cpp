#include "cli/CWorkbench.h"

#include "core/platform/Files.h"

#include <ostream>

CWorkbench::CWorkbench(const CProgramOptions& options, std::ostream& output, std::ostream& errors)
    : m_output(output),
      m_messages(errors, options.Yes),
      m_profile(FullPath(options.Profile)),
      App({m_messages, Dialogs, m_profile})
{
    App.Start(options.BaseDir);
}

EOpened CWorkbench::Open(const std::string& path)
{
    const EOpened opened = App.InputFile().OpenPath(path);
    if (opened != EOpened::Whole)
    {
        App.RecentFiles.Remove(path);
    }
    return opened;
}

bool CWorkbench::SaveAs(const std::string& path)
{
    Dialogs.Answer(path);
    const auto saved = App.InputFile().SaveInputAs();
    if (saved == ESaved::Short)
    {
        const std::string& file = App.Project.InputFilePath;
        std::string text = file + " is cut short, its disk has no room for all of it";
        for (const std::string& kept : KeptContents(file))
        {
            text += "; last content in " + kept;
        }
        m_messages.PlainLine(text);
    }
    return saved == ESaved::Whole;
}

bool CWorkbench::Print(const std::string& text)
{
    return PrintText(text, m_output, m_messages);
}
