#include "tbx/TableCheck.h"

#include "common/text/CodePage.h"
#include "grid/Grid.h"
#include "table/model/TbxFormat.h"

#include <array>
#include <string>

namespace korvane {

namespace {

/// Goes over the lines of a cell as the reader will see them. The cell's text may also be bytes.
template <class Unit, class Visit>
void ForEachLine(std::basic_string_view<Unit> text, const Visit& visit) {
    for (std::size_t number = 1;; ++number) {
        const std::size_t end = text.find(Unit{'\r'});
        visit(number, text.substr(0, end));
        if (end == text.npos) return;
        const bool crLf = end + 1 < text.size() && text[end + 1] == Unit{'\n'};
        text.remove_prefix(end + (crLf ? 2 : 1));
    }
}

template <class Unit>
bool HasLoneCr(std::basic_string_view<Unit> text) {
    for (std::size_t at = text.find(Unit{'\r'}); at != text.npos; at = text.find(Unit{'\r'}, at + 1))
        if (at + 1 == text.size() || text[at + 1] != Unit{'\n'}) return true;
    return false;
}

template <class Unit>
bool EndsInLineBreak(std::basic_string_view<Unit> text) {
    return text.size() >= 2 && text[text.size() - 2] == Unit{'\r'} && text.back() == Unit{'\n'};
}

/// Tells the findings of one table.
class TableCheck {
public:
    TableCheck(const Grid& grid, FindingStream& findings) : grid_(grid), findings_(findings) {}

    void Check() {
        if (grid_.RowCount() == Row{0} && grid_.ColCount() > Col{0})
            Add({}, "without rows, the columns don't come back");
        if (grid_.ColCount() > MaxColumns) Add({}, "with more than 24 columns, nothing comes back");
        for (Col col{1}; col <= grid_.ColCount(); ++col)
            CheckHeader(col);
        for (Row row{1}; row <= grid_.RowCount(); ++row)
            CheckRow(row);
    }

private:
    void CheckHeader(Col col) {
        if (!grid_.Page().Holds(grid_.ColHeaderText(col)))
            Add({}, "the name of column " + std::to_string(col.Number()) + kOutsidePage);
    }

    void CheckRow(Row row) {
        if (grid_.CellBytes(row, Col{1}) == tbx::kDeleteMark)
            Add({row, Col{1}}, "the row is marked for deletion: a save leaves it out");
        for (Col col{1}; col <= grid_.ColCount(); ++col)
            CheckCell({row, col});
    }

    /// A long text is looked at where it is and not copied.
    void CheckCell(CellPosition cell) {
        if (const auto bytes = grid_.CellBytes(cell.row, cell.col)) {
            CheckText(cell, *bytes);
            return;
        }
        Add(cell, "the text" + std::string(kOutsidePage));
        const Text text = grid_.CellText(cell.row, cell.col);
        CheckText(cell, TextView(text));
    }

    template <class Unit>
    void CheckText(CellPosition cell, std::basic_string_view<Unit> text) {
        if (EndsInLineBreak(text)) {
            Add(cell, "the final line break is taken off by a save");
            text.remove_suffix(kCrLf.size());
        }
        if (HasLoneCr(text)) Add(cell, "a lone CR comes back as CR LF");
        ForEachLine(text, [&](std::size_t number, std::basic_string_view<Unit> line) {
            if (!line.empty()) CheckLine(cell, number, CharacterOf(line.front()));
        });
    }

    char16_t CharacterOf(char16_t unit) const { return unit; }
    char16_t CharacterOf(char byte) const { return grid_.Page().Decode(static_cast<unsigned char>(byte)); }

    void CheckLine(CellPosition cell, std::size_t number, char16_t first) {
        const std::size_t mark = marks_.find(first);
        if (mark == Text::npos || (mark == kValueMark && number > 1)) return;
        findings_.Add(cell, 0, markTexts_[mark], {}, number);
    }

    static std::string MarkText(char16_t mark) {
        return "begins with \"" + ToUtf8({&mark, 1}) + "\", which marks something else in a file";
    }

    void Add(CellPosition cell, std::string_view what) { findings_.Add(cell, 0, what); }

    static constexpr auto kOutsidePage = " has a character outside the code page, which becomes \"?\"";
    static constexpr std::size_t kValueMark = 0;

    const Grid& grid_;
    FindingStream& findings_;
    /// The last one is the character of the mark's byte in this page.
    const Text marks_{tbx::kValue, tbx::kAt, tbx::kTick, tbx::kComment,
                      grid_.Page().Decode(static_cast<unsigned char>(tbx::kColour))};
    const std::array<std::string, 5> markTexts_{MarkText(marks_[0]), MarkText(marks_[1]), MarkText(marks_[2]),
                                                MarkText(marks_[3]), MarkText(marks_[4])};
};

} // namespace

void CheckTable(const Grid& grid, FindingStream& findings) {
    TableCheck(grid, findings).Check();
    findings.Finish();
}

} // namespace korvane
