#include "GridFixtures.h"
#include "grid/Grid.h"
#include "grid/SortKeys.h"

#include <algorithm>
#include <functional>
#include <random>

namespace korvane {
namespace {

struct PlainCell {
    Text value;
    Colour back = kNoColour;
    Colour fore = kNoColour;
    bool flags[3] = {};
};

struct PlainRow {
    std::vector<PlainCell> cells;
    int height = 24;
    bool hasHeight = false;
    bool visible = true;
    int check = 0;
    bool checkShown = false;
};

/// The table in the plainest form, with which the store is compared.
struct PlainTable {
    std::vector<PlainRow> rows;
    std::vector<Text> keys;

    void AddCol(const Text& key) {
        keys.push_back(key);
        for (PlainRow& row : rows)
            row.cells.emplace_back();
    }
    void RemoveCol(std::size_t col) {
        keys.erase(keys.begin() + static_cast<std::ptrdiff_t>(col));
        for (PlainRow& row : rows) {
            row.cells.erase(row.cells.begin() + static_cast<std::ptrdiff_t>(col));
            if (col == 0) row.check = 0, row.checkShown = false;
        }
    }
    void ShiftTextsRight(std::size_t first) {
        for (PlainRow& row : rows) {
            for (std::size_t col = keys.size() - 1; col > first; --col)
                row.cells[col].value = row.cells[col - 1].value;
            row.cells[first].value.clear();
        }
    }
    void SetRows(std::size_t count) {
        PlainRow fresh;
        fresh.cells.resize(keys.size());
        rows.resize(count, fresh);
    }
    void Sort(std::size_t col, SortOrder order) {
        const auto inOrder = [order](const Text& a, const Text& b) {
            return SortKeys({a, b}, PlainTextOrder()).ComesBefore(0, 1, order);
        };
        std::ranges::stable_sort(rows, inOrder, [col](const PlainRow& row) { return row.cells[col].value; });
    }
    std::optional<CellPosition> Find(const Text& part, CellPosition from) const {
        for (std::size_t row = 0; row < rows.size(); ++row)
            for (std::size_t col = 0; col < keys.size(); ++col) {
                const CellPosition here{Row(static_cast<int>(row) + 1), Col(static_cast<int>(col) + 1)};
                if (here >= from && rows[row].cells[col].value.find(part) != Text::npos) return here;
            }
        return std::nullopt;
    }
};

/// Does the same random things to the store and to the plain table.
class AgainstModel {
public:
    explicit AgainstModel(unsigned seed) : random_(seed) { Adopt(); }

    void Step() {
        static constexpr void (AgainstModel::*kSteps[])() = {
            &AgainstModel::SetRowCount,     &AgainstModel::AddCol,      &AgainstModel::RemoveCol,
            &AgainstModel::ShiftTextsRight, &AgainstModel::Sort,        &AgainstModel::SetCellLook,
            &AgainstModel::SetRowLook,      &AgainstModel::SetRowState, &AgainstModel::Find,
            &AgainstModel::Adopt,
        };
        const int choice = Below(30);
        if (choice < 10 && (choice > 4 || Below(4) == 0))
            (this->*kSteps[choice])();
        else if (choice < 20)
            SetValue();
        else
            SetSlice();
    }

    void Compare() const { Compare(grid_, plain_); }
    void CompareSnapshot() const { Compare(*snapshot_, plainThen_); }
    void TakeSnapshot() {
        snapshot_ = grid_.Snapshot();
        plainThen_ = plain_;
    }

private:
    static Row RowAt(std::size_t index) { return Row(static_cast<int>(index) + 1); }
    static Col ColAt(std::size_t index) { return Col(static_cast<int>(index) + 1); }
    int Below(int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(random_); }
    std::size_t BelowSize(std::size_t bound) {
        return static_cast<std::size_t>(Below(static_cast<int>(bound)));
    }

