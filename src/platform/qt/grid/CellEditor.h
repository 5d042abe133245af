#pragma once

#include "platform/qt/base/FinishTyping.h"

#include <QPlainTextEdit>

namespace korvane {

/// The field in which a cell is edited in place. Return commits, Esc takes the change back, Shift or Alt with
/// Return begins a new line, Tab commits and goes on. It grows with its text as far as the grid reaches.
class CellEditor : public QPlainTextEdit, public UnfinishedField {
    Q_OBJECT

public:
    /// `cell` is where the cell stands on `viewport`: the least that the field covers.
    CellEditor(QWidget& viewport, const QFont& font);

    void SetCell(const QRect& cell);
    /// The text is in lines. `selected` makes what is typed next replace it.
    void SetLines(const QString& lines, bool selected);
    QString Lines() const;
    void Commit() override { emit Finished(true, 0); }

signals:
    void Finished(bool commit, int columnStep);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;

private:
    void Grow();
    /// How high the field must be for its text; a text higher than `most` isn't measured to its end.
    int TextHeight(int most) const;

    QRect cell_;
};

} // namespace korvane
