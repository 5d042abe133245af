#include "platform/qt/tabs/TabStripAdaptor.h"

#include "controls/Form.h"
#include "platform/qt/base/Convert.h"
#include "platform/qt/base/FinishTyping.h"

#include <QScopedValueRollback>
#include <QShortcut>
#include <algorithm>
#include <utility>

namespace korvane {

TabStripAdaptor::TabStripAdaptor(TabStrip& strip, TabPages& widget, PageSource& pages)
    : AdaptorOf(strip, widget), pages_(pages) {
    QTabBar& tabs = widget.Tabs();
    tabs.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&tabs, &QTabBar::currentChanged, this, &TabStripAdaptor::TabClicked);
    connect(&tabs, &QTabBar::tabCloseRequested, this, &TabStripAdaptor::CloseClicked);
    connect(&tabs, &QWidget::customContextMenuRequested, this, &TabStripAdaptor::ContextClicked);
    // These keys belong to the tab strip and are in no menu.
    const auto* next = new QShortcut(QKeySequence("Ctrl+Tab"), &widget);
    const auto* previous = new QShortcut(QKeySequence("Ctrl+Shift+Tab"), &widget);
    connect(next, &QShortcut::activated, this, [this] { StepBy(1); });
    connect(previous, &QShortcut::activated, this, [this] { StepBy(-1); });
}

void TabStripAdaptor::Write(Aspect aspect) {
    if (aspect == Aspect::Items) WriteTabs();
    if (aspect == Aspect::Items || aspect == Aspect::Selection) ShowActive();
    if (aspect == Aspect::Items && !tied_) TakeKeyboard();
    if (aspect == Aspect::Visible) widget_.Tabs().setUpdatesEnabled(control_.AllowDrawing);
    if (aspect == Aspect::Colours) widget_.Tabs().SetLook(control_.Style, control_.Framed);
    const bool tells = aspect == Aspect::State || aspect == Aspect::Value || aspect == Aspect::Items ||
                       aspect == Aspect::Selection;
    if (tells) HoldNotes();
    AdaptorOf::Write(aspect);
}

/// However often something changed since, notes and status are written once, when the event loop turns.
void TabStripAdaptor::HoldNotes() {
    if (std::exchange(told_, true)) return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            told_ = false;
            if (!Attached()) return;
            WriteNotes();
            WriteStatus();
        },
        Qt::QueuedConnection);
}

void TabStripAdaptor::WriteNotes() {
    if (!control_.NoteOf) return;
    int index = 0;
    for (const Form* child : shown_) {
        const TabNote note = control_.NoteOf(*child);
        widget_.Tabs().SetAltered(index, note.altered);
        if (!note.toolTip.empty()) widget_.SetToolTip(index, ToQString(note.toolTip));
        ++index;
    }
}

void TabStripAdaptor::WriteStatus() {
    if (!control_.StatusParts) return;
    QStringList parts;
    for (const Text& part : control_.StatusParts())
        parts.append(ToQString(part));
    widget_.Tabs().SetStatus(parts);
}

void TabStripAdaptor::Deafen() {
    AdaptorOf::Deafen();
    widget_.Tabs().disconnect(this);
    for (QShortcut* shortcut : widget_.findChildren<QShortcut*>())
        shortcut->disconnect(this);
}

void TabStripAdaptor::WriteTabs() {
    const QScopedValueRollback guard(writing_, true);
    const auto& children = control_.Children();
    for (std::size_t index = shown_.size(); index-- > 0;) {
        if (std::find(children.begin(), children.end(), shown_[index]) != children.end()) continue;
        widget_.Remove(static_cast<int>(index));
        pages_.Release(*shown_[index]);
        shown_.erase(shown_.begin() + static_cast<std::ptrdiff_t>(index));
    }
    for (Form* child : children) {
        if (std::find(shown_.begin(), shown_.end(), child) == shown_.end()) AddTab(*child);
    }
}

void TabStripAdaptor::AddTab(Form& child) {
    QWidget* page = pages_.PageOf(child);
    if (page == nullptr) return;
    shown_.push_back(&child);
    widget_.Add(*page, ToQString(child.Caption.Get()));
    connect(page, &QWidget::windowTitleChanged, this, [this, page, &child] {
        const int index = widget_.IndexOf(page);
        if (index >= 0) widget_.SetCaption(index, ToQString(child.Caption.Get()));
        HoldNotes();
    });
}

void TabStripAdaptor::ShowActive() {
    const QScopedValueRollback guard(writing_, true);
    const auto active = std::find(shown_.begin(), shown_.end(), control_.ActiveChild());
    if (active != shown_.end()) widget_.ShowPage(static_cast<int>(active - shown_.begin()));
}

/// A tab may have been activated before it had a widget, and then it couldn't take the keyboard. The active
/// tab takes it now, so that it gets keys that are pressed as soon as the window appears.
void TabStripAdaptor::TakeKeyboard() {
    tied_ = true;
    if (Form* active = control_.ActiveChild()) active->Activate();
}

void TabStripAdaptor::TabClicked(int index) {
    if (writing_ || index < 0) return;
    FinishTyping();
    control_.Select(*shown_[static_cast<std::size_t>(index)]);
}

void TabStripAdaptor::CloseClicked(int index) {
    FinishTyping();
    Form& child = *shown_[static_cast<std::size_t>(index)];
    if (control_.CloseWanted) {
        control_.CloseWanted(child);
    } else {
        child.Close();
    }
}

void TabStripAdaptor::ContextClicked(const QPoint& place) {
    FinishTyping();
    const int index = widget_.Tabs().tabAt(place);
    if (index < 0) {
        if (control_.ContextMenu) control_.ContextMenu();
        return;
    }
    // The command applies to the clicked tab, so this one becomes the active tab.
    control_.Select(*shown_[static_cast<std::size_t>(index)]);
    if (control_.TabContextClick) control_.TabContextClick();
}

void TabStripAdaptor::StepBy(int tabs) {
    const int count = widget_.Count();
    if (count == 0) return;
    const int index = (widget_.Tabs().currentIndex() + tabs + count) % count;
    TabClicked(index);
}

} // namespace korvane
