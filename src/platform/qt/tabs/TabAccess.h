#pragma once

#include "platform/qt/base/SpokenParts.h"

#include <QAccessibleWidget>

namespace korvane {

class TabBar;

/// What a screen reader learns of a strip of tabs: which tabs there are, which one is selected, and the
/// buttons that close them. The buttons come after the tabs.
class TabBarAccess : public QAccessibleWidget {
public:
    explicit TabBarAccess(TabBar& bar);

    /// Lets Qt find this class for strips of tabs.
    static void Install();

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* part) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

private:
    TabBar& bar_;
    mutable SpokenParts tabs_;
};

} // namespace korvane
