#include "gui/app/Commands.h"

#include "core/platform/CRecentFileList.h"
#include "gui/app/CMainFrame.h"
#include "gui/app/Forms.h"

#include <QCoreApplication>

namespace
{
using CHandler = void (CMainFrame::*)();

/// The table while it is written.
class CCommandTable
{
    Q_DECLARE_TR_FUNCTIONS(Commands)

public:
    void File();
    void Vessel();
    void Environment();
    void Calculate();
    void Output();
    void Help();

    std::vector<CFrameCommand> Rows;

private:
    void NewAndOpen();

    void BeginMenu(const QString& title)
    {
        m_menu = title;
        m_submenu.clear();
        m_line = false;
    }
    void BeginSubmenu(const QString& title) { m_submenu = title; }
    void EndSubmenu() { m_submenu.clear(); }
    void Line() { m_line = true; }

    CFrameCommand& Add(const QString& name, const QString& caption, const char* key, const QString& status,
                       std::function<void(CMainFrame&)> run)
    {
        Rows.push_back({name, m_menu, m_submenu, caption, key,
                        run ? status : tr("%1 (not available yet)").arg(status), std::move(run),
                        EEnabled::Always, m_line});
        m_line = false;
        return Rows.back();
    }
    CFrameCommand& Add(const char* name, const QString& caption, const char* key, const QString& status,
                       CHandler run)
    {
        return Add(QString::fromLatin1(name), caption, key, status,
                   [run](CMainFrame& frame) { (frame.*run)(); });
    }
    CFrameCommand& AddForm(const char* name, const QString& caption, const char* key, const QString& status,
                           const char* form)
    {
        std::function<void(CMainFrame&)> run;
        if (const CFormEntry* entry = FindForm(form))
        {
            run = [entry](CMainFrame& frame) { frame.OpenForm(*entry); };
        }
        return Add(QString::fromLatin1(name), caption, key, status, std::move(run));
    }

