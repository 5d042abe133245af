#pragma once

namespace korvane {

class frmMDIParent;

/// The load of the main window: settings, record, place, sidebar, command line. Where a copy of the program
/// runs already, its file goes there, the window closes, and `App::SecondInstance` is 1.
void StartUp(frmMDIParent& main);

} // namespace korvane
