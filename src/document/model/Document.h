#pragma once

#include "common/text/SharedBytes.h"
#include "common/text/Text.h"
#include "document/model/CharFormat.h"
#include "document/model/FormatPool.h"
#include "document/model/ParaFormat.h"
#include "document/model/Table.h"

#include <array>
#include <cstdint>
#include <map>
#include <vector>

namespace korvane::doc {

/// Stands in the text where a picture is.
inline constexpr char16_t kImageCharacter = 0xFFFC;
/// Ends a line within a paragraph.
inline constexpr char16_t kLineBreak = 0x0B;

/// Characters of a paragraph that look alike.
struct Run {
    Index length = 0;
    /// The number in `Document::chars`.
    Index format = 0;
    /// The number of the field to which the characters belong; 0 for none.
    Index field = 0;
    /// The number of the picture in `Document::images`, counted from 1; 0 for text.
    Index image = 0;

    bool LooksLike(const Run& other) const {
        return format == other.format && field == other.field && image == 0 && other.image == 0;
    }
    bool operator==(const Run&) const = default;
};

using Runs = std::vector<Run>;

/// A paragraph. The lengths of its runs add up to that of its text.
struct Paragraph {
    Text text{};
    Runs runs{};
    /// The number in `Document::paras`.
    Index format = 0;
    /// How a text looks that is typed into the empty paragraph; 0 in a paragraph with text.
    Index emptyFormat = 0;
    CellPlace cell{};

    bool operator==(const Paragraph&) const = default;
};

enum class FieldKind : std::uint8_t { Note = 0, Hyperlink = 1 };

/// What a field knows besides its text.
struct Field {
    FieldKind kind = FieldKind::Note;
    /// The address of a hyperlink, or a copy of a note's text.
    Text typeData{};
    /// The note, or the path of a hyperlink to a file.
    Text data{};

    bool operator==(const Field&) const = default;
};

enum class ImageKind : std::uint8_t { Png, Jpeg, Other };

/// A picture as it was in its file. Nobody decodes it before it is shown.
struct Image {
    ImageKind kind = ImageKind::Other;
    SharedBytes bytes{};
    /// The size on the page in twips; 0 leaves it to the picture.
    std::int32_t width = 0;
    std::int32_t height = 0;
};

/// The sizes of the page in twips, in the order in which the text control counts them.
struct Page {
    enum Size : std::uint8_t { Width, Height, MarginLeft, MarginTop, MarginRight, MarginBottom };
    static constexpr std::size_t kSizes = 6;

    std::array<std::int32_t, kSizes> sizes{11906, 16838, 1134, 1134, 1134, 1134};

    std::int32_t& operator[](Size size) { return sizes[size]; }
    std::int32_t operator[](Size size) const { return sizes[size]; }
    bool operator==(const Page&) const = default;
};

/// A text with its formatting. It always has a paragraph, and its last one is in no table. The paragraphs of
/// a table follow each other cell by cell and row by row, and every cell has at least one.
struct Document {
    std::vector<Paragraph> paragraphs{1};
    std::map<Index, Table> tables{};
    std::map<Index, Field> fields{};
    std::vector<Image> images{};
    std::vector<Text> fonts{u"Arial"};
    FormatPool<CharFormat> chars{};
    FormatPool<ParaFormat> paras{};
    Page page{};
    std::int32_t defaultTab = 720;

    static constexpr std::size_t kMostFonts = 1024;

    /// The number of the font, which is added if it isn't there. Beyond the limit it is the first font.
    std::uint16_t FontNumber(TextView name);
    const CharFormat& FormatOf(const Run& run) const { return chars[run.format]; }
    const ParaFormat& FormatOf(const Paragraph& paragraph) const { return paras[paragraph.format]; }
};

/// The paragraphs' texts, with CR LF between them.
Text PlainText(const Document& document);

/// A document of that text without formatting. A paragraph ends at CR LF, CR or LF.
Document FromPlainText(TextView text);

/// Adds a run, or makes the last one longer if it looks the same.
void AddRun(Runs& runs, const Run& run);

/// Whether both have the same text with the same formats, tables, fields, pictures and page, however their
/// formats are numbered.
bool SameContent(const Document& a, const Document& b);

/// Whether the document is as the notes on `Document` and `Paragraph` say.
bool IsSound(const Document& document);

} // namespace korvane::doc
