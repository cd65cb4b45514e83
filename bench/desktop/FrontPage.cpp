#include "bench/desktop/FrontPage.h"

#include "gui/app/Desktop.h"

#include <QApplication>
#include <QMainWindow>
#include <QTimer>

int RunToFrontPage(int argc, char** argv)
{
    CDesktopHooks hooks;
    hooks.OnFrontPage = [](CDesktop&) { QApplication::quit(); };
    return RunDesktop(argc, argv, hooks);
}

int RunBareWindow(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QMainWindow window;
    window.showMaximized();
    QTimer::singleShot(0, &application, &QApplication::quit);
    return QApplication::exec();
}
