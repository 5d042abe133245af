#include "platform/qt/tabs/TabAccess.h"

#include "platform/qt/base/SpokenPart.h"
#include "platform/qt/tabs/TabBar.h"

#include <QPointer>

namespace korvane {

namespace {

/// One tab.
class TabAccess : public SpokenPart {
public:
    TabAccess(TabBar& bar, int index) : bar_(&bar), index_(index) {}

    int Index() const { return index_; }

    bool isValid() const override { return bar_ != nullptr && index_ < bar_->count(); }
    QWindow* window() const override { return isValid() ? bar_->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override {
        return bar_ == nullptr ? nullptr : QAccessible::queryAccessibleInterface(bar_);
    }

    QString text(QAccessible::Text kind) const override {
        if (!isValid()) return {};
        if (kind == QAccessible::Name) return bar_->SpokenName(index_);
        return kind == QAccessible::Description ? bar_->tabToolTip(index_) : QString();
    }
    QRect rect() const override {
        if (!isValid()) return {};
        const QRect place = bar_->tabRect(index_);
        return {bar_->mapToGlobal(place.topLeft()), place.size()};
    }
    QAccessible::Role role() const override { return QAccessible::PageTab; }

    QAccessible::State state() const override {
        QAccessible::State state;
        state.invalid = !isValid();
        if (state.invalid) return state;
        const bool current = bar_->currentIndex() == index_;
        state.selectable = state.focusable = true;
        state.selected = current;
        state.focused = current && bar_->hasFocus();
        state.invisible = !bar_->isVisible();
        state.offscreen = !bar_->rect().intersects(bar_->tabRect(index_));
        return state;
    }

    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& action) override {
        if (isValid() && action == pressAction()) bar_->setCurrentIndex(index_);
    }

private:
    QPointer<TabBar> bar_;
    int index_;
};

QAccessibleInterface* MakeAccess(const QString& className, QObject* object) {
    auto* bar = qobject_cast<TabBar*>(object);
    const bool mine = bar != nullptr && className == QLatin1String(TabBar::staticMetaObject.className());
    return mine ? new TabBarAccess(*bar) : nullptr;
}

} // namespace

void TabBarAccess::Install() {
    // Qt passes over a factory that it knows already.
    QAccessible::installFactory(&MakeAccess);
}

TabBarAccess::TabBarAccess(TabBar& bar) : QAccessibleWidget(&bar, QAccessible::PageTabList), bar_(bar) {}

int TabBarAccess::childCount() const {
    return 2 * bar_.count();
}

QAccessibleInterface* TabBarAccess::child(int index) const {
    if (index < 0 || index >= childCount()) return nullptr;
    if (index >= bar_.count())
        return QAccessible::queryAccessibleInterface(
            bar_.tabButton(index - bar_.count(), QTabBar::RightSide));
    return tabs_.At(index, [this, index] { return new TabAccess(bar_, index); });
}

int TabBarAccess::indexOfChild(const QAccessibleInterface* part) const {
    if (const auto* tab = dynamic_cast<const TabAccess*>(part)) return tab->Index();
    for (int index = 0; index < bar_.count(); ++index) {
        if (part->object() == bar_.tabButton(index, QTabBar::RightSide)) return bar_.count() + index;
    }
    return -1;
}

QAccessibleInterface* TabBarAccess::childAt(int x, int y) const {
    const QPoint place = bar_.mapFromGlobal(QPoint(x, y));
    const int tab = bar_.tabAt(place);
    if (tab < 0) return nullptr;
    const bool onButton = TabBar::CloseButtonOf(bar_.tabRect(tab)).contains(place);
    return child(onButton ? bar_.count() + tab : tab);
}

QAccessibleInterface* TabBarAccess::focusChild() const {
    return bar_.hasFocus() ? child(bar_.currentIndex()) : nullptr;
}

} // namespace korvane
