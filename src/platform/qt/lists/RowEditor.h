#pragma once

#include "platform/qt/base/FinishTyping.h"

#include <QLineEdit>

namespace korvane {

/// The field in which a cell of a list is edited in place. Return, Down and Tab commit and go on to the next
/// row, Up and Shift+Tab to the previous one, and Esc gives the old text back.
class RowEditor : public QLineEdit, public UnfinishedField {
    Q_OBJECT

public:
    explicit RowEditor(QWidget* parent);

    void Commit() override { emit Finished(0); }

signals:
    void Finished(int step);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;
};

} // namespace korvane
