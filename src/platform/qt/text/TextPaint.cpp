#include "platform/qt/text/TextPaint.h"

#include "platform/qt/base/Convert.h"
#include "platform/qt/text/BlockSearch.h"
#include "platform/qt/text/ListMarks.h"
#include "platform/qt/text/TextMirror.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextBlock>
#include <QTextTable>
#include <algorithm>
#include <cmath>

namespace korvane {

namespace {

/// Draws for one exposed rectangle.
class MarkPainter {
public:
    MarkPainter(QPainter& painter, const TextMirror& mirror, const QRectF& exposed, const QColor& colour)
        : painter_(painter),
          mirror_(mirror),
          document_(mirror.Current()),
          layout_(*document_.documentLayout()),
          exposed_(exposed),
          colour_(colour),
          point_(1 / painter.deviceTransform().m11()) {}

    void Paint() {
        QTextBlock block = BlockAtHeight(document_, exposed_.top());
        // The frame of a paragraph reaches over its text.
        if (block.previous().isValid()) block = block.previous();
        for (; block.isValid(); block = block.next()) {
            const QRectF rect = layout_.blockBoundingRect(block);
            if (rect.top() > exposed_.bottom() + kReach) return;
            PaintBlock(block, rect);
        }
    }

private:
    /// How far a frame may reach over the text of its paragraph.
    static constexpr double kReach = 200;

    void PaintBlock(const QTextBlock& block, const QRectF& rect) {
        const auto paragraph = mirror_.ParagraphOf(block);
        if (!paragraph) return;
        const doc::CellPlace& cell = mirror_.Text().paragraphs[*paragraph].cell;
        if (cell.table != 0 && !(cell.table == row_.table && cell.row == row_.row)) PaintRow(block, cell);
        const doc::ParaFormat& format = mirror_.FormatOf(*paragraph);
        if ((format.frame & (doc::kFrameSides | doc::kFrameTabLines)) != 0)
            PaintFrame(block, rect, *paragraph);
        if (format.list.kind != doc::ListKind::None) PaintListMark(block, rect, *paragraph);
    }

    // Frames.

    struct Part {
        double top;
        double bottom;
    };

    /// The lines of a paragraph in groups that are on one page each.
    std::vector<Part> PartsOf(const QTextBlock& block, double top) const {
        const double page = document_.pageSize().height();
        std::vector<Part> parts;
        int last = 0;
        for (int i = 0; i < block.layout()->lineCount(); ++i) {
            const QTextLine line = block.layout()->lineAt(i);
            const double y = top + line.y();
            const int number = page > 0 ? static_cast<int>(y / page) : 0;
            if (parts.empty() || number != last) parts.push_back({y, y});
            parts.back().bottom = y + line.height();
            last = number;
        }
        return parts;
    }

    /// Whether the frame goes on into the other paragraph without a line between.
    bool Joins(std::size_t paragraph, std::size_t other) const {
        const doc::ParaFormat& format = mirror_.FormatOf(paragraph);
        if ((format.frame & doc::kFrameConnected) == 0) return false;
        const auto& paragraphs = mirror_.Text().paragraphs;
        if (other >= paragraphs.size() || paragraphs[other].cell != paragraphs[paragraph].cell) return false;
        const doc::ParaFormat& beside = mirror_.FormatOf(other);
        return beside.frame == format.frame && beside.frameDistance == format.frameDistance &&
               beside.frameWidth == format.frameWidth && beside.left == format.left &&
               beside.right == format.right;
    }

    void PaintFrame(const QTextBlock& block, const QRectF& rect, std::size_t paragraph) {
        const doc::ParaFormat& format = mirror_.FormatOf(paragraph);
        const QPointF origin = rect.topLeft();
        const double distance = TextPixels(std::max(format.frameDistance, 0));
        const double width = TextPixels(std::max(format.frameWidth, kTwipsPerPixel));
        const double left = origin.x() + TextPixels(std::max(format.left, 0));
        const double right = origin.x() + block.layout()->boundingRect().right() +
                             ((format.frame & doc::kFrameRight) != 0 ? distance + width : 0);
        const bool joinsAbove = paragraph > 0 && Joins(paragraph, paragraph - 1);
        const bool joinsBelow = Joins(paragraph, paragraph + 1);
        const std::vector<Part> parts = PartsOf(block, origin.y());
        for (const Part& part : parts) {
            const bool first = &part == &parts.front();
            const bool last = &part == &parts.back();
            const double above =
                first ? (joinsAbove ? block.blockFormat().topMargin() : distance + width) : 0;
            const double below =
                last ? (joinsBelow ? block.blockFormat().bottomMargin() : distance + width) : 0;
            const double top = part.top - ((format.frame & doc::kFrameTop) != 0 || joinsAbove ? above : 0);
            const double bottom =
                part.bottom + ((format.frame & doc::kFrameBottom) != 0 || joinsBelow ? below : 0);
            const double height = bottom - top;
            if ((format.frame & doc::kFrameLeft) != 0) Line({left, top, width, height}, format);
            if ((format.frame & doc::kFrameRight) != 0) Line({right - width, top, width, height}, format);
            if ((format.frame & doc::kFrameTop) != 0 && first && !joinsAbove)
                Line({left, top, right - left, width}, format);
            if ((format.frame & doc::kFrameBottom) != 0 && last && !joinsBelow)
                Line({left, bottom - width, right - left, width}, format);
            if ((format.frame & doc::kFrameTabLines) != 0) PaintTabLines(format, origin.x(), top, height);
        }
    }