    QString m_menu;
    QString m_submenu;
    bool m_line = false;
};

void CCommandTable::File()
{
    BeginMenu(tr("&File"));
    NewAndOpen();
    Add("File.ImportOffsets", tr("&Import Offsets"), "Ctrl+I", tr("Import hull offsets from a text file"),
        &CMainFrame::ImportOffsets);
    Line();
    Add("File.SaveInput", tr("&Save Input"), "Ctrl+S", tr("Save the input"), &CMainFrame::SaveInput);
    Add("File.SaveInputAs", tr("Save Input &As..."), "Ctrl+A", tr("Save the input under another name"),
        &CMainFrame::SaveInputAs);
    Line();
    AddForm("File.Description", tr("&Description"), "Ctrl+D", tr("Enter description"),
            "CProjectDescriptionDlg");
    AddForm("File.Settings", tr("Se&ttings"), "Ctrl+T", tr("Specify system of units and water type"),
            "CUnitsDlg");
    Line();
    for (int k = 0; k < CRecentFileList::kEntries; ++k)
    {
        Add(RecentCommandName(k), {}, "", tr("Open this file"),
            [k](CMainFrame& frame) { frame.OpenRecentFile(k); });
    }
    Line();
    Add("File.Exit", tr("E&xit"), "Ctrl+Q", tr("Leave the program"), &CMainFrame::Exit);
}

void CCommandTable::NewAndOpen()
{
    BeginSubmenu(tr("&New"));
    Add("File.ClearBoth", tr("Clear &Both"), "Ctrl+B", tr("Clear the geometry and the environment"),
        &CMainFrame::ClearBoth);
    Add("File.ClearGeometry", tr("Clear &Geometry"), "Ctrl+G", tr("Clear the geometry"),
        &CMainFrame::ClearGeometry);
    Add("File.ClearEnvironment", tr("Clear &Environment"), "Ctrl+E", tr("Clear the environment"),
        &CMainFrame::ClearEnvironment);
    BeginSubmenu(tr("&Open"));
    Add("File.OpenBoth", tr("Open &Both"), "Alt+B", tr("Open the geometry and the environment of a file"),
        &CMainFrame::OpenBoth);
    Add("File.OpenGeometry", tr("Open &Geometry"), "Alt+G", tr("Open the geometry of a file"),
        &CMainFrame::OpenGeometry);
    Add("File.OpenEnvironment", tr("Open E&nvironment"), "Alt+N", tr("Open the environment of a file"),
        &CMainFrame::OpenEnvironment);
    EndSubmenu();
}

void CCommandTable::Vessel()
{
    BeginMenu(tr("&Vessel"));
    AddForm("Vessel.Particulars", tr("&Particulars"), "Alt+P", tr("Specify basic ship data"),
            "CShipParticularsDlg");
    AddForm("Vessel.HullGeometry", tr("&Hull Geometry"), "Ctrl+H", tr("Specify hull geometry"),
            "CHullGeometryDlg");
    BeginSubmenu(tr("&Appendages"));
    AddForm("Vessel.BilgeKeels", tr("&Bilge Keels"), "Shift+B", tr("Specify bilge keels"), "CBilgeKeelDlg");
    AddForm("Vessel.Skeg", tr("&Skeg"), "Shift+S", tr("Specify skeg"), "CSkegDlg");
    AddForm("Vessel.Rudder", tr("&Rudder"), "Shift+R", tr("Specify rudder and its control system"),
            "CRudderDlg");
    AddForm("Vessel.Foils", tr("&Prop Shaft Bracket / Stationary Foil"), "Shift+P",
            tr("Specify propeller shaft brackets and stationary foils"), "CStationaryFoilDlg");
    BeginSubmenu(tr("&Stabilizers"));
    AddForm("Vessel.RollFin", tr("Roll &Fin"), "Shift+F", tr("Specify roll fins and their control system"),
            "CRollFinDlg");
    AddForm("Vessel.AntiRollTank", tr("Anti-Roll &Tank"), "Shift+T", tr("Specify anti-rolling tank"),
            "CAntiRollTankDlg");
    EndSubmenu();
    AddForm("Vessel.MassDistribution", tr("&Mass Distribution"), "Ctrl+M", tr("Specify mass distribution"),
            "CMassDistributionDlg");
}

void CCommandTable::Environment()
{
    BeginMenu(tr("&Environment"));
    AddForm("Environment.WaveDefinition", tr("&Wave Definition"), "Shift+W", tr("Specify wave environment"),
            "CWaveDefinitionDlg");
    AddForm("Environment.OperationalConditions", tr("&Operational Conditions"), "Shift+O",
            tr("Specify operational conditions"), "COperationalConditionsDlg");
    AddForm("Environment.HydrodynamicModeling", tr("&Hydrodynamic Modeling"), "Shift+H",
            tr("Specify hydronamic parameters"), "CHydrodynamicModelingDlg"); // users know it so
    AddForm("Environment.RaoOutput", tr("&RAO and RMS Output"), "Shift+M",
            tr("Specify output of RAO and RMS values"), "CRaoOutputDlg");
    AddForm("Environment.SeakeepingPositions", tr("&Seakeeping Positions"), "Shift+K",
            tr("Specify seakeeping positions"), "CSeakeepingPositionsDlg")
        .BeginsGroup = true;
    AddForm("Environment.LoadPositions", tr("&Load Positions"), "Ctrl+L", tr("Specify load positions"),
            "CLoadPositionDlg");
}

void CCommandTable::Calculate()
{
    BeginMenu(tr("&Calculate"));
    Add("Calculate.DisplayBoth", tr("Display &Both"), "Shift+D",
        tr("Display a summary of the geometry and the environment"), &CMainFrame::DisplayBoth);
    Add("Calculate.DisplayGeometry", tr("Display &Geometry"), "Shift+G",
        tr("Display a summary of the geometry"), &CMainFrame::DisplayGeometry);
    Add("Calculate.DisplayEnvironment", tr("Display &Environment"), "Shift+E",
        tr("Display a summary of the environment"), &CMainFrame::DisplayEnvironment);
    Line();
    Add("Calculate.CheckOffsets", tr("&Check Offsets"), "Ctrl+O", tr("Check hull offsets"),
        &CMainFrame::CheckOffsets)
        .Enabled = EEnabled::WithOffsets;
    Line();
    Add("Calculate.Run", tr("&Run"), "Alt+R", tr("Run calculation engine"), &CMainFrame::Run);
}

void CCommandTable::Output()
{
    BeginMenu(tr("&Output"));
    AddForm("Output.Display", tr("&Display"), "Alt+D", tr("Display the results as a report"),
            "CDisplayResultsDlg")
        .Enabled = EEnabled::WithResults;
    Add("Output.Graph", tr("Gr&aph"), "Shift+A", tr("Show the results in the graph viewer"),
        &CMainFrame::Graph)
        .Enabled = EEnabled::WithResults;
    Line();
    Add("Output.SaveAs", tr("&Save As"), "Alt+S", tr("Keep the results under a name"),
        &CMainFrame::SaveResultsAs)
        .Enabled = EEnabled::WithResults;
    Add("Output.LoadResults", tr("&Load Results"), "Shift+L", tr("Load a results file"),
        &CMainFrame::LoadResults);
    Add("Output.LoadLast", tr("Load Last &Calculated"), "Shift+C",
        tr("Load the results of the last calculation"), &CMainFrame::LoadLastCalculated);
}

void CCommandTable::Help()
{
    BeginMenu(tr("&Help"));
    Add("Help.Contents", tr("&Contents"), "Alt+T", tr("Open the help at its contents"),
        &CMainFrame::HelpContents);
    // Its key of old, Shift+S, is the skeg's.
    Add("Help.Search", tr("&Search for Help on"), "", tr("Search the help"), &CMainFrame::HelpSearch);
    Line();
    AddForm("Help.About", tr("&About"), "", tr("Tell about this program"), "CAboutDlg");
}
} // namespace

std::vector<CFrameCommand> FrameCommands()
{
    CCommandTable table;
    table.File();
    table.Vessel();
    table.Environment();
    table.Calculate();
    table.Output();
    table.Help();
    return table.Rows;
}

QString RecentCommandName(int index)
{
    return QStringLiteral("File.Recent.%1").arg(index);
}
