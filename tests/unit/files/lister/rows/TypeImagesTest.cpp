#include "files/lister/rows/TypeImages.h"

#include "support/TestApp.h"
#include "testing/MemoryFileTypes.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct TypeImagesTest : testing::Test {
    TestApp t;
    TypeImages images{t.app};
};

TEST_F(TypeImagesTest, AreThoseOfTheTypes) {
    t.fileTypes.SetType(u".txt", {u"Text document", u"fileText"});
    ASSERT_TRUE(images.Prepare());
    EXPECT_EQ(images.ImageOf(u"C:\\", u"a.txt"), u"fileText");
    EXPECT_EQ(images.ImageOf(u"C:\\", u"a"), u"fileOther");
    EXPECT_THAT(t.fileTypes.FilesRead(), IsEmpty());
}

TEST_F(TypeImagesTest, AFileIsReadOnlyWhereItCarriesOneItself) {
    t.fileTypes.SetType(u".exe", {u"Application", u"fileProgram"});
    t.fileTypes.SetOwnImage(u"C:\\a.exe", u"own");
    images.Prepare();
    EXPECT_EQ(images.ImageOf(u"C:\\", u"a.exe"), u"own");
    EXPECT_THAT(t.fileTypes.FilesRead(), ElementsAre(u"C:\\a.exe"));
}

TEST_F(TypeImagesTest, ProgramsWithoutOneShareOne) {
    t.fileTypes.SetType(u".exe", {u"Application", u"fileProgram"});
    images.Prepare();
    EXPECT_EQ(images.ImageOf(u"C:\\", u"a.exe"), u"DOSExeIcon");
}

TEST_F(TypeImagesTest, AShortcutWithoutOneHasThatOfItsType) {
    t.fileTypes.SetType(u".lnk", {u"Shortcut", u"fileLink"});
    t.fileTypes.SetOwnImage(u"C:\\a.lnk", u"target");
    images.Prepare();
    EXPECT_EQ(images.ImageOf(u"C:\\", u"a.lnk"), u"target");
    EXPECT_EQ(images.ImageOf(u"C:\\", u"b.lnk"), u"fileLink");
}

TEST_F(TypeImagesTest, TheTypesAreKnownInTwoLanguages) {
    t.fileTypes.SetType(u".exe", {u"Приложение", u"fileProgram"});
    t.fileTypes.SetType(u".lnk", {u"Ярлык", u"fileLink"});
    images.Prepare();
    images.ImageOf(u"C:\\", u"a.exe");
    images.ImageOf(u"C:\\", u"a.lnk");
    EXPECT_THAT(t.fileTypes.FilesRead(), ElementsAre(u"C:\\a.exe", u"C:\\a.lnk"));
}

TEST_F(TypeImagesTest, OtherTypesOfSimilarNamesCarryNone) {
    t.fileTypes.SetType(u".dll", {u"Application extension", u"fileOther"});
    images.Prepare();
    images.ImageOf(u"C:\\", u"a.dll");
    EXPECT_THAT(t.fileTypes.FilesRead(), IsEmpty());
}

TEST_F(TypeImagesTest, ThereMayBeNone) {
    t.fileTypes.SetHasImages(false);
    EXPECT_FALSE(images.Prepare());
}

} // namespace
} // namespace korvane
