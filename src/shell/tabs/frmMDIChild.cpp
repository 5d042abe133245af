#include "shell/tabs/frmMDIChild.h"

#include "common/number/Number.h"
#include "context/App.h"
#include "context/ports/MainWindow.h"
#include "controls/KeyTable.h"
#include "dbops/commands/RowHeight.h"
#include "dbops/rules/DeleteMark.h"
#include "dbops/rules/Rows.h"
#include "dbops/rules/TableSearch.h"
#include "dbops/rules/TableStatus.h"
#include "grid/Grid.h"
#include "platform/Clock.h"
#include "shell/tabs/TabStates.h"
#include "table/SaveCommands.h"
#include "table/TableKeeper.h"

namespace korvane {

namespace {

/// Ends the step of a slide, whatever becomes of what belongs to it.
class SlideEnd {
public:
    explicit SlideEnd(std::optional<TableStep>& step) : step_(step) {}
    SlideEnd(const SlideEnd&) = delete;
    SlideEnd& operator=(const SlideEnd&) = delete;
    ~SlideEnd() { step_.reset(); }

private:
    std::optional<TableStep>& step_;
};

} // namespace

struct frmMDIChild::Tables {
    static constexpr WindowKey<frmMDIChild> kFindKeys[] = {{"Return", &frmMDIChild::cmdFind},
                                                           {"Esc", &frmMDIChild::Activate}};
    static constexpr WindowKey<frmMDIChild> kHeightKeys[] = {
        {"Ctrl+Shift+Return", &frmMDIChild::ApplyTypedHeight}};
};

frmMDIChild::frmMDIChild(App& app, TabStates& states)
    : Form(app.Forms(), "frmMDIChild", u""),
      iGrid1(*this, "iGrid1", app.MakeGrid()),
      app_(app),
      states_(states),
      table_(iGrid1.Store()),
      history_(table_, *this) {
    cmdFind.Click = [this] { cmdFind_Click(); };
    txtFindString.Change = [this] { iGrid1.MarkedText = txtFindString.Text; };
    txtFindString.KeyDown = KeysOf(*this, Tables::kFindKeys);
    txtRowHeight.KeyDown = KeysOf(*this, Tables::kHeightKeys);
    ZoomSlider.Scroll = [this] { ZoomSlider_Scroll(); };
    ZoomSlider.Released = [this] { ZoomSlider_Released(); };
    iGrid1.FadedMark = DeleteMark();
    iGrid1.AfterEdit = [this](Row, Col) { iGrid1_AfterEdit(); };
    iGrid1.AfterChange = [this] {
        const WatchedCommand watched(Context());
        history_.EndStep();
    };
    iGrid1.Typing = [this] {
        if (auto* keeper = app_.Port<TableKeeper>()) keeper->TextTyped(Context());
    };
    iGrid1.PastEnd = [this] { iGrid1_PastEnd(); };
    iGrid1.HeaderClick = [this](Col) { iGrid1_HeaderClick(); };
    iGrid1.MouseUp = [this](MouseButton button) { iGrid1_MouseUp(button); };
    iGrid1.KeyDown = [this](KeyEvent& key) { iGrid1_KeyDown(key); };
    iGrid1.Seen = table_.TableAltered.Changed = [this] {
        if (Told) Told();
    };
    ForwardToMainWindow(cmdWebsites, CommandName::mnuMisc_Websites);
    ForwardToMainWindow(cmdWallpaper, CommandName::mnuMisc_Wallpaper);
    ForwardToMainWindow(cmdSettings, CommandName::mnuMisc_Settings);
    ForwardToMainWindow(cmdHelp, CommandName::mnuHelpText);
}

frmMDIChild::~frmMDIChild() {
    if (auto* keeper = app_.Port<TableKeeper>()) keeper->Forget(table_);
}

TabContext frmMDIChild::Context() {
    return {app_, table_, *this, &history_};
}

void frmMDIChild::Run(TabRoutine routine) {
    const WatchedCommand watched(Context());
    const TableStep step(history_);
    routine(Context());
}

TabNote frmMDIChild::Note() const {
    const Text& path = table_.TxtDbFile;
    return {table_.TableAltered == 1, path.empty() ? Caption.Get() : path};
}

std::vector<Text> frmMDIChild::StatusParts() const {
    return TableStatus(table_, app_.Clock().Now());
}

int frmMDIChild::Slot() const {
    std::int16_t slot = 0;
    ReadNumber(TextView(Tag), slot);
    return slot;
}

void frmMDIChild::Load() {
    txtFindString.Text = app_.Settings.LastDbFindText;
}

bool frmMDIChild::QueryUnload() {
    if (!AskToSaveAtClosing(Context())) return false;
    if (auto* keeper = app_.Port<TableKeeper>()) keeper->GiveUp(Context());
    app_.Settings.LastDbFindText = txtFindString.Text;
    states_[Slot()].Deleted = -1;
    return true;
}

void frmMDIChild::Activate() {
    GridStore().GridSetFocus();
}

void frmMDIChild::cmdFind_Click() {
    FindFromBox(Context(), txtFindString.Text.Get());
}

void frmMDIChild::ApplyTypedHeight() {
    const WatchedCommand watched(Context());
    const TableStep step(history_);
    ApplyTypedRowHeight(Context(), txtRowHeight.Text.Get());
}

void frmMDIChild::ZoomSlider_Scroll() {
    if (!sliding_) sliding_.emplace(history_);
    MoveRowHeight(Context(), ZoomSlider.Value);
}

void frmMDIChild::ZoomSlider_Released() {
    const WatchedCommand watched(Context());
    const SlideEnd end(sliding_);
    ApplyRowHeight(Context());
}

void frmMDIChild::iGrid1_AfterEdit() {
    table_.TableAltered = 1;
}

void frmMDIChild::iGrid1_PastEnd() {
    if (GridStore().RowCount() == kMaxRows) return;
    const TableStep step(history_);
    AppendRows(GridStore(), 1);
    table_.TableAltered = 1;
    iGrid1.StepCell(1);
}

void frmMDIChild::iGrid1_HeaderClick() {
    // A tab that sorts goes on sorting when the setting is taken away. Kept for compatibility:
    // sorting-stays-on.
    if (app_.Settings.AllowSorting == 1) GridStore().SetSortOnHeaderClick(true);
    if (GridStore().SortOnHeaderClick()) table_.TableAltered = 1;
}

void frmMDIChild::iGrid1_MouseUp(MouseButton button) {
    if (button == MouseButton::Right && app_.Port<MainWindow>() != nullptr)
        app_.Port<MainWindow>()->ShowPopupMenu();
}

void frmMDIChild::iGrid1_KeyDown(KeyEvent& key) {
    if (auto* mainWindow = app_.Port<MainWindow>()) mainWindow->GridKeyDown(key);
}

void frmMDIChild::ForwardToMainWindow(CommandButton& button, std::string_view command) {
    button.Click = [this, command] {
        if (auto* mainWindow = app_.Port<MainWindow>()) mainWindow->RunCommand(command);
    };
}

void frmMDIChild::ShowRowHeight(std::int16_t height) {
    ZoomSlider.Value = height;
    txtRowHeight.Text = NumberText(height);
}

std::optional<FieldText> frmMDIChild::Typed() const {
    return iGrid1.FieldAltered && iGrid1.ReadField ? iGrid1.ReadField() : std::nullopt;
}

void frmMDIChild::SetTabCaption(TextView caption) {
    Caption = Text(caption);
}

void frmMDIChild::ClearDirty() {
    states_[Slot()].Dirty = 0;
}

} // namespace korvane
