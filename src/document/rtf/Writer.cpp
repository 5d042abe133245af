#include "document/model/FontScripts.h"
#include "document/model/Instruction.h"
#include "document/model/ListTable.h"
#include "document/model/Pieces.h"
#include "document/rtf/Rtf.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <map>
#include <optional>
#include <vector>

namespace korvane::doc {

namespace {

constexpr std::int32_t kTwipsPerHalfPoint = 10;
constexpr double kLineParts = 240;
constexpr std::uint16_t kPlainFrame = kFrameSides | kFrameSingle | kFrameDouble;

/// The colours that marker pens have in other programs.
constexpr std::int32_t kMarkerColours[] = {0x000000, 0xFF0000, 0xFFFF00, 0x00FF00, 0xFF00FF, 0x0000FF,
                                           0x00FFFF, 0xFFFFFF, 0x800000, 0x808000, 0x008000, 0x800080,
                                           0x000080, 0x008080, 0x808080, 0xC0C0C0};

/// The style that LibreOffice gives to links, without a colour and a line.
constexpr std::string_view kStyleOfLinks =
    "{\\stylesheet{\\s0 Normal;}{\\*\\cs10\\additive\\ulnone\\cf0 Internet Link;}}\n";

constexpr TextView kSymbolFonts[] = {u"Symbol", u"Webdings", u"Wingdings", u"Wingdings 2", u"Wingdings 3"};

void PutNumber(std::string& out, std::int64_t number) {
    char digits[24];
    const std::to_chars_result end = std::to_chars(digits, digits + sizeof digits, number);
    out.append(digits, end.ptr);
}

void PutWord(std::string& out, std::string_view word, std::int64_t number) {
    out += word;
    PutNumber(out, number);
}

/// Writes the word unless its number is the one that it has without it.
void PutWordUnless(std::string& out, std::string_view word, std::int64_t number, std::int64_t usual = 0) {
    if (number != usual) PutWord(out, word, number);
}

/// Parts a control word from the text after it. After a group a blank would be text.
void PutDelimiter(std::string& out) {
    if (out.back() != '}') out += ' ';
}

bool IsPlain(char16_t c) {
    return c >= 0x20 && c < 0x7F && c != u'\\' && c != u'{' && c != u'}';
}

void PutCharacter(std::string& out, char16_t c) {
    switch (c) {
    case u'\\':
        out += "\\\\";
        return;
    case u'{':
        out += "\\{";
        return;
    case u'}':
        out += "\\}";
        return;
    case u'\t':
        out += "\\tab ";
        return;
    case kLineBreak:
        out += "\\line ";
        return;
    case u'\u00A0':
        out += "\\~";
        return;
    case u'\u00AD':
        out += "\\-";
        return;
    case u'\u2011':
        out += "\\_";
        return;
    default:
        break;
    }
    if (c < 0x20) return;
    PutWord(out, "\\u", static_cast<std::int16_t>(c));
    out += '?';
}

/// Writes plain characters. LibreOffice reads blanks that come one right after another as wider characters,
/// so an empty group parts them.
void PutPlain(std::string& out, TextView text) {
    while (true) {
        const std::size_t blanks = text.find(u"  ");
        const TextView piece = text.substr(0, blanks == TextView::npos ? blanks : blanks + 1);
        out.append(piece.begin(), piece.end());
        if (blanks == TextView::npos) return;
        out += "{}";
        text.remove_prefix(piece.size());
    }
}

void PutText(std::string& out, TextView text) {
    while (!text.empty()) {
        const auto end = std::ranges::find_if_not(text, IsPlain);
        PutPlain(out, {text.begin(), end});
        if (end == text.end()) return;
        PutCharacter(out, *end);
        text.remove_prefix(static_cast<std::size_t>(end - text.begin()) + 1);
    }
}

/// The colours of a document in the order of their numbers. 0 is no colour.
class Colours {
public:
    std::int32_t NumberOf(Colour colour) {
        if (colour == kNoColour) return 0;
        const auto [found, added] = numbers_.try_emplace(colour.value & 0xFFFFFF, Count() + 1);
        if (added) colours_.push_back(found->first);
        return found->second;
    }

