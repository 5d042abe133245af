#pragma once

#include "common/text/CodePage.h"
#include "grid/GridStore.h"
#include "support/TestApp.h"
#include "table/TabContext.h"
#include "table/model/TableHost.h"
#include "table/model/TableModel.h"

#include <cstdint>
#include <vector>

namespace korvane {

/// A tab that records the calls.
class RecordingTableHost final : public TableHost {
public:
    void ShowRowHeight(std::int16_t height) override { shownRowHeights.push_back(height); }
    Text TabCaption() const override { return captions.empty() ? Text() : captions.back(); }
    void SetTabCaption(TextView caption) override { captions.emplace_back(caption); }
    void ClearDirty() override { ++dirtyCleared; }
    bool Types() const override { return field.has_value(); }
    std::optional<FieldText> Typed() const override {
        return field ? std::optional(FieldText{{Row{1}, Col{1}}, *field}) : std::nullopt;
    }

    std::vector<std::int16_t> shownRowHeights;
    std::vector<Text> captions;
    int dirtyCleared = 0;
    /// What is being typed into the first cell.
    std::optional<Text> field;
};

/// An empty table on a tab, in a program on an in-memory platform with a scripted user.
class TestTable {
public:
    explicit TestTable(const PathStyle& style = PathStyle::Windows,
                       const CodePage& page = CodePage::Windows1252())
        : program(style), grid(page) {}

    TestApp program;
    GridStore grid;
    TableModel model{grid};
    RecordingTableHost host;
    TabContext tab{program.app, model, host};
};

} // namespace korvane
