// The main window: menus whose commands open the forms or work on the project, the front page, the status
// bar, and the timers.
#pragma once

#include "core/app/COndaraApp.h"
#include "core/engine/CRunController.h"
#include "core/results/CResultsCommands.h"
#include "core/results/report/InputSummary.h"
#include "gui/app/COndaraDoc.h"
#include "gui/app/COndaraView.h"
#include "gui/app/CRunningDlg.h"
#include "gui/app/CStatusPanes.h"
#include "gui/app/Commands.h"
#include "gui/app/Forms.h"

#include <memory>
#include <optional>
#include <vector>

#include <QMainWindow>
#include <QTimer>

class QAction;

constexpr int kClockTimerPeriod = 1000; ///< milliseconds

class CMainFrame : public QMainWindow, private CRunOwner
{
    Q_OBJECT

public:
    /// Loads the settings of the program.
    explicit CMainFrame(COndaraApp& app, QWidget* parent = nullptr);
    ~CMainFrame() override;

    /// Shows the window where and as large as it was left; maximized at a first start.
    void ShowAsLeft();
    /// Brings captions and enablement of the commands up to date.
    void UpdateCommands();

    COndaraView& View() { return *m_view; }
    CFormContext& FormContext() { return m_context; }

    // The commands.
    void ClearBoth();
    void ClearGeometry();
    void ClearEnvironment();
    void OpenBoth();
    void OpenGeometry();
    void OpenEnvironment();
    void ImportOffsets();
    void SaveInput();
    void SaveInputAs();
    void OpenRecentFile(int index);
    void Exit();
    /// Shows a form until the user closes it. One that needs the hull doesn't open without stations.
    void OpenForm(const CFormEntry& form);
    void DisplayBoth();
    void DisplayGeometry();
    void DisplayEnvironment();
    void CheckOffsets();
    void Run();
    void Graph();
    void SaveResultsAs();
    void LoadResults();
    void LoadLastCalculated();
    void HelpContents();
    void HelpSearch();

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    bool SetTimer(int timer, int milliseconds) override;
    bool KillTimer(int timer) override;
    void ShowRunningWindow() override;
    void DestroyRunningWindow() override;

    void BuildMenus();
    QAction* BuildAction(const CFrameCommand& command);
    void StartClock();
    void UpdateTitle();
    void ShowHelp(int topic);
    bool AskToClear(const char* question);
    void ClearHalf(EHalf half, const char* question);
    void ShowSummary(ESummaryScope scope);
    bool CanBeGiven(EEnabled enabled) const;
    bool WaitForEngine();
    CRunController& RunController();
    CResultsCommands ResultsCommands();
    void StopRun();

    COndaraApp& m_app;
    COndaraDoc m_doc;
    CFormContext m_context;
    std::vector<std::pair<CFrameCommand, QAction*>> m_commands;
    COndaraView* m_view;
    CStatusPanes* m_status;
    QTimer m_clock{this};
    QTimer m_runTimer{this};
    std::optional<CRunController> m_run; ///< from the first use on; the engine's folder is known then
    std::unique_ptr<CRunningDlg> m_running;
};
