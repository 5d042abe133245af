#include "document/store/MemoryTextStore.h"

#include <gtest/gtest.h>

#include <string>

namespace korvane::doc {
namespace {

/// Notes what it is told.
class NotingListener final : public TextListener {
public:
    void ParagraphsChanged(std::size_t first, std::size_t removed, std::size_t added) override {
        told += std::to_string(first) + "-" + std::to_string(removed) + "+" + std::to_string(added) + " ";
    }
    void AllChanged() override { told += "all "; }
    std::string Told() { return std::exchange(told, {}); }

    std::string told;
};

TEST(MemoryTextStore, AListenerHearsWhichParagraphsChange) {
    MemoryTextStore store;
    NotingListener listener;
    store.SetListener(&listener);
    store.Reset(FromPlainText(u"a\r\nb\r\nc"));
    EXPECT_EQ(listener.Told(), "all ");
    store.Replace(3, 4, FromPlainText(u"1\r\n2"));
    EXPECT_EQ(listener.Told(), "1-1+2 ");
    store.Undo();
    EXPECT_EQ(listener.Told(), "1-2+1 ");
    store.Redo();
    EXPECT_EQ(listener.Told(), "1-1+2 ");
    store.Format(0, 1, {.bold = true});
    EXPECT_EQ(listener.Told(), "0-1+1 ");
    store.SetPageSetup({});
    EXPECT_EQ(listener.Told(), "all ");
    store.SetListener(nullptr);
    store.Replace(0, 1, {});
    EXPECT_EQ(listener.Told(), "");
}

TEST(MemoryTextStore, AListenerHearsThatTablesChange) {
    MemoryTextStore store;
    NotingListener listener;
    store.SetListener(&listener);
    const auto table = store.InsertTable(0, 1, 2);
    EXPECT_EQ(listener.Told(), "all ");
    store.Replace(0, 0, FromPlainText(u"x"));
    EXPECT_EQ(listener.Told(), "0-1+1 ");
    store.FormatCells(*table, [](const CellPlace&, CellFormat& cell) { cell.width = 1; });
    EXPECT_EQ(listener.Told(), "all ");
    store.Undo();
    store.Undo();
    store.Undo();
    EXPECT_EQ(listener.Told(), "all 0-1+1 all ");
}

} // namespace
} // namespace korvane::doc
