#pragma once

#include "common/number/DateTime.h"
#include "common/text/Text.h"
#include "platform/FileSystem.h"
#include "table/TabContext.h"

#include <functional>
#include <memory>
#include <vector>

namespace korvane {

/// Sees what happens to a file while a table is saved to it. This one does nothing.
class SaveGuard {
public:
    virtual ~SaveGuard() = default;
    virtual void OldFileDeleted() {}
    /// The writer through which the table goes to the file. It lives as long as the guard.
    virtual FileWriter& Watch(FileWriter& file) { return file; }
    /// The file is closed. False when it is known that it doesn't hold the whole table.
    virtual bool Finish() { return true; }
};

/// A table that was kept because its changes didn't reach its file.
struct UnsavedTable {
    int number = 0;
    /// The path of the table's own file, or its caption where it never had one.
    Text name;
    /// Where it is kept.
    Text file;
    DateTime changed;
};

/// Keeps what a save, a crash or a power cut would lose.
class TableKeeper {
public:
    virtual ~TableKeeper() = default;

    /// A command begins that may change the table, and ends.
    virtual void CommandBegins(const TabContext& tab) = 0;
    virtual void CommandEnds(const TabContext& tab) = 0;
    /// Something was typed into the field of a cell, or that field has closed.
    virtual void TextTyped(const TabContext&) {}
    virtual std::unique_ptr<SaveGuard> GuardSave(const TabContext& tab) = 0;
    /// The tab closes, and changes that aren't in its file aren't wanted.
    virtual void GiveUp(const TabContext& tab) = 0;
    /// The table goes away; what was kept of it stays.
    virtual void Forget(const TableModel& table) = 0;

    /// The newest first.
    virtual const std::vector<UnsavedTable>& Unsaved() const = 0;
    /// A table of that list is on the tab now, and is kept from here on as the tab's.
    virtual void Adopt(const TabContext& tab, int number) = 0;
    /// The list changed.
    std::function<void()> UnsavedChanged;
};

/// A command that may change a table. It lasts as long as the object.
class WatchedCommand {
public:
    explicit WatchedCommand(const TabContext& tab);
    WatchedCommand(const WatchedCommand&) = delete;
    WatchedCommand& operator=(const WatchedCommand&) = delete;
    ~WatchedCommand();

private:
    TabContext tab_;
    TableKeeper* keeper_;
};

/// A guard that does nothing where nobody keeps tables.
std::unique_ptr<SaveGuard> GuardSave(const TabContext& tab);

} // namespace korvane
