#include "document/docx/Docx.h"
#include "document/docx/DocxParts.h"
#include "document/docx/Elements.h"
#include "document/docx/SmallParts.h"
#include "document/model/ListTable.h"
#include "document/model/Pieces.h"
#include "document/package/Xml.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace korvane::doc {

using namespace docx;

namespace {

constexpr std::int32_t kTwipsPerHalfPoint = 10;
constexpr double kLineParts = 240;
constexpr std::int64_t kEmuPerTwip = 635;

/// Makes the part with the text piece by piece, so that a long text is never there as XML in one piece.
class Body {
public:
    Body(const Document& document, const ListTable& lists)
        : document_(document), lists_(lists), looks_(document.chars.Size()), shapes_(document.paras.Size()) {}

    /// The next piece; an empty one after the last.
    std::string_view Next() {
        body_.clear();
        while (body_.size() < kPieceOfText && !ended_)
            Continue();
        return body_;
    }
    /// What the pieces so far refer to.
    const std::string& Relations() const { return relations_; }
    /// The pictures of the pieces so far by the names of their parts.
    const std::vector<std::pair<std::string, SharedBytes>>& Media() const { return media_; }

private:
    void Continue() {
        if (!std::exchange(begun_, true)) return Begin();
        if (paragraph_ == document_.paragraphs.size()) return End();
        const Paragraph& paragraph = document_.paragraphs[paragraph_];
        if (!std::exchange(inParagraph_, true))
            BeginParagraph(paragraph);
        else if (run_ < paragraph.runs.size())
            ContinueRun(paragraph, paragraph.runs[run_]);
        else
            EndParagraph();
    }

    void Begin() {
        AddRelation("styles", "styles.xml", false);
        AddRelation("settings", "settings.xml", false);
        if (!lists_.Lists().empty()) AddRelation("numbering", "numbering.xml", false);
        body_ = kHead;
        body_ += "<w:document ";
        body_ += kMain;
        body_ += " xmlns:r=\"";
        body_ += kOffice;
        body_ += "\" xmlns:wp=\"http://schemas.openxmlformats.org/drawingml/2006/wordprocessingDrawing\""
                 " xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/main\""
                 " xmlns:pic=\"http://schemas.openxmlformats.org/drawingml/2006/picture\"><w:body>";
    }

    void End() {
        WriteSection();
        body_ += "</w:body></w:document>";
        ended_ = true;
    }

    /// Adds what the document refers to, and gives the number by which it does.
    std::string AddRelation(std::string_view type, std::string_view target, bool external) {
        const std::string id = "rId" + std::to_string(++relationCount_);
        relations_ += "<Relationship Id=\"" + id + "\" Type=\"";
        relations_ += kOffice;
        relations_ += '/';
        relations_ += type;
        relations_ += "\" Target=\"";
        PutXml(relations_, FromUtf8(target));
        relations_ += external ? "\" TargetMode=\"External\"/>" : "\"/>";
        return id;
    }

    void WriteSection() {
        const Page& page = document_.page;
        body_ += "<w:sectPr><w:pgSz";
        PutAttribute(body_, "w:w", page[Page::Width]);
        PutAttribute(body_, "w:h", page[Page::Height]);
        body_ += "/><w:pgMar";
        PutAttribute(body_, "w:top", page[Page::MarginTop]);
        PutAttribute(body_, "w:right", page[Page::MarginRight]);
        PutAttribute(body_, "w:bottom", page[Page::MarginBottom]);
        PutAttribute(body_, "w:left", page[Page::MarginLeft]);
        body_ += " w:header=\"0\" w:footer=\"0\" w:gutter=\"0\"/></w:sectPr>";
    }

    void MoveTo(const CellPlace& from, const CellPlace& to) {
        if (from == to) return;
        const bool sameTable = from.table == to.table;
        const bool sameRow = sameTable && from.row == to.row;
        if (from.table != 0) body_ += "</w:tc>";
        if (from.table != 0 && !sameRow) body_ += "</w:tr>";
        if (from.table != 0 && !sameTable) body_ += "</w:tbl>";
        if (to.table == 0) return;
        const Table& table = document_.tables.at(to.table);
        if (!sameTable) BeginTable(table.rows[0]);
        if (!sameRow) body_ += "<w:tr>";
        BeginCell(table.rows[to.row].cells[to.column]);
    }

