// The commands of the main window in the order of its menus: the one table that menus, keys, status texts and
// what a command does come from.
#pragma once

#include <functional>
#include <vector>

#include <QString>

class CMainFrame;

/// When a command can be given.
enum class EEnabled
{
    Always,
    WithOffsets, ///< while the hull is defined by offsets
    WithResults  ///< while a results file is loaded
};

struct CFrameCommand
{
    QString Name;    ///< object name of its action
    QString Menu;    ///< title of its menu
    QString Submenu; ///< title of the menu in that menu; empty for none
    QString Caption;
    const char* Key;                      ///< empty for none
    QString Status;                       ///< what the status bar says of it
    std::function<void(CMainFrame&)> Run; ///< nothing for what is not available yet
    EEnabled Enabled = EEnabled::Always;
    bool BeginsGroup = false; ///< a line stands before it
};

std::vector<CFrameCommand> FrameCommands();

/// Object name of the command that opens the recent file of an index.
QString RecentCommandName(int index);
