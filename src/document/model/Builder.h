#pragma once

#include "document/model/Reading.h"

#include <string_view>
#include <vector>

namespace korvane::doc {

/// Builds a document from its beginning to its end, as readers need it, and keeps the limits.
class Builder {
public:
    explicit Builder(const Limits& limits) : limits_(limits) { document_.paragraphs.clear(); }

    /// The document so far. Its paragraphs belong to the builder.
    Document& Target() { return document_; }

    /// The look of what is added from now on.
    void SetFormat(const CharFormat& format);
    const CharFormat& Format() const { return document_.chars[look_.format]; }
    void SetField(Index field) { look_.field = field; }

    void Add(char16_t character) { Add(TextView(&character, 1)); }
    void Add(TextView text);
    /// The paragraph gets so many characters more, or fewer. So a huge text isn't moved each time that it has
    /// filled its place.
    void Expect(std::size_t length) { text_.reserve(text_.size() + length); }
    /// Adds characters of ASCII.
    void AddAscii(std::string_view text);
    void AddImage(Image image);
    /// The number of a new field.
    Index NewField(Field field);
    bool AtParagraphStart() const { return text_.empty(); }
    /// The character before the next one, within the paragraph; 0 at its start.
    char16_t Last() const { return text_.empty() ? u'\0' : text_.back(); }
    /// Takes the last character of the paragraph away.
    void RemoveLast();

    void EndParagraph(const ParaFormat& format);
    /// The paragraph at hand and those after it belong to a cell, until it ends.
    void OpenCell();
    bool InCell() const { return cellOpen_; }
    /// Ends the cell's last paragraph.
    void EndCell(const ParaFormat& format);
    /// Whether cells were ended that belong to no row yet.
    bool InRow() const { return !cellEnds_.empty(); }
    /// Ends a row of the table. Cells without a format of their own are like the last one with one.
    void EndRow(std::vector<CellFormat> cells);
    /// The next row begins another table.
    void EndTable() { table_ = 0; }

    bool Full() const { return trouble_ == Trouble::OverLimit; }
    void Tell(Trouble trouble);
    Trouble Told() const { return trouble_; }

    /// The whole document. A text after the last paragraph's end becomes a paragraph of this format.
    Document Finish(const ParaFormat& last);

private:
    void CloseParagraph(const ParaFormat& format);
    bool Fits(std::size_t length);
    /// How much of a text of this length fits.
    std::size_t FittingPart(std::size_t length);
    void Extend(std::size_t length);
    Index Number(const ParaFormat& format);
    void PlaceCells(Index table, Index row);

    Limits limits_;
    Document document_;
    Trouble trouble_ = Trouble::None;
    std::size_t characters_ = 0;
    std::size_t cells_ = 0;

    // The paragraph at hand.
    Text text_;
    Runs runs_;
    Run look_{};

    // The last format of a paragraph, since the next one is often the same.
    ParaFormat lastFormat_{};
    Index lastNumber_ = 0;

    Index table_ = 0;
    Index tables_ = 0;
    bool cellOpen_ = false;
    std::size_t rowStart_ = 0;
    /// The first paragraph after each cell of the row at hand.
    std::vector<std::size_t> cellEnds_;
};

} // namespace korvane::doc
