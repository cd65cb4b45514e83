// The main window with a form in front of it, as a desktop shows them: with title bars.
#pragma once

#include <QPixmap>

class QWidget;

/// Both are shown for the time of it.
QPixmap ProgramPicture(QWidget& frame, QWidget& form);