    static void Compare(const Grid& grid, const PlainTable& plain) {
        ASSERT_EQ(grid.RowCount(), Row(static_cast<int>(plain.rows.size())));
        ASSERT_EQ(grid.ColCount(), Col(static_cast<int>(plain.keys.size())));
        for (std::size_t col = 0; col < plain.keys.size(); ++col)
            ASSERT_EQ(grid.ColKey(ColAt(col)), plain.keys[col]);
        for (std::size_t row = 0; row < plain.rows.size(); ++row)
            CompareRow(grid, RowAt(row), plain.rows[row]);
    }
    static void CompareRow(const Grid& grid, Row row, const PlainRow& plain) {
        ASSERT_EQ(grid.RowHeight(row), plain.height);
        ASSERT_EQ(grid.HasRowHeight(row), plain.hasHeight);
        ASSERT_EQ(grid.RowVisible(row), plain.visible);
        ASSERT_EQ(grid.CellCheck(row), plain.check);
        ASSERT_EQ(grid.CellCheckShown(row), plain.checkShown);
        for (std::size_t col = 0; col < plain.cells.size(); ++col) {
            const PlainCell& cell = plain.cells[col];
            ASSERT_EQ(grid.CellValue(row, ColAt(col)), cell.value);
            ASSERT_EQ(grid.CellBackColor(row, ColAt(col)), cell.back);
            ASSERT_EQ(grid.CellForeColor(row, ColAt(col)), cell.fore);
            for (int flag = 0; flag < 3; ++flag)
                ASSERT_EQ(grid.CellFontFlag(row, ColAt(col), static_cast<CellFlag>(flag)), cell.flags[flag]);
        }
    }

    Text RandomText() {
        static const std::vector<Text> kAlphabets{u"ab", u"abcdefghij \r\n", u"aü€", u"aЯю😀"};
        const Text& alphabet = kAlphabets[BelowSize(kAlphabets.size())];
        Text text(BelowSize(Below(20) == 0 ? 9000 : 12), u' ');
        for (char16_t& unit : text)
            unit = alphabet[BelowSize(alphabet.size())];
        return text;
    }
    /// Calls `act(row, col)` with some cell, if there is any.
    void WithCell(const std::function<void(std::size_t row, std::size_t col)>& act) {
        if (!plain_.rows.empty() && !plain_.keys.empty())
            act(BelowSize(plain_.rows.size()), BelowSize(plain_.keys.size()));
    }

