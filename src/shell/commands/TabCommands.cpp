#include "shell/commands/TabCommands.h"

#include "common/text/FindEntry.h"
#include "context/App.h"
#include "context/Desktop.h"
#include "context/ports/MainWindow.h"
#include "dbops/commands/TabCommands.h"
#include "platform/FileSystem.h"
#include "table/DesignCommand.h"
#include "table/ImportCommand.h"
#include "table/SaveCommands.h"
#include "table/TabContext.h"
#include "table/TableFile.h"
#include "table/TableModel.h"

#include <algorithm>
#include <array>

namespace korvane {

namespace {

void ExploreTableFolder(const TabContext& tab) {
    const PathStyle style = tab.app.Files().Style();
    ExploreFolder(tab.app, style.DirectoryForChange(style.FolderPart(tab.table.TxtDbFile)));
}

void RunOnMainWindow(const TabContext& tab, std::string_view command) {
    if (auto* mainWindow = tab.app.Port<MainWindow>()) mainWindow->RunCommand(command);
}

void mnuSidebarWidth_Clack(const TabContext& tab) {
    RunOnMainWindow(tab, "NextSideBarWidth");
}

void mnuWindowSize_Clack(const TabContext& tab) {
    RunOnMainWindow(tab, "SetWindowSize");
}

void mnuFile_Exit_Clack(const TabContext& tab) {
    RunOnMainWindow(tab, "mnuFile_Exit");
}

struct NamedCommand {
    std::string_view name;
    TabCommand run;
};

constexpr std::array kTabCommands{
    NamedCommand{"ReadTableData", &ReadTableData},
    NamedCommand{"SaveThisTable", &SaveThisTable},
    NamedCommand{"mnuFile_Save_Clack", &mnuFile_Save_Clack},
    NamedCommand{"mnuFile_SaveAs_Clack", &mnuFile_SaveAs_Clack},
    NamedCommand{"mnuFile_FileInfo_Clack", &mnuFile_FileInfo_Clack},
    NamedCommand{"mnuEdit_DesignDb_Clack", &mnuEdit_DesignDb_Clack},
    NamedCommand{"mnuImport_Clip_Clack", &mnuImport_Clip_Clack},
    NamedCommand{"mnuSidebarWidth_Clack", &mnuSidebarWidth_Clack},
    NamedCommand{"mnuWindowSize_Clack", &mnuWindowSize_Clack},
    NamedCommand{"mnuFile_Exit_Clack", &mnuFile_Exit_Clack},
    NamedCommand{"ExploreTableFolder", &ExploreTableFolder},
};

} // namespace

TabCommand FindTabCommand(std::string_view name) {
    if (const auto* found = FindEntry(kTabCommands, name, &NamedCommand::name)) return found->run;
    const auto* found = FindEntry(DbOpsCommands(), name, &DbOpsCommand::name);
    return found == nullptr ? nullptr : found->run;
}

} // namespace korvane
