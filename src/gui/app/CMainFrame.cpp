#include "gui/app/CMainFrame.h"

#include "core/platform/LocalTime.h"
#include "gui/platform/QtText.h"

#include <QAction>
#include <QCloseEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QProxyStyle>
#include <QStatusTipEvent>

namespace
{
constexpr const char* kWindowSection = "Window";
constexpr const char* kGeometryEntry = "Geometry";
constexpr int kRecentWidth = 90; ///< average characters of a path in the menu

/// The first file of this machine among what is dropped; empty if there is none.
QString DroppedFile(const QMimeData& data)
{
    const auto urls = data.urls();
    for (const QUrl& url : urls)
    {
        if (url.isLocalFile())
        {
            return url.toLocalFile();
        }
    }
    return {};
}

/// The file stays where it is, also where its program offers to move it.
void TakeCopy(QDropEvent& event)
{
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

/// Lets the user look at disabled commands too: the status bar tells why they are.
class CMenuStyle : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override
    {
        return hint == SH_Menu_AllowActiveAndDisabled ? 1
                                                      : QProxyStyle::styleHint(hint, option, widget, data);
    }
};
} // namespace

CMainFrame::CMainFrame(COndaraApp& app, QWidget* parent)
    : QMainWindow(parent),
      m_app(app),
      m_doc(app),
      m_context{app.Project, app, app.Platform, [this](int topic) { ShowHelp(topic); }},
      m_view(new COndaraView(app.Project, this)),
      m_status(new CStatusPanes(this))
{
    setObjectName("CMainFrame");
    m_app.LoadSettings();
    UpdateTitle();
    setCentralWidget(m_view);
    setStatusBar(m_status);
    setAcceptDrops(true);
    BuildMenus();
    m_app.RepaintView = [this] { m_view->RepaintFiles(); };
    m_runTimer.setObjectName("RunTimer");
    connect(&m_runTimer, &QTimer::timeout, this,
            [this]
            {
                RunController().Tick(kRunTimer);
                UpdateCommands();
            });
    StartClock();
}

CMainFrame::~CMainFrame()
{
    m_app.RepaintView = [] {};
    StopRun();
}

void CMainFrame::UpdateTitle()
{
    setWindowTitle(tr("Ondara  v3.5.0"));
}

void CMainFrame::StartClock()
{
    const auto showTime = [this] { m_status->ShowTime(LocalTime(std::time(nullptr))); };
    connect(&m_clock, &QTimer::timeout, this, showTime);
    m_clock.setObjectName("ClockTimer");
    m_clock.start(kClockTimerPeriod);
    if (!m_clock.isActive())
    {
        m_app.Platform.Messages.MessageBox("Unable to obtain timer", "IDT_TIMER_0", EIcon::None);
    }
    showTime();
}

void CMainFrame::BuildMenus()
{
    auto* style = new CMenuStyle;
    style->setParent(this);
    QMenu* menu = nullptr;
    QMenu* submenu = nullptr;
    for (const CFrameCommand& command : FrameCommands())
    {
        if (menu == nullptr || menu->title() != command.Menu)
        {
            menu = menuBar()->addMenu(command.Menu);
            menu->setStyle(style);
            connect(menu, &QMenu::aboutToShow, this, &CMainFrame::UpdateCommands);
            submenu = nullptr;
        }
        if (command.BeginsGroup)
        {
            menu->addSeparator();
        }
        if (command.Submenu.isEmpty())
        {
            submenu = nullptr;
        }
        else if (submenu == nullptr || submenu->title() != command.Submenu)
        {
            submenu = menu->addMenu(command.Submenu);
            submenu->setStyle(style);
        }
        (submenu != nullptr ? submenu : menu)->addAction(BuildAction(command));
    }
    UpdateCommands();
}

QAction* CMainFrame::BuildAction(const CFrameCommand& command)
{
    auto* action = new QAction(command.Caption, this);
    action->setObjectName(command.Name);
    action->setShortcut(QKeySequence(QString::fromLatin1(command.Key)));
    action->setStatusTip(command.Status);
    action->setMenuRole(QAction::NoRole);
    connect(action, &QAction::triggered, this,
            [this, run = command.Run]
            {
                run(*this);
                UpdateCommands();
            });
    m_commands.emplace_back(command, action);
    return action;
}

void CMainFrame::UpdateCommands()
{
    for (const auto& [command, action] : m_commands)
    {
        action->setEnabled(command.Run && CanBeGiven(command.Enabled));
    }
    const auto paths = m_app.RecentFiles.Paths();
    for (int k = 0; k < CRecentFileList::kEntries; ++k)
    {
        const QString path = ScreenText(paths[static_cast<std::size_t>(k)]);
        auto* action = findChild<QAction*>(RecentCommandName(k));
        action->setVisible(!path.isEmpty());
        const QString shown =
            fontMetrics().elidedText(path, Qt::ElideMiddle, kRecentWidth * fontMetrics().averageCharWidth());
        action->setText(QStringLiteral("&%1 ").arg(k + 1) + QString(shown).replace("&", "&&"));
        action->setStatusTip(tr("Open %1").arg(path));
    }
}

bool CMainFrame::CanBeGiven(EEnabled enabled) const
{
    switch (enabled)
    {
    case EEnabled::WithResults:
        return m_app.Project.ResultsLoaded == 1;
    case EEnabled::WithOffsets:
        // The checks may need the engine's folder for themselves.
        return m_app.Project.HULLDEF.Integer() == 0 && !(m_run && m_run->IsRunning());
    case EEnabled::Always:
        break;
    }
    return true;
}

void CMainFrame::ShowAsLeft()
{
    const std::string left = m_app.Platform.Profile.GetProfileString(kWindowSection, kGeometryEntry);
    if (!left.empty() && restoreGeometry(QByteArray::fromBase64(QByteArray::fromStdString(left))))
    {
        show();
    }
    else
    {
        showMaximized();
    }
}

bool CMainFrame::event(QEvent* event)
{
    if (event->type() == QEvent::StatusTip)
    {
        m_status->ShowStatus(static_cast<QStatusTipEvent*>(event)->tip());
        return true;
    }
    return QMainWindow::event(event);
}

void CMainFrame::closeEvent(QCloseEvent* event)
{
    StopRun();
    m_app.Platform.Profile.WriteProfileString(kWindowSection, kGeometryEntry,
                                              saveGeometry().toBase64().toStdString());
    QMainWindow::closeEvent(event);
}

void CMainFrame::dragEnterEvent(QDragEnterEvent* event)
{
    if (!DroppedFile(*event->mimeData()).isEmpty())
    {
        TakeCopy(*event);
    }
}

void CMainFrame::dropEvent(QDropEvent* event)
{
    const QString file = DroppedFile(*event->mimeData());
    if (!file.isEmpty())
    {
        TakeCopy(*event);
        // Later, so that a message doesn't keep the program waiting that the file comes from.
        QTimer::singleShot(0, this,
                           [this, path = PlainText(file)]
                           {
                               m_app.OpenRecentFile(path);
                               UpdateCommands();
                           });
    }
}