    void SetRowCount() {
        const int count = Below(600);
        plain_.SetRows(static_cast<std::size_t>(count));
        grid_.SetRowCount(Row{count});
    }
    void AddCol() {
        if (plain_.keys.size() >= 6) return;
        const Text key = NumberText(++lastKey_) + u"no";
        plain_.AddCol(key);
        grid_.AddCol(key, u"");
    }
    void RemoveCol() {
        if (plain_.keys.empty()) return;
        const std::size_t col = BelowSize(plain_.keys.size());
        plain_.RemoveCol(col);
        grid_.RemoveCol(ColAt(col));
    }
    void ShiftTextsRight() {
        if (plain_.keys.empty()) return;
        const std::size_t first = BelowSize(plain_.keys.size());
        plain_.ShiftTextsRight(first);
        grid_.ShiftTextsRight(ColAt(first));
    }
    void Sort() {
        if (plain_.keys.empty()) return;
        const std::size_t col = BelowSize(plain_.keys.size());
        const SortOrder order = Below(2) == 0 ? SortOrder::Ascending : SortOrder::Descending;
        plain_.Sort(col, order);
        grid_.SortByColumn(ColAt(col), order);
    }
    void SetValue() {
        WithCell([this](std::size_t row, std::size_t col) {
            const Text text = RandomText();
            plain_.rows[row].cells[col].value = text;
            grid_.SetCellValue(RowAt(row), ColAt(col), text);
        });
    }
    void SetSlice() {
        WithCell([this](std::size_t row, std::size_t col) {
            const std::size_t offset = BelowSize(file_.size());
            const std::size_t length = std::min(BelowSize(30), file_.size() - offset);
            plain_.rows[row].cells[col].value = FromAscii(file_.substr(offset, length));
            const bool gridMayHaveLetTheFileGo = snapshot_ != nullptr || bytes_.data.use_count() == 1;
            if (gridMayHaveLetTheFileGo) Adopt();
            grid_.SetCellSlice(RowAt(row), ColAt(col), offset, length);
        });
    }
    void SetCellLook() {
        WithCell([this](std::size_t row, std::size_t col) {
            PlainCell& cell = plain_.rows[row].cells[col];
            const int flag = Below(3);
            cell.back = Colour{Below(3)};
            cell.flags[flag] = Below(2) == 0;
            grid_.SetCellBackColor(RowAt(row), ColAt(col), cell.back);
            grid_.SetCellFontFlag(RowAt(row), ColAt(col), static_cast<CellFlag>(flag), cell.flags[flag]);
        });
    }
    void SetRowLook() {
        WithCell([this](std::size_t row, std::size_t) {
            const Colour colour{Below(3) - 1};
            const bool bold = Below(2) == 0;
            for (PlainCell& cell : plain_.rows[row].cells) {
                cell.back = cell.fore = colour;
                cell.flags[1] = bold;
            }
            grid_.SetRowBackColor(RowAt(row), colour);
            grid_.SetRowForeColor(RowAt(row), colour);
            grid_.SetRowFontFlag(RowAt(row), CellFlag::Bold, bold);
        });
    }
    void SetRowState() {
        WithCell([this](std::size_t row, std::size_t) {
            PlainRow& plain = plain_.rows[row];
            plain.height = Below(100);
            plain.hasHeight = true;
            plain.visible = Below(2) == 0;
            plain.check = Below(3);
            plain.checkShown = Below(2) == 0;
            grid_.SetRowHeight(RowAt(row), plain.height);
            grid_.SetRowVisible(RowAt(row), plain.visible);
            grid_.SetCellCheck(RowAt(row), plain.check);
            grid_.SetCellCheckShown(RowAt(row), plain.checkShown);
        });
    }
    void Find() {
        Text part = RandomText().substr(0, 1 + BelowSize(4));
        if (part.empty()) part = u"ab";
        const CellPosition from{Row{Below(600)}, Col{Below(8)}};
        ASSERT_EQ(grid_.FindText(part, from), plain_.Find(part, from));
    }
    void Adopt() { grid_.AdoptBytes(bytes_); }

    const std::string file_ =
        "@col_1\r\nab abab\r\n@col_2\r\nfghij bcd\r\ncdefg\r\n@row_2\r\n@col_1\r\njihg ba\r\n";
    const SharedBytes bytes_ = BytesOf(file_);
    std::mt19937 random_;
    GridStore grid_{CodePage::Windows1252()};
    PlainTable plain_;
    std::unique_ptr<Grid> snapshot_;
    PlainTable plainThen_;
    int lastKey_ = 0;
};

class GridStoreAgainstModelTest : public testing::TestWithParam<unsigned> {};

TEST_P(GridStoreAgainstModelTest, RandomChangesGiveThePlainTable) {
    AgainstModel models(GetParam());
    for (int step = 1; step <= 3000 && !HasFatalFailure(); ++step) {
        models.Step();
        if (step % 100 == 0) models.Compare();
    }
}

TEST_P(GridStoreAgainstModelTest, ASnapshotStaysAsTheTableWas) {
    AgainstModel models(GetParam());
    models.TakeSnapshot();
    for (int step = 1; step <= 1000 && !HasFatalFailure(); ++step) {
        models.Step();
        if (step % 50 != 0) continue;
        models.CompareSnapshot();
        models.Compare();
        models.TakeSnapshot();
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, GridStoreAgainstModelTest, testing::Range(1u, 9u));

} // namespace
} // namespace korvane
