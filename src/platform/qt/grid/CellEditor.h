#pragma once

#include "platform/qt/base/FinishTyping.h"

#include <QPlainTextEdit>

namespace korvane {

/// The field in which a cell is edited in place. Return commits, Esc cancels, Shift+Return or Alt+Return
/// begins a new line, Tab commits and moves on. The field grows with its text down to the bottom of the grid.
class CellEditor : public QPlainTextEdit, public UnfinishedField {
    Q_OBJECT

public:
    /// The field is a child of `viewport`, where the grid's cells are drawn. It covers at least the cell that
    /// `SetCell` is given.
    CellEditor(QWidget& viewport, const QFont& font);
    ~CellEditor() override { emit Leaving(); }

    void SetCell(const QRect& cell);
    /// Sets the text, with LF as line ends. With `selected` the text is selected, so that typing replaces it.
    void SetLines(const QString& lines, bool selected);
    QString Lines() const;
    void Commit() override { emit Finished(true, 0); }

signals:
    void Finished(bool commit, int cellStep);
    /// The field is being deleted, and is still whole.
    void Leaving();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;
    /// Qt fails at a clipboard that is empty.
    void insertFromMimeData(const QMimeData* source) override;

private:
    void Grow();
    /// The height that the field needs for its text. The measuring stops when the text is higher than `most`.
    int TextHeight(int most) const;

    QRect cell_;
};

} // namespace korvane
