#include "support/RandomDocument.h"

#include <algorithm>
#include <array>
#include <random>
#include <sstream>

namespace korvane::doc {

namespace {

constexpr char kPng[] = "\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\0\1\0\0\0\1\b\2\0\0\0\x90wS\xDE\0\0\0\fIDATx\x9C"
                        "c\xF8\xCF\xC0\0\0\3\1\1\0\xC9\xFE\x92\xEF\0\0\0\0IEND\xAE"
                        "B`\x82";

constexpr TextView kPieces[] = {
    u"plain words",
    u"\tafter a tab",
    u"Zażółć gęślą",
    u"Ελληνικά",
    u"\xD83D\xDE00 smile",
    u"a\vb",
    u"{braces} \\",
    u"<tag> & \"quote\"",
    u"two  blanks",
    u"–—‘’“”…€",
    u"  led by blanks ",
    u"x",
    u"soft\u00ADhyphen",
    u"no\u00A0break",
    u"non\u2011breaking",
    u"שלום",
    u"日本語",
    u"7,5 %",
};

constexpr TextView kFonts[] = {u"Arial", u"Calibri", u"Times New Roman", u"Courier New", u"Font \"Q\" & Co"};
constexpr TextView kAddresses[] = {u"https://example.org/?a=1&b=\"2\"", u"C:\\Texts\\note.rtf", u"#anchor"};

class Maker {
public:
    Maker(unsigned seed, const Holdings& holdings) : random_(seed), holdings_(holdings) {}

    Document Make() {
        document_.paragraphs.clear();
        if (holdings_.page) MakePage();
        const int blocks = Below(8) + 1;
        for (int i = 0; i < blocks; ++i) {
            if (Below(5) == 0)
                MakeTable();
            else
                MakeParagraph({});
        }
        if (document_.paragraphs.back().cell.table != 0 || Below(4) == 0) MakeParagraph({});
        return std::move(document_);
    }

private:
    int Below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }
    bool Chance() { return Below(2) == 0; }
    std::int32_t Length(int steps, int step) { return Below(3) == 0 ? Below(steps) * step : 0; }
    Colour RandomColour() { return Chance() ? kNoColour : Colour{Below(0x1000000)}; }

    template <class Table>
    TextView OneOf(const Table& table) {
        return table[static_cast<std::size_t>(Below(static_cast<int>(std::size(table))))];
    }

    void MakePage() {
        document_.page.sizes = {8000 + Below(9000), 9000 + Below(9000), Below(2000),
                                Below(2000),        Below(2000),        Below(2000)};
        document_.defaultTab = 200 + Below(1000);
    }

    Index MakeCharFormat() {
        CharFormat format;
        format.font = document_.FontNumber(OneOf(kFonts));
        format.halfPoints = static_cast<std::uint16_t>(2 + Below(150));
        format.bold = Chance();
        format.italic = Chance();
        format.underline = Chance();
        format.strike = Chance();
        format.smallCaps = Chance();
        if (holdings_.scripts && Below(6) == 0)
            format.script = Chance() ? Script::Raised : Script::Lowered;
        else if (Below(3) == 0)
            format.baseLine = holdings_.coarseBaseLine ? (Below(20) - 10) * 10 : Below(240) - 120;
        format.fore = RandomColour();
        format.back = RandomColour();
        return document_.chars.Add(Below(3) == 0 ? CharFormat{} : format);
    }

    void MakeTabs(ParaFormat& format) {
        for (int at = Below(700) + 100; format.tabs.size() < static_cast<std::size_t>(Below(14));
             at += 100 + Below(900))
            format.tabs.push_back({at, static_cast<TabType>(1 + Below(4))});
    }

    void MakeFrame(ParaFormat& format) {
        const int sides = Below(16);
        if (sides == 0) return;
        format.frame = static_cast<std::uint16_t>(
            sides | (holdings_.doubleFrames && Chance() ? kFrameDouble : kFrameSingle));
        format.frameWidth = 20 * (1 + Below(4));
        format.frameDistance = 20 * Below(10);
    }

