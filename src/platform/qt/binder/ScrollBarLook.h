#pragma once

class QPainter;
class QStyle;
class QStyleOptionSlider;
class QWidget;

namespace korvane {

/// Draws a scroll bar in plain areas of one colour. With the gradients and transparent lines of Fusion each
/// bar takes as long as a whole list, because Qt hands their pixels to other threads.
void DrawScrollBar(const QStyleOptionSlider& bar, QPainter& painter, const QStyle& style,
                   const QWidget* widget);

} // namespace korvane
