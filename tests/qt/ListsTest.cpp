#include "ListsFixture.h"
#include "platform/qt/binder/FormBinder.h"

namespace korvane {
namespace {

using ListsTest = test::ListsFixture;

TEST_F(ListsTest, EverythingFits) {
    EXPECT_EQ(FormProblems(form, *host.WidgetOf(form)), std::vector<std::string>());
}

TEST_F(ListsTest, AListFollowsItsItems) {
    form.List1.InsertItem(1, u"between");
    form.List1.SetList(0, u"first");
    form.List1.SetListIndex(2);
    auto& list = Widget<QListView>("List1");
    EXPECT_EQ(Lines(list), (QStringList{"first", "between", "two", "three"}));
    EXPECT_EQ(list.currentIndex().row(), 2);
    EXPECT_EQ(ShownPicks(list), std::vector<int>{2});
    form.List1.Clear();
    test::Settle();
    EXPECT_EQ(Lines(list), QStringList());
}

TEST_F(ListsTest, AnItemThatGoesTakesItsLineWithIt) {
    form.List1.SetListIndex(2);
    auto& list = Widget<QListView>("List1");
    form.List1.RemoveItem(0);
    test::Settle();
    EXPECT_EQ(Lines(list), (QStringList{"two", "three"}));
    EXPECT_EQ(list.currentIndex().row(), 1);
    form.List1.RemoveItem(1);
    test::Settle();
    EXPECT_EQ(list.currentIndex().row(), 0);
    EXPECT_EQ(ShownPicks(list), std::vector<int>{0});
}

TEST_F(ListsTest, AClickInAListIsItsIndex) {
    auto& list = Widget<QListView>("List1");
    int clicks = 0;
    int doubleClicks = 0;
    form.List1.Click = [&clicks] { ++clicks; };
    form.List1.DblClick = [&doubleClicks] { ++doubleClicks; };
    Click(list, list.model()->index(1, 0));
    EXPECT_EQ(form.List1.ListIndex(), 1);
    EXPECT_EQ(clicks, 1);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {},
                       list.visualRect(list.model()->index(1, 0)).center());
    EXPECT_EQ(doubleClicks, 1);
    Key(list, Qt::Key_Down);
    EXPECT_EQ(form.List1.ListIndex(), 2);
}

TEST_F(ListsTest, AListOfFontsShowsEachNameInItsOwnFace) {
    auto& list = Widget<QListView>("List1");
    EXPECT_FALSE(list.model()->index(0, 0).data(Qt::FontRole).isValid());
    form.List1.NamesFonts = true;
    form.List1.SetList(1, u"DejaVu Serif");
    const auto face = list.model()->index(1, 0).data(Qt::FontRole).value<QFont>();
    EXPECT_EQ(face.families(), QStringList("DejaVu Serif"));
    EXPECT_EQ(face.pointSize(), list.font().pointSize());
    test::Settle();
    EXPECT_GT(list.visualRect(list.model()->index(0, 0)).height(), list.fontMetrics().height());
}

TEST_F(ListsTest, ALetterGoesToTheItemThatBeginsWithIt) {
    auto& list = Widget<QListView>("List1");
    Key(list, Qt::Key_T);
    EXPECT_EQ(form.List1.ListIndex(), 1);
}

TEST_F(ListsTest, AnIndexWithoutAnItemShowsNone) {
    form.List1.SetListIndex(1);
    test::Settle();
    form.List1.SetListIndex(-1);
    auto& list = Widget<QListView>("List1");
    EXPECT_EQ(list.currentIndex().row(), -1);
    EXPECT_EQ(ShownPicks(list), std::vector<int>());
}

TEST_F(ListsTest, CheckMarksGoBothWays) {
    std::vector<int> told;
    form.lstChecks.ItemCheck = [&told](int index) { told.push_back(index); };
    form.lstChecks.SetSelected(2, true);
    auto& list = Widget<QListView>("lstChecks");
    EXPECT_TRUE(IsTicked(list, 2));
    EXPECT_FALSE(IsTicked(list, 0));
    EXPECT_EQ(ShownPicks(list), std::vector<int>());
    Click(list, list.model()->index(0, 0));
    Key(list, Qt::Key_Space);
    EXPECT_TRUE(form.lstChecks.Selected(0));
    EXPECT_TRUE(IsTicked(list, 0));
    EXPECT_EQ(told, (std::vector<int>{2, 0}));
}

TEST_F(ListsTest, OnlyAListWithCheckMarksHasThem) {
    auto& list = Widget<QListView>("List1");
    EXPECT_FALSE(list.model()->index(0, 0).data(Qt::CheckStateRole).isValid());
    Click(list, list.model()->index(0, 0));
    Key(list, Qt::Key_Space);
    EXPECT_FALSE(form.List1.Selected(0));
}

TEST_F(ListsTest, PicksGoBothWays) {
    form.lstPicks.SetSelected(2, true);
    auto& list = Widget<QListView>("lstPicks");
    EXPECT_EQ(ShownPicks(list), std::vector<int>{2});
    Click(list, list.model()->index(0, 0), Qt::ControlModifier);
    EXPECT_TRUE(form.lstPicks.Selected(0));
    EXPECT_TRUE(form.lstPicks.Selected(2));
    Click(list, list.model()->index(1, 0));
    EXPECT_FALSE(form.lstPicks.Selected(0));
    EXPECT_TRUE(form.lstPicks.Selected(1));
    EXPECT_FALSE(form.lstPicks.Selected(2));
    EXPECT_EQ(ShownPicks(list), std::vector<int>{1});
}

TEST_F(ListsTest, AComboBoxFollowsAndLeads) {
    auto& combo = Widget<QComboBox>("cboOne");
    EXPECT_EQ(combo.count(), 3);
    EXPECT_EQ(combo.currentIndex(), -1);
    form.cboOne.SetListIndex(1);
    EXPECT_EQ(combo.currentText(), QString("two"));
    combo.setFocus();
    QTest::keyClick(&combo, Qt::Key_Down);
    EXPECT_EQ(form.cboOne.Chosen(), u"three");
}

TEST_F(ListsTest, AComboBoxShowsTheChosenLineWhateverBecomesOfTheOthers) {
    int clicks = 0;
    form.cboOne.Click = [&clicks] { ++clicks; };
    auto& combo = Widget<QComboBox>("cboOne");
    form.cboOne.SetListIndex(1);
    form.cboOne.InsertItem(0, u"nought");
    EXPECT_EQ(combo.currentText(), QString("two"));
    form.cboOne.SetList(2, u"other");
    EXPECT_EQ(combo.currentText(), QString("other"));
    form.cboOne.RemoveItem(2);
    EXPECT_EQ(combo.currentText(), QString("three"));
    form.cboOne.Clear();
    EXPECT_EQ(combo.currentIndex(), -1);
    form.cboOne.AddItem(u"again");
    EXPECT_EQ(combo.currentIndex(), -1);
    EXPECT_EQ(combo.count(), 1);
    EXPECT_EQ(clicks, 1);
}

TEST_F(ListsTest, ManyItemsComeInOneGo) {
    auto& list = Widget<QListView>("List1");
    int tellings = 0;
    const QObject untilTheEnd;
    QObject::connect(list.model(), &QAbstractItemModel::rowsInserted, &untilTheEnd,
                     [&tellings] { ++tellings; });
    for (int i = 0; i < 1000; ++i)
        form.List1.AddItem(NumberText(i));
    EXPECT_EQ(tellings, 0);
    test::Settle();
    EXPECT_EQ(list.model()->rowCount(), 1003);
    EXPECT_EQ(tellings, 1);
}

TEST_F(ListsTest, AHandlerMayFillTheListAgainWhileItIsClicked) {
    form.List1.Click = [this] {
        if (form.List1.ListCount() != 3) return;
        form.List1.Clear();
        for (const TextView text : {u"a", u"b", u"c", u"d", u"e"})
            form.List1.AddItem(text);
        form.List1.SetListIndex(4);
    };
    auto& list = Widget<QListView>("List1");
    Click(list, list.model()->index(1, 0));
    EXPECT_EQ(form.List1.ListIndex(), 4);
    EXPECT_EQ(list.currentIndex().row(), 4);
    EXPECT_EQ(ShownPicks(list), std::vector<int>{4});
    EXPECT_EQ(Lines(list), (QStringList{"a", "b", "c", "d", "e"}));
}

TEST_F(ListsTest, AHandlerMayCloseTheWindowWhileItIsClicked) {
    form.List1.Click = [this] { form.Close(); };
    auto& list = Widget<QListView>("List1");
    Click(list, list.model()->index(1, 0));
    EXPECT_FALSE(form.Shown());
    EXPECT_EQ(form.List1.ListIndex(), 1);
}

TEST_F(ListsTest, AWindowMayCloseBeforeItsListsHaveFollowed) {
    form.List1.AddItem(u"late");
    form.lstPicks.SetSelected(0, true);
    form.ListView1.Add({.key = u"late", .texts = {u"late"}, .selected = true});
    form.FileTree.Add({}, u"late", u"Late");
    form.FileTree.Select(u"late");
    form.Close();
    test::Settle();
    EXPECT_FALSE(form.Shown());
    form.List1.AddItem(u"after");
    form.cboOne.AddItem(u"after");
    form.ListView1.Remove(1);
    form.FileTree.Remove(u"late");
    test::Settle();
}

TEST_F(ListsTest, AWindowThatIsShownAgainHasItsListsAsTheyAre) {
    form.Close();
    test::Settle();
    form.List1.AddItem(u"four");
    form.List1.SetListIndex(3);
    form.cboOne.SetListIndex(2);
    form.ListView1.Add({.key = u"a", .texts = {u"a"}, .selected = true});
    form.Show();
    EXPECT_EQ(Lines(Widget<QListView>("List1")), (QStringList{"one", "two", "three", "four"}));
    EXPECT_EQ(Widget<QListView>("List1").currentIndex().row(), 3);
    EXPECT_EQ(Widget<QComboBox>("cboOne").currentText(), QString("three"));
    EXPECT_EQ(ShownPicks(Widget<QTreeView>("ListView1")), std::vector<int>{0});
}

} // namespace
} // namespace korvane
