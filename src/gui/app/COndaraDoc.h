// Saves the input of the project. It holds no data of its own.
#pragma once

#include "core/app/COndaraApp.h"

class COndaraDoc
{
public:
    explicit COndaraDoc(COndaraApp& app) : m_app(app) {}

    /// Saves under the name in hand, whose extension becomes .od7; asks for one where there is none.
    void SaveInput();
    void SaveInputAs();

private:
    void Tell(std::optional<ESaved> saved) const;

    COndaraApp& m_app;
};
