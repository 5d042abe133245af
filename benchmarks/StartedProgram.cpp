// The real program, except that it ends when the table has been painted for the first time.

#include "FirstPaint.h"
#include "app/Start.h"
#include "platform/qt/grid/GridView.h"
#include "platform/qt/grid/SideBarView.h"

#include <optional>

namespace {

/// Whether the widget shows the cells of a table. The sidebar is a grid too, but it is not meant.
bool IsTable(const QWidget& widget) {
    const auto* grid = qobject_cast<const korvane::GridView*>(widget.parentWidget());
    const bool isSideBar = qobject_cast<const korvane::SideBarView*>(grid) != nullptr;
    return grid != nullptr && !isSideBar && &widget == grid->viewport();
}

} // namespace

int main(int argc, char** argv) {
    std::optional<korvane::bench::EndAtFirstPaint> end;
    return korvane::Start(argc, argv, [&end] { end.emplace(&IsTable); });
}
