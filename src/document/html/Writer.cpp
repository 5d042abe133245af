#include "document/html/Html.h"
#include "document/model/Base64.h"
#include "document/model/ListNumbers.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <vector>

namespace korvane::doc {

namespace {

constexpr std::int32_t kTwipsPerPoint = 20;
/// Deeper ones are written as lists of this level.
constexpr std::size_t kDeepestList = 8;

void PutNumber(std::string& out, std::int64_t number) {
    char digits[24];
    const std::to_chars_result end = std::to_chars(digits, digits + sizeof digits, number);
    out.append(digits, end.ptr);
}

/// A length in points, exact to the twip. LibreOffice doesn't take a zero without its unit.
void PutPoints(std::string& out, std::int32_t twips) {
    if (twips < 0) out += '-';
    const std::int64_t hundredths =
        std::int64_t{twips < 0 ? -std::int64_t{twips} : twips} * 100 / kTwipsPerPoint;
    PutNumber(out, hundredths / 100);
    if (const std::int64_t rest = hundredths % 100; rest != 0) {
        out += '.';
        out += static_cast<char>('0' + rest / 10);
        if (rest % 10 != 0) out += static_cast<char>('0' + rest % 10);
    }
    out += "pt";
}

void PutLength(std::string& out, std::string_view property, std::int32_t twips) {
    out += property;
    PutPoints(out, twips);
    out += ';';
}

void PutColour(std::string& out, std::string_view property, Colour colour) {
    static constexpr char kDigits[] = "0123456789abcdef";
    out += property;
    out += '#';
    for (const int shift : {4, 0, 12, 8, 20, 16})
        out += kDigits[colour.value >> shift & 15];
    out += ';';
}

bool IsPlain(char16_t c) {
    return c >= 0x20 && c < 0x7F && c != u'&' && c != u'<' && c != u'>' && c != u'"';
}

void PutCharacter(std::string& out, char16_t c) {
    switch (c) {
    case u'&':
        out += "&amp;";
        return;
    case u'<':
        out += "&lt;";
        return;
    case u'>':
        out += "&gt;";
        return;
    case u'"':
        out += "&quot;";
        return;
    case kLineBreak:
        out += "<br>";
        return;
    case u'\u00A0':
        out += "&nbsp;";
        return;
    case u'\u00AD':
        out += "&shy;";
        return;
    case u'\t':
        out += '\t';
        return;
    default:
        break;
    }
}

/// Writes text, or the value of an attribute in double quotes.
void PutText(std::string& out, TextView text) {
    while (!text.empty()) {
        auto end = std::ranges::find_if_not(text, IsPlain);
        out.append(text.begin(), end);
        text.remove_prefix(static_cast<std::size_t>(end - text.begin()));
        if (text.empty()) return;
        const auto foreign =
            std::ranges::find_if(text, [](char16_t c) { return c < 0x7F || c == 0xA0 || c == 0xAD; });
        const std::size_t length = static_cast<std::size_t>(foreign - text.begin());
        if (length > 0)
            out += ToUtf8(text.substr(0, length));
        else
            PutCharacter(out, text[0]);
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
}

/// Whether a browser would show fewer blanks than the paragraph has.
bool NeedsBlanks(TextView text) {
    return text.starts_with(u' ') || text.ends_with(u' ') || text.find(u"  ") != TextView::npos ||
           text.find(u" \v") != TextView::npos || text.find(u"\v ") != TextView::npos ||
           text.find(u'\t') != TextView::npos;
}

/// The tags around characters of one look.
struct Tags {
    std::string open;
    std::string close;

    void Add(std::string_view name) {
        open += '<';
        open += name;
        open += '>';
        close.insert(0, "</" + std::string(name) + ">");
    }
};

class Writer {
public:
    Writer(const Document& document, const PieceTaker& take)
        : document_(document),
          take_(take),
          numbers_(ListNumbers(document)),
          looks_(document.chars.Size()),
          shapes_(document.paras.Size()) {}

    void Write() {
        WriteHead();
        const std::vector<Paragraph>& paragraphs = document_.paragraphs;
        for (std::size_t i = 0; i < paragraphs.size(); ++i) {
            const CellPlace before = i > 0 ? paragraphs[i - 1].cell : CellPlace{};
            if (before != paragraphs[i].cell) CloseLists(0);
            MoveTo(before, paragraphs[i].cell);
            MoveTo(document_.FormatOf(paragraphs[i]).list, numbers_[i]);
            WriteParagraph(paragraphs[i]);
            PassOn(out_, take_);
        }
        CloseLists(0);
        out_ += "</body>\n</html>\n";
        take_(out_);
    }

private:
    /// LibreOffice puts a line of space after paragraphs that have none, so that they have a twip.
    void WriteHead() {
        out_ = "<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n"
               "<meta name=\"generator\" content=\"Korvane\">\n"
               "<style>p,li{margin:0pt 0pt 0.05pt 0pt;line-height:100%}"
               "ul,ol{margin:0pt;padding:0pt;list-style-position:inside}"
               "table{border-collapse:collapse}td{vertical-align:top}</style>\n</head>\n"
               "<body data-kv-page=\"";
        for (const std::int32_t size : document_.page.sizes) {
            PutNumber(out_, size);
            out_ += ' ';
        }
        PutNumber(out_, document_.defaultTab);
        out_ += "\" style=\"";
        const CharFormat& usual = document_.chars[0];
        PutFont(out_, usual.font);
        PutSize(out_, usual.halfPoints);
        out_ += "\">\n";
    }

    void PutFont(std::string& out, std::uint16_t font) const {
        Text name;
        for (const char16_t c : document_.fonts[font]) {
            if (c == u'\'' || c == u'\\') name += u'\\';
            name += c;
        }
        out += "font-family:'";
        PutText(out, name);
        out += "';";
    }

    static void PutSize(std::string& out, std::uint16_t halfPoints) {
        PutLength(out, "font-size:", halfPoints * kTwipsPerPoint / 2);
    }

    /// Ends and begins rows and cells between two paragraphs.
    void MoveTo(const CellPlace& from, const CellPlace& to) {
        if (from == to) return;
        const bool sameTable = from.table == to.table;
        const bool sameRow = sameTable && from.row == to.row;
        if (from.table != 0) out_ += "</td>\n";
        if (from.table != 0 && !sameRow) out_ += "</tr>\n";
        if (from.table != 0 && !sameTable) out_ += "</table>\n";
        if (to.table == 0) return;
        if (!sameTable) out_ += "<table>\n";
        const TableRow& row = document_.tables.at(to.table).rows[to.row];
        if (!sameRow) BeginRow(row);
        BeginCell(row.cells[to.column]);
    }

    /// Ends and begins lists, so that the paragraph with this mark is an item of its list and level.
    void MoveTo(const ListMark& mark, int number) {
        const std::size_t depth =
            mark.kind == ListKind::None ? 0 : std::min<std::size_t>(mark.level, kDeepestList) + 1;
        CloseLists(depth);
        if (depth == 0) return;
        if (lists_.size() == depth && lists_.back().kind != mark.kind) CloseLists(depth - 1);
        if (!lists_.empty() && lists_.back().list != mark.list) CloseLists(0);
        while (lists_.size() < depth)
            OpenList(mark, lists_.size() + 1 == depth ? number : 1);
    }

    void OpenList(const ListMark& mark, int number) {
        static constexpr std::string_view kTags[] = {
            "", "<ul", "<ol", "<ol type=\"a\"", "<ol type=\"A\"", "<ol type=\"i\"", "<ol type=\"I\""};
        lists_.push_back(mark);
        out_ += kTags[static_cast<std::size_t>(mark.kind)];
        if (mark.kind != ListKind::Bullet && number != 1) PutNumbers(out_, "start", {number});
        out_ += ">\n";
    }

    /// Ends all lists but so many.
    void CloseLists(std::size_t rest) {
        for (; lists_.size() > rest; lists_.pop_back())
            out_ += lists_.back().kind == ListKind::Bullet ? "</ul>\n" : "</ol>\n";
    }

    void BeginRow(const TableRow& row) {
        out_ += "<tr";
        if (row.cells[0].left) {
            out_ += " data-kv-left=\"";
            PutNumber(out_, *row.cells[0].left);
            out_ += '"';
        }
        out_ += ">\n";
    }

    void BeginCell(const CellFormat& cell) {
        static constexpr std::string_view kBorders[] = {
            "border-left:", "border-right:", "border-top:", "border-bottom:"};
        out_ += "<td style=\"";
        PutLength(out_, "width:", cell.width);
        PutLength(out_, "padding-left:", cell.gapLeft);
        PutLength(out_, "padding-right:", cell.gapRight);
        for (std::size_t side = 0; side < cell.border.size(); ++side) {
            if (cell.border[side] == 0) continue;
            out_ += kBorders[side];
            PutPoints(out_, cell.border[side]);
            out_ += " solid;";
        }
        if (cell.back != kNoColour) PutColour(out_, "background-color:", cell.back);
        out_ += "\">";
    }

    void WriteParagraph(const Paragraph& paragraph) {
        std::string& shape = shapes_[paragraph.format];
        if (shape.empty()) shape = ShapeOf(document_.FormatOf(paragraph));
        out_ += shape;
        if (NeedsBlanks(paragraph.text)) out_ += "white-space:pre-wrap;";
        // Without any style there is no need for the attribute.
        if (out_.ends_with(" style=\""))
            out_.resize(out_.size() - 8);
        else
            out_ += '"';
        out_ += '>';
        WriteRuns(paragraph);
        // A break at the end isn't shown, so that one more makes the last one count.
        if (paragraph.text.empty())
            out_ += TagsOf(paragraph.emptyFormat).open + "<br>" + TagsOf(paragraph.emptyFormat).close;
        else if (paragraph.text.back() == kLineBreak)
            out_ += "<br>";
        out_ += document_.FormatOf(paragraph).list.kind == ListKind::None ? "</p>\n" : "</li>\n";
    }

    void WriteRuns(const Paragraph& paragraph) {
        std::size_t at = 0;
        Index field = 0;
        for (const Run& run : paragraph.runs) {
            if (run.field != field) ChangeLink(field, run.field);
            field = run.field;
            const Tags& tags = TagsOf(run.format);
            out_ += tags.open;
            if (run.image != 0)
                WriteImage(document_.images[run.image - 1]);
            else
                WriteText(TextView(paragraph.text).substr(at, run.length));
            out_ += tags.close;
            at += run.length;
        }
        ChangeLink(field, 0);
    }

    void WriteText(TextView text) {
        ForEachPiece(text, [this](TextView piece) {
            PassOn(out_, take_);
            PutText(out_, piece);
        });
    }

    const Field* LinkOf(Index field) const {
        const auto found = document_.fields.find(field);
        const bool link = found != document_.fields.end() && found->second.kind == FieldKind::Hyperlink;
        return link ? &found->second : nullptr;
    }

    void ChangeLink(Index from, Index to) {
        if (LinkOf(from) != nullptr) out_ += "</a>";
        const Field* const link = LinkOf(to);
        if (link == nullptr) return;
        out_ += "<a href=\"";
        PutText(out_, link->typeData);
        // The looks of its characters say whether a link is coloured and underlined.
        out_ += "\" style=\"color:inherit;text-decoration:none\">";
    }

    const Tags& TagsOf(Index look) {
        std::optional<Tags>& tags = looks_[look];
        if (!tags) tags = MakeTags(document_.chars[look]);
        return *tags;
    }

    Tags MakeTags(const CharFormat& look) const {
        Tags tags;
        if (look.bold) tags.Add("b");
        if (look.italic) tags.Add("i");
        if (look.underline) tags.Add("u");
        if (look.strike) tags.Add("s");
        if (look.script == Script::Raised) tags.Add("sup");
        if (look.script == Script::Lowered) tags.Add("sub");
        const CharFormat& usual = document_.chars[0];
        std::string style;
        if (look.font != usual.font) PutFont(style, look.font);
        if (look.halfPoints != usual.halfPoints) PutSize(style, look.halfPoints);
        if (look.smallCaps) style += "font-variant:small-caps;";
        if (look.fore != kNoColour) PutColour(style, "color:", look.fore);
        if (look.back != kNoColour) PutColour(style, "background-color:", look.back);
        if (look.baseLine != 0) PutLength(style, "vertical-align:", look.baseLine);
        if (style.empty()) return tags;
        tags.open += "<span style=\"" + style + "\">";
        tags.close.insert(0, "</span>");
        return tags;
    }

    /// The tag of a paragraph up to the end of its style.
    std::string ShapeOf(const ParaFormat& format) const {
        std::string out = format.list.kind == ListKind::None ? "<p" : "<li";
        PutOwnAttributes(out, format);
        out += " style=\"";
        static constexpr std::string_view kAlignments[] = {"", "text-align:right;", "text-align:center;",
                                                           "text-align:justify;"};
        out += kAlignments[static_cast<std::size_t>(format.alignment)];
        if (format.left != 0 || format.right != 0 || format.before != 0 || format.after != 0)
            PutMargin(out, format);
        if (format.first != 0) PutLength(out, "text-indent:", format.first);
        if (format.spacingExact > 0)
            PutLength(out, "line-height:", format.spacingExact);
        else if (format.spacingPercent != 100) {
            out += "line-height:";
            PutNumber(out, format.spacingPercent);
            out += "%;";
        }
        if ((format.frame & kFrameSides) != 0) PutFrame(out, format);
        if (format.pageBreakBefore) out += "page-break-before:always;";
        return out;
    }

    static void PutMargin(std::string& out, const ParaFormat& format) {
        out += "margin:";
        for (const std::int32_t side : {format.before, format.right, format.after, format.left}) {
            PutPoints(out, side);
            out += ' ';
        }
        out.back() = ';';
    }

    static void PutFrame(std::string& out, const ParaFormat& format) {
        static constexpr std::pair<std::uint16_t, std::string_view> kSides[] = {
            {kFrameLeft, "border-left:"},
            {kFrameRight, "border-right:"},
            {kFrameTop, "border-top:"},
            {kFrameBottom, "border-bottom:"}};
        for (const auto& [bit, property] : kSides) {
            if ((format.frame & bit) == 0) continue;
            out += property;
            PutPoints(out, format.frameWidth);
            out += (format.frame & kFrameDouble) != 0 ? " double;" : " solid;";
        }
        PutLength(out, "padding:", format.frameDistance);
    }

    /// What HTML has no word for is in attributes that browsers ignore.
    static void PutOwnAttributes(std::string& out, const ParaFormat& format) {
        static constexpr std::string_view kTypes = "lrcd";
        if (!format.tabs.empty()) {
            out += " data-kv-tabs=\"";
            for (const TabStop& stop : format.tabs) {
                PutNumber(out, stop.at);
                out += kTypes[static_cast<std::size_t>(stop.type) - 1];
                out += ' ';
            }
            out.back() = '"';
        }
        if (format.frame != 0)
            PutNumbers(out, "data-kv-frame", {format.frame, format.frameWidth, format.frameDistance});
        const ListMark& mark = format.list;
        if (mark.kind != ListKind::None)
            PutNumbers(out, "data-kv-list",
                       {static_cast<std::int64_t>(mark.kind), mark.level, mark.start, mark.list});
    }

    static void PutNumbers(std::string& out, std::string_view name,
                           std::initializer_list<std::int64_t> numbers) {
        out += ' ';
        out += name;
        out += "=\"";
        for (const std::int64_t number : numbers) {
            PutNumber(out, number);
            out += ' ';
        }
        out.back() = '"';
    }

    void WriteImage(const Image& image) {
        if (image.kind == ImageKind::Other) return;
        out_ += image.kind == ImageKind::Png ? "<img src=\"data:image/png;base64,"
                                             : "<img src=\"data:image/jpeg;base64,";
        out_ += ToBase64(image.bytes.View());
        out_ += "\" style=\"";
        if (image.width > 0) PutLength(out_, "width:", image.width);
        if (image.height > 0) PutLength(out_, "height:", image.height);
        out_ += "\" alt=\"\">";
    }

    const Document& document_;
    const PieceTaker& take_;
    std::vector<int> numbers_;
    /// The lists that have begun, from the outermost one.
    std::vector<ListMark> lists_;
    /// The tags of the formats that were used so far.
    std::vector<std::optional<Tags>> looks_;
    std::vector<std::string> shapes_;
    std::string out_;
};

} // namespace

void WriteHtml(const Document& document, const PieceTaker& take) {
    Writer(document, take).Write();
}

std::string WriteHtml(const Document& document) {
    return Joined([&](const PieceTaker& take) { WriteHtml(document, take); });
}

} // namespace korvane::doc
