// Holds documents of this program and those of another word processor against each other, in two steps:
// `document_trial make FOLDER COUNT` writes documents with everything that one can hold. A script lets the
// other program convert them. `document_trial compare FOLDER COUNT` reads what came of them and prints how
// much is equal. It fails when a text was lost, and when the other program shows RTF or DOCX in another way.

#include "document/docx/Docx.h"
#include "document/html/Html.h"
#include "document/model/FontScripts.h"
#include "document/rtf/Rtf.h"
#include "support/RandomDocument.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>

namespace korvane::doc {
namespace {

namespace fs = std::filesystem;

struct Format {
    std::string name;
    std::function<ReadResult(std::string_view)> read;
    std::function<std::string(const Document&)> write;
};

const std::vector<Format>& Formats() {
    static const std::vector<Format> formats{
        {"rtf", [](std::string_view bytes) { return ReadRtf(bytes); },
         [](const Document& document) { return WriteRtf(document); }},
        {"docx", [](std::string_view bytes) { return ReadDocx(bytes); },
         [](const Document& document) { return WriteDocx(document); }},
        {"html", [](std::string_view bytes) { return ReadHtml(bytes); },
         [](const Document& document) { return WriteHtml(document); }},
    };
    return formats;
}

/// Makes the indents in cells so small that each line has room: the other program is busy without an end with
/// lines that have none.
void NarrowIndentsInCells(Document& document) {
    constexpr std::int32_t kWidest = 300;
    for (Paragraph& paragraph : document.paragraphs) {
        if (paragraph.cell.table == 0) continue;
        ParaFormat format = document.FormatOf(paragraph);
        format.left = std::min(format.left, kWidest);
        format.right = std::min(format.right, kWidest);
        format.first = std::clamp(format.first, -kWidest, kWidest);
        paragraph.format = document.paras.Add(format);
    }
}

/// The document of this number. Notes are this program's own. As with the indents, letters and cells are such
/// that a line has room.
Document Source(unsigned number) {
    const std::uint16_t kLargest = 48;
    const std::int32_t kNarrowest = 3600;
    const std::int32_t kLargestImage = 1800;
    Holdings holdings;
    holdings.notes = false;
    holdings.page = false;
    Document document = RandomDocument(number, holdings);
    const auto moderate = [&document, kLargest](Index& format) {
        CharFormat look = document.chars[format];
        look.halfPoints = std::min(look.halfPoints, kLargest);
        format = document.chars.Add(look);
    };
    for (Paragraph& paragraph : document.paragraphs) {
        for (Run& run : paragraph.runs)
            moderate(run.format);
        moderate(paragraph.emptyFormat);
    }
    for (auto& [index, table] : document.tables) {
        for (TableRow& row : table.rows) {
            for (CellFormat& cell : row.cells)
                cell.width = std::max(cell.width, kNarrowest);
        }
    }
    NarrowIndentsInCells(document);
    // The other program takes the last paragraph of an RTF file out of its list.
    if (document.FormatOf(document.paragraphs.back()).list.kind != ListKind::None)
        document.paragraphs.emplace_back();
    for (Image& image : document.images)
        image.width = image.height = std::min(image.width, kLargestImage);
    return document;
}

fs::path FileOf(const fs::path& folder, unsigned number, const std::string& extension) {
    return folder / (std::to_string(number) + '.' + extension);
}

std::optional<std::string> BytesOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(file), {});
}

void Make(const fs::path& folder, unsigned count) {
    for (const Format& format : Formats()) {
        fs::create_directories(folder / "own" / format.name);
        for (unsigned number = 1; number <= count; ++number)
            std::ofstream(FileOf(folder / "own" / format.name, number, format.name), std::ios::binary)
                << format.write(Source(number));
    }
}

/// What must not be lost of a text: all but the kinds of blanks, of ends of lines, and pictures.
Text Substance(TextView text) {
    static constexpr TextView kNone = u" \t\r\n\v\u00A0\u00AD\uFFFC\uFEFF";
    Text kept;
    std::ranges::copy_if(text, std::back_inserter(kept),
                         [](char16_t c) { return kNone.find(c) == TextView::npos; });
    return kept;
}

