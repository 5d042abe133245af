#include "document/docx/Docx.h"
#include "document/html/Html.h"
#include "document/rtf/Rtf.h"
#include "unit/tbx/TbxHarness.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

class DocumentExport : public testing::Test {
protected:
    DocumentExport() {
        std::vector<std::string> lines = RowLines(1, {"a1", "b1"});
        const std::vector<std::string> second = RowLines(2, {"a2", "b2"});
        lines.insert(lines.end(), second.begin(), second.end());
        run.files.AddFile(u"/data/people.tbx", TbxFile(lines));
    }
    doc::Document Rtf(std::vector<std::string> options) {
        options.insert(options.begin(), "rtf");
        options.emplace_back("/data/people.tbx");
        EXPECT_EQ(run.Run(options), ExitStatus::Success) << run.err;
        return doc::ReadRtf(run.out).document;
    }
    void ExpectRefusal(const std::vector<std::string>& options, const std::string& complaint) {
        std::vector<std::string> arguments{"rtf", "/data/people.tbx"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        EXPECT_EQ(run.Run(arguments), ExitStatus::Error);
        EXPECT_EQ(run.err, "tbx: " + complaint + "\n");
        EXPECT_EQ(run.out, "");
    }

    TbxHarness run;
};

TEST_F(DocumentExport, EachFormatHasTheRowsAsATable) {
    const doc::Document rtf = Rtf({});
    ASSERT_EQ(rtf.tables.size(), 1U);
    EXPECT_EQ(rtf.tables.begin()->second.rows.size(), 2U);
    EXPECT_EQ(doc::PlainText(rtf).substr(0, 14), u"a1\r\nb1\r\na2\r\nb2");
    ASSERT_EQ(run.Run({"html", "/data/people.tbx"}), ExitStatus::Success);
    EXPECT_EQ(doc::ReadHtml(run.out).document.tables.size(), 1U);
}

TEST_F(DocumentExport, DocxHasTheRowsAsATable) {
    ASSERT_EQ(run.Run({"docx", "/data/people.tbx"}), ExitStatus::Success);
    EXPECT_EQ(doc::ReadDocx(run.out).document.tables.size(), 1U);
}

TEST_F(DocumentExport, WithoutOptionsTheTableIsPlain) {
    const doc::Document document = Rtf({});
    const doc::CellFormat& cell = document.tables.begin()->second.rows[0].cells[0];
    EXPECT_EQ(cell.border[0], 0);
    EXPECT_EQ(cell.back, kNoColour);
    EXPECT_EQ(cell.gapLeft, 0);
}

TEST_F(DocumentExport, TheOptionsGiveTheLook) {
    const doc::Document document = Rtf({"--titles", "--first-back=#0000FF", "--first-fore", "#FFFFFF", "-a",
                                        "#FFCC00", "-l", "100", "-w", "15", "-g", "60"});
    const auto& rows = document.tables.begin()->second.rows;
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(doc::PlainText(document).substr(0, 10), u"Name\r\nNote");
    EXPECT_EQ(rows[0].cells[0].back, Colour{0xFF0000});
    EXPECT_EQ(rows[1].cells[0].back, kNoColour);
    EXPECT_EQ(rows[2].cells[0].back, Colour{0x00CCFF});
    EXPECT_EQ(rows[1].cells[0].border[0], 15);
    EXPECT_EQ(rows[1].cells[0].gapLeft, 60);
    EXPECT_EQ(rows[1].cells[0].left, 100);
    EXPECT_EQ(document.FormatOf(document.paragraphs[0].runs[0]).fore, Colour{0xFFFFFF});
}

TEST_F(DocumentExport, ValuesOfTheLookAreTested) {
    ExpectRefusal({"-w", "129"}, "the value of --border has to be 0 to 128, not \"129\"");
    ExpectRefusal({"-g", "x"}, "the value of --gap has to be 0 to 160, not \"x\"");
    ExpectRefusal({"-l", "-1"}, "the value of --left has to be 0 to 32767, not \"-1\"");
    ExpectRefusal({"-b", "red"}, "the value of --first-back has to be like #FFCC00, not \"red\"");
    ExpectRefusal({"-a", "#-12345"}, "the value of --alternate has to be like #FFCC00, not \"#-12345\"");
    ExpectRefusal({"--titles=1"}, "the option --titles takes no value");
}

TEST_F(DocumentExport, AFileThatCannotBeReadGivesNoDocument) {
    EXPECT_EQ(run.Run({"html", "/data/missing.tbx"}), ExitStatus::Error);
    EXPECT_EQ(run.out, "");
}

} // namespace
} // namespace korvane