    void BeginTable(const TableRow& first) {
        body_ += "<w:tbl><w:tblPr><w:tblW w:w=\"0\" w:type=\"auto\"/>";
        if (first.cells[0].left) {
            body_ += "<w:tblInd";
            PutAttribute(body_, "w:w", *first.cells[0].left);
            body_ += " w:type=\"dxa\"/>";
        }
        body_ += "<w:tblLayout w:type=\"fixed\"/></w:tblPr><w:tblGrid>";
        for (const CellFormat& cell : first.cells) {
            body_ += "<w:gridCol";
            PutAttribute(body_, "w:w", cell.width);
            body_ += "/>";
        }
        body_ += "</w:tblGrid>";
    }

    void BeginCell(const CellFormat& cell) {
        static constexpr std::pair<Side, std::string_view> kSides[] = {{Side::Top, "w:top"},
                                                                       {Side::Left, "w:left"},
                                                                       {Side::Bottom, "w:bottom"},
                                                                       {Side::Right, "w:right"}};
        body_ += "<w:tc><w:tcPr><w:tcW";
        PutAttribute(body_, "w:w", cell.width);
        body_ += " w:type=\"dxa\"/><w:tcBorders>";
        for (const auto& [side, element] : kSides) {
            const std::int32_t width = cell.border[static_cast<std::size_t>(side)];
            PutLine(body_, element, width == 0 ? "nil" : "single", width, 0);
        }
        body_ += "</w:tcBorders>";
        if (cell.back != kNoColour) PutShading(body_, cell.back);
        body_ += "<w:tcMar><w:left";
        PutAttribute(body_, "w:w", cell.gapLeft);
        body_ += " w:type=\"dxa\"/><w:right";
        PutAttribute(body_, "w:w", cell.gapRight);
        body_ += " w:type=\"dxa\"/></w:tcMar></w:tcPr>";
    }

    void BeginParagraph(const Paragraph& paragraph) {
        MoveTo(place_, paragraph.cell);
        place_ = paragraph.cell;
        std::optional<std::string>& shape = shapes_[paragraph.format];
        if (!shape) shape = ShapeOf(document_.FormatOf(paragraph));
        const std::string& mark = paragraph.text.empty() ? LookOf(paragraph.emptyFormat) : kNothing_;
        body_ += "<w:p>";
        if (!shape->empty() || !mark.empty()) body_ += "<w:pPr>" + *shape + mark + "</w:pPr>";
        run_ = at_ = atInRun_ = 0;
    }

    void EndParagraph() {
        ChangeLink(0);
        body_ += "</w:p>";
        ++paragraph_;
        inParagraph_ = false;
    }

    void ContinueRun(const Paragraph& paragraph, const Run& run) {
        if (atInRun_ == 0) BeginRun(run);
        const std::size_t length = LengthOfPiece(TextView(paragraph.text).substr(at_, run.length - atInRun_));
        if (run.image == 0) WriteText(TextView(paragraph.text).substr(at_, length));
        at_ += length;
        atInRun_ += length;
        if (atInRun_ < run.length) return;
        body_ += "</w:r>";
        ++run_;
        atInRun_ = 0;
    }

    void BeginRun(const Run& run) {
        ChangeLink(run.field);
        body_ += "<w:r>";
        body_ += LookOf(run.format);
        if (run.image != 0) WriteImage(document_.images[run.image - 1], run.image);
    }

    void WriteText(TextView text) {
        while (!text.empty()) {
            const std::size_t end = std::min(text.find_first_of(u"\t\v"), text.size());
            if (end > 0) {
                WriteWords(text.substr(0, end));
            }
            text.remove_prefix(end);
            if (text.empty()) return;
            body_ += text[0] == u'\t' ? "<w:tab/>" : "<w:br/>";
            text.remove_prefix(1);
        }
    }

    void WriteWords(TextView text) {
        const bool blanks = text.front() == u' ' || text.back() == u' ';
        body_ += blanks ? "<w:t xml:space=\"preserve\">" : "<w:t>";
        PutXml(body_, text);
        body_ += "</w:t>";
    }

    const Field* LinkOf(Index field) const {
        const auto found = document_.fields.find(field);
        const bool link = found != document_.fields.end() && found->second.kind == FieldKind::Hyperlink;
        return link ? &found->second : nullptr;
    }