    void Write(std::string& out) const {
        out += "{\\colortbl;";
        for (const std::int32_t colour : colours_) {
            PutWord(out, "\\red", colour & 0xFF);
            PutWord(out, "\\green", colour >> 8 & 0xFF);
            PutWord(out, "\\blue", colour >> 16 & 0xFF);
            out += ';';
        }
        out += "}\n";
    }

private:
    std::int32_t Count() const { return static_cast<std::int32_t>(colours_.size()); }

    std::vector<std::int32_t> colours_;
    std::map<std::int32_t, std::int32_t> numbers_;
};

bool Has(const Document& document, bool (*kind)(char16_t)) {
    return std::ranges::any_of(document.paragraphs, [kind](const Paragraph& paragraph) {
        return std::ranges::any_of(paragraph.text, kind);
    });
}

class Writer {
public:
    Writer(const Document& document, RtfExtent extent, const PieceTaker& take)
        : document_(document),
          extent_(extent),
          take_(take),
          lists_(document),
          eastAsian_(Has(document, IsEastAsian)),
          complex_(Has(document, IsComplex)),
          looks_(document.chars.Size()),
          shapes_(document.paras.Size()) {}

    void Write() {
        NumberColours();
        out_ = "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0\n";
        WriteFonts(out_);
        colours_.Write(out_);
        if (NeedsStyleOfLinks()) out_ += kStyleOfLinks;
        WriteLists(out_);
        if (extent_ == RtfExtent::File) WritePage(out_);
        PutWord(out_, "\\deftab", document_.defaultTab);
        out_ += '\n';
        WriteBody();
        out_ += "}\n";
        take_(out_);
    }

private:
    void WriteFonts(std::string& file) const {
        file += "{\\fonttbl";
        for (std::size_t i = 0; i < document_.fonts.size(); ++i) {
            const bool symbols =
                std::ranges::find(kSymbolFonts, document_.fonts[i]) != std::end(kSymbolFonts);
            PutWord(file, "{\\f", static_cast<std::int64_t>(i));
            file += symbols ? "\\fnil\\fcharset2 " : "\\fnil\\fcharset0 ";
            Text name = document_.fonts[i];
            std::erase(name, u';');
            PutText(file, name);
            file += ";}";
        }
        file += "}\n";
    }

    void WriteLists(std::string& file) const {
        if (lists_.Lists().empty()) return;
        file += "{\\*\\listtable";
        for (const auto& [number, levels] : lists_.Lists())
            WriteList(file, number, levels);
        file += "}\n{\\*\\listoverridetable";
        for (const auto& [number, levels] : lists_.Lists()) {
            PutWord(file, "{\\listoverride\\listid", number);
            PutWord(file, "\\listoverridecount0\\ls", number);
            file += '}';
        }
        file += "}\n";
    }

    static void WriteList(std::string& file, std::uint32_t number, const ListTable::Levels& levels) {
        PutWord(file, "{\\list\\listtemplateid", number);
        for (std::size_t i = 0; i < levels.size(); ++i) {
            const ListMark mark = levels[i].value_or(ListMark{ListKind::Decimal});
            const bool bullet = mark.kind == ListKind::Bullet;
            PutWord(file, "{\\listlevel\\levelnfc", NumberOfKind(mark.kind));
            PutWord(file, "\\leveljc0\\levelfollow0\\levelstartat", mark.start);
            if (bullet) {
                file += "{\\leveltext\\'01\\u8226?;}{\\levelnumbers;}}";
                continue;
            }
            file += "{\\leveltext\\'02\\'0";
            PutNumber(file, static_cast<std::int64_t>(i));
            file += ".;}{\\levelnumbers\\'01;}}";
        }
        PutWord(file, "\\listid", number);
        file += '}';
    }

