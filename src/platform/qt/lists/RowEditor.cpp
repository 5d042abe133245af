#include "platform/qt/lists/RowEditor.h"

#include <QKeyEvent>
#include <algorithm>
#include <array>

namespace korvane {

namespace {

struct StepKey {
    int key;
    int step;
};

constexpr std::array kStepKeys{StepKey{Qt::Key_Return, 1}, StepKey{Qt::Key_Enter, 1},
                               StepKey{Qt::Key_Down, 1},   StepKey{Qt::Key_Tab, 1},
                               StepKey{Qt::Key_Up, -1},    StepKey{Qt::Key_Backtab, -1}};

/// The rows that a key goes on by; 0 for any other key.
int StepOf(const QKeyEvent& event) {
    const auto* const found = std::ranges::find(kStepKeys, event.key(), &StepKey::key);
    return found == kStepKeys.end() ? 0 : found->step;
}

} // namespace

RowEditor::RowEditor(QWidget* parent) : QLineEdit(parent) {
    setFrame(false);
    setAutoFillBackground(true);
    setAccessibleName(tr("Title"));
}

void RowEditor::keyPressEvent(QKeyEvent* event) {
    const int step = StepOf(*event);
    if (step != 0) return emit Finished(step);
    QLineEdit::keyPressEvent(event);
}

bool RowEditor::event(QEvent* event) {
    // The keys that finish the editing are the field's and not the window's.
    if (event->type() == QEvent::ShortcutOverride && StepOf(*static_cast<QKeyEvent*>(event)) != 0) {
        event->accept();
        return true;
    }
    // QWidget goes to the next widget at these keys before the field sees them.
    if (event->type() == QEvent::KeyPress && StepOf(*static_cast<QKeyEvent*>(event)) != 0) {
        keyPressEvent(static_cast<QKeyEvent*>(event));
        return true;
    }
    return QLineEdit::event(event);
}

} // namespace korvane
