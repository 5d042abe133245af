#pragma once

#include "document/model/Document.h"

#include <compare>
#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace korvane::doc {

/// A place in the text of a document, as `PlainText` counts: from 0, with two units for the end of a
/// paragraph.
using Pos = std::size_t;

/// The same as a paragraph and a place in its text.
struct Place {
    std::size_t paragraph = 0;
    std::size_t offset = 0;

    auto operator<=>(const Place&) const = default;
};

/// Some paragraphs and what takes their place, with the tables that come, change or go (without a value).
struct Patch {
    std::size_t first = 0;
    std::size_t count = 0;
    std::vector<Paragraph> paragraphs{};
    std::map<Index, std::optional<Table>> tables{};
};

/// Carries the patch out. The result is the patch that takes it back.
Patch Apply(Document& document, Patch patch);

/// Finds places in a document's text. It remembers the last one, so that neighbours are found quickly.
class Places {
public:
    explicit Places(const Document& document) : document_(document) {}

    /// The place of the position. A position within the end of a paragraph belongs to the text before it, one
    /// after the end of the text to the end.
    Place At(Pos position);
    Pos Of(const Place& place);
    /// Where the paragraph begins.
    Pos StartOf(std::size_t paragraph);
    /// Says that paragraphs from this one on aren't as they were.
    void Forget(std::size_t paragraph);

private:
    void GoTo(std::size_t paragraph);
    Pos Width(std::size_t paragraph) const {
        return document_.paragraphs[paragraph].text.size() + kCrLf.size();
    }

    const Document& document_;
    std::size_t paragraph_ = 0;
    Pos start_ = 0;
};

/// A stretch of a text.
struct Range {
    Place from{};
    Place to{};

    bool Empty() const { return from == to; }
};

/// The text of the range with its formatting as a document of its own. Of a table that is only partly in it,
/// the rows come whole, with the cells outside empty; if it is in one row only, its paragraphs come without
/// the table.
Document Slice(const Document& document, const Range& range);

struct Replacement {
    Patch patch{};
    /// Where the piece ends afterwards.
    Place end{};
};

/// The patch that puts the piece in place of the range. The formats, fonts and pictures of the piece are
/// added to the document at once. A table goes only when the range has all of it and reaches over one of its
/// ends; otherwise its cells are emptied. The piece's tables become plain paragraphs inside a table. The
/// piece's paragraph formats count where its text doesn't join a text that was there.
Replacement ReplacePatch(Document& document, const Range& range, const Document& piece);

/// The patch that gives every run of the range another look.
Patch FormatPatch(Document& document, const Range& range, const std::function<Run(const Run&)>& change);
/// The patch that gives every paragraph that the range touches another format.
Patch FormatParasPatch(Document& document, const Range& range,
                       const std::function<void(ParaFormat&)>& change);

/// The paragraphs of a table: the first one and the one after its last.
std::pair<std::size_t, std::size_t> ParagraphsOfTable(const Document& document, Index table);
/// The paragraphs of a cell in the same way. Both are the same when there is no such cell.
std::pair<std::size_t, std::size_t> ParagraphsOfCell(const Document& document, const CellPlace& cell);

/// The patch that puts an empty table at the place, and its number; nothing in a table.
std::optional<std::pair<Patch, Index>> InsertTablePatch(const Document& document, const Place& place,
                                                        std::size_t rows, std::size_t columns);

/// The runs of a part of the paragraph.
Runs RunsOf(const Paragraph& paragraph, std::size_t from, std::size_t to);

/// Changes the parts of a format that the delta names.
CharFormat Changed(Document& document, CharFormat format, const CharDelta& delta);

} // namespace korvane::doc
