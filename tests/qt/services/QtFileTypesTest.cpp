#include "platform/qt/services/QtFileTypes.h"

#include "platform/qt/base/Convert.h"
#include "platform/qt/look/Icons.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QIcon>
#include <QPixmap>
#include <string>

namespace korvane {
namespace {

std::string MimeType(const std::string& name, const std::string& comment, const std::string& more) {
    return "<mime-type type=\"" + name + "\"><comment>" + comment + "</comment>" + more + "</mime-type>";
}

std::string Pattern(const std::string& pattern) {
    return "<glob pattern=\"" + pattern + "\"/>";
}

/// The MIME data of a small desktop.
std::string MimeData() {
    return R"(<?xml version="1.0"?><mime-info xmlns="http://www.freedesktop.org/standards/shared-mime-info">)" +
           MimeType("application/octet-stream", "unknown", "") +
           MimeType("text/plain", "plain text", Pattern("*.txt") + Pattern("*.log")) +
           MimeType("text/x-recipe", "recipe", Pattern("recipe.txt")) +
           MimeType("image/x-drawing", "drawing",
                    "<generic-icon name=\"image-x-generic\"/>" + Pattern("*.dra")) +
           MimeType("application/gzip", "packed file",
                    "<generic-icon name=\"package-x-generic\"/>" + Pattern("*.gz")) +
           MimeType("application/x-packed-tar", "packed folder", Pattern("*.tar.gz")) +
           MimeType("application/x-song", "song", "<icon name=\"song-picture\"/>" + Pattern("*.song")) +
           "</mime-info>";
}

/// A desktop with this MIME data and with a theme that has a picture for songs only.
class SmallDesktop {
public:
    SmallDesktop() {
        namespace fs = std::filesystem;
        fs::create_directories(dir_ / "data/mime/packages");
        WriteBytes(dir_ / "data/mime/packages/all.xml", MimeData());
        fs::create_directories(dir_ / "icons/Small/16x16/mimetypes");
        WriteBytes(dir_ / "icons/Small/index.theme",
                   "[Icon Theme]\nName=Small\nDirectories=16x16/mimetypes\n\n[16x16/mimetypes]\nSize=16\n");
        qputenv("XDG_DATA_HOME", QByteArray::fromStdString((dir_ / "data").native()));
        qputenv("XDG_DATA_DIRS", QByteArray::fromStdString((dir_ / "none").native()));
    }
    void UseTheme() const {
        QPixmap picture(16, 16);
        picture.fill(Qt::blue);
        picture.save(
            QString::fromStdString((dir_ / "icons/Small/16x16/mimetypes/song-picture.png").native()));
        QIcon::setThemeSearchPaths({QString::fromStdString((dir_ / "icons").native())});
        QIcon::setThemeName(QStringLiteral("Small"));
    }

private:
    TempDir dir_;
};

struct QtFileTypesTest : testing::Test {
    QtFileTypesTest() { types.PrepareImages(); }
    Text NameOf(TextView path) { return types.TypeOf(path).name; }
    Text ImageOf(TextView path) { return types.TypeOf(path).image; }

