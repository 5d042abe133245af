// Holds documents of this program and those of another word processor against each other, in two steps:
// `document_trial make FOLDER COUNT` writes documents with everything that one can hold. A script lets the
// other program convert them. `document_trial compare FOLDER COUNT` reads what came of them and prints how
// much is equal. It fails when a text was lost.

#include "document/docx/Docx.h"
#include "document/html/Html.h"
#include "document/rtf/Rtf.h"
#include "support/RandomDocument.h"

#include <algorithm>
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

/// The document of this number. Notes are this program's own. Large letters in narrow cells keep the other
/// program busy without an end.
Document Source(unsigned number) {
    const std::uint16_t kLargest = 48;
    const std::int32_t kNarrowest = 1800;
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
    for (Image& image : document.images)
        image.width = image.height = std::min(image.width, kNarrowest);
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
std::string Difference(TextView a, TextView b) {
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
        if (!plain.starts_with(text)) return Difference(text, plain);
        plain.remove_prefix(text.size());
    }
    while (const std::size_t mark = MarkLength(plain))
        plain.remove_prefix(mark);
    return plain.empty() ? std::string() : Difference({}, plain);
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

using Differences = std::map<std::string, int>;

void CountDifferences(const Document& a, const CharFormat& x, const Document& b, const CharFormat& y,
                      Differences& differences) {
    const auto count = [&](const char* name, bool differs) { differences[name] += differs ? 1 : 0; };
    count("font", a.fonts[x.font] != b.fonts[y.font]);
    count("size", x.halfPoints != y.halfPoints);
    count("bold", x.bold != y.bold);
    count("italic", x.italic != y.italic);
    count("underlined", x.underline != y.underline);
    count("struck out", x.strike != y.strike);
    count("small capitals", x.smallCaps != y.smallCaps);
    count("colour", x.fore != y.fore);
    count("background", x.back != y.back);
}

void CountDifferences(const ParaFormat& x, const ParaFormat& y, Differences& differences) {
    constexpr std::int32_t kRounding = 20;
    const auto far = [](std::int32_t a, std::int32_t b) { return std::abs(a - b) > kRounding; };
    const auto count = [&](const char* name, bool differs) { differences[name] += differs ? 1 : 0; };
    count("alignment", x.alignment != y.alignment);
    count("left indent", far(x.left, y.left));
    count("right indent", far(x.right, y.right));
    count("first line", far(x.first, y.first));
    count("space before", far(x.before, y.before));
    count("space after", far(x.after, y.after));
    count("line spacing", far(x.spacingExact, y.spacingExact) ||
                              (x.spacingExact == 0 && std::abs(x.spacingPercent - y.spacingPercent) > 1));
    count("tab stops", x.tabs.size() != y.tabs.size());
    count("list", x.list.kind != y.list.kind || x.list.level != y.list.level);
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

void CompareParagraphs(const Document& a, const Document& b, Attributes& attributes) {
    // Without the paragraphs that only end a table or the document.
    std::size_t next = 0;
    for (const Paragraph& source : a.paragraphs) {
        if (source.text.empty()) continue;
        std::size_t found = next;
        while (found < b.paragraphs.size() && b.paragraphs[found].text != source.text)
            ++found;
        if (found == b.paragraphs.size()) {
            ++attributes.ofParagraphs["text"];
            continue;
        }
        const Paragraph& other = b.paragraphs[found];
        next = found + 1;
        ++attributes.paragraphs;
        CountDifferences(a.FormatOf(source), b.FormatOf(other), attributes.ofParagraphs);
        const std::vector<CharFormat> x = FormatsOf(a, source);
        const std::vector<CharFormat> y = FormatsOf(b, other);
        for (std::size_t i = 0; i < x.size() && i < y.size(); ++i) {
            ++attributes.characters;
            CountDifferences(a, x[i], b, y[i], attributes.ofCharacters);
        }
    }
}

void PrintDifferences(const Differences& differences, int of) {
    for (const auto& [name, count] : differences) {
        if (count > 0) std::printf(" %s %.1f %%,", name.c_str(), 100.0 * count / std::max(of, 1));
    }
    std::printf("\n");
}

bool Compare(const fs::path& folder, unsigned count) {
    bool whole = true;
    for (const auto& [name, from] :
         {std::pair{"rtf", "docx"}, std::pair{"docx", "rtf"}, std::pair{"html", "rtf"}}) {
        const Format& format = *std::ranges::find(Formats(), name, &Format::name);
        const Tally tally = CompareTexts(folder, format, from, count);
        std::printf("%s of the other program: %d with the same text, %d with another one, %d missing\n", name,
                    tally.equal, tally.other, tally.unread);
        whole = whole && tally.other == 0 && tally.equal > 0;
    }
    for (const Format& format : Formats()) {
        Attributes attributes;
        for (unsigned number = 1; number <= count; ++number) {
            const auto bytes = BytesOf(FileOf(folder / ("rtf-from-" + format.name), number, "rtf"));
            if (bytes) CompareParagraphs(Source(number), ReadRtf(*bytes).document, attributes);
        }
        std::printf("%s of this program, saved by the other as RTF: %d paragraphs, %d characters\n",
                    format.name.c_str(), attributes.paragraphs, attributes.characters);
        std::printf("  paragraphs that differ:");
        PrintDifferences(attributes.ofParagraphs, attributes.paragraphs);
        std::printf("  characters that differ:");
        PrintDifferences(attributes.ofCharacters, attributes.characters);
    }
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