struct Tally {
    int unread = 0;
    int equal = 0;
    int other = 0;
};

/// The first place where two texts differ, with what is around it.
std::string FirstDifferenceOf(TextView a, TextView b) {
    const auto at = static_cast<std::size_t>(std::ranges::mismatch(a, b).in1 - a.begin());
    const std::size_t from = at < 15 ? 0 : at - 15;
    const auto piece = [from](TextView text) {
        return from > text.size() ? std::string() : ToUtf8(text.substr(from, 40));
    };
    return "\"" + piece(a) + "\" / \"" + piece(b) + "\"";
}

/// How long the mark of a list is with which a plain text begins; 0 if it begins with none.
std::size_t MarkLength(TextView text) {
    if (text.empty()) return 0;
    const auto inNumber = [](char16_t c) {
        return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
    };
    const auto end = static_cast<std::size_t>(std::ranges::find_if_not(text, inNumber) - text.begin());
    if (end == text.size()) return 0;
    static constexpr TextView kBullets = u"•◦▪o";
    if (kBullets.find(text[0]) != TextView::npos) return 1;
    return end > 0 && text[end] == u'.' ? end + 1 : 0;
}

/// The first place where a document's text isn't what the other program writes as plain text; empty if there
/// is none. In plain text lists have their marks, which are formats here.
std::string DifferenceFrom(TextView plain, const Document& document) {
    for (const Paragraph& paragraph : document.paragraphs) {
        const Text text = Substance(paragraph.text);
        if (text.empty()) continue;
        for (std::size_t mark = 1; mark > 0 && !plain.starts_with(text); plain.remove_prefix(mark))
            mark = MarkLength(plain);
        if (!plain.starts_with(text)) return FirstDifferenceOf(text, plain);
        plain.remove_prefix(text.size());
    }
    while (const std::size_t mark = MarkLength(plain))
        plain.remove_prefix(mark);
    return plain.empty() ? std::string() : FirstDifferenceOf({}, plain);
}

/// Reads the files that the other program wrote, and compares their texts with what it writes as plain text.
Tally CompareTexts(const fs::path& folder, const Format& format, const std::string& from, unsigned count) {
    Tally tally;
    const fs::path path = folder / (format.name + "-from-" + from);
    for (unsigned number = 1; number <= count; ++number) {
        const auto bytes = BytesOf(FileOf(path, number, format.name));
        const auto plain = BytesOf(FileOf(path / "txt", number, "txt"));
        if (!bytes || !plain) {
            ++tally.unread;
            continue;
        }
        const std::string difference =
            DifferenceFrom(Substance(FromUtf8(*plain)), format.read(*bytes).document);
        ++(difference.empty() ? tally.equal : tally.other);
        if (!difference.empty())
            std::printf("  %s %u: %s\n", path.filename().c_str(), number, difference.c_str());
    }
    return tally;
}

/// How often each attribute differs, and where it does first.
struct Difference {
    int count = 0;
    std::vector<std::string> where{};
};
using Differences = std::map<std::string, Difference>;

class Comparison {
public:
    Comparison(Differences& differences, std::string where)
        : differences_(differences), where_(std::move(where)) {}

    void Note(const char* name, bool differs, const std::string& values) {
        if (!differs) return;
        Difference& difference = differences_[name];
        if (++difference.count <= kExamples) difference.where.push_back(where_ + ": " + values);
    }
    void Compare(const char* name, std::int64_t mine, std::int64_t theirs, std::int64_t tolerance = 0) {
        Note(name, std::abs(mine - theirs) > tolerance,
             std::to_string(mine) + " / " + std::to_string(theirs));
    }
    void Compare(const char* name, const Text& mine, const Text& theirs) {
        Note(name, mine != theirs, ToUtf8(mine) + " / " + ToUtf8(theirs));
    }

private:
    static constexpr int kExamples = 3;
    Differences& differences_;
    std::string where_;
};

