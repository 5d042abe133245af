#include "platform/qt/tiles/TilesAccess.h"

#include "platform/qt/base/SpokenPart.h"
#include "platform/qt/tiles/TilesView.h"

#include <QPointer>
#include <QWindow>

namespace korvane {

namespace {

/// One tile.
class TileAccess : public SpokenPart {
public:
    TileAccess(TilesView& view, int tile) : view_(&view), tile_(tile) {}

    int Tile() const { return tile_; }

    bool isValid() const override { return view_ != nullptr && tile_ < view_->Count(); }
    QWindow* window() const override { return isValid() ? view_->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override {
        return view_ == nullptr ? nullptr : QAccessible::queryAccessibleInterface(view_);
    }

    QString text(QAccessible::Text kind) const override {
        return isValid() && kind == QAccessible::Name ? view_->SpokenName(tile_) : QString();
    }
    QRect rect() const override {
        if (!isValid()) return {};
        const QRect place = view_->PlaceOf(tile_);
        return {view_->mapToGlobal(place.topLeft()), place.size()};
    }
    QAccessible::Role role() const override { return QAccessible::ListItem; }

    QAccessible::State state() const override {
        QAccessible::State state;
        state.invalid = !isValid();
        if (state.invalid) return state;
        const bool current = view_->Current() == tile_;
        state.selectable = state.focusable = true;
        state.selected = current;
        state.focused = current && view_->hasFocus();
        state.invisible = !view_->isVisible();
        return state;
    }

    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& action) override {
        if (isValid() && action == pressAction() && view_->Chosen) view_->Chosen(tile_);
    }

private:
    QPointer<TilesView> view_;
    int tile_;
};

QAccessibleInterface* MakeAccess(const QString& className, QObject* object) {
    auto* view = qobject_cast<TilesView*>(object);
    const bool mine = view != nullptr && className == QLatin1String(TilesView::staticMetaObject.className());
    return mine ? new TilesAccess(*view) : nullptr;
}

} // namespace

void TilesAccess::Install() {
    // Qt passes over a factory that it knows already.
    QAccessible::installFactory(&MakeAccess);
}

TilesAccess::TilesAccess(TilesView& view) : QAccessibleWidget(&view, QAccessible::List), view_(view) {}

int TilesAccess::childCount() const {
    return view_.Count();
}

QAccessibleInterface* TilesAccess::child(int index) const {
    if (index < 0 || index >= childCount()) return nullptr;
    return tiles_.At(index, [this, index] { return new TileAccess(view_, index); });
}

int TilesAccess::indexOfChild(const QAccessibleInterface* part) const {
    const auto* tile = dynamic_cast<const TileAccess*>(part);
    return tile == nullptr ? -1 : tile->Tile();
}

QAccessibleInterface* TilesAccess::childAt(int x, int y) const {
    return child(view_.TileAt(view_.mapFromGlobal(QPoint(x, y))));
}

QAccessibleInterface* TilesAccess::focusChild() const {
    return view_.hasFocus() ? child(view_.Current()) : nullptr;
}

} // namespace korvane
