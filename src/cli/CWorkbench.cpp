#include "cli/CWorkbench.h"

#include "core/platform/FileErrors.h"
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
    return App.OpenRecentFile(path);
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
        m_messages.PlainLine(ShortSaveText(App.Project.InputFilePath));
    }
    return saved == ESaved::Whole;
}

bool CWorkbench::Print(const std::string& text)
{
    return PrintText(text, m_output, m_messages);
}
