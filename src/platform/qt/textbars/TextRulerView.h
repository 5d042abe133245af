#pragma once

#include "platform/qt/text/QtTextView.h"

#include <QFrame>
#include <QPointer>
#include <functional>

namespace korvane {

/// The ruler over a text: it shows the indents and tabs of the paragraph at the cursor. They are dragged with
/// the mouse; a click on a free place sets a tab, and a tab that is dragged off the ruler is taken away.
class TextRulerView final : public QFrame {
    Q_OBJECT

public:
    explicit TextRulerView(QWidget* parent = nullptr);

    /// nullptr for none.
    void SetView(QtTextView* view);

    // The left button of the mouse is held at a distance from the left edge, in pixels.
    std::function<void(int)> Pressed;
    std::function<void(int)> Moved;
    std::function<void()> Released;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

    /// Where a length from the margin of the text is on the ruler, and the other way round.
    int XOf(std::int32_t twips) const;
    std::int32_t TwipsAt(int x) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    enum class Part : std::uint8_t { None, First, Left, Right, Tab };

    TextControl* Control() const { return view_ == nullptr ? nullptr : view_->Shown(); }
    doc::ParaFormat Format() const;
    std::int32_t TextWidth() const;
    Part PartAt(const QPoint& point);
    void Drag(int x);
    void DragTab(std::int32_t twips);
    void PutTab(std::size_t index, std::int32_t twips);
    void PaintScale(QPainter& painter);
    void PaintTab(QPainter& painter, const doc::TabStop& stop);

    QPointer<QtTextView> view_;
    Part held_ = Part::None;
    /// The place of the tab that is dragged.
    std::int32_t tab_ = 0;
};

} // namespace korvane