    void ChangeLink(Index to) {
        const Index from = std::exchange(field_, to);
        if (from == to) return;
        if (LinkOf(from) != nullptr) body_ += "</w:hyperlink>";
        const Field* const link = LinkOf(to);
        if (link == nullptr) return;
        const TextView address = link->typeData;
        body_ += "<w:hyperlink ";
        if (address.starts_with(u'#')) {
            body_ += "w:anchor=\"";
            PutXml(body_, address.substr(1));
            body_ += "\">";
        } else {
            body_ += "r:id=\"" + AddRelation("hyperlink", ToUtf8(address), true) + "\">";
        }
    }

    const std::string& LookOf(Index look) {
        std::optional<std::string>& words = looks_[look];
        if (!words) words = MakeLook(document_.chars[look]);
        return *words;
    }

    std::string MakeLook(const CharFormat& look) const {
        const CharFormat& usual = document_.chars[0];
        std::string out;
        if (look.font != usual.font) PutFont(out, document_.fonts[look.font]);
        if (look.bold) out += "<w:b/>";
        if (look.italic) out += "<w:i/>";
        if (look.smallCaps) out += "<w:smallCaps/>";
        if (look.strike) out += "<w:strike/>";
        if (look.fore != kNoColour) {
            out += "<w:color w:val=\"";
            PutColour(out, look.fore);
            out += "\"/>";
        }
        if (look.baseLine != 0)
            PutValue(out, "w:position", std::lround(static_cast<double>(look.baseLine) / kTwipsPerHalfPoint));
        if (look.halfPoints != usual.halfPoints) PutValue(out, "w:sz", look.halfPoints);
        if (look.underline) out += "<w:u w:val=\"single\"/>";
        if (look.back != kNoColour) PutShading(out, look.back);
        if (look.script == Script::Raised) out += "<w:vertAlign w:val=\"superscript\"/>";
        if (look.script == Script::Lowered) out += "<w:vertAlign w:val=\"subscript\"/>";
        return out.empty() ? out : "<w:rPr>" + out + "</w:rPr>";
    }

    std::string ShapeOf(const ParaFormat& format) const {
        static constexpr std::string_view kAlignments[] = {"", "right", "center", "both"};
        std::string out;
        if (format.pageBreakBefore) out += "<w:pageBreakBefore/>";
        if (format.list.kind != ListKind::None) {
            out += "<w:numPr>";
            PutValue(out, "w:ilvl", format.list.level);
            PutValue(out, "w:numId", lists_.NumberOf(format.list));
            out += "</w:numPr>";
        }
        if ((format.frame & kFrameSides) != 0) PutFrame(out, format);
        if (!format.tabs.empty()) PutTabs(out, format);
        PutSpacing(out, format);
        PutIndent(out, format);
        if (const std::string_view alignment = kAlignments[static_cast<std::size_t>(format.alignment)];
            !alignment.empty()) {
            out += "<w:jc w:val=\"";
            out += alignment;
            out += "\"/>";
        }
        return out;
    }

    static void PutFrame(std::string& out, const ParaFormat& format) {
        static constexpr std::pair<std::uint16_t, std::string_view> kSides[] = {{kFrameTop, "w:top"},
                                                                                {kFrameLeft, "w:left"},
                                                                                {kFrameBottom, "w:bottom"},
                                                                                {kFrameRight, "w:right"}};
        const std::string_view kind = (format.frame & kFrameDouble) != 0 ? "double" : "single";
        out += "<w:pBdr>";
        for (const auto& [bit, element] : kSides) {
            if ((format.frame & bit) != 0)
                PutLine(out, element, kind, format.frameWidth, format.frameDistance);
        }
        out += "</w:pBdr>";
    }

    static void PutTabs(std::string& out, const ParaFormat& format) {
        static constexpr std::string_view kTypes[] = {"left", "right", "center", "decimal"};
        out += "<w:tabs>";
        for (const TabStop& stop : format.tabs) {
            out += "<w:tab w:val=\"";
            out += kTypes[static_cast<std::size_t>(stop.type) - 1];
            out += '"';
            PutAttribute(out, "w:pos", stop.at);
            out += "/>";
        }
        out += "</w:tabs>";
    }

    static void PutSpacing(std::string& out, const ParaFormat& format) {
        const bool exact = format.spacingExact > 0;
        if (format.before == 0 && format.after == 0 && !exact && format.spacingPercent == 100) return;
        out += "<w:spacing";
        PutAttribute(out, "w:before", format.before);
        PutAttribute(out, "w:after", format.after);
        if (exact)
            PutAttribute(out, "w:line", format.spacingExact);
        else
            PutAttribute(out, "w:line", std::lround(format.spacingPercent * kLineParts / 100));
        out += exact ? " w:lineRule=\"exact\"/>" : " w:lineRule=\"auto\"/>";
    }

