#pragma once

#include <QAccessibleWidget>
#include <QHash>

namespace korvane {

class TabBar;

/// What a screen reader learns of a strip of tabs: which tabs there are, which one is selected, and the
/// buttons that close them. The buttons come after the tabs.
class TabBarAccess : public QAccessibleWidget {
public:
    explicit TabBarAccess(TabBar& bar);
    ~TabBarAccess() override;

    /// Lets Qt find this class for strips of tabs.
    static void Install();

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* part) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

private:
    TabBar& bar_;
    mutable QHash<int, QAccessible::Id> tabs_;
};

} // namespace korvane
