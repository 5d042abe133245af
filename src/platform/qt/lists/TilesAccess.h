#pragma once

#include <QAccessibleWidget>
#include <QHash>

namespace korvane {

class TilesView;

/// What a screen reader learns of tiles: what each of them is, and which one is the current one.
class TilesAccess : public QAccessibleWidget {
public:
    explicit TilesAccess(TilesView& view);
    ~TilesAccess() override;

    /// Lets Qt find this class for tiles.
    static void Install();

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* part) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

private:
    TilesView& view_;
    mutable QHash<int, QAccessible::Id> tiles_;
};

} // namespace korvane
