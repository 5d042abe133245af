#include "table/TableFile.h"

#include "context/App.h"
#include "context/StandardMessages.h"
#include "grid/EndQuietly.h"
#include "grid/Grid.h"
#include "platform/Clock.h"
#include "platform/FileSystem.h"
#include "platform/MessageBoxes.h"
#include "platform/Screen.h"
#include "table/TabContext.h"
#include "table/TableKeeper.h"
#include "table/model/NewTable.h"
#include "table/model/TableHistory.h"
#include "table/model/TableHost.h"
#include "table/model/TableModel.h"
#include "table/model/TbxReader.h"
#include "table/model/TbxWriter.h"

#include <chrono>

namespace korvane {

namespace {

constexpr std::chrono::milliseconds kWaitAfterSave{500};

void EndLoad(const TabContext& tab) {
    Grid& grid = tab.table.GridStore();
    grid.SetGridVisible(true);
    GoToFirstCell(grid);
    tab.table.SavedAt = tab.app.Files().Modified(tab.table.TxtDbFile);
    tab.table.TableAltered = 0;
    tab.app.Screen().ProcessMessages();
    grid.GridSetFocus();
    tab.host.ClearDirty();
}

/// The update bracket stays open and the end of a load isn't run, so that the tab is left as it is.
void EndStoppedLoad(App& app) {
    app.Messages().Show(TooManyColumnsMessage());
}

/// The update bracket of a load, at the end of which what the reader hid is shown again.
class LoadBracket {
public:
    explicit LoadBracket(Grid& grid) : grid_(grid) { grid_.GridBeginUpdate(); }
    LoadBracket(const LoadBracket&) = delete;
    LoadBracket& operator=(const LoadBracket&) = delete;
    ~LoadBracket() {
        if (leftOpen_) return;
        EndQuietly([this] { grid_.GridEndUpdate(); });
        EndQuietly([this] { grid_.SetGridVisible(true); });
    }
    void LeaveOpen() { leftOpen_ = true; }

private:
    Grid& grid_;
    bool leftOpen_ = false;
};

/// False when the table can't hold what the file has.
bool FillTable(const TabContext& tab, const SharedBytes& bytes) {
    LoadBracket bracket(tab.table.GridStore());
    TbxReader reader(tab.table, tab.host, tab.app.Settings.AllowSorting == 1, bytes);
    if (reader.Read() == TbxReader::Outcome::Done) return true;
    bracket.LeaveOpen();
    return false;
}

void NoteSaved(const TabContext& tab) {
    if (tab.history != nullptr) tab.history->NoteSaved();
    tab.table.SavedAt = tab.app.Clock().Now();
    tab.table.TableAltered = 0;
}

/// The new file isn't whole, so the table counts as altered whatever is undone.
void NoteFileLost(const TabContext& tab) {
    if (tab.history != nullptr) tab.history->NoteFileLost();
    tab.table.TableAltered = 1;
}

void WriteTable(const TabContext& tab, FileWriter& file, SaveGuard& guard) {
    const Hourglass hourglass(tab.app.Screen());
    tab.app.Screen().ProcessMessages();
    tab.table.TakeHeightOfCurrentRow();
    tab.host.ShowRowHeight(tab.table.SetRowHeight.value_or(std::int16_t{0}));
    if (tab.history != nullptr) tab.history->IgnoreRowHeight();
    TbxWriter(tab.table, file).Write();
    file.Close();
    if (guard.Finish()) {
        NoteSaved(tab);
    } else {
        NoteFileLost(tab);
    }
    tab.app.Clock().Wait(kWaitAfterSave);
}

} // namespace

void ReadTableData(const TabContext& tab) {
    App& app = tab.app;
    const Text& path = tab.table.TxtDbFile;
    if (path.empty() || !app.Files().FileExists(path)) return;
    const Hourglass hourglass(app.Screen());
    const auto bytes = app.Files().ReadAll(path);
    if (!bytes) {
        ShowCannotLoad(app, path);
        return EndLoad(tab);
    }
    // Only now: a load that finds no file leaves the table, and what can be undone in it.
    const HistoryRestart restart(tab.history);
    if (FillTable(tab, *bytes))
        EndLoad(tab);
    else
        EndStoppedLoad(app);
}

void SaveThisTable(const TabContext& tab) {
    App& app = tab.app;
    TableModel& table = tab.table;
    const auto guard = GuardSave(tab);
    // The old file isn't moved aside: from here on its contents are gone, even if the new ones can't be
    // written, unless somebody guards the save.
    DeleteFileQuietly(app, table.TxtDbFile);
    guard->OldFileDeleted();
    const auto file = app.Files().OpenRaw(table.TxtDbFile);
    if (!file) {
        ShowCannotAccess(app, table.TxtDbFile);
        table.GridStore().GridSetFocus();
        return;
    }
    WriteTable(tab, guard->Watch(*file), *guard);
    table.GridStore().GridSetFocus();
}

} // namespace korvane