void CompareLooks(const Document& a, const CharFormat& x, const Document& b, const CharFormat& y,
                  Comparison& comparison) {
    comparison.Compare("font", a.fonts[x.font], b.fonts[y.font]);
    comparison.Compare("size", x.halfPoints, y.halfPoints);
    comparison.Compare("bold", x.bold, y.bold);
    comparison.Compare("italic", x.italic, y.italic);
    comparison.Compare("underlined", x.underline, y.underline);
    comparison.Compare("struck out", x.strike, y.strike);
    comparison.Compare("small capitals", x.smallCaps, y.smallCaps);
    // In HTML all text has a colour there, if only black.
    const Colour black{0};
    const auto shown = [black](Colour colour) { return colour == kNoColour ? black : colour; };
    comparison.Compare("colour", shown(x.fore).value, shown(y.fore).value);
    comparison.Compare("background", x.back.value, y.back.value);
}

void CompareLooks(const ParaFormat& x, const ParaFormat& y, Comparison& comparison) {
    constexpr std::int64_t kRounding = 20;
    comparison.Compare("alignment", static_cast<int>(x.alignment), static_cast<int>(y.alignment));
    comparison.Compare("left indent", x.left, y.left, kRounding);
    comparison.Compare("right indent", x.right, y.right, kRounding);
    comparison.Compare("first line", x.first, y.first, kRounding);
    comparison.Compare("space before", x.before, y.before, kRounding);
    comparison.Compare("space after", x.after, y.after, kRounding);
    comparison.Compare("exact line spacing", x.spacingExact, y.spacingExact, kRounding);
    constexpr std::int64_t kRoundingOfDoc = 2;
    if (x.spacingExact == 0)
        comparison.Compare("line spacing", x.spacingPercent, y.spacingPercent, kRoundingOfDoc);
    comparison.Compare("tab stops", static_cast<int>(x.tabs.size()), static_cast<int>(y.tabs.size()));
    comparison.Compare("list", static_cast<int>(x.list.kind), static_cast<int>(y.list.kind));
    comparison.Compare("level of a list", x.list.level, y.list.level);
}

/// The format of each character.
std::vector<CharFormat> FormatsOf(const Document& document, const Paragraph& paragraph) {
    std::vector<CharFormat> formats;
    for (const Run& run : paragraph.runs)
        formats.insert(formats.end(), run.length, document.FormatOf(run));
    return formats;
}

struct Attributes {
    int characters = 0;
    int paragraphs = 0;
    Differences ofCharacters{};
    Differences ofParagraphs{};
};

/// The text as HTML shows it where it isn't told otherwise, which the other program can't be.
Text WithSingleBlanks(const Text& text) {
    Text shown;
    for (const char16_t c : text) {
        const char16_t blank = c == u'\t' ? u' ' : c;
        if (blank != u' ' || (!shown.empty() && shown.back() != u' ' && shown.back() != kLineBreak))
            shown += blank;
    }
    while (shown.ends_with(u' '))
        shown.pop_back();
    return shown;
}

/// Whether the other program keeps no looks of the character. Of writings from the right it keeps few in RTF
/// that it makes from DOC.
using Lookless = std::function<bool(char16_t)>;

void CompareParagraphs(const std::string& file, const Document& a, const Document& b,
                       const std::function<Text(const Text&)>& shown, const Lookless& lookless,
                       Attributes& attributes) {
    // Without the paragraphs that only end a table or the document.
    std::size_t next = 0;
    for (const Paragraph& source : a.paragraphs) {
        const Text text = shown(source.text);
        if (text.empty()) continue;
        std::size_t found = next;
        while (found < b.paragraphs.size() && shown(b.paragraphs[found].text) != text)
            ++found;
        const std::string where = file + " \"" + ToUtf8(source.text.substr(0, 20)) + '"';
        Comparison paragraphs(attributes.ofParagraphs, where);
        if (found == b.paragraphs.size()) {
            paragraphs.Compare("text", source.text,
                               next < b.paragraphs.size() ? b.paragraphs[next].text : Text());
            continue;
        }
        const Paragraph& other = b.paragraphs[found];
        next = found + 1;
        ++attributes.paragraphs;
        CompareLooks(a.FormatOf(source), b.FormatOf(other), paragraphs);
        if (source.text != other.text) continue;
        const std::vector<CharFormat> x = FormatsOf(a, source);
        const std::vector<CharFormat> y = FormatsOf(b, other);
        for (std::size_t i = 0; i < x.size() && i < y.size(); ++i) {
            // Pictures have no look of letters there.
            if (source.text[i] == kImageCharacter || lookless(source.text[i])) continue;
            ++attributes.characters;
            Comparison characters(attributes.ofCharacters, where + " at " + std::to_string(i));
            CompareLooks(a, x[i], b, y[i], characters);
        }
    }
}

