#include "TableWatch.h"

#include "common/number/Number.h"
#include "grid/SortKeys.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <optional>

namespace korvane {

namespace {

enum class Alters : std::uint8_t { Never, Sometimes, Always };

using Touches = bool (*)(const TableMoment& before, int row);

bool None(const TableMoment&, int) {
    return false;
}
bool Any(const TableMoment&, int) {
    return true;
}
bool Current(const TableMoment& before, int row) {
    return row == before.curRow.Number();
}
bool CurrentAndBelow(const TableMoment& before, int row) {
    return Current(before, row) || Current(before, row - 1);
}
bool CurrentAndAbove(const TableMoment& before, int row) {
    return Current(before, row) || Current(before, row + 1);
}
bool Ticked(const TableMoment& before, int row) {
    return before.ticked[static_cast<std::size_t>(row - 1)];
}

/// What a command may do; one that isn't listed changes no text, no count and no visibility.
struct Rule {
    std::string_view command;
    Alters alters = Alters::Never;
    Touches texts = &None;
    int fewestRows = 0;
    int mostRows = 0;
    bool hides = false;
};

constexpr std::array kRules{
    Rule{"mnuEdit_AddOneRow", Alters::Always, &None, 1, 1},
    Rule{"mnuEdit_AddRows", Alters::Sometimes, &None, 0, 12},
    Rule{"mnuRowDown", Alters::Sometimes, &CurrentAndBelow},
    Rule{"mnuRowUp", Alters::Sometimes, &CurrentAndAbove},
    Rule{"mnuEdit_Delete", Alters::Sometimes, &Current},
    Rule{"mnuDel_CheckedRows", Alters::Sometimes, &Ticked},
    Rule{"mnuEdit_SetRowHeight", Alters::Always},
    Rule{"mnuEdit_ColumnName", Alters::Sometimes},
    Rule{"mnuEdit_InsertColumn", Alters::Always, &Any},
    Rule{"mnuEdit_DeleteColumn", Alters::Sometimes, &Any},
    Rule{"mnuEdit_Font", Alters::Sometimes},
    Rule{"mnuEdit_ToggleSelection", Alters::Always},
    Rule{"mnuFormat_RowColour", Alters::Sometimes, &None, 0, 0, true},
    Rule{"mnuFormat_BColor", Alters::Sometimes},
    Rule{"Ctrl+Alt+1", Alters::Always},
    Rule{"Ctrl+Alt+2", Alters::Always},
    Rule{"Ctrl+Alt+3", Alters::Always},
    Rule{"Ctrl+Alt+4", Alters::Always},
    Rule{"Ctrl+Alt+5", Alters::Always},
    Rule{"Ctrl+Alt+6", Alters::Always},
    Rule{"Ctrl+Alt+7", Alters::Always},
    Rule{"Ctrl+Alt+8", Alters::Always},
    Rule{"Ctrl+Alt+9", Alters::Always},
    Rule{"mnuEdit_Replace", Alters::Sometimes, &Any},
    Rule{"mnuEdit_EditCell", Alters::Sometimes, &Current},
    Rule{"Ctrl+X", Alters::Sometimes, &Current},
    Rule{"Shift+Delete", Alters::Sometimes, &Current},
    Rule{"Delete", Alters::Sometimes, &Current},
    Rule{"Ctrl+V", Alters::Sometimes, &Any, 0, kMaxRows.Number()},
    Rule{"Shift+Insert", Alters::Sometimes, &Any, 0, kMaxRows.Number()},
    Rule{"mnuCalc_Add", Alters::Never, &None, 0, 1},
};

Rule RuleOf(std::string_view command) {
    const auto* const found = std::ranges::find(kRules, command, &Rule::command);
    return found == kRules.end() ? Rule{command} : *found;
}

/// What a row's texts become where a column is inserted: the last one is lost once the table is full.
std::vector<Text> WithInserted(std::vector<Text> texts, Col at) {
    const bool grows = texts.size() < 23;
    const auto index = std::min(static_cast<std::size_t>(std::max(at.Number() - 1, 0)), texts.size());
    texts.insert(texts.begin() + static_cast<std::ptrdiff_t>(index), Text());
    if (!grows) texts.pop_back();
    return texts;
}

std::vector<Text> WithoutCol(std::vector<Text> texts, Col at) {
    texts.erase(texts.begin() + (at.Number() - 1));
    return texts;
}

/// What the command leaves of a row's texts; nullopt when it may leave anything.
std::optional<std::vector<Text>> TextsLeft(const Rule& rule, const TableMoment& before,
                                           const TableMoment& after, int row) {
    const std::vector<Text>& old = before.texts[static_cast<std::size_t>(row - 1)];
    if (rule.command == "mnuEdit_InsertColumn") return WithInserted(old, before.curCol);
    if (after.cols < before.cols) return WithoutCol(old, before.curCol);
    if (rule.command == "mnuEdit_DeleteColumn" || !rule.texts(before, row)) return old;
    return std::nullopt;
}

void CheckTexts(const Rule& rule, const TableMoment& before, const TableMoment& after) {
    const int rows = std::min(before.Rows(), after.Rows());
    for (int row = 1; row <= rows; ++row) {
        const auto expected = TextsLeft(rule, before, after, row);
        const std::vector<Text>& now = after.texts[static_cast<std::size_t>(row - 1)];
        EXPECT_EQ(now, expected.value_or(now)) << "row " << row;
    }
}

int ColsAfter(const Rule& rule, const TableMoment& before, const TableMoment& after) {
    if (rule.command == "mnuEdit_InsertColumn") return before.cols + (before.cols < 23 ? 1 : 0);
    if (rule.command == "mnuEdit_DeleteColumn") return before.cols - (after.cols < before.cols ? 1 : 0);
    return before.cols;
}

/// The number in brackets in the message; -1 when the message doesn't contain `what`.
int Told(const Message& message, TextView what) {
    if (message.text.find(what) == Text::npos) return -1;
    return static_cast<int>(Val(TextView(message.text).substr(message.text.find(u'[') + 1)));
}

void CheckMessage(const Message& message, const TableMoment& before, const TableMoment& after) {
    if (const int told = Told(message, u"items with chosen attribute"); told >= 0) {
        EXPECT_EQ(told, after.Visible());
    }
    if (const int told = Told(message, u"rows made visible again"); told >= 0) {
        EXPECT_EQ(told, after.Rows());
        EXPECT_EQ(told, after.Visible());
    }
    if (const int told = Told(message, u"items selected"); told >= 0) {
        EXPECT_LE(told, std::ranges::count(after.ticked, true));
    }
    if (const int told = Told(message, u"Tick the boxes in"); told >= 0) {
        EXPECT_EQ(told, before.Visible());
    }
    if (const int told = Told(message, u"selected rows for deletion"); told >= 0) {
        EXPECT_EQ(told, std::ranges::count(before.ticked, true));
    }
}

void CheckCurrentCell(const TableMoment& after) {
    EXPECT_GE(after.curRow, Row{0});
    EXPECT_LE(after.curRow, Row{after.Rows()});
    EXPECT_GE(after.curCol, Col{0});
    EXPECT_LE(after.curCol, Col{after.cols});
}

} // namespace

TableMoment::TableMoment(frmMDIChild& tab) {
    const Grid& grid = tab.GridStore();
    curRow = grid.CurRow();
    curCol = grid.CurCol();
    cols = grid.ColCount().Number();
    altered = tab.Table().TableAltered;
    for (Row row{1}; row <= grid.RowCount(); ++row) {
        std::vector<Text>& rowTexts = texts.emplace_back();
        for (Col col{1}; col <= grid.ColCount(); ++col)
            rowTexts.push_back(grid.CellText(row, col));
        visible.push_back(grid.RowVisible(row));
        ticked.push_back(grid.CellCheck(row) == 1);
    }
}

int TableMoment::Visible() const {
    return static_cast<int>(std::ranges::count(visible, true));
}

void CheckCommand(std::string_view command, const TableMoment& before, const TableMoment& after,
                  const std::vector<Message>& messages) {
    const Rule rule = RuleOf(command);
    EXPECT_GE(after.Rows(), before.Rows() + rule.fewestRows);
    EXPECT_LE(after.Rows(), before.Rows() + rule.mostRows);
    EXPECT_EQ(after.cols, ColsAfter(rule, before, after));
    CheckTexts(rule, before, after);
    if (!rule.hides) {
        const auto rows = static_cast<std::ptrdiff_t>(std::min(before.visible.size(), after.visible.size()));
        EXPECT_TRUE(std::equal(before.visible.begin(), before.visible.begin() + rows, after.visible.begin()));
    }
    if (rule.alters == Alters::Never) {
        EXPECT_EQ(after.altered, before.altered);
    }
    if (rule.alters == Alters::Always) {
        EXPECT_EQ(after.altered, 1);
    }
    if (before.altered == 1) {
        EXPECT_EQ(after.altered, 1);
    }
    for (const Message& message : messages)
        CheckMessage(message, before, after);
    CheckCurrentCell(after);
}

void CheckSort(Col col, const TableMoment& before, const TableMoment& after) {
    auto old = before.texts;
    auto now = after.texts;
    std::ranges::sort(old);
    std::ranges::sort(now);
    EXPECT_EQ(now, old);
    std::vector<Text> column;
    for (const auto& row : after.texts)
        column.push_back(row[static_cast<std::size_t>(col.Number() - 1)]);
    const SortKeys keys(column, PlainTextOrder());
    const auto isSorted = [&](SortOrder order) {
        std::size_t row = 1;
        while (row < column.size() && !keys.ComesBefore(row, row - 1, order))
            ++row;
        return row >= column.size();
    };
    EXPECT_TRUE(isSorted(SortOrder::Ascending) || isSorted(SortOrder::Descending));
    EXPECT_EQ(after.Visible(), before.Visible());
    EXPECT_EQ(after.altered, 1);
}

} // namespace korvane
