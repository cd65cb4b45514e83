// Message boxes, the bell and the wait cursor of the desktop.
#pragma once

#include "core/platform/CPlatform.h"

class CQtMessages : public CMessages
{
public:
    /// Modal over the form in front. Texts are plain: nothing in them is taken for markup.
    void MessageBox(const std::string& text, const std::string& title, EIcon icon) override;
    /// Escape and the window's own button are No.
    bool AskYesNo(const std::string& text, const std::string& title, EIcon icon) override;
    void MessageBeep() override;
    /// A state, not a count: one Arrow ends any number of Waits. While a message stands, the arrow is shown.
    void SetCursor(ECursor cursor) override;

private:
    int Ask(const std::string& text, const std::string& title, EIcon icon, int buttons);

    bool m_waiting = false;
};