void Print(const Differences& differences, int of) {
    for (const auto& [name, difference] : differences) {
        std::printf("    %s %.1f %%\n", name.c_str(), 100.0 * difference.count / std::max(of, 1));
        for (const std::string& where : difference.where)
            std::printf("      %s\n", where.c_str());
    }
}

const Format& FormatNamed(std::string_view name) {
    return *std::ranges::find(Formats(), name, &Format::name);
}

/// Where the other program put the documents of this program.
struct Hop {
    const char* from;
    const char* folder;
    const char* to;
};

constexpr Hop kHops[] = {
    {"rtf", "docx-from-rtf", "docx"},
    {"docx", "docx-from-docx", "docx"},
    {"html", "docx-from-html", "docx"},
    // From RTF to DOC, and back.
    {"doc", "rtf-from-doc", "rtf"},
};

bool HasTextAndLists(const Differences& ofParagraphs) {
    return std::ranges::none_of(std::array{"text", "list", "level of a list"},
                                [&](const char* name) { return ofParagraphs.contains(name); });
}

/// What the other program shows of a document of this program, and whether it is all the same. HTML has no
/// tab stops, and the other program takes indents of lists and exact line spacing from it in other ways.
bool CompareAttributes(const fs::path& folder, const Hop& hop, unsigned count) {
    const bool html = std::string_view(hop.from) == "html";
    const bool doc = std::string_view(hop.from) == "doc";
    const auto shown = [html](const Text& text) { return html ? WithSingleBlanks(text) : text; };
    const Lookless lookless = [doc](char16_t character) { return doc && IsComplex(character); };
    Attributes attributes;
    for (unsigned number = 1; number <= count; ++number) {
        const auto bytes = BytesOf(FileOf(folder / hop.folder, number, hop.to));
        if (bytes)
            CompareParagraphs(std::to_string(number), Source(number),
                              FormatNamed(hop.to).read(*bytes).document, shown, lookless, attributes);
    }
    std::printf("%s of this program, saved by the other as %s: %d paragraphs, %d characters\n", hop.from,
                hop.to, attributes.paragraphs, attributes.characters);
    std::printf("  paragraphs that differ:\n");
    Print(attributes.ofParagraphs, attributes.paragraphs);
    std::printf("  characters that differ:\n");
    Print(attributes.ofCharacters, attributes.characters);
    const bool same = attributes.ofParagraphs.empty() && attributes.ofCharacters.empty();
    return attributes.paragraphs > 0 && (html ? HasTextAndLists(attributes.ofParagraphs) : same);
}

bool Compare(const fs::path& folder, unsigned count) {
    bool whole = true;
    for (const auto& [name, from] : {std::pair{"rtf", "docx"}, std::pair{"docx", "rtf"},
                                     std::pair{"html", "rtf"}, std::pair{"rtf", "doc"}}) {
        const Tally tally = CompareTexts(folder, FormatNamed(name), from, count);
        std::printf(
            "%s of the other program, from %s: %d with the same text, %d with another one, %d missing\n",
            name, from, tally.equal, tally.other, tally.unread);
        whole = whole && tally.other == 0 && tally.equal > 0;
    }
    for (const Hop& hop : kHops)
        whole = CompareAttributes(folder, hop, count) && whole;
    return whole;
}

} // namespace
} // namespace korvane::doc

int main(int argc, char** argv) {
    using namespace korvane::doc;
    const std::string what = argc == 4 ? argv[1] : "";
    const unsigned count = argc == 4 ? static_cast<unsigned>(std::atoi(argv[3])) : 0;
    if (count == 0 || (what != "make" && what != "compare")) {
        std::fprintf(stderr, "usage: document_trial make|compare FOLDER COUNT\n");
        return 2;
    }
    if (what == "compare") return Compare(argv[2], count) ? 0 : 1;
    Make(argv[2], count);
    return 0;
}