    static void PutIndent(std::string& out, const ParaFormat& format) {
        if (format.left == 0 && format.right == 0 && format.first == 0) return;
        out += "<w:ind";
        PutAttribute(out, "w:left", format.left);
        PutAttribute(out, "w:right", format.right);
        if (format.first > 0) PutAttribute(out, "w:firstLine", format.first);
        if (format.first < 0) PutAttribute(out, "w:hanging", -format.first);
        out += "/>";
    }

    void WriteImage(const Image& image, Index number) {
        if (image.kind == ImageKind::Other) return;
        const std::string name =
            "media/image" + std::to_string(number) + (image.kind == ImageKind::Png ? ".png" : ".jpeg");
        media_.emplace_back("word/" + name, image.bytes);
        const std::string id = AddRelation("image", name, false);
        std::string size;
        PutAttribute(size, "cx", image.width * kEmuPerTwip);
        PutAttribute(size, "cy", image.height * kEmuPerTwip);
        body_ += "<w:drawing><wp:inline distT=\"0\" distB=\"0\" distL=\"0\" distR=\"0\"><wp:extent" + size +
                 "/><wp:docPr";
        PutAttribute(body_, "id", number);
        body_ +=
            " name=\"" + id +
            "\"/><a:graphic><a:graphicData uri=\"http://schemas.openxmlformats.org/drawingml/2006/picture\">"
            "<pic:pic><pic:nvPicPr><pic:cNvPr id=\"0\" name=\"" +
            id +
            "\"/><pic:cNvPicPr/></pic:nvPicPr><pic:blipFill>"
            "<a:blip r:embed=\"" +
            id +
            "\"/><a:stretch><a:fillRect/></a:stretch></pic:blipFill><pic:spPr><a:xfrm>"
            "<a:off x=\"0\" y=\"0\"/><a:ext" +
            size +
            "/></a:xfrm><a:prstGeom prst=\"rect\"><a:avLst/></a:prstGeom></pic:spPr>"
            "</pic:pic></a:graphicData></a:graphic></wp:inline></w:drawing>";
    }

    const Document& document_;
    const ListTable& lists_;
    /// The properties of the formats that were used so far.
    std::vector<std::optional<std::string>> looks_;
    std::vector<std::optional<std::string>> shapes_;
    std::string body_;
    std::string relations_;
    int relationCount_ = 0;
    std::vector<std::pair<std::string, SharedBytes>> media_;
    const std::string kNothing_{};

    // How far the text is written.
    bool begun_ = false;
    bool ended_ = false;
    bool inParagraph_ = false;
    std::size_t paragraph_ = 0;
    std::size_t run_ = 0;
    std::size_t at_ = 0;
    std::size_t atInRun_ = 0;
    CellPlace place_{};
    Index field_ = 0;
};

} // namespace

PackageWriter MakeDocxParts(const Document& document) {
    const auto lists = std::make_shared<const ListTable>(document);
    const bool withLists = !lists->Lists().empty();
    // The size of the text's part, and what it refers to, are known when it was made once.
    Body measured(document, *lists);
    std::size_t size = 0;
    for (std::string_view piece = measured.Next(); !piece.empty(); piece = measured.Next())
        size += piece.size();
    PackageWriter package;
    package.Add("[Content_Types].xml", ContentTypesPart(withLists));
    package.Add("_rels/.rels", RelationsPart("<Relationship Id=\"rId1\" Type=\"" + std::string(kOffice) +
                                             "/officeDocument\" Target=\"word/document.xml\"/>"));
    package.AddMade("word/document.xml", size, [&document, lists] {
        return [lists, body = std::make_shared<Body>(document, *lists)] { return body->Next(); };
    });
    package.Add("word/_rels/document.xml.rels", RelationsPart(measured.Relations()));
    package.Add("word/styles.xml", StylesPart(document));
    package.Add("word/settings.xml", SettingsPart(document));
    if (withLists) package.Add("word/numbering.xml", NumberingPart(*lists));
    for (const auto& [name, bytes] : measured.Media())
        package.Add(name, std::string(bytes.View()));
    return package;
}

std::string WriteDocx(const Document& document) {
    return Joined([&document](const PieceTaker& take) { WriteDocx(document, take); });
}

bool WriteDocx(const Document& document, const PieceTaker& take) {
    return MakeDocxParts(document).Write(take);
}

} // namespace korvane::doc
