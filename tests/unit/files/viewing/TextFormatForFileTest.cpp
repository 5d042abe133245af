#include "files/viewing/TextFormatForFile.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

TextFormat FormatOf(TextView path) {
    return TextFormatForFile(path, OtherFiles::None);
}

TEST(TextFormatForFileTest, KnowsTheFormatsByTheEndOfTheName) {
    EXPECT_EQ(FormatOf(u"a.rtf"), TextFormat::Rtf);
    EXPECT_EQ(FormatOf(u"a.htm"), TextFormat::Html);
    EXPECT_EQ(FormatOf(u"a.html"), TextFormat::Html);
    EXPECT_EQ(FormatOf(u"a.xhtml"), TextFormat::Html);
    EXPECT_EQ(FormatOf(u"a.doc"), TextFormat::Doc);
    EXPECT_EQ(FormatOf(u"a.xml"), TextFormat::Xml);
    EXPECT_EQ(FormatOf(u"a.css"), TextFormat::Css);
    EXPECT_EQ(FormatOf(u"a.pdf"), TextFormat::Pdf);
    EXPECT_EQ(FormatOf(u"a.docx"), TextFormat::Docx);
    EXPECT_EQ(FormatOf(u"a.xlsx"), TextFormat::Xlsx);
}

TEST(TextFormatForFileTest, TheNumbersOfTheFormats) {
    EXPECT_EQ(static_cast<int>(TextFormat::None), -1);
    EXPECT_EQ(static_cast<int>(TextFormat::Plain), 1);
    EXPECT_EQ(static_cast<int>(TextFormat::Html), 4);
    EXPECT_EQ(static_cast<int>(TextFormat::Rtf), 5);
    EXPECT_EQ(static_cast<int>(TextFormat::Doc), 9);
    EXPECT_EQ(static_cast<int>(TextFormat::Xml), 10);
    EXPECT_EQ(static_cast<int>(TextFormat::Css), 11);
    EXPECT_EQ(static_cast<int>(TextFormat::Pdf), 12);
    EXPECT_EQ(static_cast<int>(TextFormat::Docx), 13);
    EXPECT_EQ(static_cast<int>(TextFormat::Xlsx), 15);
}

TEST(TextFormatForFileTest, CapitalsCountAsSmallLetters) {
    EXPECT_EQ(FormatOf(u"C:\\Data\\A.DocX"), TextFormat::Docx);
}

TEST(TextFormatForFileTest, NoPointIsNeeded) {
    EXPECT_EQ(FormatOf(u"my rtf"), TextFormat::Rtf);
    EXPECT_EQ(FormatOf(u"notehtml"), TextFormat::Html);
    EXPECT_EQ(FormatOf(u"mytxt"), TextFormat::Plain);
}

TEST(TextFormatForFileTest, PlainKindsAreNamedWhereOthersAreNone) {
    for (const TextView path : {u"a.txt", u"a.lst", u"a.asc"})
        EXPECT_EQ(FormatOf(path), TextFormat::Plain);
    for (const TextView path : {u"a.tbx", u"a", u"", u"a.xls", u"a.odt"})
        EXPECT_EQ(FormatOf(path), TextFormat::None);
}

TEST(TextFormatForFileTest, ElseEveryOtherFileIsPlain) {
    for (const TextView path : {u"a.txt", u"a.tbx", u"a", u"", u"a.xls"})
        EXPECT_EQ(TextFormatForFile(path, OtherFiles::Plain), TextFormat::Plain);
    EXPECT_EQ(TextFormatForFile(u"a.rtf", OtherFiles::Plain), TextFormat::Rtf);
}

} // namespace
} // namespace korvane
