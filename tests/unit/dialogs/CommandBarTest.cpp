#include "dialogs/CommandBar.h"

#include "controls/Form.h"
#include "support/TestApp.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CommandBarTest : public testing::Test {
protected:
    CommandBarTest() { bar.Build({u"One", u"Two", u"Three"}, 130, 52); }

    bool Press(int code, int mask = Mask::None) {
        KeyEvent key{code, mask};
        grid.KeyDown(key);
        return key.consumed;
    }
    const Grid& Store() const { return grid.Store(); }

    TestApp t;
    Form form{t.app.Forms(), "frmAny", u""};
    GridBox grid{form, "grid", t.app.MakeGrid()};
    std::vector<int> run;
    CommandBar bar{grid, [this](int index) { run.push_back(index); }};
};

TEST_F(CommandBarTest, HasARowForEachCommandUnderOneAnother) {
    EXPECT_EQ(Store().RowCount(), Row{3});
    EXPECT_EQ(Store().ColCount(), Col{1});
    EXPECT_EQ(Store().ColWidth(Col{1}), 130);
    EXPECT_EQ(Store().RowHeight(Row{3}), 52);
    EXPECT_EQ(Store().CellText(Row{2}, Col{1}), u"Two");
    EXPECT_EQ(Store().CurRow(), Row{1});
    EXPECT_TRUE(Store().GridVisible());
}

TEST_F(CommandBarTest, AClickRunsTheCommand) {
    grid.ClickCell(Row{2}, Col{1});
    EXPECT_THAT(run, ElementsAre(1));
}

TEST_F(CommandBarTest, SpaceAndReturnRunTheCurrentCommandWhateverIsHeld) {
    grid.Store().SetCurRow(Row{3});
    EXPECT_TRUE(Press(Key::Space));
    EXPECT_TRUE(Press(Key::Return, Mask::Shift));
    EXPECT_THAT(run, ElementsAre(2, 2));
}

TEST_F(CommandBarTest, OtherKeysPass) {
    EXPECT_FALSE(Press('S', Mask::Ctrl | Mask::Alt));
    EXPECT_FALSE(Press(Key::Down));
    EXPECT_THAT(run, IsEmpty());
}

TEST_F(CommandBarTest, ThePointerOverItIsAHandAndChangesTheHighlight) {
    EXPECT_EQ(grid.MousePointer.Get(), Pointer::Default);
    EXPECT_EQ(grid.HighlightBackColor.Get(), Colour{10327187});
    EXPECT_EQ(grid.HighlightForeColor.Get(), Colour{0xFFFFFF});
    grid.Hover(true);
    EXPECT_EQ(grid.MousePointer.Get(), Pointer::Hand);
    EXPECT_EQ(grid.HighlightBackColor.Get(), Colour{16252927});
    EXPECT_EQ(grid.HighlightForeColor.Get(), Colour{0});
}

TEST_F(CommandBarTest, AFontIsTakenOnlyAsAWhole) {
    EXPECT_EQ(grid.Font.Get(), FontSpec{});
    bar.Build({}, 1, 1, {u"Verdana", 0, true});
    EXPECT_EQ(grid.Font.Get(), FontSpec{});
    bar.Build({}, 1, 1, {u"Verdana", 9, true});
    EXPECT_EQ(grid.Font.Get(), (FontSpec{u"Verdana", 9, true}));
}

} // namespace
} // namespace korvane