    static std::int32_t NumberOfKind(ListKind kind) {
        static constexpr std::int32_t kNumbers[] = {0, 23, 0, 4, 3, 2, 1};
        return kNumbers[static_cast<std::size_t>(kind)];
    }

    void WritePage(std::string& file) const {
        static constexpr std::string_view kWords[] = {"\\paperw", "\\paperh", "\\margl",
                                                      "\\margt",  "\\margr",  "\\margb"};
        for (std::size_t i = 0; i < Page::kSizes; ++i)
            PutWord(file, kWords[i], document_.page.sizes[i]);
    }

    /// Whether a row begins with the paragraph.
    bool BeginsRow(std::size_t paragraph) const {
        const CellPlace& cell = document_.paragraphs[paragraph].cell;
        const CellPlace before = paragraph > 0 ? document_.paragraphs[paragraph - 1].cell : CellPlace{};
        return cell.table != 0 && (cell.table != before.table || cell.row != before.row);
    }

    /// Gives the colours their numbers, in the order in which the body has them. The table of colours comes
    /// before the body.
    void NumberColours() {
        std::vector<bool> seen(document_.chars.Size());
        const auto see = [&](Index look) {
            if (seen[look]) return;
            seen[look] = true;
            colours_.NumberOf(document_.chars[look].fore);
            colours_.NumberOf(document_.chars[look].back);
        };
        for (std::size_t i = 0; i < document_.paragraphs.size(); ++i) {
            const Paragraph& paragraph = document_.paragraphs[i];
            if (BeginsRow(i)) {
                for (const CellFormat& cell : RowOf(paragraph.cell).cells)
                    colours_.NumberOf(cell.back);
            }
            for (const Run& run : paragraph.runs)
                see(run.format);
            if (paragraph.text.empty()) see(paragraph.emptyFormat);
        }
    }

    void WriteBody() {
        const std::vector<Paragraph>& paragraphs = document_.paragraphs;
        for (std::size_t i = 0; i < paragraphs.size(); ++i) {
            const CellPlace after = i + 1 < paragraphs.size() ? paragraphs[i + 1].cell : CellPlace{};
            if (BeginsRow(i)) BeginRow(paragraphs[i].cell);
            WriteParagraph(paragraphs[i]);
            EndParagraph(paragraphs[i], after);
            PassOn(out_, take_);
        }
    }

    void WriteParagraph(const Paragraph& paragraph) {
        EnsureShape(paragraph);
        std::size_t at = 0;
        for (const Run& run : paragraph.runs) {
            if (run.field != field_) ChangeField(run.field);
            if (run.image != 0) {
                EnsureLookOfNoText(run.format);
                WriteImage(document_.images[run.image - 1]);
            } else {
                EnsureLook(run.format);
                WriteText(TextView(paragraph.text).substr(at, run.length));
                EndRaised(run.format);
            }
            at += run.length;
        }
        if (paragraph.text.empty()) EnsureLookOfNoText(paragraph.emptyFormat);
    }

    void WriteText(TextView text) {
        ForEachPiece(text, [this](TextView piece) {
            PassOn(out_, take_);
            PutText(out_, piece);
        });
    }

    void EndParagraph(const Paragraph& paragraph, const CellPlace& after) {
        const CellPlace& cell = paragraph.cell;
        if (cell != after || (field_ != 0 && !Continues(&paragraph + 1))) ChangeField(0);
        EnsureShape(paragraph);
        if (cell.table == 0 || cell == after)
            out_ += "\\par\n";
        else
            out_ += cell.table != after.table || cell.row != after.row ? "\\cell\\row\n" : "\\cell\n";
    }

    /// Whether the field at hand goes on in the paragraph.
    bool Continues(const Paragraph* next) const {
        const Paragraph* const end = document_.paragraphs.data() + document_.paragraphs.size();
        return next != end && !next->runs.empty() && next->runs.front().field == field_;
    }

