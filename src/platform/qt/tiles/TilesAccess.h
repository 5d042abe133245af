#pragma once

#include "platform/qt/base/SpokenParts.h"

#include <QAccessibleWidget>

namespace korvane {

class TilesView;

/// What a screen reader learns of tiles: what each of them is, and which one is the current one.
class TilesAccess : public QAccessibleWidget {
public:
    explicit TilesAccess(TilesView& view);

    /// Lets Qt find this class for tiles.
    static void Install();

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* part) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

private:
    TilesView& view_;
    mutable SpokenParts tiles_;
};

} // namespace korvane
