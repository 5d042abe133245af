#include "tbx/TableCheck.h"

#include "common/text/CodePage.h"
#include "grid/Grid.h"
#include "table/TbxFormat.h"

namespace korvane {

namespace {

/// The lines of a cell as the reader will see them.
std::vector<TextView> LinesOf(TextView text) {
    std::vector<TextView> lines;
    for (;;) {
        const std::size_t end = text.find(u'\r');
        lines.push_back(text.substr(0, end));
        if (end == TextView::npos) return lines;
        const bool crLf = text.substr(end, 2) == kCrLf;
        text.remove_prefix(end + (crLf ? 2 : 1));
    }
}

bool HasLoneCr(TextView text) {
    for (std::size_t at = text.find(u'\r'); at != TextView::npos; at = text.find(u'\r', at + 1))
        if (text.substr(at, 2) != kCrLf) return true;
    return false;
}

/// Collects the findings of one table.
class TableCheck {
public:
    explicit TableCheck(const Grid& grid) : grid_(grid) {}

    std::vector<Finding> Check() {
        if (grid_.RowCount() == Row{0} && grid_.ColCount() > Col{0})
            Add({}, "without rows, the columns don't come back");
        if (grid_.ColCount() > MaxColumns) Add({}, "with more than 24 columns, nothing comes back");
        for (Col col{1}; col <= grid_.ColCount(); ++col)
            CheckHeader(col);
        for (Row row{1}; row <= grid_.RowCount(); ++row)
            CheckRow(row);
        return std::move(findings_);
    }

private:
    void CheckHeader(Col col) {
        if (!grid_.Page().Holds(grid_.ColHeaderText(col)))
            Add({}, "the name of column " + std::to_string(col.Number()) + kOutsidePage);
    }

    void CheckRow(Row row) {
        if (grid_.CellText(row, Col{1}) == FromAscii(tbx::kDeleteMark))
            Add({row, Col{1}}, "the row is marked for deletion: a save leaves it out");
        for (Col col{1}; col <= grid_.ColCount(); ++col)
            CheckCell({row, col}, grid_.CellText(row, col));
    }

    void CheckCell(CellPosition cell, TextView text) {
        if (!grid_.Page().Holds(text)) Add(cell, "the text" + std::string(kOutsidePage));
        if (text.ends_with(kCrLf)) {
            Add(cell, "the final line break is taken off by a save");
            text.remove_suffix(kCrLf.size());
        }
        if (HasLoneCr(text)) Add(cell, "a lone CR comes back as CR LF");
        CheckLines(cell, LinesOf(text));
    }

    void CheckLines(CellPosition cell, const std::vector<TextView>& lines) {
        for (std::size_t i = 0; i < lines.size(); ++i) {
            if (lines[i].empty() || !IsMarker(lines[i].front(), i == 0)) continue;
            Add(cell, "line " + std::to_string(i + 1) + " of the cell begins with \"" +
                          ToUtf8(lines[i].substr(0, 1)) + "\", which marks something else in a file");
        }
    }

    bool IsMarker(char16_t first, bool firstLine) const {
        return first == tbx::kAt || first == tbx::kTick || first == tbx::kComment || first == colourMark_ ||
               (firstLine && first == tbx::kValue);
    }

    void Add(CellPosition cell, std::string what) { findings_.push_back({cell, 0, std::move(what)}); }

    static constexpr auto kOutsidePage = " has a character outside the code page, which becomes \"?\"";

    const Grid& grid_;
    /// The character of the mark's byte in this page.
    const char16_t colourMark_ = grid_.Page().Decode(static_cast<unsigned char>(tbx::kColour));
    std::vector<Finding> findings_;
};

} // namespace

std::vector<Finding> CheckTable(const Grid& grid) {
    return TableCheck(grid).Check();
}

} // namespace korvane
