// What a test does to a dialog that runs an event loop of its own.
#pragma once

#include <functional>

#include <QApplication>
#include <QDialog>
#include <QTimer>

/// The visible dialog of an object name; null if there is none.
template <class Dialog>
Dialog* ShownDialog(const char* name)
{
    for (QWidget* window : QApplication::topLevelWidgets())
    {
        auto* dialog = qobject_cast<Dialog*>(window);
        if (dialog != nullptr && dialog->isVisible() && dialog->objectName() == name)
        {
            return dialog;
        }
    }
    return nullptr;
}

/// Calls `act` with the next dialog of an object name, as soon as its event loop runs; closes what stays open
/// behind, or stands there instead, so that a test fails and doesn't hang.
template <class Dialog>
void AtDialog(const char* name, std::function<void(Dialog&)> act)
{
    QTimer::singleShot(0, qApp,
                       [name, act = std::move(act), before = QApplication::activeModalWidget()]
                       {
                           if (auto* dialog = ShownDialog<Dialog>(name))
                           {
                               act(*dialog);
                           }
                           auto* left = qobject_cast<QDialog*>(QApplication::activeModalWidget());
                           if (left != nullptr && left != before)
                           {
                               left->reject();
                           }
                       });
}
