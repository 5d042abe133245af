#pragma once

namespace korvane {

class App;
class TableHistory;
class TableHost;
class TableModel;

/// What a command of a tab works on. All of it outlives the command.
struct TabContext {
    App& app;
    TableModel& table;
    TableHost& host;
    /// nullptr where nothing can be undone.
    TableHistory* history = nullptr;
};

/// A routine of a tab.
using TabRoutine = void (*)(const TabContext&);

} // namespace korvane
