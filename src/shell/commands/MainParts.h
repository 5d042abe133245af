#pragma once

namespace korvane {

class App;
class Form;
class LoadPipeline;
class Menu;
class RecentRecord;
class SideBar;
class TabStrip;
class Tabs;
struct WindowSizeChoice;

/// The parts of the main window, on which its routines work. All of them outlive a routine.
struct MainParts {
    App& app;
    /// The window itself.
    Form& window;
    Menu& menuBar;
    TabStrip& strip;
    SideBar& sideBar;
    Tabs& tabs;
    LoadPipeline& pipeline;
    RecentRecord& recents;
    WindowSizeChoice& windowSize;
};

} // namespace korvane
