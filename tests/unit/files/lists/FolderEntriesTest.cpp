#include "files/lists/FolderEntries.h"

#include "controls/Form.h"
#include "controls/lists/ListBox.h"
#include "support/TestApp.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FolderEntriesTest : public testing::Test {
protected:
    FolderEntriesTest() {
        for (const TextView entry : {u"C:\\a", u"C:\\b", u"C:\\c"})
            list.AddItem(entry);
        list.SetListIndex(1);
    }

    TestApp t;
    Form form{t.app.Forms(), "frmAny", u""};
    ListBox list{form, "list"};
};

TEST_F(FolderEntriesTest, AFolderGoesInAtTheCurrentPlace) {
    AddFolderEntry(t.app, list, u"C:\\new");
    EXPECT_THAT(EntriesOf(list), ElementsAre(u"C:\\a", u"C:\\new", u"C:\\b", u"C:\\c"));
    EXPECT_EQ(list.ListIndex(), 1);
}

TEST_F(FolderEntriesTest, AFolderGoesIntoAnEmptyList) {
    list.Clear();
    AddFolderEntry(t.app, list, u"C:\\new");
    EXPECT_THAT(EntriesOf(list), ElementsAre(u"C:\\new"));
    EXPECT_EQ(list.ListIndex(), 0);
}

TEST_F(FolderEntriesTest, AFolderThatIsThereIsRefused) {
    t.user.Answer({u"This folder is already in the list: \r\n\r\nC:\\c", MessageIcon::Information},
                  Answer::Ok);
    AddFolderEntry(t.app, list, u"C:\\c");
    EXPECT_EQ(list.ListCount(), 3);
    EXPECT_EQ(list.ListIndex(), 1);
}

TEST_F(FolderEntriesTest, CapitalsMakeAnotherFolder) {
    AddFolderEntry(t.app, list, u"C:\\C");
    EXPECT_EQ(list.ListCount(), 4);
}

TEST_F(FolderEntriesTest, AnEntryPastTheEndGoesToTheEnd) {
    InsertEntry(list, 9, u"x");
    EXPECT_EQ(list.ListIndex(), 3);
    EXPECT_EQ(list.List(3), u"x");
}

TEST_F(FolderEntriesTest, AnEntryMovesWithTheSelection) {
    MoveEntryDown(list);
    EXPECT_THAT(EntriesOf(list), ElementsAre(u"C:\\a", u"C:\\c", u"C:\\b"));
    EXPECT_EQ(list.ListIndex(), 2);
    MoveEntryUp(list);
    MoveEntryUp(list);
    EXPECT_THAT(EntriesOf(list), ElementsAre(u"C:\\b", u"C:\\a", u"C:\\c"));
    EXPECT_EQ(list.ListIndex(), 0);
}

TEST_F(FolderEntriesTest, AtTheEndsNothingMoves) {
    list.SetListIndex(2);
    MoveEntryDown(list);
    EXPECT_EQ(list.ListIndex(), 2);
    list.SetListIndex(0);
    MoveEntryUp(list);
    EXPECT_THAT(EntriesOf(list), ElementsAre(u"C:\\a", u"C:\\b", u"C:\\c"));
    list.Clear();
    MoveEntryDown(list);
    MoveEntryUp(list);
    EXPECT_EQ(list.ListCount(), 0);
}

TEST_F(FolderEntriesTest, TheFileManagerShowsTheCurrentFolder) {
    ExploreEntry(t.app, list);
    EXPECT_THAT(t.shell.Opened(), ElementsAre(OpenRequest{u"explore", u"C:\\b", u"", u"C:\\b"}));
}

TEST_F(FolderEntriesTest, AnEmptyEntryIsNotExplored) {
    list.SetList(1, u"");
    ExploreEntry(t.app, list);
    list.Clear();
    ExploreEntry(t.app, list);
    EXPECT_THAT(t.shell.Opened(), IsEmpty());
}

} // namespace
} // namespace korvane
