// Converts documents with the real programs.

#include "document/pdf/Pdf.h"
#include "document/rtf/Rtf.h"
#include "e2e/LoopbackServer.h"
#include "platform/native/process/ChildProcess.h"
#include "platform/native/process/NativeDocumentConverter.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

constexpr char kPdf[] = "%PDF-1.4\n"
                        "1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n"
                        "2 0 obj<</Type/Pages/Kids[3 0 R]/Count 1>>endobj\n"
                        "3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 300 200]/Contents 4 0 R"
                        "/Resources<</Font<</F1 5 0 R>>>>>>endobj\n"
                        "4 0 obj<</Length 58>>stream\n"
                        "BT /F1 24 Tf 20 100 Td (Hello PDF) Tj 0 -40 Td (two) Tj ET\n"
                        "endstream endobj\n"
                        "5 0 obj<</Type/Font/Subtype/Type1/BaseFont/Helvetica>>endobj\n"
                        "trailer<</Root 1 0 R>>\n%%EOF\n";

class DocumentPrograms : public testing::Test {
protected:
    NativeDocumentConverter converter{FindProgram, [] { return [] { return true; }; }};
};

TEST_F(DocumentPrograms, ADocKeepsTextAndLook) {
    doc::Document letter = doc::FromPlainText(u"Dear Zoë, €5\r\nbye");
    doc::CharFormat bold;
    bold.bold = true;
    bold.halfPoints = 36;
    letter.paragraphs[0].runs = {{4}, {8, letter.chars.Add(bold)}};
    const auto doc = converter.Convert(Conversion::RtfToDoc, doc::WriteRtf(letter));
    ASSERT_TRUE(doc);
    const auto rtf = converter.Convert(Conversion::DocToRtf, *doc);
    ASSERT_TRUE(rtf);
    const doc::Document back = doc::ReadRtf(*rtf).document;
    EXPECT_TRUE(doc::PlainText(back).starts_with(u"Dear Zoë, €5\r\nbye")) << ToUtf8(doc::PlainText(back));
    const doc::CharFormat& last = back.FormatOf(back.paragraphs[0].runs.back());
    EXPECT_TRUE(last.bold);
    EXPECT_EQ(last.halfPoints, 36);
    EXPECT_FALSE(back.FormatOf(back.paragraphs[0].runs.front()).bold);
}

TEST_F(DocumentPrograms, APdfIsReadAsItsLines) {
    const auto xml = converter.Convert(Conversion::PdfToXml, kPdf);
    ASSERT_TRUE(xml);
    const doc::Document document = doc::ReadPdfXml(*xml).document;
    EXPECT_EQ(doc::PlainText(document), u"Hello PDF\r\ntwo");
    EXPECT_EQ(document.page[doc::Page::Width], 6000);
    EXPECT_EQ(document.FormatOf(document.paragraphs[0].runs[0]).halfPoints, 48);
}

/// The bytes of a DOC file that names a picture elsewhere, as LibreOffice writes it.
std::string DocWithPicture(const std::string& address) {
    const TempDir folder;
    WriteBytes(folder / "page.html", "<html><body><p>text<img src=\"" + address + "\"></p></body></html>");
    ChildTask office;
    office.program = FindProgram("soffice");
    office.arguments = {"-env:UserInstallation=file://" + (folder / "profile").string(),
                        "--headless",
                        "--infilter=HTML (StarWriter)",
                        "--convert-to",
                        "doc:MS Word 97",
                        "page.html"};
    office.folder = folder.Path();
    if (RunChild(office, [] { return true; }) != ChildEnd::Succeeded) return {};
    return ReadBytes(folder / "page.doc");
}

TEST_F(DocumentPrograms, APictureElsewhereIsNeverAskedFor) {
    e2e::LoopbackServer server;
    const std::string address = server.Address("/a.png");
    const std::string doc = DocWithPicture(address);
    ASSERT_NE(doc.find(address), std::string::npos);
    const auto rtf = converter.Convert(Conversion::DocToRtf, doc);
    ASSERT_TRUE(rtf);
    EXPECT_NE(doc::PlainText(doc::ReadRtf(*rtf).document).find(u"text"), Text::npos);
    server.Drain();
    EXPECT_EQ(server.Paths(), std::vector<std::string>());
}

TEST_F(DocumentPrograms, OtherBytesAreNoDocuments) {
    EXPECT_EQ(converter.Convert(Conversion::PdfToXml, "no PDF"), std::nullopt);
}

} // namespace
} // namespace korvane
