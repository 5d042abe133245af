#include "GridFixtures.h"
#include "grid/TextBlocks.h"

#include <algorithm>

namespace korvane {
namespace {

/// How many holders the file's bytes have: 1 for the test alone, more while the grid keeps them.
long Holders(const SharedBytes& bytes) {
    return bytes.data.use_count();
}

class GridStoreMemoryTest : public GridTest {
protected:
    /// A table of 100 rows whose texts are slices of 1,000 bytes.
    SharedBytes LoadRows() {
        Resize(100, 1);
        const SharedBytes bytes = BytesOf(std::string(100000, 'a'));
        grid.AdoptBytes(bytes);
        for (int row = 1; row <= 100; ++row)
            grid.SetCellSlice(Row{row}, Col{1}, static_cast<std::size_t>(row - 1) * 1000, 1000);
        return bytes;
    }
    void Overwrite(int first, int last) {
        for (int row = first; row <= last; ++row)
            grid.SetCellValue(Row{row}, Col{1}, u"x");
    }
};

TEST_F(GridStoreMemoryTest, TheFilesBytesAreLetGoOnceMostOfThemAreGarbage) {
    const SharedBytes bytes = LoadRows();
    EXPECT_EQ(Holders(bytes), 2);
    Overwrite(1, 50);
    EXPECT_EQ(Holders(bytes), 2);
    Overwrite(51, 90);
    EXPECT_EQ(Holders(bytes), 1);
    EXPECT_EQ(grid.CellValue(Row{1}, Col{1}), u"x");
    EXPECT_EQ(grid.CellValue(Row{100}, Col{1}), Text(1000, u'a'));
}

TEST_F(GridStoreMemoryTest, DroppedRowsAndColumnsAreGarbageToo) {
    const SharedBytes rows = LoadRows();
    grid.SetRowCount(Row{10});
    EXPECT_EQ(Holders(rows), 1);
    Resize(0, 0);
    const SharedBytes cols = LoadRows();
    grid.RemoveCol(Col{1});
    EXPECT_EQ(Holders(cols), 1);
}

TEST_F(GridStoreMemoryTest, InsideABracketTheFilesBytesStay) {
    // A load that starts its rows again gives up all texts and points to the same bytes again.
    const SharedBytes bytes = LoadRows();
    grid.GridBeginUpdate();
    grid.SetRowCount(Row{1});
    grid.SetCellSlice(Row{1}, Col{1}, 99000, 1000);
    EXPECT_EQ(Holders(bytes), 2);
    EXPECT_EQ(grid.CellValue(Row{1}, Col{1}), Text(1000, u'a'));
    grid.GridEndUpdate();
    EXPECT_EQ(Holders(bytes), 1);
    EXPECT_EQ(grid.CellValue(Row{1}, Col{1}), Text(1000, u'a'));
}

class TextBlocksTest : public testing::Test {
protected:
    /// Writes the text again, gives up the old one, and packs when the blocks want it.
    void Rewrite(TextHandle& handle, TextView text) {
        blocks.GiveUp(handle);
        handle = blocks.Put(text);
        if (!blocks.WantsPacking()) return;
        ++packings;
        blocks.Pack([this](const auto& visit) {
            for (TextHandle& each : handles)
                visit(each);
        });
    }

    TextBlocks blocks{CodePage::Windows1252()};
    std::vector<TextHandle> handles = std::vector<TextHandle>(3);
    int packings = 0;
};

TEST_F(TextBlocksTest, EditingOverAndOverIsPackedFromTimeToTime) {
    handles[0] = blocks.Put(u"kept");
    handles[1] = blocks.Put(u"kept Я");
    for (int i = 0; i < 1000; ++i)
        Rewrite(handles[2], Text(1000, static_cast<char16_t>(u'a' + i % 26)));
    EXPECT_GE(packings, 10);
    EXPECT_LE(packings, 20);
    EXPECT_EQ(blocks.ToText(handles[0]), u"kept");
    EXPECT_EQ(blocks.ToText(handles[1]), u"kept Я");
    EXPECT_EQ(blocks.ToText(handles[2]), Text(1000, u'a' + 999 % 26));
}

TEST_F(TextBlocksTest, WideTextsArePackedAsWell) {
    for (int i = 0; i < 200; ++i)
        Rewrite(handles[2], Text(1000, static_cast<char16_t>(u'А' + i % 26)));
    EXPECT_GE(packings, 3);
    EXPECT_EQ(blocks.ToText(handles[2]), Text(1000, u'А' + 199 % 26));
    EXPECT_TRUE(blocks.HasWideTexts());
    Rewrite(handles[2], u"narrow");
    EXPECT_FALSE(blocks.HasWideTexts());
}

TEST_F(TextBlocksTest, PackingRemembersWhatOfTheFilesBytesIsGarbage) {
    const SharedBytes bytes = BytesOf(std::string(100000, 'a'));
    blocks.Adopt(bytes);
    handles.clear();
    for (std::size_t at = 0; at < 100; ++at)
        handles.push_back(blocks.Slice(at * 1000, 1000));
    const auto giveUp = [this](std::size_t count) {
        for (; count > 0; --count) {
            blocks.GiveUp(handles.back());
            handles.pop_back();
        }
    };
    const auto pack = [this] {
        blocks.Pack([this](const auto& visit) { std::ranges::for_each(handles, visit); });
    };
    giveUp(45);
    pack();
    EXPECT_TRUE(blocks.HasAdopted());
    giveUp(25);
    EXPECT_TRUE(blocks.WantsPacking());
    pack();
    EXPECT_FALSE(blocks.HasAdopted());
    EXPECT_EQ(Holders(bytes), 1);
    EXPECT_EQ(blocks.ToText(handles.back()), Text(1000, u'a'));
}

TEST_F(TextBlocksTest, AnEmptyTextHasNoPlace) {
    EXPECT_TRUE(blocks.Put(u"").IsEmpty());
    blocks.GiveUp(TextHandle());
    EXPECT_FALSE(blocks.WantsPacking());
}

} // namespace
} // namespace korvane