    Index MakeParaFormat() {
        ParaFormat format;
        format.alignment = static_cast<Alignment>(Below(4));
        format.left = Length(20, 100);
        format.right = Length(20, 100);
        format.first = Length(20, 100) - Length(10, 90);
        format.before = Length(20, 20);
        format.after = Length(20, 20);
        if (Below(3) == 0)
            format.spacingPercent = 50 + Below(200);
        else if (Below(3) == 0)
            format.spacingExact = 200 + Below(300);
        if (Chance()) MakeTabs(format);
        if (holdings_.frames && Below(3) == 0) MakeFrame(format);
        format.pageBreakBefore = holdings_.pageBreaks && Below(6) == 0;
        if (holdings_.lists && Below(4) == 0) {
            const std::uint32_t list = static_cast<std::uint32_t>(1 + Below(3));
            const std::uint8_t level = static_cast<std::uint8_t>(Below(3));
            format.list = {static_cast<ListKind>(1 + (list * 2 + level) % 6), level, static_cast<int>(list),
                           list};
        }
        return document_.paras.Add(format);
    }

    Index MakeField() {
        const Index number = document_.fields.empty() ? 1 : document_.fields.rbegin()->first + 1;
        const bool note = holdings_.notes && Chance();
        document_.fields[number] =
            note ? Field{FieldKind::Note, u"a note", u"kept\r\nhere: \"{\\żó\xD83D\xDE00"}
                 : Field{FieldKind::Hyperlink, Text(OneOf(kAddresses)), {}};
        return number;
    }

    void AddText(Paragraph& paragraph, Index field) {
        const TextView piece = OneOf(kPieces);
        paragraph.text += piece;
        AddRun(paragraph.runs, {static_cast<Index>(piece.size()), MakeCharFormat(), field});
    }

    void AddPicture(Paragraph& paragraph) {
        auto bytes = std::make_shared<char[]>(OnePixelPng().size());
        std::ranges::copy(OnePixelPng(), bytes.get());
        document_.images.push_back({ImageKind::Png,
                                    {std::move(bytes), OnePixelPng().size()},
                                    15 * (1 + Below(400)),
                                    15 * (1 + Below(400))});
        paragraph.text += kImageCharacter;
        paragraph.runs.push_back({1, MakeCharFormat(), 0, static_cast<Index>(document_.images.size())});
    }

    void MakeParagraph(const CellPlace& cell) {
        Paragraph paragraph;
        paragraph.cell = cell;
        paragraph.format = MakeParaFormat();
        const int pieces = Below(5);
        for (int i = 0; i < pieces; ++i) {
            if (holdings_.images && Below(12) == 0)
                AddPicture(paragraph);
            else
                AddText(paragraph, 0);
            if (Below(6) != 0) continue;
            const Index field = MakeField();
            AddText(paragraph, field);
            if (Chance()) AddText(paragraph, field);
        }
        if (pieces == 0) paragraph.emptyFormat = MakeCharFormat();
        document_.paragraphs.push_back(std::move(paragraph));
    }

    CellFormat MakeCell() {
        CellFormat cell;
        cell.width = 15 * (20 + Below(200));
        cell.gapLeft = 15 * Below(10);
        cell.gapRight = 15 * Below(10);
        for (std::int32_t& line : cell.border)
            line = Chance() ? 0 : 5 * (1 + Below(10));
        cell.back = RandomColour();
        return cell;
    }

    void MakeTable() {
        // Two tables that touch can't be told apart in most files.
        if (!document_.paragraphs.empty() && document_.paragraphs.back().cell.table != 0) MakeParagraph({});
        const Index number = static_cast<Index>(document_.tables.size() + 1);
        Table& table = document_.tables[number];
        const int rows = 1 + Below(3);
        const int columns = 1 + Below(4);
        for (int row = 0; row < rows; ++row) {
            TableRow& made = table.rows.emplace_back();
            for (int column = 0; column < columns; ++column) {
                made.cells.push_back(MakeCell());
                for (int i = -1; i < Below(2); ++i)
                    MakeParagraph({number, static_cast<Index>(row), static_cast<Index>(column)});
            }
        }
    }

