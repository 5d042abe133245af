#pragma once

#include "platform/qt/base/Convert.h"
#include "platform/qt/text/TextMirror.h"

#include <QTextBlock>
#include <QTextTable>
#include <string>

namespace korvane::test {

inline std::string DifferenceOfCells(const QTextBlock& a, const QTextBlock& b) {
    QTextTable* const left = QTextCursor(a).currentTable();
    QTextTable* const right = QTextCursor(b).currentTable();
    if ((left == nullptr) != (right == nullptr)) return "only one is in a table";
    if (left == nullptr) return {};
    const QTextTableCell x = left->cellAt(a.position());
    const QTextTableCell y = right->cellAt(b.position());
    if (x.row() != y.row() || x.column() != y.column()) return "another cell";
    if (left->rows() != right->rows() || left->columns() != right->columns()) return "another size of table";
    if (left->format().columnWidthConstraints() != right->format().columnWidthConstraints() ||
        left->format().leftMargin() != right->format().leftMargin())
        return "other widths";
    const QTextTableCellFormat p = x.format().toTableCellFormat();
    const QTextTableCellFormat q = y.format().toTableCellFormat();
    return p.background() == q.background() && p.leftPadding() == q.leftPadding() &&
                   p.rightPadding() == q.rightPadding()
               ? ""
               : "another look of the cell";
}

inline std::string DifferenceOfTexts(const QTextBlock& a, const QTextBlock& b) {
    if (a.text() != b.text()) return a.text().toStdString() + " / " + b.text().toStdString();
    if (a.text().isEmpty()) return a.charFormat().font() == b.charFormat().font() ? "" : "another empty look";
    auto y = b.begin();
    for (auto x = a.begin(); x != a.end(); ++x, ++y) {
        if (x.fragment().length() != y.fragment().length()) return "other runs";
        if (x.fragment().charFormat() != y.fragment().charFormat()) return "other characters";
    }
    return {};
}

/// The first difference between two documents as they are shown; empty if there is none.
inline std::string DifferenceOfShown(const QTextDocument& a, const QTextDocument& b) {
    if (a.blockCount() != b.blockCount())
        return std::to_string(a.blockCount()) + " blocks / " + std::to_string(b.blockCount());
    QTextBlock y = b.begin();
    for (QTextBlock x = a.begin(); x.isValid(); x = x.next(), y = y.next()) {
        std::string found = DifferenceOfTexts(x, y);
        if (found.empty() && x.blockFormat() != y.blockFormat()) found = "another paragraph format";
        if (found.empty()) found = DifferenceOfCells(x, y);
        if (!found.empty()) return "block " + std::to_string(x.blockNumber()) + ": " + found;
    }
    return {};
}

/// What is wrong with the document of a mirror, which must look as one that shows the same text from the
/// beginning; empty if nothing is.
inline std::string FaultOf(TextMirror& mirror) {
    const QTextDocument& shown = mirror.Shown();
    const doc::Document& text = mirror.Text();
    doc::Pos start = 0;
    for (std::size_t i = 0; i < text.paragraphs.size(); ++i) {
        const QTextBlock block = mirror.BlockOf(i);
        const std::string place = " in paragraph " + std::to_string(i);
        if (mirror.ParagraphOf(block) != i) return "another paragraph of the block" + place;
        if (block.text() != ShownText(text.paragraphs[i].text) && text.images.empty())
            return "another text" + place;
        const std::size_t length = text.paragraphs[i].text.size();
        for (std::size_t offset = 0; offset <= length; ++offset) {
            if (mirror.ToQt(start + offset) != block.position() + static_cast<int>(offset) ||
                mirror.FromQt(mirror.ToQt(start + offset)) != start + offset)
                return "another position" + place;
        }
        start += length + 2;
    }
    doc::MemoryTextStore copy;
    copy.Reset(text);
    TextMirror fresh(copy);
    return DifferenceOfShown(shown, fresh.Shown());
}

} // namespace korvane::test
