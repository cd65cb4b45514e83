// The menus: names, captions, keys, status texts, and what can be given when.
#include "gui/app/Commands.h"

#include "core/platform/CRecentFileList.h"
#include "gui/platform/QtText.h"
#include "tests/gui/app/CFrameTest.h"

#include <map>
#include <set>

#include <gmock/gmock.h>

#include <QMenu>
#include <QMenuBar>

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace
{
std::string WithoutMnemonic(QString caption)
{
    return PlainText(caption.remove('&'));
}

/// "NAME CAPTION" of the commands and "CAPTION >" of the menus in a menu.
std::vector<std::string> Entries(const QMenu& menu)
{
    std::vector<std::string> entries;
    const auto actions = menu.actions();
    for (const QAction* action : actions)
    {
        if (action->menu() != nullptr)
        {
            entries.push_back(WithoutMnemonic(action->text()) + " >");
        }
        else if (!action->isSeparator() && action->isVisible())
        {
            entries.push_back(PlainText(action->objectName()) + " " + WithoutMnemonic(action->text()));
        }
    }
    return entries;
}

std::vector<std::string> MenuEntries(CFrameTest& test, const QString& title)
{
    const auto menus = test.Frame.findChildren<QMenu*>();
    for (const QMenu* menu : menus)
    {
        if (menu->title() == title)
        {
            return Entries(*menu);
        }
    }
    return {"no such menu"};
}

std::string Key(CFrameTest& test, const char* command)
{
    return PlainText(test.Action(command).shortcut().toString(QKeySequence::PortableText));
}

/// The letter that is marked in a caption; 0 for none.
QChar Mnemonic(const QString& caption)
{
    const auto mark = caption.indexOf('&');
    return mark < 0 ? QChar() : caption.at(mark + 1).toUpper();
}
} // namespace

TEST(Commands, StandInTheirMenus)
{
    CFrameTest test;
    std::vector<std::string> menus;
    const auto bar = test.Frame.menuBar()->actions();
    for (const QAction* action : bar)
    {
        menus.push_back(WithoutMnemonic(action->text()));
    }
    EXPECT_THAT(menus, ElementsAre("File", "Vessel", "Environment", "Calculate", "Output", "Help"));
    EXPECT_THAT(MenuEntries(test, "&New"),
                ElementsAre("File.ClearBoth Clear Both", "File.ClearGeometry Clear Geometry",
                            "File.ClearEnvironment Clear Environment"));
    EXPECT_THAT(MenuEntries(test, "&Open"),
                ElementsAre("File.OpenBoth Open Both", "File.OpenGeometry Open Geometry",
                            "File.OpenEnvironment Open Environment"));
    EXPECT_THAT(MenuEntries(test, "&File"),
                ElementsAre("New >", "Open >", "File.ImportOffsets Import Offsets",
                            "File.SaveInput Save Input", "File.SaveInputAs Save Input As...",
                            "File.Description Description", "File.Settings Settings",
                            "File.Recent.0 1 " + test.Folder.File("Data/Sample01.od7"),
                            "File.Recent.1 2 " + test.Folder.File("Data/Sample02.od7"), "File.Exit Exit"));
    EXPECT_THAT(MenuEntries(test, "&Vessel"),
                ElementsAre("Vessel.Particulars Particulars", "Vessel.HullGeometry Hull Geometry",
                            "Appendages >", "Stabilizers >", "Vessel.MassDistribution Mass Distribution"));
    EXPECT_THAT(MenuEntries(test, "&Appendages"),
                ElementsAre("Vessel.BilgeKeels Bilge Keels", "Vessel.Skeg Skeg", "Vessel.Rudder Rudder",
                            "Vessel.Foils Prop Shaft Bracket / Stationary Foil"));
    EXPECT_THAT(MenuEntries(test, "&Stabilizers"),
                ElementsAre("Vessel.RollFin Roll Fin", "Vessel.AntiRollTank Anti-Roll Tank"));
    EXPECT_THAT(MenuEntries(test, "&Environment"),
                ElementsAre("Environment.WaveDefinition Wave Definition",
                            "Environment.OperationalConditions Operational Conditions",
                            "Environment.HydrodynamicModeling Hydrodynamic Modeling",
                            "Environment.RaoOutput RAO and RMS Output",
                            "Environment.SeakeepingPositions Seakeeping Positions",
                            "Environment.LoadPositions Load Positions"));
    EXPECT_THAT(MenuEntries(test, "&Calculate"),
                ElementsAre("Calculate.DisplayBoth Display Both",
                            "Calculate.DisplayGeometry Display Geometry",
                            "Calculate.DisplayEnvironment Display Environment",
                            "Calculate.CheckOffsets Check Offsets", "Calculate.Run Run"));
    EXPECT_THAT(MenuEntries(test, "&Output"),
                ElementsAre("Output.Display Display", "Output.Graph Graph", "Output.SaveAs Save As",
                            "Output.LoadResults Load Results", "Output.LoadLast Load Last Calculated"));
    EXPECT_THAT(MenuEntries(test, "&Help"),
                ElementsAre("Help.Contents Contents", "Help.Search Search for Help on", "Help.About About"));
}

