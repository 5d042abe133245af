#include "text/files/DocumentFiles.h"

#include "common/text/CodePage.h"
#include "testing/MemoryClock.h"
#include "testing/MemoryDocumentConverter.h"
#include "testing/MemoryFileSystem.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

class DocumentFilesTest : public testing::Test {
protected:
    static doc::Document Letter() { return doc::FromPlainText(u"Dear reader\r\nbye"); }
    Text Loaded(int format) {
        const auto read = documents.Load(kPath, format);
        return read ? doc::PlainText(read->document) : u"(none)";
    }

    const Text kPath = u"C:\\letter";
    MemoryClock clock;
    MemoryFileSystem disk{PathStyle::Windows, clock};
    MemoryDocumentConverter converter;
    DocumentFiles documents{disk, CodePage::Windows1252(), &converter};
};

TEST_F(DocumentFilesTest, WhatIsSavedIsLoadedInEachFormat) {
    for (const int format : {TextFormat::Plain, TextFormat::Html, TextFormat::Rtf, TextFormat::Xml,
                             TextFormat::Css, TextFormat::Docx}) {
        EXPECT_EQ(documents.Save(kPath, format, Letter()), TextSaving::Saved) << format;
        EXPECT_EQ(Loaded(format), u"Dear reader\r\nbye") << format;
    }
}

TEST_F(DocumentFilesTest, TheFilesAreOfTheirFormats) {
    documents.Save(kPath, TextFormat::Plain, Letter());
    EXPECT_EQ(disk.Contents(kPath), "Dear reader\r\nbye");
    documents.Save(kPath, TextFormat::Xml, Letter());
    EXPECT_EQ(disk.Contents(kPath), "Dear reader\r\nbye");
    documents.Save(kPath, TextFormat::Rtf, Letter());
    EXPECT_TRUE(disk.Contents(kPath)->starts_with("{\\rtf1"));
    documents.Save(kPath, TextFormat::Docx, Letter());
    EXPECT_TRUE(disk.Contents(kPath)->starts_with("PK"));
}

TEST_F(DocumentFilesTest, ADocGoesThroughAnotherProgramAsRtf) {
    converter.outcomes[Conversion::DocToRtf] = "{\\rtf1 from doc}";
    converter.outcomes[Conversion::RtfToDoc] = "doc bytes";
    disk.AddFile(kPath, "old doc");
    EXPECT_EQ(Loaded(TextFormat::Doc), u"from doc");
    EXPECT_EQ(converter.got[Conversion::DocToRtf], "old doc");
    EXPECT_EQ(documents.Save(kPath, TextFormat::Doc, Letter()), TextSaving::Saved);
    EXPECT_EQ(disk.Contents(kPath), "doc bytes");
    EXPECT_TRUE(converter.got[Conversion::RtfToDoc].starts_with("{\\rtf1"));
}

TEST_F(DocumentFilesTest, WithoutTheOtherProgramADocIsNeitherReadNorWritten) {
    disk.AddFile(kPath, "old doc");
    EXPECT_EQ(Loaded(TextFormat::Doc), u"(none)");
    EXPECT_EQ(documents.Save(kPath, TextFormat::Doc, Letter()), TextSaving::NotMade);
    EXPECT_EQ(disk.Contents(kPath), "old doc");
    DocumentFiles alone(disk, CodePage::Windows1252(), nullptr);
    EXPECT_FALSE(alone.Load(kPath, TextFormat::Doc));
    EXPECT_EQ(alone.Save(kPath, TextFormat::Doc, Letter()), TextSaving::NotMade);
}

TEST_F(DocumentFilesTest, APdfIsReadWithAnotherProgramAndNeverWritten) {
    converter.outcomes[Conversion::PdfToXml] =
        "<pdf2xml><page><text top=\"1\">from pdf</text></page></pdf2xml>";
    disk.AddFile(kPath, "%PDF-1.4");
    EXPECT_EQ(Loaded(TextFormat::Pdf), u"from pdf");
    EXPECT_EQ(converter.got[Conversion::PdfToXml], "%PDF-1.4");
    EXPECT_EQ(documents.Save(kPath, TextFormat::Pdf, Letter()), TextSaving::NotMade);
    EXPECT_EQ(disk.Contents(kPath), "%PDF-1.4");
}

TEST_F(DocumentFilesTest, AnRtfCalledDocIsReadAsItIs) {
    disk.AddFile(kPath, "{\\rtf1 plain}");
    EXPECT_EQ(Loaded(TextFormat::Doc), u"plain");
    EXPECT_TRUE(converter.got.empty());
}

TEST_F(DocumentFilesTest, AFileOfAnotherFormatThatIsMissingOrUnknownIsNotLoaded) {
    EXPECT_EQ(Loaded(TextFormat::Rtf), u"(none)");
    disk.AddFile(kPath, "\x89PNG");
    EXPECT_EQ(Loaded(TextFormat::Rtf), u"(none)");
    EXPECT_EQ(Loaded(TextFormat::Docx), u"(none)");
    EXPECT_EQ(Loaded(77), u"(none)");
    EXPECT_EQ(documents.Save(kPath, 77, Letter()), TextSaving::NotMade);
}

TEST_F(DocumentFilesTest, AFailedSaveLeavesTheOldFile) {
    disk.AddFile(kPath, "old");
    disk.Faults().FailNth(FileStep::Write, 1);
    EXPECT_EQ(documents.Save(kPath, TextFormat::Rtf, Letter()), TextSaving::NotWritten);
    EXPECT_EQ(disk.Contents(kPath), "old");
    disk.SetFileReadOnly(kPath);
    EXPECT_EQ(documents.Save(kPath, TextFormat::Rtf, Letter()), TextSaving::NotWritten);
    EXPECT_EQ(disk.Contents(kPath), "old");
}

TEST_F(DocumentFilesTest, InMemoryOnlyOwnFormatsAreReadAndWritten) {
    const auto html = documents.Written(Letter(), TextFormat::Html);
    ASSERT_TRUE(html);
    const auto read = documents.Read(*html, TextFormat::Html);
    ASSERT_TRUE(read);
    EXPECT_EQ(doc::PlainText(read->document), u"Dear reader\r\nbye");
    EXPECT_FALSE(documents.Written(Letter(), TextFormat::Doc));
    EXPECT_FALSE(documents.Read("doc", TextFormat::Doc));
}

TEST_F(DocumentFilesTest, TellsWhichProgramAFormatNeeds) {
    converter.missing = "Office";
    converter.outcomes[Conversion::DocToRtf] = "{\\rtf1}";
    EXPECT_EQ(documents.Needed(TextFormat::Doc, FileUse::Reading), u"");
    EXPECT_EQ(documents.Needed(TextFormat::Doc, FileUse::Writing), u"Office");
    EXPECT_EQ(documents.Needed(TextFormat::Pdf, FileUse::Reading), u"Office");
    EXPECT_EQ(documents.Needed(TextFormat::Rtf, FileUse::Reading), u"");
    EXPECT_EQ(documents.Needed(99, FileUse::Reading), u"");
}

} // namespace
} // namespace korvane
