#include "core/platform/FileErrors.h"

#include "core/platform/Files.h"

namespace
{
constexpr const char* kSaveErrorTitle = "Error Saving File";
} // namespace

void ShowReadError(CMessages& messages)
{
    messages.MessageBeep();
    messages.MessageBox("The file could not be read.", "Error Reading File", EIcon::Stop);
}

void ShowSaveError(CMessages& messages)
{
    messages.MessageBeep();
    messages.MessageBox("The file could not be saved.", kSaveErrorTitle, EIcon::Stop);
}

void ShowShortSave(const std::string& path, CMessages& messages)
{
    messages.MessageBeep();
    messages.MessageBox(ShortSaveText(path), kSaveErrorTitle, EIcon::Stop);
}

std::string ShortSaveText(const std::string& path)
{
    std::string text = path + " is cut short, its disk has no room for all of it";
    for (const std::string& kept : KeptContents(path))
    {
        text += "; last content in " + kept;
    }
    return text;
}