TEST(Commands, HaveTheirKeys)
{
    CFrameTest test;
    const std::map<const char*, std::string> keys = {{"File.ClearBoth", "Ctrl+B"},
                                                     {"File.ClearGeometry", "Ctrl+G"},
                                                     {"File.ClearEnvironment", "Ctrl+E"},
                                                     {"File.OpenBoth", "Alt+B"},
                                                     {"File.OpenGeometry", "Alt+G"},
                                                     {"File.OpenEnvironment", "Alt+N"},
                                                     {"File.ImportOffsets", "Ctrl+I"},
                                                     {"File.SaveInput", "Ctrl+S"},
                                                     {"File.SaveInputAs", "Ctrl+A"},
                                                     {"File.Description", "Ctrl+D"},
                                                     {"File.Settings", "Ctrl+T"},
                                                     {"File.Recent.0", ""},
                                                     {"Vessel.Particulars", "Alt+P"},
                                                     {"Vessel.HullGeometry", "Ctrl+H"},
                                                     {"Vessel.BilgeKeels", "Shift+B"},
                                                     {"Vessel.Skeg", "Shift+S"},
                                                     {"Vessel.Rudder", "Shift+R"},
                                                     {"Vessel.Foils", "Shift+P"},
                                                     {"Vessel.RollFin", "Shift+F"},
                                                     {"Vessel.AntiRollTank", "Shift+T"},
                                                     {"Vessel.MassDistribution", "Ctrl+M"},
                                                     {"Environment.WaveDefinition", "Shift+W"},
                                                     {"Environment.OperationalConditions", "Shift+O"},
                                                     {"Environment.HydrodynamicModeling", "Shift+H"},
                                                     {"Environment.RaoOutput", "Shift+M"},
                                                     {"Environment.SeakeepingPositions", "Shift+K"},
                                                     {"Environment.LoadPositions", "Ctrl+L"},
                                                     {"Calculate.DisplayBoth", "Shift+D"},
                                                     {"Calculate.DisplayGeometry", "Shift+G"},
                                                     {"Calculate.DisplayEnvironment", "Shift+E"},
                                                     {"Calculate.CheckOffsets", "Ctrl+O"},
                                                     {"Calculate.Run", "Alt+R"},
                                                     {"Output.Display", "Alt+D"},
                                                     {"Output.Graph", "Shift+A"},
                                                     {"Output.SaveAs", "Alt+S"},
                                                     {"Output.LoadResults", "Shift+L"},
                                                     {"Output.LoadLast", "Shift+C"},
                                                     {"Help.Contents", "Alt+T"},
                                                     {"Help.Search", ""},
                                                     {"Help.About", ""}};
    for (const auto& [command, key] : keys)
    {
        EXPECT_EQ(Key(test, command), key) << command;
    }
}

TEST(Commands, NoTwoShareAKey)
{
    CFrameTest test;
    std::map<QString, QString> holders;
    for (const CFrameCommand& command : FrameCommands())
    {
        const QString key = test.Action(PlainText(command.Name)).shortcut().toString();
        EXPECT_TRUE(key.isEmpty() || holders.emplace(key, command.Name).second)
            << PlainText(command.Name) << " and " << PlainText(holders[key]);
    }
    const auto bar = test.Frame.menuBar()->actions();
    for (const QAction* menu : bar)
    {
        const QString key = QStringLiteral("Alt+") + Mnemonic(menu->text());
        EXPECT_EQ(holders.count(key), 0U) << PlainText(key) << " opens a menu too";
    }
}

