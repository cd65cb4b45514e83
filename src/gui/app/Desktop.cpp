#include "gui/app/Desktop.h"

#include "core/platform/CInstanceLock.h"
#include "core/platform/Files.h"
#include "gui/app/ProgramIcon.h"

#include <algorithm>
#include <clocale>
#include <cstdio>
#include <optional>
#include <string_view>

#include <QApplication>
#include <QScreen>
#include <QStyle>

namespace
{
constexpr const char* kVersion = "ondara " ONDARA_VERSION "\n";
constexpr const char* kUsage =
    "Usage: ondara [OPTIONS]\n\n"
    "Ship motions in waves. The engine and its files stand in the current folder.\n\n"
    "Options:\n"
    "  -h,--help   Print this help and end\n"
    "  --version   Print the version and end\n\n"
    "ondara-cli does the same work without a screen.\n";

/// What the program says in place of showing its window. Other words are the toolkit's, or nobody's.
std::optional<const char*> Answer(int argc, char** argv)
{
    const auto isGiven = [&](std::string_view option)
    { return std::find(argv + std::min(argc, 1), argv + argc, option) != argv + argc; };
    if (isGiven("--help") || isGiven("-h"))
    {
        return kUsage;
    }
    return isGiven("--version") ? std::optional(kVersion) : std::nullopt;
}
} // namespace

void StartFrame(COndaraApp& app, CMainFrame& frame, const std::string& folder)
{
    frame.ShowAsLeft();
    const QSize screen = frame.screen()->size();
    app.SetScreen(screen.width(), screen.height(),
                  frame.style()->pixelMetric(QStyle::PM_IconViewIconSize, nullptr, &frame));
    app.Start(folder);
    app.OfferSamples();
    frame.UpdateCommands();
}

int RunDesktop(int argc, char** argv, const CDesktopHooks& hooks)
{
    if (const auto answer = Answer(argc, argv))
    {
        std::fputs(*answer, stdout);
        return 0;
    }
    const CInstanceLock instance;
    if (!instance.IsFirst())
    {
        return 0;
    }
    const QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C"); // the application has taken the user's
    QApplication::setOrganizationName("Larkfield Marine Limited");
    QApplication::setApplicationName("Ondara");
    QApplication::setApplicationVersion(ONDARA_VERSION);
    QApplication::setDesktopFileName("ondara"); // its entry in the desktop's menu
    QApplication::setWindowIcon(ProgramIcon());
    CDesktop desktop;
    if (hooks.OnFrontPage)
    {
        QObject::connect(
            &desktop.Frame.View(), &COndaraView::Painted, &desktop.Frame, [&] { hooks.OnFrontPage(desktop); },
            static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
    }
    StartFrame(desktop.App, desktop.Frame, CurrentFolder());
    return QApplication::exec();
}
