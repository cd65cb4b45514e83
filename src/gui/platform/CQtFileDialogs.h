// The desktop's dialogs for a file to open and for one to save.
#pragma once

#include "core/platform/CPlatform.h"

/// A dialog begins in the folder of the initial name, if it has one that is there, else in the current
/// folder; it leaves the current folder as it is.
class CQtFileDialogs : public CFileDialogs
{
public:
    /// Of a file that is there.
    std::optional<std::string> AskOpen(const CFileRequest& request) override;
    /// A name without an extension gets the default one.
    std::optional<std::string> AskSave(const CFileRequest& request) override;
};
