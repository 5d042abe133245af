#include "platform/qt/CellText.h"

#include "platform/qt/Convert.h"

#include <QFontMetrics>
#include <QPainter>
#include <QTextLayout>
#include <algorithm>

namespace korvane {

namespace {

constexpr char16_t kEllipsis = u'…';

/// The text up to its first line end, and the rest behind it.
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

/// Draws lines from the top down until the area is full.
class LinePainter {
public:
    LinePainter(QPainter& painter, const QRect& area, const QFont& font)
        : painter_(painter),
          area_(area),
          font_(font),
          metrics_(font),
          room_(std::max(1, area.height() / std::max(1, metrics_.lineSpacing()))) {}

    bool Full() const { return room_ <= 0; }

    /// `more` says that further paragraphs follow.
    void Draw(TextView paragraph, bool more) {
        const TextView visible = Left(paragraph, MostUnits());
        const bool cut = visible.size() < paragraph.size();
        QTextLayout layout(ToQString(visible), font_);
        QTextOption option;
        option.setWrapMode(room_ > 1 ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(area_.width());
            const bool end = line.textStart() + line.textLength() >= layout.text().size();
            const bool last = room_ == 1;
            const bool fits = line.naturalTextWidth() <= area_.width();
            if (last && (!end || !fits || cut || more)) {
                DrawElided(layout.text().mid(line.textStart()), cut || more);
            } else {
                line.draw(&painter_, QPointF(area_.topLeft() + QPoint(0, Top())) - line.position());
            }
            ++drawn_;
            --room_;
            if (Full()) break;
        }
        layout.endLayout();
    }

private:
    int Top() const { return drawn_ * metrics_.lineSpacing(); }

    /// No more units than this can be seen in the lines that are left, however narrow they are.
    std::size_t MostUnits() const {
        constexpr int kNarrowest = 2;
        return static_cast<std::size_t>(std::max(0, area_.width()) / kNarrowest + 16) *
               static_cast<std::size_t>(room_);
    }

    void DrawElided(const QString& text, bool more) {
        const QString whole = more ? text + QChar(kEllipsis) : text;
        const QString shown = metrics_.elidedText(whole, Qt::ElideRight, area_.width());
        painter_.drawText(area_.left(), area_.top() + Top() + metrics_.ascent(), shown);
    }

    QPainter& painter_;
    QRect area_;
    const QFont& font_;
    QFontMetrics metrics_;
    int room_;
    int drawn_ = 0;
};

} // namespace

void DrawCellText(QPainter& painter, const QRect& area, const QFont& font, TextView text) {
    if (text.empty() || area.width() <= 0) return;
    LinePainter lines(painter, area, font);
    for (Split split = SplitLine(text);; split = SplitLine(split.rest)) {
        lines.Draw(split.line, split.more);
        if (lines.Full() || !split.more) return;
    }
}

} // namespace korvane