TEST(Commands, NoTwoOfAMenuShareAMarkedLetter)
{
    CFrameTest test;
    const auto menus = test.Frame.menuBar()->findChildren<QMenu*>();
    EXPECT_GE(menus.size(), 10);
    for (const QMenu* menu : menus)
    {
        std::set<QChar> letters;
        const auto actions = menu->actions();
        for (const QAction* action : actions)
        {
            if (!action->isSeparator())
            {
                EXPECT_FALSE(Mnemonic(action->text()).isNull()) << PlainText(action->text());
                EXPECT_TRUE(letters.insert(Mnemonic(action->text())).second) << PlainText(action->text());
            }
        }
    }
}

TEST(Commands, TellWhatTheyAreFor)
{
    CFrameTest test;
    const std::map<const char*, const char*> texts = {
        {"File.Settings", "Specify system of units and water type"},
        {"File.Description", "Enter description"},
        {"Vessel.Particulars", "Specify basic ship data"},
        {"Vessel.HullGeometry", "Specify hull geometry"},
        {"Environment.WaveDefinition", "Specify wave environment"},
        {"Environment.HydrodynamicModeling", "Specify hydronamic parameters"},
        {"Environment.OperationalConditions", "Specify operational conditions"},
        {"Calculate.Run", "Run calculation engine"}};
    for (const auto& [command, text] : texts)
    {
        QString status = test.Action(command).statusTip();
        EXPECT_EQ(PlainText(status.remove(" (not available yet)")), text) << command;
    }
    for (const CFrameCommand& command : FrameCommands())
    {
        EXPECT_FALSE(command.Status.isEmpty()) << PlainText(command.Name);
    }
}

TEST(Commands, WhatIsNotAvailableYetSaysSoAndCanNotBeGiven)
{
    CFrameTest test;
    test.App.Project.ResultsLoaded = 1;
    test.Frame.UpdateCommands();
    for (const CFrameCommand& command : FrameCommands())
    {
        const QAction& action = test.Action(PlainText(command.Name));
        EXPECT_EQ(action.isEnabled(), command.Run && action.isVisible()) << PlainText(command.Name);
        EXPECT_EQ(action.statusTip().endsWith("(not available yet)"), !command.Run)
            << PlainText(command.Name);
    }
}

TEST(Commands, OutputIsForLoadedResults)
{
    CFrameTest test;
    for (const char* name : {"Output.Display", "Output.Graph", "Output.SaveAs"})
    {
        EXPECT_FALSE(test.Action(name).isEnabled()) << name;
    }
    EXPECT_TRUE(test.Action("Output.LoadResults").isEnabled());
    EXPECT_TRUE(test.Action("Output.LoadLast").isEnabled());
    test.Folder.Write("ondara7.bin", "results");
    test.Give("Output.LoadLast");
    EXPECT_EQ(test.App.Project.ResultsLoaded, 1);
    EXPECT_TRUE(test.Action("Output.Graph").isEnabled());
    EXPECT_TRUE(test.Action("Output.SaveAs").isEnabled());
}

TEST(Commands, GraphShowsTheResultsFile)
{
    CFrameTest test;
    test.Folder.Write("ondara7.bin", "results");
    test.Give("Output.LoadLast");
    test.Give("Output.Graph");
    EXPECT_THAT(test.Recorder.Started, ElementsAre("show Tervis200.exe in " + test.Folder.Path() + ": " +
                                                   test.Folder.File("ondara7.bin")));
}

TEST(Commands, HelpIsOpenedWhereThereIsOne)
{
    CFrameTest test;
    test.Give("Help.Contents");
    test.Give("Help.Search");
    EXPECT_THAT(test.Recorder.Started, IsEmpty());
    const std::string help = test.Folder.Write("OndaraHelp.chm", "help");
    test.Give("Help.Contents");
    EXPECT_THAT(test.Recorder.Started, ElementsAre("open " + help));
}
