#pragma once

#include "grid/GridStore.h"
#include "kept/KeptTables.h"
#include "support/TestTable.h"
#include "table/SaveCommands.h"
#include "table/TableFile.h"
#include "testing/MemoryBackground.h"

#include <gmock/gmock.h>

#include <chrono>
#include <memory>
#include <string>

namespace korvane {

/// One open table.
struct KeptTab {
    explicit KeptTab(App& app) : tab{app, model, host} {}

    /// Writes a cell, as an edit of the user does.
    void Type(TextView text, Row row = Row{1}) {
        const WatchedCommand command(tab);
        grid.SetCellValue(row, Col{1}, text);
        model.TableAltered = 1;
    }
    /// Types into the field of a cell without committing it. No text means that the field is closed.
    void TypeIntoField(std::optional<Text> text) {
        host.field = std::move(text);
        tab.app.Port<TableKeeper>()->TextTyped(tab);
    }
    void Save() {
        const WatchedCommand command(tab);
        SaveThisTable(tab);
    }
    Text Cell(Row row = Row{1}) const { return grid.CellText(row, Col{1}); }

    GridStore grid{CodePage::Windows1252()};
    TableModel model{grid};
    RecordingTableHost host;
    TabContext tab;
};

/// One run of the program, from its start to its end, on a disk that outlives it. Its destruction is the end
/// that a kill makes of it.
class KeptRun {
public:
    KeptRun(App& app, FileSystem& files, MemoryClock& clock, const Text& root)
        : app_(app), background(files, clock), keeper(std::make_unique<KeptTables>(app, background, root)) {
        app_.SetPort<TableKeeper>(keeper.get());
        keeper->LookForUnsaved();
        background.DoAll();
    }
    ~KeptRun() { app_.SetPort<TableKeeper>(nullptr); }

    /// A table of one column with the text in its row, which has the path and isn't saved yet.
    std::unique_ptr<KeptTab> NewTable(const Text& path, TextView text) {
        auto tab = std::make_unique<KeptTab>(app_);
        tab->grid.AddCol(u"1", u"Name");
        tab->grid.SetRowCount(Row{1});
        tab->grid.SetCellValue(Row{1}, Col{1}, text);
        tab->model.TxtDbFile = path;
        return tab;
    }
    std::unique_ptr<KeptTab> Open(const Text& path) {
        auto tab = std::make_unique<KeptTab>(app_);
        tab->model.TxtDbFile = path;
        const WatchedCommand command(tab->tab);
        ReadTableData(tab->tab);
        return tab;
    }
    /// What the main window does with a table that is listed.
    std::unique_ptr<KeptTab> OpenUnsaved(const UnsavedTable& unsaved) {
        auto tab = Open(unsaved.file);
        tab->model.TxtDbFile = unsaved.name;
        tab->model.TableAltered = 1;
        keeper->Adopt(tab->tab, unsaved.number);
        return tab;
    }
    /// The tab closes, and its changes aren't wanted.
    void Close(std::unique_ptr<KeptTab> tab) { keeper->GiveUp(tab->tab); }
    /// The program ends as it should.
    void End() {
        app_.SetPort<TableKeeper>(nullptr);
        keeper.reset();
        background.End();
    }
    std::vector<std::string> Unsaved() const {
        std::vector<std::string> names;
        for (const UnsavedTable& table : keeper->Unsaved())
            names.push_back(ToUtf8(table.name));
        return names;
    }

private:
    App& app_;

public:
    MemoryBackground background;
    std::unique_ptr<KeptTables> keeper;
};

} // namespace korvane
