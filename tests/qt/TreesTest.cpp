#include "ListsFixture.h"
#include "controls/UpdateScope.h"
#include "platform/qt/base/Convert.h"

#include <QScrollBar>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QTemporaryDir>

namespace korvane {
namespace {

class TreesTest : public test::ListsFixture {
protected:
    void SetUp() override {
        ListsFixture::SetUp();
        tree.Add({}, u"root", u"Root");
        tree.Add(u"root", u"a", u"A");
        tree.Add(u"root", u"b", u"B");
    }

    TreeView& tree = form.FileTree;

    QTreeView& View() { return Widget<QTreeView>("FileTree"); }
    QModelIndex At(int row, const QModelIndex& parent = {}) { return View().model()->index(row, 0, parent); }
    /// All nodes that can be seen, those further in with more blanks before them.
    QStringList Lines() {
        QStringList lines;
        for (QModelIndex each = At(0); each.isValid(); each = View().indexBelow(each)) {
            int depth = 0;
            for (QModelIndex above = each.parent(); above.isValid(); above = above.parent())
                ++depth;
            lines << QString(depth, ' ') + each.data().toString();
        }
        return lines;
    }
    bool IsSeen(const QModelIndex& index) {
        return View().viewport()->rect().contains(View().visualRect(index));
    }
};

TEST_F(TreesTest, FollowsItsNodes) {
    EXPECT_EQ(Lines(), QStringList{"Root"});
    tree.SetExpanded(u"root", true);
    EXPECT_EQ(Lines(), (QStringList{"Root", " A", " B"}));
    tree.Add(u"a", u"a1", u"A1");
    EXPECT_EQ(Lines(), (QStringList{"Root", " A", " B"}));
    EXPECT_TRUE(View().model()->hasChildren(At(0, At(0))));
    tree.SetExpanded(u"a", true);
    tree.SetNodeText(u"b", u"Other");
    EXPECT_EQ(Lines(), (QStringList{"Root", " A", "  A1", " Other"}));
    tree.Remove(u"a");
    EXPECT_EQ(Lines(), (QStringList{"Root", " Other"}));
    tree.Add(u"root", u"c", u"C");
    EXPECT_EQ(Lines(), (QStringList{"Root", " Other", " C"}));
    tree.SetExpanded(u"root", false);
    EXPECT_EQ(Lines(), QStringList{"Root"});
    tree.Clear();
    EXPECT_EQ(Lines(), QStringList());
}

TEST_F(TreesTest, TellsWhatTheUserDoes) {
    tree.SetExpanded(u"root", true);
    tree.Select(u"b");
    EXPECT_EQ(View().currentIndex(), At(1, At(0)));
    int clicks = 0;
    Text doubleClicked;
    tree.NodeClick = [&clicks] { ++clicks; };
    tree.DblClick = [&] { doubleClicked = tree.Selected(); };
    Click(View(), At(0));
    EXPECT_EQ(tree.Selected(), u"root");
    EXPECT_EQ(clicks, 1);
    Key(View(), Qt::Key_Down);
    EXPECT_EQ(tree.Selected(), u"a");
    Key(View(), Qt::Key_Left);
    Key(View(), Qt::Key_Left);
    EXPECT_FALSE(tree.Node(u"root")->expanded);
    Key(View(), Qt::Key_Right);
    EXPECT_TRUE(tree.Node(u"root")->expanded);
    QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, View().visualRect(At(1, At(0))).center());
    QTest::mouseDClick(View().viewport(), Qt::LeftButton, {}, View().visualRect(At(1, At(0))).center());
    EXPECT_EQ(doubleClicked, u"b");
}

TEST_F(TreesTest, ANodeThatIsSelectedUnderClosedOnesOpensThem) {
    tree.Add(u"a", u"a1", u"A1");
    tree.Select(u"a1");
    EXPECT_EQ(Lines(), (QStringList{"Root", " A", "  A1", " B"}));
    EXPECT_EQ(View().currentIndex(), At(0, At(0, At(0))));
    EXPECT_TRUE(View().selectionModel()->isSelected(View().currentIndex()));
}

TEST_F(TreesTest, ANodeIsFilledWhenItIsOpened) {
    tree.SetExpandable(u"b", true);
    tree.SetExpanded(u"root", true);
    tree.Expand = [this](TextView key) {
        for (const TextView name : {u"b1", u"b2"})
            tree.Add(key, name, name);
    };
    tree.Select(u"b");
    test::Settle();
    Key(View(), Qt::Key_Right);
    EXPECT_EQ(Lines(), (QStringList{"Root", " A", " B", "  b1", "  b2"}));
    EXPECT_TRUE(tree.Node(u"b")->expanded);
}

TEST_F(TreesTest, APlaceholderMayGoWhileItsNodeIsOpened) {
    tree.Add(u"b", u"placeholder", u"");
    tree.SetExpanded(u"root", true);
    tree.Expand = [this](TextView key) {
        tree.Remove(u"placeholder");
        tree.Add(key, u"b1", u"B1");
    };
    tree.Select(u"b");
    test::Settle();
    Key(View(), Qt::Key_Right);
    EXPECT_EQ(Lines(), (QStringList{"Root", " A", " B", "  B1"}));
}

TEST_F(TreesTest, AHandlerMayRemoveTheNodeThatIsClicked) {
    tree.SetExpanded(u"root", true);
    tree.NodeClick = [this] { tree.Remove(Text(tree.Selected())); };
    Click(View(), At(0, At(0)));
    EXPECT_EQ(Lines(), (QStringList{"Root", " B"}));
    EXPECT_EQ(tree.Selected(), u"");
    EXPECT_FALSE(View().currentIndex().isValid());
    Key(View(), Qt::Key_Down);
    EXPECT_EQ(Lines(), QStringList());
}

TEST_F(TreesTest, ASelectionThatGoesWithItsNodeGoesFromTheViewToo) {
    tree.Select(u"b");
    test::Settle();
    tree.Remove(u"b");
    EXPECT_FALSE(View().currentIndex().isValid());
    EXPECT_TRUE(View().selectionModel()->selection().isEmpty());
}

TEST_F(TreesTest, AnUpdateComesInOneGoAndKeepsWhatIsOpen) {
    tree.SetExpanded(u"root", true);
    tree.Add(u"a", u"a1", u"A1");
    tree.SetExpanded(u"a", true);
    tree.Select(u"b");
    QTreeView& view = View();
    {
        const UpdateScope update(tree);
        tree.Add(u"a", u"a2", u"A2");
        tree.Remove(u"a1");
    }
    EXPECT_EQ(Lines(), (QStringList{"Root", " A", "  A2", " B"}));
    EXPECT_EQ(view.currentIndex(), At(1, At(0)));
}

TEST_F(TreesTest, ManyNodesOpenAndChangeAtOnce) {
    QStringList expected{"Root", " A", " B"};
    for (int number = 1; number <= 50; ++number) {
        const Text key = NumberText(number);
        tree.Add({}, key, key);
        tree.Add(key, key + u"x", u"x");
    }
    test::Settle();
    tree.SetExpanded(u"root", true);
    for (int number = 1; number <= 50; ++number) {
        tree.SetExpanded(NumberText(number), true);
        tree.SetNodeText(NumberText(number), u"node " + NumberText(number));
        expected << QString("node %1").arg(number) << " x";
    }
    EXPECT_EQ(Lines(), expected);
}

TEST_F(TreesTest, TheSelectedNodeIsBroughtIntoView) {
    for (int number = 1; number <= 100; ++number)
        tree.Add(u"root", NumberText(number), NumberText(number));
    tree.SetExpanded(u"root", true);
    tree.Select(u"60");
    EXPECT_TRUE(IsSeen(At(61, At(0))));
    tree.EnsureVisible(u"root");
    EXPECT_TRUE(IsSeen(At(0)));
    EXPECT_EQ(tree.Selected(), u"60");
}

TEST_F(TreesTest, StaysWhereItIsScrolledToWhenNodesChangeComeOrGo) {
    for (int number = 1; number <= 100; ++number)
        tree.Add(u"root", NumberText(number), NumberText(number));
    tree.SetExpanded(u"root", true);
    tree.Select(u"root");
    QScrollBar& bar = *View().verticalScrollBar();
    bar.setValue(50);
    tree.SetNodeText(u"3", u"other");
    tree.Add(u"root", u"new", u"New");
    tree.Remove(u"100");
    test::Settle();
    EXPECT_EQ(bar.value(), 50);
    EXPECT_EQ(View().currentIndex(), At(0));
}

TEST_F(TreesTest, StaysWhereItIsScrolledToWhenTheSelectedNodeGoes) {
    for (int number = 1; number <= 100; ++number)
        tree.Add(u"root", NumberText(number), NumberText(number));
    tree.SetExpanded(u"root", true);
    tree.Select(u"90");
    test::Settle();
    QScrollBar& bar = *View().verticalScrollBar();
    bar.setValue(5);
    tree.Remove(u"90");
    EXPECT_EQ(bar.value(), 5);
    test::Settle();
    EXPECT_EQ(bar.value(), 5);
}

TEST_F(TreesTest, ANodeShowsWhetherItIsOpen) {
    tree.SetExpanded(u"root", true);
    tree.Select(u"a");
    const auto image = [this](int row) { return ImageOf(At(row, At(0))); };
    EXPECT_EQ(ImageOf(At(0)), image(0));
    EXPECT_NE(ImageOf(At(0)), image(1));
    Click(View(), At(1, At(0)));
    EXPECT_EQ(ImageOf(At(0)), image(1));
    EXPECT_NE(ImageOf(At(0)), image(0));
}

TEST_F(TreesTest, ANodeCanHaveAPictureOfItsOwn) {
    tree.SetExpanded(u"root", true);
    EXPECT_EQ(ImageOf(At(0, At(0))), ImageOf(At(1, At(0))));
    tree.SetNodeIcon(u"b", u"fileLost");
    EXPECT_NE(ImageOf(At(0, At(0))), ImageOf(At(1, At(0))));
    tree.SetNodeIcon(u"b", {});
    EXPECT_EQ(ImageOf(At(0, At(0))), ImageOf(At(1, At(0))));
}

TEST_F(TreesTest, TakesItsPicturesFromTheirFilesWhereThereAreAny) {
    const QTemporaryDir folder;
    QPixmap red(16, 16);
    red.fill(Qt::red);
    ASSERT_TRUE(red.save(folder.filePath("closed.png")));
    tree.Images = TreeImages{ToText(folder.filePath("closed.png")), u"/no/such/file.ico"};
    tree.Add({}, u"other", u"Other");
    tree.Select(u"other");
    EXPECT_EQ(QColor(ImageOf(At(0)).pixel(8, 8)), QColor(Qt::red));
    EXPECT_FALSE(ImageOf(At(1)).isNull());
    EXPECT_NE(ImageOf(At(1)), ImageOf(At(0)));
}

TEST_F(TreesTest, TellsKeysFromTheMouse) {
    tree.SetExpanded(u"root", true);
    tree.Select(u"root");
    std::vector<bool> byKeys;
    tree.NodeClick = [&] { byKeys.push_back(tree.ByKeys); };
    Key(View(), Qt::Key_Down);
    Click(View(), At(1, At(0)));
    EXPECT_EQ(tree.Selected(), u"b");
    EXPECT_EQ(byKeys, (std::vector<bool>{true, false}));
}

// A line that is measured too narrow ends in dots.
TEST_F(TreesTest, IsWideEnoughForEachOfItsTexts) {
    const QStyledItemDelegate byStyle;
    QStyleOptionViewItem option;
    option.initFrom(&View());
    option.widget = &View();
    const int side = View().style()->pixelMetric(QStyle::PM_SmallIconSize);
    option.decorationSize = QSize(side, side);
    for (int number = 0; number < 200; ++number) {
        const Text name = u"Folder \u00e9t\u00e9 " + ToText(QString::number(number * 7919));
        tree.Add(u"a", name, name);
        const QModelIndex line = At(number, At(0, At(0)));
        const QSize wanted = byStyle.sizeHint(option, line);
        const QSize measured = View().itemDelegate()->sizeHint(option, line);
        EXPECT_EQ(measured.height(), wanted.height());
        EXPECT_GE(measured.width(), wanted.width()) << number;
        EXPECT_LE(measured.width(), wanted.width() + 2) << number;
    }
}

TEST_F(TreesTest, IsMeasuredOnceMoreWithAnotherFont) {
    tree.SetExpanded(u"root", true);
    const int before = View().visualRect(At(0)).height();
    QFont larger = View().font();
    larger.setPointSize(larger.pointSize() * 2);
    View().setFont(larger);
    test::Settle();
    EXPECT_GT(View().visualRect(At(0)).height(), before);
}

TEST_F(TreesTest, AMeasuredTextIsWiderInALargerFontAndAsWideAsBeforeInTheFirst) {
    QStyleOptionViewItem option;
    option.initFrom(&View());
    option.widget = &View();
    const auto width = [&](int points) {
        option.font.setPointSize(points);
        option.fontMetrics = QFontMetrics(option.font);
        return View().itemDelegate()->sizeHint(option, At(0)).width();
    };
    const int small = width(10);
    EXPECT_EQ(width(10), small);
    EXPECT_GT(width(20), small);
    EXPECT_EQ(width(10), small);
}

} // namespace
} // namespace korvane
