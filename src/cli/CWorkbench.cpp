#include "cli/CWorkbench.h"

#include "core/platform/Files.h"

#include <iostream>

#include <unistd.h>

CWorkbench::CWorkbench(const CProgramOptions& options, std::ostream& output, std::ostream& errors)
    : m_output(output),
      m_messages(errors, options.Yes),
      m_profile(FullPath(options.Profile)),
      m_programs(m_messages),
      Dialogs(m_messages),
      Progress(errors, &errors == &std::cerr && ::isatty(STDERR_FILENO) == 1),
      App({m_messages, Dialogs, m_profile, m_programs})
{
    m_messages.BeforeLine = [this] { Progress.End(); };
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

bool CWorkbench::Load(const CGivenFile& file)
{
    const bool loaded = Load(file.Path);
    App.Project.ActiveGeometryFile = file.Given;
    App.Project.ActiveEnvironmentFile = file.Given;
    return loaded;
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
