// What a form works on and through. The frame hands it to each form that it opens.
#pragma once

#include "core/platform/CPlatform.h"
#include "core/project/CProjectData.h"
#include "core/project/CProjectSession.h"

#include <functional>

struct CFormContext
{
    CProjectData& Project;
    CProjectSession& Session;
    CPlatform& Platform;
    /// Opens the help at a topic; nothing where there is no help.
    std::function<void(int topic)> ShowHelp = [](int) {};
};
