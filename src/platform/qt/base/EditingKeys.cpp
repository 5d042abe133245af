#include "platform/qt/base/EditingKeys.h"

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QTextEdit>
#include <algorithm>
#include <array>

namespace korvane {

namespace {

constexpr std::array kWithCtrl{Qt::Key_A, Qt::Key_C, Qt::Key_V, Qt::Key_X, Qt::Key_Z, Qt::Key_Y};
constexpr std::array kWithOrWithoutCtrl{Qt::Key_Home,      Qt::Key_End,  Qt::Key_Delete,
                                        Qt::Key_Backspace, Qt::Key_Left, Qt::Key_Right,
                                        Qt::Key_Up,        Qt::Key_Down, Qt::Key_Insert};

template <std::size_t N>
bool Has(const std::array<Qt::Key, N>& keys, int key) {
    return std::ranges::find(keys, static_cast<Qt::Key>(key)) != keys.end();
}

bool IsEditingKey(const QKeyEvent& key) {
    const auto modifiers = key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    if (modifiers == Qt::ControlModifier && Has(kWithCtrl, key.key())) return true;
    const bool simple = modifiers == Qt::NoModifier || modifiers == Qt::ControlModifier;
    return simple && Has(kWithOrWithoutCtrl, key.key());
}

bool EditsText(const QWidget& widget) {
    const auto* combo = qobject_cast<const QComboBox*>(&widget);
    return qobject_cast<const QLineEdit*>(&widget) != nullptr ||
           qobject_cast<const QPlainTextEdit*>(&widget) != nullptr ||
           qobject_cast<const QTextEdit*>(&widget) != nullptr || (combo != nullptr && combo->isEditable());
}

bool IsEmpty(QClipboard::Mode which) {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData(which);
    return data == nullptr || data->formats().isEmpty();
}

} // namespace

bool PastesNothing(const QEvent& event) {
    if (event.type() == QEvent::KeyPress) {
        const auto& key = static_cast<const QKeyEvent&>(event);
        // With Ctrl, Insert pastes what is selected anywhere.
        const bool selected = key.key() == Qt::Key_Insert && key.modifiers().testFlag(Qt::ControlModifier);
        return key.matches(QKeySequence::Paste) &&
               IsEmpty(selected ? QClipboard::Selection : QClipboard::Clipboard);
    }
    if (event.type() != QEvent::MouseButtonRelease) return false;
    const bool middle = static_cast<const QMouseEvent&>(event).button() == Qt::MiddleButton;
    return middle && IsEmpty(QClipboard::Selection);
}

bool EditsWith(const QWidget& widget, const QKeyEvent& key) {
    return IsEditingKey(key) && EditsText(widget);
}

bool RedidWith(QWidget& widget, const QKeyEvent& key) {
    if (key.keyCombination() != (Qt::CTRL | Qt::Key_Y)) return false;
    if (auto* line = qobject_cast<QLineEdit*>(&widget)) line->redo();
    if (auto* lines = qobject_cast<QPlainTextEdit*>(&widget)) lines->redo();
    if (auto* text = qobject_cast<QTextEdit*>(&widget)) text->redo();
    if (auto* combo = qobject_cast<QComboBox*>(&widget)) combo->lineEdit()->redo();
    return true;
}

} // namespace korvane
