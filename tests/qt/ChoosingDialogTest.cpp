#include "platform/qt/dialogs/ChoosingDialog.h"

#include "SourceTree.h"
#include "context/ports/SystemFileDialog.h"
#include "platform/qt/base/Convert.h"
#include "platform/qt/dialogs/QtSystemFileDialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileSystemModel>
#include <QMessageBox>
#include <QSortFilterProxyModel>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

namespace korvane {
namespace {

namespace fs = std::filesystem;

void AskSystemDialog(SystemFileDialog::Purpose purpose, const Text& path) {
    QtSystemFileDialog().Choose(
        {.purpose = purpose, .filter = u"All files (*.*)|*.*", .title = {}, .name = path});
}

struct Opening {
    const char* name;
    void (*open)(const Text& path);
};

void PrintTo(const Opening& opening, std::ostream* out) {
    *out << opening.name;
}

const Opening kOpenings[] = {
    {"SystemOpen", [](const Text& path) { AskSystemDialog(SystemFileDialog::Purpose::Open, path); }},
    {"SystemSave", [](const Text& path) { AskSystemDialog(SystemFileDialog::Purpose::Save, path); }},
};

/// Opens dialogs on a folder that contains another folder with one file.
class ChoosingDialogTest : public testing::TestWithParam<Opening> {
protected:
    void SetUp() override {
        ASSERT_TRUE(dir.isValid());
        ASSERT_TRUE(QDir(dir.path()).mkdir("inner"));
        QFile file(dir.filePath("inner/text.txt"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }

    /// Opens the dialog, calls `act`, and closes the dialog again.
    void Open(const std::function<void(QFileDialog&)>& act) {
        QTimer::singleShot(0, [act] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            act(*dialog);
            dialog->reject();
        });
        GetParam().open(ToText(dir.filePath("present.tbx")));
    }

    /// The inner folder's index in the dialog's list.
    QModelIndex InnerFolder(const QFileDialog& dialog) const {
        const auto* files = dialog.findChild<QFileSystemModel*>("qt_filesystem_model");
        const QModelIndex index = files->index(dir.filePath("inner"));
        const auto* proxy = qobject_cast<QSortFilterProxyModel*>(dialog.proxyModel());
        return proxy == nullptr ? index : proxy->mapFromSource(index);
    }

    static QAbstractItemView& VisibleList(const QFileDialog& dialog) {
        auto* list = dialog.findChild<QAbstractItemView*>("listView");
        return list->isVisible() ? *list : *dialog.findChild<QAbstractItemView*>("treeView");
    }

    QTemporaryDir dir;
};

/// Answers the question whether to delete, if it is asked, with a click on "Yes".
void SayYes() {
    if (auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
        question->button(QMessageBox::Yes)->click();
}

TEST_P(ChoosingDialogTest, TheKeyDeleteAndAYesDeleteNoFolder) {
    Open([this](QFileDialog& dialog) {
        QAbstractItemView& list = VisibleList(dialog);
        list.setFocus();
        list.setCurrentIndex(InnerFolder(dialog));
        ASSERT_TRUE(list.currentIndex().isValid());
        QTimer::singleShot(0, &SayYes);
        QTest::keyClick(&list, Qt::Key_Delete);
        QTest::keyClick(&list, Qt::Key_Y);
    });
    EXPECT_TRUE(QFile::exists(dir.filePath("inner/text.txt")));
}

TEST_P(ChoosingDialogTest, NothingIsRenamed) {
    Open([this](QFileDialog& dialog) {
        const QModelIndex inner = InnerFolder(dialog);
        ASSERT_TRUE(inner.isValid());
        EXPECT_FALSE(inner.flags().testFlag(Qt::ItemIsEditable));
    });
}

INSTANTIATE_TEST_SUITE_P(Openings, ChoosingDialogTest, testing::ValuesIn(kOpenings),
                         [](const auto& each) { return each.param.name; });

TEST(ChoosingDialog, NobodyOpensAnotherFileDialog) {
    std::set<std::string> naming;
    for (const auto& entry : fs::recursive_directory_iterator(fs::path(KORVANE_SOURCE_DIR) / "src")) {
        if (!entry.is_regular_file()) continue;
        std::ifstream file(entry.path());
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        if (text.find("<QFileDialog>") != std::string::npos) naming.insert(entry.path().filename().string());
    }
    EXPECT_THAT(naming, testing::ElementsAre("ChoosingDialog.h"));
}

} // namespace
} // namespace korvane
