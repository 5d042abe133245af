#include "files/lister/rows/NonTextFiles.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

TEST(NonTextFiles, AreToldByTheEndOfTheName) {
    for (const TextView end : {u".ASP",  u".CGI", u".PHP",  u".DBF", u".MDB", u".ACCDB", u".DOX", u".XLS",
                               u".XLSX", u".PPT", u".PPTX", u".PUB", u".JPG", u".JPEG",  u".BMP", u".GIF",
                               u".TIF",  u".WMF", u".ICO",  u".WAV", u".MP3", u".PDF"})
        EXPECT_TRUE(IsNonTextFile(u"C:\\x\\name" + Text(end))) << ToUtf8(end);
}

TEST(NonTextFiles, AreToldWithoutCase) {
    EXPECT_TRUE(IsNonTextFile(u"photo.Jpeg"));
    EXPECT_TRUE(IsNonTextFile(u"table.accdb"));
}

// Kept for compatibility: non-text-files-list.
TEST(NonTextFiles, AWordFileAndAPngAreLeftToTheLoad) {
    EXPECT_FALSE(IsNonTextFile(u"letter.doc"));
    EXPECT_FALSE(IsNonTextFile(u"letter.docx"));
    EXPECT_FALSE(IsNonTextFile(u"photo.png"));
}

TEST(NonTextFiles, OthersAreNone) {
    EXPECT_FALSE(IsNonTextFile(u"a.tbx"));
    EXPECT_FALSE(IsNonTextFile(u"jpg"));
    EXPECT_FALSE(IsNonTextFile(u""));
}

TEST(NonTextFiles, ShortcutsAreToldByThreeEnds) {
    EXPECT_TRUE(IsShortcutFile(u"a.LNK"));
    EXPECT_TRUE(IsShortcutFile(u"a.url"));
    EXPECT_TRUE(IsShortcutFile(u"a.pbk"));
    EXPECT_FALSE(IsShortcutFile(u"a.lnk.txt"));
}

} // namespace
} // namespace korvane