    QtFileTypes types;
};

/// A system that knows texts, songs and databases by one name, and has no picture of logs.
class KnowingSystem final : public SystemFileTypes {
public:
    Text NameOf(TextView extension) const override {
        if (extension == u"log") return u"Log";
        return extension == u"dra" ? Text() : Text(u"Text Document");
    }
    Text ImageOf(TextView extension) const override {
        return extension == u"log" ? Text() : Text(u"picture of ").append(extension);
    }
    Text OwnImage(TextView path) const override { return Text(u"picture in ").append(path); }
};

TEST_F(QtFileTypesTest, NamesATypeAsTheDesktopDoes) {
    EXPECT_EQ(NameOf(u"/data/a.txt"), u"plain text");
    EXPECT_EQ(NameOf(u"b.dra"), u"drawing");
    EXPECT_EQ(NameOf(u"C:\\data.dra\\b.TXT"), u"plain text");
}

TEST_F(QtFileTypesTest, WhatTheSystemTellsTakesThePlaceOfTheData) {
    const KnowingSystem system;
    QtFileTypes ofSystem(&system);
    EXPECT_EQ(ofSystem.TypeOf(u"a.txt"), (FileType{u"Text Document", u"picture of txt"}));
    EXPECT_EQ(ofSystem.TypeOf(u"a.song"), (FileType{u"Text Document", u"picture of txt"}));
    EXPECT_EQ(ofSystem.TypeOf(u"a.log"), (FileType{u"Log", types.TypeOf(u"a.log").image}));
    EXPECT_EQ(&ofSystem.TypeOf(u"a.txt"), &ofSystem.TypeOf(u"b.txt"));
    EXPECT_EQ(ofSystem.TypeOf(u"a.dra").name, u"drawing");
    EXPECT_EQ(ofSystem.TypeOf(u"a.tbx").name, u"Korvane text database");
    EXPECT_EQ(ofSystem.OwnImage(u"a.exe"), u"picture in a.exe");
}

TEST_F(QtFileTypesTest, AFileNeedNotBeThere) {
    EXPECT_EQ(NameOf(u"/no such folder/a.txt"), u"plain text");
}

TEST_F(QtFileTypesTest, AllNamesOfATypeHaveTheSameObject) {
    EXPECT_EQ(&types.TypeOf(u"a.txt"), &types.TypeOf(u"/x/b.txt"));
    EXPECT_EQ(&types.TypeOf(u"a.txt"), &types.TypeOf(u"a.log"));
    EXPECT_NE(&types.TypeOf(u"a.txt"), &types.TypeOf(u"a.dra"));
}

TEST_F(QtFileTypesTest, AFileWhoseWholeNameHasATypeDoesntGiveItToOthers) {
    NameOf(u"recipe.txt");
    EXPECT_EQ(NameOf(u"a.txt"), u"plain text");
}

TEST_F(QtFileTypesTest, ANameWithoutAKnownExtensionIsUnknown) {
    for (const TextView name : {u"a", u"a.", u".txt", u"a.strange", u"", u".", u"..", u"/a.txt/b"}) {
        EXPECT_EQ(NameOf(name), u"unknown") << ToUtf8(name);
    }
    EXPECT_EQ(NameOf(Text(u"a.") + Text(300, u't')), u"unknown");
}

TEST_F(QtFileTypesTest, ACompressedFileHasTheTypeOfBothItsExtensions) {
    EXPECT_EQ(NameOf(u"a.tar.gz"), u"packed folder");
    EXPECT_EQ(NameOf(u"a.b.tar.gz"), u"packed folder");
    EXPECT_EQ(NameOf(u"a.gz"), u"packed file");
    EXPECT_EQ(NameOf(u"a.12.gz"), u"packed file");
    EXPECT_EQ(NameOf(u"tar.gz"), u"packed file");
    EXPECT_EQ(NameOf(u"a longer word.sentence.gz"), u"packed file");
}

TEST_F(QtFileTypesTest, ADatabaseHasATypeWhereTheDesktopDoesntKnowIt) {
    EXPECT_EQ(types.TypeOf(u"a.tbx"), (FileType{u"Korvane text database", u"fileTable"}));
    EXPECT_EQ(&types.TypeOf(u"a.tbx"), &types.TypeOf(u"A.TBX"));
}

TEST_F(QtFileTypesTest, ThePictureIsTheThemesOrElseTheProgramsOwn) {
    EXPECT_EQ(ImageOf(u"a.song"), u"song-picture");
    EXPECT_EQ(ImageOf(u"a.dra"), u"filePicture");
    EXPECT_EQ(ImageOf(u"a.gz"), u"filePackage");
    EXPECT_EQ(ImageOf(u"a.txt"), u"fileText");
    EXPECT_EQ(ImageOf(u"a"), u"fileOther");
}

TEST_F(QtFileTypesTest, AnotherThemeHasItsOwnPictures) {
    EXPECT_EQ(ImageOf(u"a.song"), u"song-picture");
    QIcon::setThemeName(QStringLiteral("None"));
    types.PrepareImages();
    EXPECT_EQ(ImageOf(u"a.song"), u"fileOther");
    QIcon::setThemeName(QStringLiteral("Small"));
}

TEST_F(QtFileTypesTest, TypesStayWhereTheyAreUntilTheThemeChanges) {
    const FileType* type = &types.TypeOf(u"a.txt");
    types.PrepareImages();
    EXPECT_EQ(&types.TypeOf(u"a.txt"), type);
}

TEST_F(QtFileTypesTest, ItAsksForALimitedNumberOfExtensions) {
    for (int number = 0; number < 3000; ++number)
        EXPECT_EQ(NameOf(u"data." + FromAscii(std::to_string(number))), u"unknown");
    EXPECT_EQ(NameOf(u"a.txt"), u"unknown");
    types.PrepareImages();
    EXPECT_EQ(NameOf(u"a.txt"), u"plain text");
}

TEST_F(QtFileTypesTest, FilesCarryNoPictures) {
    EXPECT_EQ(types.OwnImage(u"/bin/sh"), u"");
}

TEST_F(QtFileTypesTest, TheProgramHasEachPictureThatItPutsInPlaceOfAThemes) {
    for (const char* name : {"fileOther", "fileText", "filePicture", "fileSound", "fileVideo", "fileTable",
                             "filePackage", "fileProgram", "DOSExeIcon"}) {
        EXPECT_FALSE(TintedIcon(name).pixmap(16, 16).isNull()) << name;
    }
}

} // namespace
} // namespace korvane

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const korvane::SmallDesktop desktop;
    const QApplication application(argc, argv);
    desktop.UseTheme();
    return RUN_ALL_TESTS();
}
