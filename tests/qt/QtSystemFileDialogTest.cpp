#include "platform/qt/dialogs/QtSystemFileDialog.h"

#include "QtSupport.h"
#include "platform/qt/base/Convert.h"
#include "platform/qt/dialogs/FileDialogFilters.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTimer>

namespace korvane {
namespace {

TEST(FileDialogFilters, PairsOfNamesAndPatternsAreWhatTheDialogsWant) {
    EXPECT_EQ(FileNameFilters(u"Excel tables (*.xls)|*.xls"), QStringList{"Excel tables (*.xls)"});
    EXPECT_EQ(FileNameFilters(u"List files (*.lst)|*.lst|All files (*.*)|*.*"),
              (QStringList{"List files (*.lst)", "All files (*)"}));
    EXPECT_EQ(FileNameFilters(u"Pictures|*.jpg;*.png"), QStringList{"Pictures (*.jpg *.png)"});
}

TEST(FileDialogFilters, ANameBehindAWrongSeparatorIsLeftOut) {
    EXPECT_EQ(FileNameFilters(u"Programs (*.exe)|*.exe;All files (*.*)|*.*"),
              QStringList{"Programs (*.exe)"});
}

TEST(FileDialogFilters, WithoutAnyThereIsNone) {
    EXPECT_EQ(FileNameFilters(u""), QStringList());
}

class QtSystemFileDialogTest : public testing::Test {
protected:
    std::optional<Text> Choose(const std::function<void(QFileDialog&)>& act) {
        QTimer::singleShot(0, [act] {
            auto* opened = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(opened, nullptr);
            act(*opened);
        });
        return dialog.Choose(request);
    }
    static void Accept(QFileDialog& opened) { QMetaObject::invokeMethod(&opened, "accept"); }
    Text PathOf(const char* name) const { return ToText(QDir::toNativeSeparators(dir.filePath(name))); }
    static QLineEdit& Name(QFileDialog& opened) { return *opened.findChild<QLineEdit*>("fileNameEdit"); }

    QTemporaryDir dir;
    QtSystemFileDialog dialog;
    SystemFileDialog::Request request{SystemFileDialog::Purpose::Save, u"Excel tables (*.xls)|*.xls",
                                      u"Save table", PathOf("table.xls"), u"xls"};
};

TEST_F(QtSystemFileDialogTest, OffersWhatTheRequestAsksFor) {
    const auto chosen = Choose([this](QFileDialog& opened) {
        EXPECT_EQ(opened.windowTitle(), QString("Save table"));
        EXPECT_EQ(opened.nameFilters(), QStringList{"Excel tables (*.xls)"});
        EXPECT_EQ(opened.directory(), QDir(dir.path()));
        EXPECT_EQ(opened.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(Name(opened).text(), QString("table.xls"));
        opened.reject();
    });
    EXPECT_EQ(chosen, std::nullopt);
}

TEST_F(QtSystemFileDialogTest, TellsTheChosenFile) {
    EXPECT_EQ(Choose(&Accept), PathOf("table.xls"));
}

TEST_F(QtSystemFileDialogTest, ANameWithoutAnExtensionGetsTheOneThatTheRequestNames) {
    const auto chosen = Choose([](QFileDialog& opened) {
        Name(opened).setText("other");
        Accept(opened);
    });
    EXPECT_EQ(chosen, PathOf("other.xls"));
}

TEST_F(QtSystemFileDialogTest, OpensAFileThatIsThere) {
    QFile file(dir.filePath("old.xls"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    request.purpose = SystemFileDialog::Purpose::Open;
    const auto chosen = Choose([](QFileDialog& opened) {
        EXPECT_EQ(opened.acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_EQ(opened.fileMode(), QFileDialog::ExistingFile);
        Name(opened).setText("old.xls");
        Accept(opened);
    });
    EXPECT_EQ(chosen, PathOf("old.xls"));
}

} // namespace
} // namespace korvane