    void EnsureShape(const Paragraph& paragraph) {
        const std::pair<Index, bool> shape{paragraph.format, paragraph.cell.table != 0};
        if (shape_ == shape) return;
        shape_ = shape;
        std::string& words = shapes_[paragraph.format];
        if (words.empty()) words = ShapeWords(document_.FormatOf(paragraph));
        out_ += words;
        if (paragraph.cell.table != 0) out_ += "\\intbl";
        PutDelimiter(out_);
    }

    void EnsureLook(Index look) {
        if (look_ == look) return;
        look_ = look;
        std::string& words = looks_[look];
        if (words.empty()) words = LookWords(document_.chars[look]);
        out_ += words;
        if (field_ != 0) PutLookOfNoLink(document_.chars[look]);
    }

    /// Whether the style of links tells that the text has no colour, and not the text itself: text that tells
    /// so on a dark ground becomes white when LibreOffice saves it as DOC. A fragment gets the styles of
    /// another document.
    bool IsToldByStyle(const CharFormat& look) const {
        return extent_ == RtfExtent::File && look.fore == kNoColour && look.back != kNoColour;
    }

    bool NeedsStyleOfLinks() const {
        const auto needs = [this](const Run& run) {
            return run.field != 0 && run.image == 0 && IsToldByStyle(document_.FormatOf(run));
        };
        return std::ranges::any_of(document_.paragraphs, [&needs](const Paragraph& paragraph) {
            return std::ranges::any_of(paragraph.runs, needs);
        });
    }

    /// Other programs show a link in blue and underlined unless they are told otherwise.
    void PutLookOfNoLink(const CharFormat& look) {
        if (!look.underline) out_ += "\\ulnone ";
        if (look.fore == kNoColour && !IsToldByStyle(look)) out_ += "\\cf0 ";
    }

    bool IsRaised(Index look) const { return document_.chars[look].script == Script::Raised; }

    /// LibreOffice takes raised text for the mark of a note that is still to come, and loses the paragraph
    /// when that paragraph ends before the raised text does.
    void EndRaised(Index look) {
        if (!IsRaised(look)) return;
        out_ += "\\nosupersub";
        look_.reset();
    }

    /// Where there is no text that could end, a word of this program tells that it is raised.
    void EnsureLookOfNoText(Index look) {
        if (!IsRaised(look)) return EnsureLook(look);
        CharFormat notRaised = document_.chars[look];
        notRaised.script = Script::Normal;
        out_ += LookWords(notRaised);
        out_ += "{\\*\\kvsuper}";
        look_.reset();
    }

    /// Other programs have a font of their own for characters of East Asia.
    void PutFont(std::string& out, std::uint16_t font) const {
        if (eastAsian_) {
            PutWord(out, "\\dbch\\af", font);
            out += "\\loch";
        }
        PutWord(out, "\\f", font);
    }

    /// They have more than the font for complex writings.
    static void PutComplexLook(std::string& out, const CharFormat& look) {
        PutWord(out, "\\rtlch\\af", look.font);
        PutWord(out, "\\afs", look.halfPoints);
        if (look.bold) out += "\\ab";
        if (look.italic) out += "\\ai";
        out += "\\ltrch";
    }

    std::string LookWords(const CharFormat& look) {
        std::string out = "\\plain";
        if (complex_) PutComplexLook(out, look);
        PutFont(out, look.font);
        PutWord(out, "\\fs", look.halfPoints);
        if (look.bold) out += "\\b";
        if (look.italic) out += "\\i";
        if (look.underline) out += "\\ul";
        if (look.strike) out += "\\strike";
        if (look.smallCaps) out += "\\scaps";
        if (look.fore != kNoColour) PutWord(out, "\\cf", colours_.NumberOf(look.fore));
        if (look.back != kNoColour) PutBack(out, look.back);
        if (look.script != Script::Normal) out += look.script == Script::Raised ? "\\super" : "\\sub";
        if (look.baseLine != 0) PutRaise(out, look.baseLine);
        PutDelimiter(out);
        return out;
    }

