#include "grid/ByteSearch.h"
#include "grid/GridStore.h"

#include <algorithm>
#include <string_view>

namespace korvane {

namespace {

/// The part of the adopted bytes that holds the texts of a row.
struct Stretch {
    std::size_t begin = std::string_view::npos;
    std::size_t end = 0;
    std::size_t used = 0;
    /// Whether there are texts that are elsewhere.
    bool hasOthers = false;

    /// This runs for every cell of every row, so it has no branch.
    void Include(TextHandle handle) {
        hasOthers |= handle.GetKind() != TextHandle::Kind::Adopted;
        begin = std::min(begin, handle.IsEmpty() ? begin : handle.Offset());
        end = std::max(end, handle.Offset() + handle.Length());
        used += handle.Length();
    }
    /// Whether a search of the whole stretch is cheaper than a search of each text.
    bool IsDense() const { return end - begin < 4 * used + 256; }
    std::string_view Of(std::string_view bytes) const { return bytes.substr(begin, end - begin); }
};

Stretch StretchOf(std::span<const TextHandle> cells) {
    Stretch stretch;
    for (const TextHandle handle : cells)
        stretch.Include(handle);
    return stretch;
}

} // namespace

/// Looks for one text in many rows.
class GridStore::Finder {
public:
    Finder(const GridStore& grid, TextView part) : texts_(grid.texts_), part_(part) {
        const CodePage& page = texts_.Page();
        if (page.Holds(part)) pattern_.emplace(page.ToBytes(part), texts_.AdoptedBytes());
    }

    /// Whether any text of the table can contain the part.
    bool CanFind() const { return pattern_ || texts_.HasWideTexts(); }

    /// The number of the first cell that contains the part, from `first` on; the number of cells when none
    /// does.
    std::size_t FindIn(std::span<const TextHandle> cells, std::size_t first) const {
        if (!MayBeIn(cells)) return cells.size();
        while (first < cells.size() && !texts_.Contains(cells[first], part_, pattern_))
            ++first;
        return first;
    }

private:
    /// A loaded row is one stretch of the file, including its markers. When the stretch doesn't contain the
    /// part, no cell does.
    bool MayBeIn(std::span<const TextHandle> cells) const {
        const Stretch stretch = StretchOf(cells);
        if (stretch.hasOthers) return true;
        if (!pattern_ || stretch.used == 0) return false;
        return !stretch.IsDense() || pattern_->IsIn(stretch.Of(texts_.AdoptedBytes()));
    }

    const TextBlocks& texts_;
    TextView part_;
    std::optional<BytePattern> pattern_;
};

std::optional<CellPosition> GridStore::FindText(TextView part, CellPosition from) const {
    if (from.row < Row{1}) from = {Row{1}, Col{1}};
    if (part.empty()) return FirstCellFrom(from);
    const Finder finder(*this, part);
    if (!finder.CanFind()) return std::nullopt;
    std::size_t first = Index(std::max(from.col, Col{1}));
    for (Row row = from.row; row <= RowCount(); ++row) {
        const auto cells = cells_.Row(Index(row));
        const std::size_t found = finder.FindIn(cells, first);
        if (found < cells.size()) return CellPosition{row, Col(static_cast<int>(found) + 1)};
        first = 0;
    }
    return std::nullopt;
}

std::optional<CellPosition> GridStore::FirstCellFrom(CellPosition from) const {
    if (from.col > ColCount()) from = {from.row + 1, Col{1}};
    from.col = std::max(from.col, Col{1});
    if (!HasCell(from.row, from.col)) return std::nullopt;
    return from;
}

} // namespace korvane
