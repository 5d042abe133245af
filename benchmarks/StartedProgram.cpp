// The real program, except that it ends when the table has been painted for the first time.

#include "FirstPaint.h"
#include "app/Application.h"
#include "app/Program.h"
#include "app/StartArguments.h"
#include "app/SystemParts.h"
#include "platform/qt/base/Palettes.h"
#include "platform/qt/grid/GridView.h"
#include "platform/qt/grid/SideBarView.h"
#include "platform/qt/services/QtMessageBoxes.h"

namespace {

/// Whether the widget shows the cells of a table. The sidebar is a grid too, but it is not meant.
bool IsTable(const QWidget& widget) {
    const auto* grid = qobject_cast<const korvane::GridView*>(widget.parentWidget());
    const bool isSideBar = qobject_cast<const korvane::SideBarView*>(grid) != nullptr;
    return grid != nullptr && !isSideBar && &widget == grid->viewport();
}

} // namespace

int main(int argc, char** argv) {
    using namespace korvane;
    const StartArguments start = ReadStartArguments(Arguments(argc, argv));
    int own = 1;
    const Application application(own, argv);
    const bench::EndAtFirstPaint end(&IsTable);
    FollowDesktopPalette();
    const auto system = OwnSystemParts();
    QtMessageBoxes messages;
    return Program(*system, system->Channel(), messages).Run(start.path);
}