    void PutBack(std::string& out, Colour back) {
        const std::int32_t number = colours_.NumberOf(back);
        PutWord(out, "\\chcbpat", number);
        if (std::ranges::find(kMarkerColours, back.value) != std::end(kMarkerColours))
            PutWord(out, "\\highlight", number);
    }

    /// Other programs know half points only, so the exact length is written after them.
    static void PutRaise(std::string& out, std::int32_t baseLine) {
        const std::int32_t length = std::abs(baseLine);
        PutWord(out, baseLine > 0 ? "\\up" : "\\dn", (length + kTwipsPerHalfPoint / 2) / kTwipsPerHalfPoint);
        if (length % kTwipsPerHalfPoint == 0) return;
        PutWord(out, "{\\*\\kvbase", baseLine);
        out += '}';
    }

    std::string ShapeWords(const ParaFormat& format) {
        static constexpr std::string_view kAlignments[] = {"\\ql", "\\qr", "\\qc", "\\qj"};
        std::string out = "\\pard";
        out += kAlignments[static_cast<std::size_t>(format.alignment)];
        PutWordUnless(out, "\\li", format.left);
        PutWordUnless(out, "\\ri", format.right);
        PutWordUnless(out, "\\fi", format.first);
        PutWordUnless(out, "\\sb", format.before);
        PutWordUnless(out, "\\sa", format.after);
        PutSpacing(out, format);
        PutTabs(out, format);
        PutFrame(out, format);
        if (format.pageBreakBefore) out += "\\pagebb";
        if (format.list.kind != ListKind::None) {
            PutWord(out, "\\ls", lists_.NumberOf(format.list));
            PutWord(out, "\\ilvl", format.list.level);
        }
        return out;
    }

    static void PutSpacing(std::string& out, const ParaFormat& format) {
        if (format.spacingExact > 0) {
            PutWord(out, "\\sl", -format.spacingExact);
            out += "\\slmult0";
        } else if (format.spacingPercent != 100) {
            PutWord(out, "\\sl", std::lround(format.spacingPercent * kLineParts / 100));
            out += "\\slmult1";
        }
    }

    static void PutTabs(std::string& out, const ParaFormat& format) {
        static constexpr std::string_view kTypes[] = {"", "\\tqr", "\\tqc", "\\tqdec"};
        for (const TabStop& stop : format.tabs) {
            out += kTypes[static_cast<std::size_t>(stop.type) - 1];
            PutWord(out, "\\tx", stop.at);
        }
    }

    static void PutFrame(std::string& out, const ParaFormat& format) {
        static constexpr std::pair<std::uint16_t, std::string_view> kSides[] = {{kFrameLeft, "\\brdrl"},
                                                                                {kFrameRight, "\\brdrr"},
                                                                                {kFrameTop, "\\brdrt"},
                                                                                {kFrameBottom, "\\brdrb"}};
        for (const auto& [bit, word] : kSides) {
            if ((format.frame & bit) == 0) continue;
            out += word;
            out += (format.frame & kFrameDouble) != 0 ? "\\brdrdb" : "\\brdrs";
            PutWord(out, "\\brdrw", format.frameWidth);
            PutWord(out, "\\brsp", format.frameDistance);
        }
        // Other programs have no words for the rest of the frame.
        const bool sides = (format.frame & kFrameSides) != 0;
        const bool oneStyle = (format.frame & (kFrameSingle | kFrameDouble)) == kFrameSingle ||
                              (format.frame & (kFrameSingle | kFrameDouble)) == kFrameDouble;
        if (format.frame == 0 || (sides && oneStyle && (format.frame & ~kPlainFrame) == 0)) return;
        PutWord(out, "{\\*\\kvframe", format.frame);
        out += '}';
    }

