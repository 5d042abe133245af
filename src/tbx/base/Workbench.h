#pragma once

#include "grid/GridStore.h"
#include "platform/MessageBoxes.h"
#include "table/model/TableHost.h"
#include "table/model/TableModel.h"

#include <string>
#include <vector>

namespace korvane {

/// One table with the program's own reader and writer of `.tbx` files, which work here on bytes alone: there
/// is no window, no disk and no clock.
class Workbench {
public:
    /// The table's files are in this code page.
    explicit Workbench(const CodePage& page) : grid_(page), table_(grid_) {}

    /// Fills the table, which has to be empty, from the bytes of a file as the program loads it.
    void Load(TextView path, const SharedBytes& bytes);
    /// The bytes of the file as the program saves the table under this path.
    std::string Save(TextView path);

    TableModel& Table() { return table_; }
    const TableModel& Table() const { return table_; }
    GridStore& Grid() { return grid_; }
    const GridStore& Grid() const { return grid_; }
    /// What the program would have shown so far.
    const std::vector<Message>& Messages() const { return messages_; }

private:
    class NoTab final : public TableHost {
        void ShowRowHeight(std::int16_t) override {}
        Text TabCaption() const override { return {}; }
        void SetTabCaption(TextView) override {}
        void ClearDirty() override {}
    };

    GridStore grid_;
    TableModel table_;
    NoTab tab_;
    std::vector<Message> messages_;
};

} // namespace korvane