    std::mt19937 random_;
    Holdings holdings_;
    Document document_;
};

std::string Words(const CharFormat& f, const Document& d) {
    std::ostringstream out;
    out << ToUtf8(d.fonts[f.font]) << ' ' << f.halfPoints << " b" << f.bold << " i" << f.italic << " u"
        << f.underline << " s" << f.strike << " c" << f.smallCaps << " script" << static_cast<int>(f.script)
        << " up" << f.baseLine << " fore" << f.fore.value << " back" << f.back.value;
    return out.str();
}

std::string Words(const ParaFormat& f) {
    std::ostringstream out;
    out << "align" << static_cast<int>(f.alignment) << " li" << f.left << " ri" << f.right << " fi" << f.first
        << " sb" << f.before << " sa" << f.after << " %" << f.spacingPercent << " exact" << f.spacingExact
        << " frame" << f.frame << '/' << f.frameDistance << '/' << f.frameWidth << " break"
        << f.pageBreakBefore << " list" << static_cast<int>(f.list.kind) << '/' << int{f.list.level} << '/'
        << f.list.start << '/' << f.list.list << " tabs";
    for (const TabStop& stop : f.tabs)
        out << ' ' << stop.at << ':' << static_cast<int>(stop.type);
    return out.str();
}

std::string Words(const Paragraph& paragraph, const Document& document) {
    std::ostringstream out;
    out << '"' << ToUtf8(paragraph.text) << "\" cell " << paragraph.cell.table << '.' << paragraph.cell.row
        << '.' << paragraph.cell.column << "\n  " << Words(document.FormatOf(paragraph));
    for (const Run& run : paragraph.runs) {
        out << "\n  run " << run.length << ": " << Words(document.FormatOf(run), document);
        if (run.image != 0)
            out << " image " << document.images[run.image - 1].width << 'x'
                << document.images[run.image - 1].height;
        if (const auto field = document.fields.find(run.field);
            run.field != 0 && field != document.fields.end())
            out << " field " << static_cast<int>(field->second.kind) << ' ' << ToUtf8(field->second.typeData)
                << '|' << ToUtf8(field->second.data);
    }
    if (paragraph.text.empty())
        out << "\n  empty: " << Words(document.chars[paragraph.emptyFormat], document);
    return out.str();
}

std::string Words(const Document& document) {
    std::ostringstream out;
    for (const std::int32_t size : document.page.sizes)
        out << size << ' ';
    out << "tab " << document.defaultTab;
    for (const auto& [number, table] : document.tables) {
        for (const TableRow& row : table.rows) {
            out << "\nrow of table " << number << ':';
            for (const CellFormat& cell : row.cells)
                out << ' ' << cell.left.value_or(-1) << '/' << cell.width << '/' << cell.gapLeft << '/'
                    << cell.gapRight << "/" << cell.border[0] << ',' << cell.border[1] << ','
                    << cell.border[2] << ',' << cell.border[3] << '/' << cell.back.value;
        }
    }
    return out.str();
}

} // namespace

std::string_view OnePixelPng() {
    return {kPng, sizeof kPng - 1};
}

Document RandomDocument(unsigned seed, const Holdings& holdings) {
    return Maker(seed, holdings).Make();
}

std::string FirstDifference(const Document& a, const Document& b) {
    if (SameContent(a, b)) return {};
    const std::size_t shared = std::min(a.paragraphs.size(), b.paragraphs.size());
    for (std::size_t i = 0; i < shared; ++i) {
        const std::string left = Words(a.paragraphs[i], a);
        const std::string right = Words(b.paragraphs[i], b);
        if (left != right) return "paragraph " + std::to_string(i) + "\n" + left + "\n--- and\n" + right;
    }
    return std::to_string(a.paragraphs.size()) + " paragraphs: " + Words(a) + "\n--- and\n" +
           std::to_string(b.paragraphs.size()) + ": " + Words(b);
}

} // namespace korvane::doc
