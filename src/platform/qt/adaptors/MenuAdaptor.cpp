#include "platform/qt/adaptors/MenuAdaptor.h"

#include "platform/qt/base/Convert.h"
#include "platform/qt/base/EditingKeys.h"
#include "platform/qt/base/FinishTyping.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <algorithm>

namespace korvane {

namespace {

QString FromLatin(std::string_view text) {
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

QString ObjectName(const MenuEntry& entry) {
    return FromLatin(entry.name);
}

bool OpensMenu(std::span<const MenuEntry> entries, std::size_t index) {
    return index + 1 < entries.size() && entries[index + 1].level > entries[index].level;
}

QAction* MakeAction(const MenuEntry& entry, Menu& menu, QObject& parent) {
    auto* action = new QAction(ToQString(entry.caption), &parent);
    action->setObjectName(ObjectName(entry));
    if (entry.caption.empty()) {
        action->setSeparator(true);
        return action;
    }
    action->setMenuRole(QAction::NoRole);
    action->setShortcut(QKeySequence::fromString(FromLatin(entry.shortcut.Name())));
    QObject::connect(action, &QAction::triggered, &parent, [&menu, name = std::string(entry.name)] {
        FinishTyping();
        menu.Choose(name);
    });
    return action;
}

/// Leaves the keys that the menu binds to the menu, whatever widget has the keyboard. Only the keys with
/// which a text is edited go to the text.
class KeyKeeper : public QObject {
public:
    explicit KeyKeeper(const QMenuBar& bar) : bar_(bar) {}

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool asked = event->type() == QEvent::ShortcutOverride;
        if (!asked && event->type() != QEvent::KeyPress) return false;
        auto* widget = qobject_cast<QWidget*>(watched);
        const bool mine = widget != nullptr && widget->window() == bar_.window();
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (!mine || !Bound(key)) return false;
        const bool editing = EditsWith(*widget, key);
        if (!asked) return editing && RedidWith(*widget, key);
        event->setAccepted(editing);
        return true;
    }

private:
    bool Bound(const QKeyEvent& event) const {
        const QKeySequence pressed(event.keyCombination());
        const auto actions = bar_.findChildren<QAction*>();
        return std::any_of(actions.begin(), actions.end(), [&pressed](const QAction* action) {
            return !pressed.isEmpty() && action->shortcut() == pressed;
        });
    }

    const QMenuBar& bar_;
};

} // namespace

MenuAdaptor::MenuAdaptor(Menu& menu, QMenuBar& bar) : AdaptorOf(menu, bar) {
    Build();
    keyKeeper_ = std::make_unique<KeyKeeper>(bar);
    QCoreApplication::instance()->installEventFilter(keyKeeper_.get());
    // Qt toggles the check mark of a chosen entry by itself, but only the menu decides what is checked.
    connect(&bar, &QMenuBar::triggered, this, &MenuAdaptor::WriteChecks);
}

void MenuAdaptor::Build() {
    const auto entries = control_.Entries();
    QMenu* open = nullptr;
    for (std::size_t index = 0; index < entries.size(); ++index) {
        const MenuEntry& entry = entries[index];
        if (entry.level == 0 && OpensMenu(entries, index)) {
            open = widget_.addMenu(ToQString(entry.caption));
            open->setObjectName(ObjectName(entry));
            continue;
        }
        QWidget& parent = entry.level == 0 ? static_cast<QWidget&>(widget_) : *open;
        QAction* action = MakeAction(entry, control_, parent);
        parent.addAction(action);
        actions_.emplace(entry.name, action);
    }
}

void MenuAdaptor::Write(Aspect aspect) {
    if (aspect == Aspect::Items) WriteChecks();
    AdaptorOf::Write(aspect);
    if (aspect == Aspect::Font) WriteFont();
}

void MenuAdaptor::WriteChecks() {
    for (const auto& [name, action] : actions_) {
        const bool checked = control_.Checked(name);
        // A box appears with the first check mark and then stays, so that the captions don't move.
        if (checked) action->setCheckable(true);
        if (action->isCheckable()) action->setChecked(checked);
    }
}

void MenuAdaptor::WriteFont() {
    const auto menus = widget_.findChildren<QMenu*>();
    for (QMenu* menu : menus)
        menu->setFont(widget_.font());
}

void MenuAdaptor::Deafen() {
    AdaptorOf::Deafen();
    keyKeeper_.reset();
    for (const auto& [name, action] : actions_)
        disconnect(action, &QAction::triggered, nullptr, nullptr);
}

void FillPopup(QMenu& popup, Menu& menu) {
    for (const MenuEntry& entry : menu.Entries()) {
        QAction* action = MakeAction(entry, menu, popup);
        if (menu.Checked(entry.name)) {
            action->setCheckable(true);
            action->setChecked(true);
        }
        // The menu bar handles the keys. Here they are only shown.
        action->setShortcutContext(Qt::WidgetShortcut);
        popup.addAction(action);
    }
}

} // namespace korvane
