#include "document/docx/Docx.h"
#include "document/docx/DocxParts.h"
#include "document/docx/Elements.h"
#include "document/docx/SmallParts.h"
#include "document/model/ListTable.h"
#include "document/package/Xml.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace korvane::doc {

using namespace docx;

namespace {

constexpr std::int32_t kTwipsPerHalfPoint = 10;
constexpr double kLineParts = 240;
constexpr std::int64_t kEmuPerTwip = 635;

class Writer {
public:
    explicit Writer(const Document& document)
        : document_(document),
          lists_(document),
          looks_(document.chars.Size()),
          shapes_(document.paras.Size()) {}

    PackageWriter Write() {
        WriteBody();
        PackageWriter package;
        package.Add("[Content_Types].xml", ContentTypesPart(!lists_.Lists().empty()));
        package.Add("_rels/.rels", RelationsPart("<Relationship Id=\"rId1\" Type=\"" + std::string(kOffice) +
                                                 "/officeDocument\" Target=\"word/document.xml\"/>"));
        package.Add("word/document.xml", std::move(body_));
        package.Add("word/_rels/document.xml.rels", RelationsPart(relations_));
        package.Add("word/styles.xml", StylesPart(document_));
        package.Add("word/settings.xml", SettingsPart(document_));
        if (!lists_.Lists().empty()) package.Add("word/numbering.xml", NumberingPart(lists_));
        for (auto& [name, bytes] : media_)
            package.Add(name, std::move(bytes));
        return package;
    }

private:
    void WriteBody() {
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
        CellPlace before;
        for (const Paragraph& paragraph : document_.paragraphs) {
            MoveTo(before, paragraph.cell);
            WriteParagraph(paragraph);
            before = paragraph.cell;
        }
        WriteSection();
        body_ += "</w:body></w:document>";
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

    void WriteParagraph(const Paragraph& paragraph) {
        std::optional<std::string>& shape = shapes_[paragraph.format];
        if (!shape) shape = ShapeOf(document_.FormatOf(paragraph));
        const std::string& mark = paragraph.text.empty() ? LookOf(paragraph.emptyFormat) : kNothing_;
        body_ += "<w:p>";
        if (!shape->empty() || !mark.empty()) body_ += "<w:pPr>" + *shape + mark + "</w:pPr>";
        std::size_t at = 0;
        Index field = 0;
        for (const Run& run : paragraph.runs) {
            if (run.field != field) ChangeLink(field, run.field);
            field = run.field;
            WriteRun(run, TextView(paragraph.text).substr(at, run.length));
            at += run.length;
        }
        ChangeLink(field, 0);
        body_ += "</w:p>";
    }

    void WriteRun(const Run& run, TextView text) {
        body_ += "<w:r>";
        body_ += LookOf(run.format);
        if (run.image != 0)
            WriteImage(document_.images[run.image - 1], run.image);
        else
            WriteText(text);
        body_ += "</w:r>";
    }

    void WriteText(TextView text) {
        while (!text.empty()) {
            const std::size_t end = std::min(text.find_first_of(u"\t\v"), text.size());
            if (end > 0) {
                body_ += "<w:t xml:space=\"preserve\">";
                PutXml(body_, text.substr(0, end));
                body_ += "</w:t>";
            }
            text.remove_prefix(end);
            if (text.empty()) return;
            body_ += text[0] == u'\t' ? "<w:tab/>" : "<w:br/>";
            text.remove_prefix(1);
        }
    }

    const Field* LinkOf(Index field) const {
        const auto found = document_.fields.find(field);
        const bool link = found != document_.fields.end() && found->second.kind == FieldKind::Hyperlink;
        return link ? &found->second : nullptr;
    }

    void ChangeLink(Index from, Index to) {
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
        media_.emplace_back("word/" + name, std::string(image.bytes.View()));
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
    ListTable lists_;
    /// The properties of the formats that were used so far.
    std::vector<std::optional<std::string>> looks_;
    std::vector<std::optional<std::string>> shapes_;
    std::string body_;
    std::string relations_;
    int relationCount_ = 0;
    std::vector<std::pair<std::string, std::string>> media_;
    const std::string kNothing_{};
};

} // namespace

std::string WriteDocx(const Document& document) {
    return MakeDocxParts(document).Write();
}

PackageWriter MakeDocxParts(const Document& document) {
    return Writer(document).Write();
}

} // namespace korvane::doc
