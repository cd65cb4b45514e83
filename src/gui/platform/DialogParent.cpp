#include "gui/platform/DialogParent.h"

#include <QApplication>

QWidget* DialogParent()
{
    QWidget* form = QApplication::activeModalWidget();
    return form != nullptr ? form : QApplication::activeWindow();
}
