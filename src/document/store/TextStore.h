#pragma once

#include "document/model/Document.h"
#include "document/model/Edit.h"

#include <functional>
#include <optional>
#include <utility>

namespace korvane::doc {

/// How characters look, with their font by its name, and the field to which they belong.
struct Look {
    CharFormat format{};
    Text font{};
    Index field = 0;

    bool operator==(const Look&) const = default;
};

/// The rows and columns of a table. A table whose rows differ is as wide as its first row.
struct TableSize {
    std::size_t rows = 0;
    std::size_t columns = 0;
};

/// The text that a text control edits. Positions count from 0, with two units for the end of a paragraph. One
/// between these two belongs to the text before it, except at the end of a stretch, which then has the whole
/// end. Positions after the end mean the end. Fields are numbers here, and what they know is in the control.
class TextStore {
public:
    virtual ~TextStore() = default;

    /// The whole text, with CR LF between paragraphs.
    virtual const Text& All() const = 0;
    /// Takes a whole document. Nothing of before can be undone.
    virtual void Reset(Document document) = 0;

    virtual Document Slice(Pos from, Pos to) const = 0;
    /// Puts the piece in place of the stretch, and tells where it ends.
    virtual Pos Replace(Pos from, Pos to, const Document& piece) = 0;

    /// Shows the looks in the stretch in their order, each with its start and length.
    virtual void Runs(Pos from, Pos to,
                      const std::function<void(Pos, std::size_t, const Look&)>& show) const = 0;
    /// The look of a text that is typed at the position: that of the character before it in the paragraph.
    virtual Look LookAt(Pos position) const = 0;
    virtual void Format(Pos from, Pos to, const CharDelta& delta) = 0;

    virtual ParaFormat ParaAt(Pos position) const = 0;
    /// Changes every paragraph that the stretch touches.
    virtual void FormatParas(Pos from, Pos to, const std::function<void(ParaFormat&)>& change) = 0;

    /// The place in a table; nothing outside of tables.
    virtual std::optional<CellPlace> TableAt(Pos position) const = 0;
    /// Where the text of a cell begins and ends; nothing if there is no such cell.
    virtual std::optional<std::pair<Pos, Pos>> CellRange(const CellPlace& cell) const = 0;
    virtual doc::TableSize SizeOf(Index table) const = 0;
    /// How a cell looks; nothing if there is no such cell.
    virtual std::optional<CellFormat> CellAt(const CellPlace& cell) const = 0;
    /// The number of the new table; nothing if the position is in a table, or for a table without cells.
    virtual std::optional<Index> InsertTable(Pos position, std::size_t rows, std::size_t columns) = 0;
    /// Changes all cells of a table.
    virtual void FormatCells(Index table,
                             const std::function<void(const CellPlace&, CellFormat&)>& change) = 0;

    virtual Page PageSetup() const = 0;
    virtual void SetPageSetup(const Page& page) = 0;

    /// What is done between the two can be undone together. Steps may be in each other.
    virtual void BeginStep() = 0;
    virtual void EndStep() = 0;
    /// The step that comes next is undone together with the one before it.
    virtual void JoinNext() = 0;
    /// False when there is nothing to undo.
    virtual bool Undo() = 0;
    virtual bool Redo() = 0;
};

/// A step from its beginning to the end of a block.
class Step {
public:
    explicit Step(TextStore& store) : store_(store) { store_.BeginStep(); }
    Step(const Step&) = delete;
    Step& operator=(const Step&) = delete;
    ~Step() { store_.EndStep(); }

private:
    TextStore& store_;
};

} // namespace korvane::doc
