#include "support/PlainTbxReader.h"

#include "common/number/Number.h"
#include "common/text/CodePage.h"
#include "grid/Grid.h"
#include "table/model/TableModel.h"

#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace korvane {

namespace {

std::vector<std::string> SplitLines(std::string_view bytes) {
    std::vector<std::string> lines;
    std::string line;
    bool open = false;
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        open = bytes[at] != '\r';
        if (open) {
            line += bytes[at];
            continue;
        }
        lines.push_back(line);
        line.clear();
        if (at + 1 < bytes.size() && bytes[at + 1] == '\n') ++at;
    }
    if (open) lines.push_back(line);
    return lines;
}

class PlainReader {
public:
    PlainReader(std::string_view bytes, TableModel& table)
        : lines_(SplitLines(bytes)), table_(table), grid_(table.GridStore()) {}

    bool Read() {
        while (!AtEnd()) {
            if (!pushedBack_) ReadLine();
            pushedBack_ = false;
            if (line_.starts_with(';')) continue;
            if (headerCount_ <= 4)
                TakeHeader(line_.empty() ? "" : line_.substr(1));
            else if (line_.starts_with('!')) {
                if (!TakeColumn(line_.substr(1))) return false;
            } else {
                TakeData();
            }
        }
        return true;
    }

private:
    bool AtEnd() const { return next_ == lines_.size(); }
    void ReadLine() { line_ = lines_[next_++]; }
    Text ToText(std::string_view bytes) const { return grid_.Page().ToText(bytes); }

    void TakeHeader(const std::string& value) {
        std::int16_t number = 0;
        if (headerCount_ == 1) {
            Colour colour;
            if (StoreRounded(Val(value), colour.value)) table_.TableBackColour = colour;
        }
        if (headerCount_ == 2) table_.TableFontName = ToText(value);
        if (headerCount_ == 3 && StoreRounded(Val(value), number)) table_.TableFontSize = number;
        if (headerCount_ == 4 && StoreRounded(Val(value) / 15.5, number)) table_.SetRowHeight = number;
        ++headerCount_;
    }

    bool TakeColumn(const std::string& value) {
        if (!expectWidth_) {
            ++columnCount_;
            table_.ColumnNames.Set(Col{columnCount_}, ToText(value));
        } else if (std::isfinite(Val(value))) {
            table_.ColumnWidths.Set(Col{columnCount_}, NumberText(Val(value) / 8));
        }
        expectWidth_ = !expectWidth_;
        if (columnCount_ > 24) return false;
        row_ = 0;
        return true;
    }

    void SetUpColumns() {
        for (int col = 1; col <= columnCount_; ++col) {
            grid_.AddCol(NumberText(col) + u"no", table_.ColumnNames[Col{col}]);
            std::int32_t width = 0;
            if (StoreRounded(Val(TextView(table_.ColumnWidths[Col{col}])), width))
                grid_.SetColWidth(Col{col}, width);
        }
        grid_.SetSortOnHeaderClick(false);
        grid_.SetGridForeColor(Colour{0xC00000});
        grid_.SetGridBackColor(table_.TableBackColour.value_or(Colour{0}));
        grid_.SetGridFontName(table_.TableFontName.value_or(u""));
        grid_.SetGridFontSize(table_.TableFontSize.value_or(std::int16_t{0}));
    }

    void TakeData() {
        if (row_ != 0)
            grid_.SetGridVisible(false);
        else
            SetUpColumns();
        if (line_.starts_with("@row")) {
            colourLines_ = 0;
            col_ = 0;
            // After the last possible row no row is added, and the current row stays the same.
            if (row_ <= 32767) ++row_;
            if (row_ <= 32767) grid_.SetRowCount(Row{row_});
            inCell_ = false;
        } else if (line_.starts_with("?")) {
            TakeTick();
        } else if (line_.starts_with("\xA7")) {
            TakeColour();
        } else if (line_.starts_with("@col")) {
            ++col_;
            inCell_ = true;
        } else if (inCell_ && col_ <= columnCount_) {
            CollectCell();
        }
    }

    void TakeTick() {
        line_.resize(std::max<std::size_t>(line_.size(), 5), ' ');
        if (line_[1] == '1') grid_.SetCellCheck(Row{row_}, 1);
        if (line_[1] == '0') grid_.SetCellCheck(Row{row_}, 0);
        for (Col col{1}; col <= grid_.ColCount(); ++col) {
            if (line_[2] == 'I') grid_.SetCellFontFlag(Row{row_}, col, CellFlag::Italic, true);
            if (line_[3] == 'B') grid_.SetCellFontFlag(Row{row_}, col, CellFlag::Bold, true);
            if (line_[4] == 'X') grid_.SetCellFontFlag(Row{row_}, col, CellFlag::Strikethrough, true);
        }
        inCell_ = false;
    }

