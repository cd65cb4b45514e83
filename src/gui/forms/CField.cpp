#include "gui/forms/CField.h"

#include <QWidget>

void CField::SetEnabled(bool enabled) const
{
    for (QWidget* widget : Widgets())
    {
        widget->setEnabled(enabled);
    }
}
