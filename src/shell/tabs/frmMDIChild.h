#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/TextBox.h"
#include "controls/views/GridBox.h"
#include "controls/views/Slider.h"
#include "controls/views/TabStrip.h"
#include "table/TabContext.h"
#include "table/model/TableHistory.h"
#include "table/model/TableHost.h"
#include "table/model/TableModel.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

namespace korvane {

class TabStates;

/// A tab: one open table in its grid, and the strip above it. It is inside the main window.
class frmMDIChild : public Form, private TableHost {
public:
    /// All arguments outlive the tab.
    frmMDIChild(App& app, TabStates& states);
    ~frmMDIChild() override;

    Panel Picture1{*this, "Picture1"};
    TextBox txtFindString{*this, "txtFindString", u"", u"Text to find (Ctrl+Shift+F)"};
    CommandButton cmdFind{*this, "cmdFind", u"", u"Find string in database"};
    TextBox txtRowHeight{*this, "txtRowHeight", u"", u"Row height (set with Ctrl-Shift+Return)"};
    Slider ZoomSlider{*this, "ZoomSlider", 13, 360, u"Move to change row height"};
    CommandButton cmdWebsites{*this, "cmdWebsites", u"Websites"};
    CommandButton cmdWallpaper{*this, "cmdWallpaper", u"Wallpaper"};
    CommandButton cmdSettings{*this, "cmdSettings", u"Settings"};
    CommandButton cmdHelp{*this, "cmdHelp", u"Help"};
    Panel Frame1{*this, "Frame1"};
    GridBox iGrid1;

    TableModel& Table() { return table_; }
    Grid& GridStore() { return iGrid1.Store(); }
    /// What commands of this tab work on.
    TabContext Context();
    /// Runs a routine of the tab. What it changes is one step to undo.
    void Run(TabRoutine routine);
    /// What the tab strip tells of the tab.
    TabNote Note() const;
    /// Where the user is in the table: the row, the ticks, the filter and the last save.
    std::vector<Text> StatusParts() const;
    /// The note or the status changed.
    std::function<void()> Told;
    /// The number of the tab's slot, which is kept in its `Tag`.
    int Slot() const;

    void Load() override;
    bool HasChanges() const override { return table_.TableAltered == 1; }
    bool QueryUnload() override;
    void Activate() override;

private:
    struct Tables;

    void cmdFind_Click();
    void ApplyTypedHeight();
    void ZoomSlider_Scroll();
    void ZoomSlider_Released();
    void iGrid1_AfterEdit();
    void iGrid1_PastEnd();
    void iGrid1_HeaderClick();
    void iGrid1_MouseUp(MouseButton button);
    void iGrid1_KeyDown(KeyEvent& key);
    /// Makes the button run a command of the main window.
    void ForwardToMainWindow(CommandButton& button, std::string_view command);

    void ShowRowHeight(std::int16_t height) override;
    Twips GridWidth() const override { return iGrid1.ShownWidth; }
    Text TabCaption() const override { return Caption; }
    bool Types() const override { return iGrid1.FieldAltered; }
    std::optional<FieldText> Typed() const override;
    void SetTabCaption(TextView caption) override;
    void ClearDirty() override;

    App& app_;
    TabStates& states_;
    TableModel table_;
    TableHistory history_;
    /// It exists while the slider is being moved.
    std::optional<TableStep> sliding_;
};

} // namespace korvane