    void TakeColour() {
        Colour colour;
        const bool takes = StoreRounded(Val(line_.substr(1)), colour.value) && colour.value != -999;
        for (Col col{1}; takes && col <= grid_.ColCount(); ++col) {
            if (colourLines_ == 0)
                grid_.SetCellBackColor(Row{row_}, col, colour);
            else
                grid_.SetCellForeColor(Row{row_}, col, colour);
        }
        ++colourLines_;
        inCell_ = false;
    }

    void CollectCell() {
        std::string text;
        while (!AtEnd() &&
               (line_.empty() || std::string_view("@?;\xA7").find(line_[0]) == std::string::npos)) {
            text += line_ + "\r\n";
            ReadLine();
        }
        pushedBack_ = true;
        if (text.ends_with("\r\n")) text.resize(text.size() - 2);
        grid_.SetCellValue(Row{row_}, Col{col_}, ToText(text));
        grid_.SetRowHeight(Row{row_}, table_.SetRowHeight.value_or(std::int16_t{0}));
        grid_.SetCellCheckShown(Row{row_}, true);
        inCell_ = false;
    }

    std::vector<std::string> lines_;
    std::size_t next_ = 0;
    std::string line_;
    TableModel& table_;
    Grid& grid_;
    int headerCount_ = 1;
    int columnCount_ = 0;
    int row_ = 0;
    int col_ = 0;
    int colourLines_ = 0;
    bool expectWidth_ = false;
    bool pushedBack_ = false;
    bool inCell_ = false;
};

std::string_view DifferenceBetweenRows(const Grid& a, const Grid& b, Row row) {
    if (a.RowHeight(row) != b.RowHeight(row) || a.HasRowHeight(row) != b.HasRowHeight(row))
        return "row height";
    if (a.CellCheck(row) != b.CellCheck(row)) return "check";
    if (a.CellCheckShown(row) != b.CellCheckShown(row)) return "check shown";
    for (Col col{1}; col <= a.ColCount(); ++col) {
        if (a.CellBytes(row, col) != b.CellBytes(row, col)) return "value";
        if (a.CellBackColor(row, col) != b.CellBackColor(row, col)) return "background";
        if (a.CellForeColor(row, col) != b.CellForeColor(row, col)) return "text colour";
        for (const CellFlag flag : {CellFlag::Italic, CellFlag::Bold, CellFlag::Strikethrough})
            if (a.CellFontFlag(row, col, flag) != b.CellFontFlag(row, col, flag)) return "flag";
    }
    return {};
}

std::string_view DifferenceBetweenColumns(const TableModel& a, const TableModel& b) {
    const Grid& aGrid = a.GridStore();
    const Grid& bGrid = b.GridStore();
    if (aGrid.ColCount() != bGrid.ColCount()) return "columns";
    for (Col col{1}; col <= MaxColumns; ++col) {
        if (a.ColumnNames[col] != b.ColumnNames[col]) return "column name";
        if (a.ColumnWidths[col] != b.ColumnWidths[col]) return "column width";
        if (aGrid.ColKey(col) != bGrid.ColKey(col)) return "key";
        if (aGrid.ColHeaderText(col) != bGrid.ColHeaderText(col)) return "header";
        if (aGrid.ColWidth(col) != bGrid.ColWidth(col)) return "width";
    }
    return {};
}

std::string_view DifferenceBetweenLooks(const TableModel& a, const TableModel& b) {
    const Grid& aGrid = a.GridStore();
    const Grid& bGrid = b.GridStore();
    if (a.SetRowHeight != b.SetRowHeight || a.TableBackColour != b.TableBackColour ||
        a.TableFontName != b.TableFontName || a.TableFontSize != b.TableFontSize)
        return "table's look";
    const bool alike =
        aGrid.GridBackColor() == bGrid.GridBackColor() && aGrid.GridForeColor() == bGrid.GridForeColor() &&
        aGrid.GridFontName() == bGrid.GridFontName() && aGrid.GridFontSize() == bGrid.GridFontSize() &&
        aGrid.GridVisible() == bGrid.GridVisible();
    return alike ? std::string_view() : "grid's look";
}

} // namespace

bool ReadPlainly(std::string_view bytes, TableModel& table) {
    return PlainReader(bytes, table).Read();
}

std::string_view DifferenceBetween(const TableModel& a, const TableModel& b) {
    if (const auto difference = DifferenceBetweenLooks(a, b); !difference.empty()) return difference;
    if (const auto difference = DifferenceBetweenColumns(a, b); !difference.empty()) return difference;
    const Grid& aGrid = a.GridStore();
    if (aGrid.RowCount() != b.GridStore().RowCount()) return "rows";
    for (Row row{1}; row <= aGrid.RowCount(); ++row)
        if (const auto difference = DifferenceBetweenRows(aGrid, b.GridStore(), row); !difference.empty())
            return difference;
    return {};
}

} // namespace korvane
