#include "core/platform/FileErrors.h"

void ShowReadError(CMessages& messages)
{
    messages.MessageBeep();
    messages.MessageBox("The file could not be read.", "Error Reading File", EIcon::Stop);
}

void ShowSaveError(CMessages& messages)
{
    messages.MessageBeep();
    messages.MessageBox("The file could not be saved.", "Error Saving File", EIcon::Stop);
}
