#pragma once

#include "context/App.h"
#include "controls/FormHost.h"
#include "grid/GridStore.h"
#include "table/TabContext.h"
#include "table/TableHost.h"
#include "table/TableModel.h"
#include "tbx/OneFileSystem.h"
#include "testing/MemoryClipboard.h"
#include "testing/MemoryClock.h"
#include "testing/MemoryInstanceChannel.h"
#include "testing/MemoryScreen.h"
#include "testing/MemoryShell.h"
#include "testing/ScriptedMessageBoxes.h"

#include <string>
#include <vector>

namespace korvane {

/// One table with all that the program's own reader and writer want around them. Nothing of it is on a screen
/// or a disk, and no time passes in it.
class Workbench {
public:
    /// The paths of the table are in this style, its files in this code page.
    Workbench(PathStyle style, const CodePage& page);

    /// Fills the table, which has to be empty, from the bytes of a file as the program loads it.
    void Load(TextView path, SharedBytes bytes);
    /// The bytes of the file as the program saves the table under this path.
    std::string Save(TextView path);

    TableModel& Table() { return table_; }
    const TableModel& Table() const { return table_; }
    GridStore& Grid() { return grid_; }
    const GridStore& Grid() const { return grid_; }
    /// What the program would have shown so far.
    const std::vector<Message>& Messages() const { return messages_.Shown(); }

private:
    class NoTab final : public TableHost {
        void ShowRowHeight(std::int16_t) override {}
        Text TabCaption() const override { return {}; }
        void SetTabCaption(TextView) override {}
        void ClearDirty() override {}
    };
    class NoForms final : public FormHost {
        void RunModal(Form&) override {}
        void Show(Form&) override {}
        void Hide(Form&) override {}
        void PopUp(Menu&) override {}
        void Raise(Form&) override {}
    };

    OneFileSystem files_;
    ScriptedMessageBoxes messages_;
    MemoryClipboard clipboard_;
    MemoryClock clock_;
    MemoryScreen screen_;
    MemoryShell shell_;
    MemoryInstanceChannel instance_;
    NoForms forms_;
    App app_;
    GridStore grid_;
    TableModel table_;
    NoTab tab_;
    TabContext context_;
};

} // namespace korvane
