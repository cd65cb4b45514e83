// All forms of the program, by name: what the commands of the frame open, and what looks at every form.
#pragma once

#include "gui/forms/CFormContext.h"

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include <QDialog>

struct CFormEntry
{
    const char* Name; ///< of its class
    bool NeedsHull;   ///< it doesn't open while the hull has no stations
    std::function<std::unique_ptr<QDialog>(CFormContext& context, QWidget* parent)> Make;
};

const std::vector<CFormEntry>& FormList();

/// The form of a class; null if there is none of that name.
const CFormEntry* FindForm(std::string_view name);
