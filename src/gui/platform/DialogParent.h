// The window that a message or a file dialog opens over.
#pragma once

class QWidget;

/// The form in front, else the window in use; null where there is none.
QWidget* DialogParent();
