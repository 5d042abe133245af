#include "platform/qt/grid/DrawCellText.h"

#include "platform/qt/base/Convert.h"

#include <QFontMetrics>
#include <QPainter>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

namespace korvane {

namespace {

constexpr char16_t kEllipsis = u'…';

/// The text before its first line end, and the text after it.
struct Split {
    TextView line;
    TextView rest;
    bool more = false;
};

Split SplitLine(TextView text) {
    const std::size_t end = text.find_first_of(u"\r\n");
    if (end == TextView::npos) return {text, {}, false};
    const std::size_t length = text.substr(end).starts_with(kCrLf) ? 2 : 1;
    return {text.substr(0, end), text.substr(end + length), true};
}

/// How far after the shown text a marked place is searched for. It is limited so that painting a cell never
/// takes long.
constexpr std::size_t kLookAhead = 1u << 16;

/// Draws lines from the top down until the area is full.
class LinePainter {
public:
    LinePainter(QPainter& painter, const QRect& area, const QFont& font, TextView text,
                const TextMarks& marks)
        : painter_(painter),
          area_(area),
          font_(font),
          text_(text),
          marks_(marks),
          metrics_(font),
          room_(std::max(1, area.height() / std::max(1, metrics_.lineSpacing()))) {}

    bool Full() const { return room_ <= 0; }

    /// `more` says that other paragraphs follow.
    void Draw(TextView paragraph, bool more) {
        const TextView visible = Left(paragraph, MostUnits());
        const bool cut = visible.size() < paragraph.size();
        QTextLayout layout(ToQString(visible), font_);
        QTextOption option;
        option.setWrapMode(room_ > 1 ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
        layout.setTextOption(option);
        layout.setFormats(MarkFormats(visible));
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(area_.width());
            const bool end = line.textStart() + line.textLength() >= layout.text().size();
            const bool last = room_ == 1;
            const bool fits = line.naturalTextWidth() <= area_.width();
            if (last && (!end || !fits || cut || more)) {
                const auto start = static_cast<std::size_t>(line.textStart());
                DrawElided(paragraph.substr(start, visible.size() - start), cut || more);
            } else {
                DrawLine(line, visible);
            }
            ++drawn_;
            --room_;
            if (Full()) break;
        }
        layout.endLayout();
    }

private:
    int Top() const { return drawn_ * metrics_.lineSpacing(); }

    /// The most code units that can be seen in the remaining lines, even if all letters are narrow.
    std::size_t MostUnits() const {
        constexpr int kNarrowest = 2;
        return static_cast<std::size_t>(std::max(0, area_.width()) / kNarrowest + 16) *
               static_cast<std::size_t>(room_);
    }

    void DrawLine(const QTextLine& line, TextView paragraph) {
        const QPointF shift = QPointF(area_.topLeft() + QPoint(0, Top())) - line.position();
        if (!marks_.part.empty()) DrawMarks(line, paragraph, shift);
        line.draw(&painter_, shift);
    }

    /// The colour of the letters in the marked places.
    QVector<QTextLayout::FormatRange> MarkFormats(TextView paragraph) const {
        QVector<QTextLayout::FormatRange> formats;
        if (marks_.part.empty() || !marks_.text.isValid()) return formats;
        QTextCharFormat format;
        format.setForeground(marks_.text);
        for (std::size_t at = paragraph.find(marks_.part); at != TextView::npos;
             at = paragraph.find(marks_.part, at + marks_.part.size()))
            formats.append({static_cast<int>(at), static_cast<int>(marks_.part.size()), format});
        return formats;
    }

    void DrawMarks(const QTextLine& line, TextView paragraph, const QPointF& shift) {
        const auto begin = static_cast<std::size_t>(line.textStart());
        const std::size_t end = begin + static_cast<std::size_t>(line.textLength());
        for (std::size_t at = paragraph.find(marks_.part); at < end;
             at = paragraph.find(marks_.part, at + marks_.part.size())) {
            const std::size_t behind = at + marks_.part.size();
            if (behind > begin) DrawMark(line, std::max(at, begin), std::min(behind, end), shift);
        }
    }

    void DrawMark(const QTextLine& line, std::size_t begin, std::size_t end, const QPointF& shift) {
        const qreal left = line.cursorToX(static_cast<int>(begin));
        const qreal right = line.cursorToX(static_cast<int>(end));
        const QRectF mark(std::min(left, right), line.y(), std::abs(right - left), line.height());
        painter_.fillRect(mark.translated(shift), marks_.back);
        const QPen before = painter_.pen();
        painter_.setPen(marks_.edge);
        painter_.drawRect(mark.translated(shift).toRect().adjusted(0, 0, -1, -1));
        painter_.setPen(before);
    }

    /// Draws the last line that fits, with an ellipsis if more text follows.
    void DrawElided(TextView text, bool more) {
        const QString whole = more ? ToQString(text) + QChar(kEllipsis) : ToQString(text);
        const QString shown = metrics_.elidedText(whole, Qt::ElideRight, area_.width());
        if (shown.isEmpty()) return;
        QTextLayout layout(shown, font_);
        layout.setTextOption(QTextOption(Qt::AlignLeft));
        layout.setFormats(MarkFormats(Left(text, static_cast<std::size_t>(shown.size() - 1))));
        layout.beginLayout();
        QTextLine line = layout.createLine();
        line.setNumColumns(static_cast<int>(shown.size()));
        layout.endLayout();
        const auto kept = static_cast<std::size_t>(shown.size() - 1);
        if (HoldsPart(text, kept)) {
            const QPointF shift = QPointF(area_.topLeft() + QPoint(0, Top())) - line.position();
            DrawMark(line, kept, kept + 1, shift);
        }
        DrawLine(line, Left(text, kept));
    }

    /// Whether a marked place isn't completely visible when only `kept` code units of `text` are shown.
    bool HoldsPart(TextView text, std::size_t kept) const {
        if (marks_.part.empty()) return false;
        const auto at = static_cast<std::size_t>(text.data() - text_.data()) + kept;
        const std::size_t overlap = std::min(kept, marks_.part.size() - 1);
        const TextView behind = text_.substr(std::min(at - overlap, text_.size()), kLookAhead);
        return behind.find(marks_.part) != TextView::npos;
    }

    QPainter& painter_;
    QRect area_;
    const QFont& font_;
    TextView text_;
    const TextMarks& marks_;
    QFontMetrics metrics_;
    int room_;
    int drawn_ = 0;
};

} // namespace

void DrawCellText(QPainter& painter, const QRect& area, const QFont& font, TextView text,
                  const TextMarks& marks) {
    if (text.empty() || area.width() <= 0) return;
    LinePainter lines(painter, area, font, text, marks);
    for (Split split = SplitLine(text);; split = SplitLine(split.rest)) {
        lines.Draw(split.line, split.more);
        if (lines.Full() || !split.more) return;
    }
}

} // namespace korvane
