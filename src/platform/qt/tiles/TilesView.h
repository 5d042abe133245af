#pragma once

#include "controls/lists/Tiles.h"

#include <QFrame>
#include <functional>

namespace korvane {

/// Tiles in rows and columns that share the size of the frame, with headers above them if they have any. It
/// is one widget with nothing inside, so that a window with hundreds of tiles opens at once.
class TilesView : public QFrame {
    Q_OBJECT

public:
    explicit TilesView(QWidget* parent = nullptr);

    /// The tiles outlive the view, or it is told that they are gone with nullptr.
    void Show(const Tiles* tiles);
    /// All of the tiles may have changed.
    void TellChanged();
    void TellCurrentChanged();

    // What the user does.
    std::function<void(int tile)> Chosen;
    std::function<void(int tile)> DoubleClicked;
    std::function<void(int tile)> PointedAt;

    int Count() const;
    /// -1 for none.
    int Current() const;
    /// What a screen reader says.
    QString SpokenName(int tile) const;
    QRect PlaceOf(int tile) const;
    /// -1 where no tile is.
    int TileAt(const QPoint& point) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    /// The place of a row and a column; row -1 is that of the headers.
    QRect Cell(int row, int column) const;
    bool HasHeaders() const;
    int HeaderHeight() const;
    int Rows() const;
    int Columns() const;
    /// Where the key leads from the current tile.
    int Led(int key, bool ctrl) const;
    void Choose(int tile) const;

    void PaintHeaders(QPainter& painter) const;
    void PaintLines(QPainter& painter) const;
    void PaintCurrent(QPainter& painter) const;
    void PaintTexts(QPainter& painter, const QRect& area) const;

    const Tiles* tiles_ = nullptr;
    int pointed_ = -1;
};

} // namespace korvane