    void PaintTabLines(const doc::ParaFormat& format, double margin, double top, double height) {
        const double width = TextPixels(std::max(format.frameWidth, kTwipsPerPixel));
        for (const doc::TabStop& stop : format.tabs)
            Fill({margin + TextPixels(stop.at), top, width, height});
    }

    /// A line as long as the rectangle; a double one is two thinner lines.
    void Line(const QRectF& line, const doc::ParaFormat& format) {
        if ((format.frame & doc::kFrameDouble) == 0) {
            Fill(line);
            return;
        }
        const bool upright = line.width() < line.height();
        const double third = (upright ? line.width() : line.height()) / 3;
        const QMarginsF first = upright ? QMarginsF(0, 0, 2 * third, 0) : QMarginsF(0, 0, 0, 2 * third);
        const QMarginsF second = upright ? QMarginsF(2 * third, 0, 0, 0) : QMarginsF(0, 2 * third, 0, 0);
        Fill(line - first);
        Fill(line - second);
    }

    /// A line has at least the thickness of a point of the screen. A thinner one is seen at some places only.
    void Fill(QRectF line) {
        line.setWidth(std::max(line.width(), point_));
        line.setHeight(std::max(line.height(), point_));
        painter_.fillRect(line, colour_);
    }

    // Lists.

    void PaintListMark(const QTextBlock& block, const QRectF& rect, std::size_t paragraph) {
        const QTextLine line = block.layout()->lineAt(0);
        if (!line.isValid()) return;
        const doc::ParaFormat& format = mirror_.FormatOf(paragraph);
        const QPointF origin = rect.topLeft();
        const std::int32_t left =
            std::max(format.left + format.first, 0) + FrameRoom(format, doc::kFrameLeft);
        const QTextCharFormat look =
            block.length() > 1 ? block.begin().fragment().charFormat() : block.charFormat();
        painter_.setFont(look.font());
        painter_.setPen(look.hasProperty(QTextFormat::ForegroundBrush) ? look.foreground().color() : colour_);
        painter_.drawText(origin + QPointF(TextPixels(left), line.y() + line.ascent()),
                          ToQString(MarkText(format.list, mirror_.ListNumber(paragraph))));
    }

    // Tables.

    double BottomOf(const QTextTable& table, int row) const {
        const double next = TopAfter(table, row);
        const double top = TopOf(table.cellAt(row, 0).firstCursorPosition().block());
        const double page = document_.pageSize().height();
        return page > 0 && std::floor(next / page) > std::floor(top / page) ? BottomOfTexts(table, row)
                                                                            : next;
    }

    /// Where what comes after the row begins, which may be on the next page.
    double TopAfter(const QTextTable& table, int row) const {
        if (row + 1 < table.rows()) return TopOf(table.cellAt(row + 1, 0).firstCursorPosition().block());
        const QTextBlock after = table.lastCursorPosition().block().next();
        // A table tells where it ends only when the whole text is laid out, so within one of ours the block
        // after a part is asked.
        return mirror_.ParagraphOf(after)
                   ? layout_.frameBoundingRect(const_cast<QTextTable*>(&table)).bottom()
                   : layout_.blockBoundingRect(after).top();
    }

    double BottomOfTexts(const QTextTable& table, int row) const {
        double bottom = 0;
        for (int column = 0; column < table.columns(); ++column) {
            const QTextBlock last = table.cellAt(row, column).lastCursorPosition().block();
            bottom = std::max(bottom, layout_.blockBoundingRect(last).bottom());
        }
        return bottom;
    }

    void PaintRow(const QTextBlock& block, const doc::CellPlace& cell) {
        row_ = cell;
        const QTextTable* const table = TableOf(block);
        if (table == nullptr) return;
        const int row = table->cellAt(block.position()).row();
        const QTextBlock first = table->cellAt(row, 0).firstCursorPosition().block();
        const double top = TopOf(first);
        const double bottom = BottomOf(*table, row);
        const auto& cells = mirror_.Text().tables.at(cell.table).rows[cell.row].cells;
        double left =
            layout_.blockBoundingRect(first).left() - TextPixels(std::max(cells.front().gapLeft, 0));
        for (const doc::CellFormat& format : cells) {
            const double width = TextPixels(std::max(format.width, kTwipsPerPixel));
            PaintCell({left, top, width, bottom - top}, format);
            left += width;
        }
    }

    void PaintCell(const QRectF& cell, const doc::CellFormat& format) {
        const auto width = [&format](doc::Side side) {
            return TextPixels(format.border[static_cast<std::size_t>(side)]);
        };
        const auto draw = [this](const QRectF& line) {
            if (!line.isEmpty()) Fill(line);
        };
        draw({cell.left(), cell.top(), width(doc::Side::Left), cell.height()});
        draw({cell.right() - width(doc::Side::Right), cell.top(), width(doc::Side::Right), cell.height()});
        draw({cell.left(), cell.top(), cell.width(), width(doc::Side::Top)});
        draw({cell.left(), cell.bottom() - width(doc::Side::Bottom), cell.width(), width(doc::Side::Bottom)});
    }

    QPainter& painter_;
    const TextMirror& mirror_;
    QTextDocument& document_;
    const QAbstractTextDocumentLayout& layout_;
    QRectF exposed_;
    QColor colour_;
    /// The size of a point of the screen.
    double point_;
    /// The row that was drawn last.
    doc::CellPlace row_{};
};

} // namespace

void PaintMarks(QPainter& painter, const TextMirror& mirror, const QRectF& exposed, const QColor& colour) {
    MarkPainter(painter, mirror, exposed, colour).Paint();
}

} // namespace korvane
