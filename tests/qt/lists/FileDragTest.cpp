// Rows that stand for files are dragged to other programs.

#include "ListsFixture.h"
#include "platform/native/FileAddress.h"
#include "platform/qt/adaptors/DroppedFiles.h"

#include <QMimeData>
#include <QUrl>

namespace korvane {
namespace {

/// A window whose second list shows files.
class FileDragTest : public test::ListsFixture {
protected:
    void SetUp() override {
        form.ListView1.MultiSelect = true;
        for (const TextView name : {u"a.txt", u"b c.txt", u"d#e%20.txt"})
            form.ListView1.Add({.texts = {Text(name), u"7"}});
    }
    void DragFiles() {
        form.ListView1.FilesToDrag = [this] {
            std::vector<Text> paths;
            for (const int row : form.ListView1.SelectedRows())
                paths.push_back(u"/data/" + Text(form.ListView1.TextAt(row, 1)));
            return paths;
        };
    }
    void ShowForm() { ListsFixture::SetUp(); }
    QTreeView& View() { return Widget<QTreeView>("ListView1"); }
    QModelIndex At(int row) { return View().model()->index(row, 0); }
    /// What another program gets of the picked rows.
    std::unique_ptr<QMimeData> Dragged() {
        return std::unique_ptr<QMimeData>(
            View().model()->mimeData(View().selectionModel()->selectedIndexes()));
    }
};

TEST_F(FileDragTest, OtherProgramsGetTheFilesOfThePickedRows) {
    DragFiles();
    ShowForm();
    form.ListView1.SetSelected(2, true);
    form.ListView1.SetSelected(3, true);
    const auto dragged = Dragged();
    ASSERT_NE(dragged, nullptr);
    EXPECT_EQ(dragged->urls(),
              (QList<QUrl>{QUrl::fromLocalFile("/data/b c.txt"), QUrl::fromLocalFile("/data/d#e%20.txt")}));
    EXPECT_EQ(dragged->urls().back().toLocalFile(), "/data/d#e%20.txt");
}

TEST_F(FileDragTest, ANameThatIsNoTextLeadsToItsFile) {
    constexpr TextView kPath = u"/data/not \xDCFF text";
    form.ListView1.FilesToDrag = [&] { return std::vector<Text>{Text(kPath)}; };
    ShowForm();
    EXPECT_EQ(Dragged()->urls().front().toEncoded().toStdString(), FileAddress(kPath));
}

TEST_F(FileDragTest, TheyGetCopiesAndTheRowsStay) {
    DragFiles();
    ShowForm();
    EXPECT_TRUE(View().dragEnabled());
    EXPECT_TRUE(At(0).flags().testFlag(Qt::ItemIsDragEnabled));
    EXPECT_EQ(View().model()->supportedDragActions(), Qt::CopyAction);
    EXPECT_EQ(View().model()->mimeTypes(), QStringList{"text/uri-list"});
}

TEST_F(FileDragTest, ARowThatIsPressedIsPickedBeforeItIsDragged) {
    DragFiles();
    ShowForm();
    QTest::mousePress(View().viewport(), Qt::LeftButton, {}, View().visualRect(At(1)).center());
    EXPECT_EQ(Dragged()->urls(), QList<QUrl>{QUrl::fromLocalFile("/data/b c.txt")});
    QTest::mouseRelease(View().viewport(), Qt::LeftButton, {}, View().visualRect(At(1)).center());
}

TEST_F(FileDragTest, APressOnOneOfSeveralPickedRowsKeepsThemAllForTheDrag) {
    DragFiles();
    ShowForm();
    form.ListView1.SetAllSelected(true);
    QTest::mousePress(View().viewport(), Qt::LeftButton, {}, View().visualRect(At(1)).center());
    EXPECT_EQ(Dragged()->urls().size(), 3);
    QTest::mouseRelease(View().viewport(), Qt::LeftButton, {}, View().visualRect(At(1)).center());
    EXPECT_EQ(form.ListView1.SelectedRows(), std::vector<int>{2});
}

TEST_F(FileDragTest, WithoutFilesThereIsNothingToDrag) {
    DragFiles();
    ShowForm();
    form.ListView1.SetAllSelected(false);
    EXPECT_EQ(Dragged(), nullptr);
}

TEST_F(FileDragTest, RowsThatAreNoFilesAreNotDragged) {
    ShowForm();
    form.ListView1.SetAllSelected(true);
    EXPECT_FALSE(View().dragEnabled());
    EXPECT_FALSE(At(0).flags().testFlag(Qt::ItemIsDragEnabled));
    EXPECT_EQ(Dragged(), nullptr);
}

TEST(DroppedFilesTest, AFolderIsNamedAsItStandsInPaths) {
#ifdef _WIN32
    const QString root = "file:///C:/";
    const std::vector<Text> paths{u"C:\\data\\sub folder", u"C:\\data\\a.txt", u"C:\\"};
#else
    const QString root = "file:///";
    const std::vector<Text> paths{u"/data/sub folder", u"/data/a.txt", u"/"};
#endif
    QMimeData dragged;
    dragged.setUrls({QUrl(root + "data/sub%20folder/"), QUrl(root + "data/a.txt"), QUrl(root),
                     QUrl("http://example.org/a.txt")});
    EXPECT_EQ(LocalFiles(dragged), paths);
}

} // namespace
} // namespace korvane
