#include "platform/qt/binder/ToolBarKeys.h"

#include <QKeyEvent>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>
#include <optional>

namespace korvane {

namespace {

/// The place to which a key goes from `at`.
std::optional<qsizetype> Goal(int key, qsizetype at, qsizetype count) {
    switch (key) {
    case Qt::Key_Left:
        return (at + count - 1) % count;
    case Qt::Key_Right:
        return (at + 1) % count;
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return count - 1;
    default:
        return std::nullopt;
    }
}

} // namespace

ToolBarKeys::ToolBarKeys(QToolBar& bar) : QObject(&bar), bar_(bar) {
    for (QToolButton* button : Buttons())
        button->installEventFilter(this);
    ComeFirst();
    KeepStop();
}

/// The buttons of the bar's actions, in order.
QList<QToolButton*> ToolBarKeys::Buttons() const {
    QList<QToolButton*> buttons;
    const auto actions = bar_.actions();
    for (QAction* action : actions) {
        if (auto* button = qobject_cast<QToolButton*>(bar_.widgetForAction(action))) buttons << button;
    }
    return buttons;
}

/// Places the bar before its window's other widgets in the order of the Tab key, as it is above them.
void ToolBarKeys::ComeFirst() {
    QWidget* window = bar_.window();
    QList<QWidget*> order;
    for (QToolButton* button : Buttons())
        order << button;
    for (QWidget* next = window->nextInFocusChain(); next != window; next = next->nextInFocusChain()) {
        const bool isStop = (next->focusPolicy() & Qt::TabFocus) != 0 && !order.contains(next);
        if (isStop) order << next;
    }
    for (qsizetype at = 1; at < order.size(); ++at)
        QWidget::setTabOrder(order[at - 1], order[at]);
}

bool ToolBarKeys::eventFilter(QObject* watched, QEvent* event) {
    // While they are destroyed the widgets still send events, but they aren't what they were.
    auto* button = qobject_cast<QToolButton*>(watched);
    if (button == nullptr || qobject_cast<QToolBar*>(parent()) == nullptr) return false;
    switch (event->type()) {
    case QEvent::KeyPress:
        return KeyPressed(*button, static_cast<QKeyEvent*>(event)->key());
    case QEvent::FocusIn:
        StopAt(*button);
        break;
    case QEvent::EnabledChange:
    case QEvent::Show:
    case QEvent::Hide:
        KeepStop();
        break;
    default:
        break;
    }
    return false;
}

bool ToolBarKeys::KeyPressed(QToolButton& button, int key) {
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        button.click();
        return true;
    }
    QList<QToolButton*> usable = Usable();
    const auto goal = Goal(key, usable.indexOf(&button), usable.size());
    if (goal) usable[*goal]->setFocus(Qt::TabFocusReason);
    return goal.has_value();
}

QList<QToolButton*> ToolBarKeys::Usable() const {
    QList<QToolButton*> usable = Buttons();
    usable.removeIf([](const QToolButton* button) { return !button->isEnabled() || button->isHidden(); });
    return usable;
}

/// Makes the button the one to which the Tab key comes. None of them takes the keyboard at a click.
void ToolBarKeys::StopAt(const QToolButton& stop) {
    for (QToolButton* button : Buttons())
        button->setFocusPolicy(button == &stop ? Qt::TabFocus : Qt::NoFocus);
}

void ToolBarKeys::KeepStop() {
    const QList<QToolButton*> usable = Usable();
    const bool stops = std::ranges::any_of(
        usable, [](const QToolButton* button) { return button->focusPolicy() == Qt::TabFocus; });
    if (!stops && !usable.isEmpty()) StopAt(*usable.front());
}

} // namespace korvane