    void ChangeField(Index field) {
        if (field_ != 0) {
            out_ += "}}";
            look_ = lookBeforeField_;
            shape_ = shapeBeforeField_;
        }
        field_ = field;
        if (field == 0) return;
        lookBeforeField_ = look_;
        shapeBeforeField_ = shape_;
        const auto found = document_.fields.find(field);
        out_ += "{\\field{\\*\\fldinst ";
        PutText(out_, WriteInstruction(found == document_.fields.end() ? Field{} : found->second));
        out_ += "}{\\fldrslt ";
        look_.reset();
    }

    void WriteImage(const Image& image) {
        if (image.kind == ImageKind::Other) return;
        static constexpr char kDigits[] = "0123456789abcdef";
        out_ +=
            image.kind == ImageKind::Png ? "{\\*\\shppict{\\pict\\pngblip" : "{\\*\\shppict{\\pict\\jpegblip";
        PutWord(out_, "\\picwgoal", image.width);
        PutWord(out_, "\\pichgoal", image.height);
        out_ += '\n';
        for (const char byte : image.bytes.View()) {
            const unsigned char value = static_cast<unsigned char>(byte);
            out_ += kDigits[value >> 4];
            out_ += kDigits[value & 15];
        }
        out_ += "}}";
    }

    const TableRow& RowOf(const CellPlace& cell) const {
        return document_.tables.at(cell.table).rows[cell.row];
    }

    void BeginRow(const CellPlace& cell) {
        const TableRow& row = RowOf(cell);
        const std::optional<std::int32_t> left = row.cells.empty() ? std::nullopt : row.cells[0].left;
        out_ += "\\trowd";
        if (left) PutWord(out_, "\\trleft", *left);
        std::int64_t edge = left.value_or(0);
        for (const CellFormat& format : row.cells) {
            edge += format.width;
            PutCell(format, edge);
        }
        out_ += '\n';
        shape_.reset();
    }

    void PutCell(const CellFormat& cell, std::int64_t edge) {
        static constexpr std::pair<Side, std::string_view> kSides[] = {{Side::Top, "\\clbrdrt"},
                                                                       {Side::Left, "\\clbrdrl"},
                                                                       {Side::Bottom, "\\clbrdrb"},
                                                                       {Side::Right, "\\clbrdrr"}};
        for (const auto& [side, word] : kSides) {
            const std::int32_t width = cell.border[static_cast<std::size_t>(side)];
            if (width == 0) continue;
            out_ += word;
            PutWord(out_, "\\brdrs\\brdrw", width);
        }
        if (cell.back != kNoColour) PutWord(out_, "\\clcbpat", colours_.NumberOf(cell.back));
        if (cell.gapLeft != 0) PutWord(out_, "\\clpadfl3\\clpadl", cell.gapLeft);
        if (cell.gapRight != 0) PutWord(out_, "\\clpadfr3\\clpadr", cell.gapRight);
        PutWord(out_, "\\cellx", edge);
    }

    const Document& document_;
    RtfExtent extent_;
    const PieceTaker& take_;
    ListTable lists_;
    Colours colours_;
    bool eastAsian_;
    bool complex_;
    /// The words of the formats that were used so far.
    std::vector<std::string> looks_;
    std::vector<std::string> shapes_;
    std::string out_;
    std::optional<Index> look_;
    std::optional<std::pair<Index, bool>> shape_;
    Index field_ = 0;
    /// What holds after the field again, since its end takes back what it changed.
    std::optional<Index> lookBeforeField_;
    std::optional<std::pair<Index, bool>> shapeBeforeField_;
};

} // namespace

void WriteRtf(const Document& document, const PieceTaker& take) {
    Writer(document, RtfExtent::File, take).Write();
}

std::string WriteRtf(const Document& document, RtfExtent extent) {
    return Joined([&](const PieceTaker& take) { Writer(document, extent, take).Write(); });
}

} // namespace korvane::doc
