#pragma once

#include "common/text/Text.h"
#include "shell/tabs/TabStates.h"
#include "table/TabContext.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace korvane {

class App;
class Form;
class TabStrip;
class frmMDIChild;

/// The open databases: each has a slot, which holds its window and its `TabState`.
class Tabs {
public:
    /// Both outlive the tabs.
    Tabs(App& app, TabStrip& strip);
    ~Tabs();

    TabStates TabState;
    /// The slot of the tab that was made last; 0 before the first.
    std::int16_t CurrentTabIndex = 0;
    /// A tab was made, or closed.
    std::function<void()> CountChanged;
    // The paper size by the settings' name for it, in twips. Nothing reads them.
    int PageWidth = 0;
    int PageHeight = 0;

    /// nullptr for a slot that isn't in use.
    frmMDIChild* Document(int slot);
    /// The tab that commands go to; nullptr when none is open.
    frmMDIChild* Active() const;
    /// Runs the routine on that tab; nothing happens when none is open.
    void RunOnActive(TabRoutine routine);

    /// Makes a tab and shows it.
    void NewDocument();
    /// Does the same without painting in between.
    void AddNewTab();

    /// Gives the tab a table's path, or the caption of a table that has none.
    void NameTab(frmMDIChild& tab, const Text& path);

    /// Closes a tab, which may ask and refuse. The window lives on until `ReleaseClosed`, since the command
    /// that closes it may be its own.
    bool Close(Form& child);
    /// Closes all in the order of the strip; stops at the first that refuses.
    bool CloseAll();
    void ReleaseClosed();

    // In the order of the slots, whatever the order on the strip.
    void SwitchForward();
    void SwitchBack();
    /// Brings a tab to the front and gives it the keyboard.
    void Show(int slot);

private:
    /// The element that owns the window; nullptr when it is none of the tabs.
    std::unique_ptr<frmMDIChild>* OwnerOf(const Form& child);
    int ActiveSlot() const;
    void SwitchBy(int step);
    void ResolvePageSize();

    App& app_;
    TabStrip& strip_;
    /// By slot; entry 0 is never used.
    std::vector<std::unique_ptr<frmMDIChild>> documents_;
    /// Windows that are open although another one got their slot: it was freed, and then the user refused to
    /// close.
    std::vector<std::unique_ptr<frmMDIChild>> stranded_;
    std::vector<std::unique_ptr<frmMDIChild>> closed_;
};

} // namespace korvane
