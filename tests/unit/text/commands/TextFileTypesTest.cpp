#include "text/commands/TextFileTypes.h"

#include "controls/Form.h"
#include "controls/text/TextControl.h"
#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

TEST(TextFileTypes, AreKnownByTheEndOfTheNameForALoad) {
    const std::pair<TextView, int> kNames[] = {
        {u"a.rtf", 5},  {u"a.htm", 4},  {u"a.html", 4},  {u"a.xhtml", 4}, {u"a.doc", 9}, {u"a.XML", 10},
        {u"a.css", 11}, {u"a.pdf", 12}, {u"a.docx", 13}, {u"a.xlsx", 15}, {u"a.txt", 1}, {u"a.asp", 1},
        {u"a.cgi", 1},  {u"a.xls", 1},  {u"a", 1},       {u"", 1},
    };
    for (const auto& [name, format] : kNames)
        EXPECT_EQ(FileTypeForLoad(name), format) << ToUtf8(name);
}

// Kept for compatibility: load-types-need-no-point.
TEST(TextFileTypes, NeedNoPointForALoad) {
    EXPECT_EQ(FileTypeForLoad(u"mydoc"), 9);
    EXPECT_EQ(FileTypeForLoad(u"myhtm"), 4);
}

TEST(TextFileTypes, OnlyKnownNamesAreTextsWhenTheyHaveToBe) {
    EXPECT_EQ(FileTypeForLoad(u"a.rtf", Strictness::KnownNames), 5);
    EXPECT_EQ(FileTypeForLoad(u"a.txt", Strictness::KnownNames), 1);
    EXPECT_EQ(FileTypeForLoad(u"a.lst", Strictness::KnownNames), 1);
    EXPECT_EQ(FileTypeForLoad(u"a.asc", Strictness::KnownNames), 1);
    EXPECT_EQ(FileTypeForLoad(u"a.png", Strictness::KnownNames), -1);
}

// Kept for compatibility: save-types-differ.
TEST(TextFileTypes, AreOthersForASave) {
    const std::pair<TextView, int> kNames[] = {
        {u"a.rtf", 5}, {u"a.htm", 4},   {u"a.HTML", 4},  {u"a.cgi", 4}, {u"a.asp", 4},
        {u"a.doc", 9}, {u"a.docx", 13}, {u"a.xhtml", 1}, {u"a.xml", 1}, {u"a.css", 1},
        {u"a.pdf", 1}, {u"a.xlsx", 1},  {u"mydoc", 1},   {u"", 1},
    };
    for (const auto& [name, format] : kNames)
        EXPECT_EQ(FileTypeForSave(name), format) << ToUtf8(name);
}

TEST(TextFileTypes, GiveTheControlItsAttributes) {
    ScriptedUser user;
    Form form(user, "Form", u"");
    TextControl control(form, "control");
    SetLoadSaveAttributes(control, TextFormat::Rtf);
    EXPECT_EQ(control.LoadSaveAttribute(38), 1);
    EXPECT_EQ(control.LoadSaveAttribute(1), 1);
    EXPECT_EQ(control.LoadSaveAttribute(37), 0);
    EXPECT_EQ(control.LoadSaveAttribute(15), 0);
    control.ImageSaveMode = 0;
    SetLoadSaveAttributes(control, TextFormat::Doc);
    EXPECT_EQ(control.LoadSaveAttribute(15), 1);
    EXPECT_EQ(control.ImageSaveMode, 0);
    EXPECT_EQ(control.LoadSaveAttribute(37), 0);
    SetLoadSaveAttributes(control, TextFormat::Html);
    EXPECT_EQ(control.LoadSaveAttribute(37), 1);
    EXPECT_EQ(control.ImageSaveMode, 1);
    TextControl other(form, "other");
    other.ImageSaveMode = 0;
    SetLoadSaveAttributes(other, TextFormat::Docx);
    EXPECT_EQ(other.LoadSaveAttribute(37), 1);
    EXPECT_EQ(other.LoadSaveAttribute(15), 1);
    EXPECT_EQ(other.ImageSaveMode, 1);
}

TEST(TextFileTypes, APlainSaveSetsNoAttributes) {
    ScriptedUser user;
    Form form(user, "Form", u"");
    TextControl control(form, "control");
    for (const TextView path : {u"C:\\a.txt", u"C:\\a.xml"}) {
        SaveByName(control, path);
        EXPECT_EQ(control.LoadSaveAttribute(38), 0);
        EXPECT_EQ(control.LoadSaveAttribute(1), 0);
    }
}

} // namespace
} // namespace korvane
