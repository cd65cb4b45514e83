#include "core/platform/ShowDocument.h"

void ShowDocument(const std::string& path, CPlatform& platform)
{
    if (platform.Programs.ShellOpen(path) != EStart::Started)
    {
        platform.Messages.MessageBox("The report is ready, but no program could be started to show it.\n"
                                     "Please open this file in a browser:\n" +
                                         path,
                                     "Open Report", EIcon::Information);
    }
}
