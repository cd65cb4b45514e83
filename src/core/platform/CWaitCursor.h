// A wait cursor, and an arrow again on every way out.
#pragma once

#include "core/platform/CPlatform.h"

class CWaitCursor
{
public:
    explicit CWaitCursor(CMessages& messages) : m_messages(messages) { m_messages.SetCursor(ECursor::Wait); }
    ~CWaitCursor() { m_messages.SetCursor(ECursor::Arrow); }
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;

private:
    CMessages& m_messages;
};
