#include "core/results/ResultsErrors.h"

void ShowResultsNotOpened(CMessages& messages)
{
    messages.MessageBeep();
    messages.MessageBox("The file could not be read.", "Error Saving File", EIcon::Stop);
}

void ShowResultsDamaged(CMessages& messages)
{
    messages.MessageBox("The file could not be read", "Error reading file", EIcon::Stop);
}
