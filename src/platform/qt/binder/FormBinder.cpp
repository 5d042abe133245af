#include "platform/qt/binder/FormBinder.h"

#include "platform/qt/adaptors/DropDownAdaptor.h"
#include "platform/qt/adaptors/MenuAdaptor.h"
#include "platform/qt/adaptors/SimpleAdaptors.h"
#include "platform/qt/adaptors/SplitterAdaptor.h"
#include "platform/qt/adaptors/TextAdaptors.h"
#include "platform/qt/binder/DeskCover.h"
#include "platform/qt/binder/ToolBarKeys.h"
#include "platform/qt/combos/ComboBoxAdaptor.h"
#include "platform/qt/grid/GridAdaptor.h"
#include "platform/qt/lists/ListBoxAdaptor.h"
#include "platform/qt/lists/ListViewAdaptor.h"
#include "platform/qt/look/Icons.h"
#include "platform/qt/picture/PictureAdaptor.h"
#include "platform/qt/tabs/TabStripAdaptor.h"
#include "platform/qt/text/TextControlAdaptor.h"
#include "platform/qt/textbars/TextBarAdaptors.h"
#include "platform/qt/tiles/TilesAdaptor.h"
#include "platform/qt/trees/TreeViewAdaptor.h"

#include <QToolBar>

namespace korvane {

namespace {

using Maker = ControlAdaptor* (*)(Control&, QObject&, PageSource&);

template <class ControlT, class WidgetT, class AdaptorT>
ControlAdaptor* Make(Control& control, QObject& shown, [[maybe_unused]] PageSource& pages) {
    auto* wantedControl = dynamic_cast<ControlT*>(&control);
    auto* wantedWidget = qobject_cast<WidgetT*>(&shown);
    if (wantedControl == nullptr || wantedWidget == nullptr) return nullptr;
    if constexpr (std::is_constructible_v<AdaptorT, ControlT&, WidgetT&, PageSource&>) {
        return new AdaptorT(*wantedControl, *wantedWidget, pages);
    } else {
        return new AdaptorT(*wantedControl, *wantedWidget);
    }
}

/// Each row names a kind of control, a widget that can show it, and the adaptor that connects the two. The
/// widget owns the adaptor.
constexpr Maker kMakers[] = {
    Make<CommandButton, QAbstractButton, ButtonAdaptor>,
    Make<CommandButton, QAction, ActionAdaptor>,
    Make<CheckBox, QAbstractButton, CheckBoxAdaptor>,
    Make<OptionButton, QAbstractButton, OptionAdaptor>,
    Make<Label, QLabel, LabelAdaptor>,
    Make<Panel, QWidget, PanelAdaptor>,
    Make<TextBox, QLineEdit, LineAdaptor>,
    Make<TextBox, QPlainTextEdit, LinesAdaptor>,
    Make<DropDown, QComboBox, DropDownAdaptor>,
    Make<ComboBox, QComboBox, ComboBoxAdaptor>,
    Make<ListBox, QListView, ListBoxAdaptor>,
    Make<ListView, QTreeView, ListViewAdaptor>,
    Make<Tiles, TilesView, TilesAdaptor>,
    Make<TreeView, QTreeView, TreeViewAdaptor>,
    Make<ProgressBar, QProgressBar, ProgressAdaptor>,
    Make<Slider, QAbstractSlider, SliderAdaptor>,
    Make<Splitter, QSplitter, SplitterAdaptor>,
    Make<Timer, QTimer, TimerAdaptor>,
    Make<PictureBox, PictureView, PictureAdaptor>,
    Make<GridBox, GridView, GridAdaptor>,
    Make<TextControl, QtTextView, TextControlAdaptor>,
    Make<TextButtonBar, TextButtonBarView, TextButtonBarAdaptor>,
    Make<WebView, QWidget, WebViewAdaptor>,
    Make<TextRuler, TextRulerView, TextRulerAdaptor>,
    Make<TextStatusBar, QLabel, TextStatusAdaptor>,
    Make<HairLine, QFrame, HairLineAdaptor>,
    Make<Menu, QMenuBar, MenuAdaptor>,
    Make<TabStrip, TabPages, TabStripAdaptor>,
};

QObject* ShownFor(const Control& control, QWidget& window) {
    if (dynamic_cast<const Timer*>(&control) != nullptr) return new QTimer(&window);
    const auto name = QString::fromStdString(control.Name());
    if (auto* widget = window.findChild<QWidget*>(name)) return widget;
    return window.findChild<QAction*>(name);
}

ControlAdaptor* Tie(Control& control, QWidget& window, PageSource& pages) {
    QObject* shown = ShownFor(control, window);
    if (shown == nullptr) return nullptr;
    for (const Maker make : kMakers) {
        if (ControlAdaptor* adaptor = make(control, *shown, pages)) return adaptor;
    }
    return nullptr;
}

} // namespace

FormBinder::FormBinder(Form& form, QWidget& window, PageSource& pages) : form_(&form) {
    window_ = new WindowAdaptor(form, window);
    window_->WriteAll();
    for (Control* control : form.Controls()) {
        ControlAdaptor* adaptor = Tie(*control, window, pages);
        if (adaptor == nullptr) continue;
        adaptor->WriteAll();
        controls_.emplace_back(adaptor);
    }
    SetIcons(window);
    for (QToolBar* bar : window.findChildren<QToolBar*>())
        new ToolBarKeys(*bar);
    if (window.property("coversTheDesk").toBool()) new DeskCover(window);
}

FormBinder::~FormBinder() {
    Detach();
}

void FormBinder::Detach() {
    if (form_ == nullptr) return;
    form_ = nullptr;
    for (const auto& adaptor : controls_) {
        if (!adaptor.isNull()) adaptor->Detach();
    }
    if (!window_.isNull()) window_->Detach();
}

void FormBinder::FocusWanted() {
    if (form_ == nullptr || form_->Focused() == nullptr) return;
    Control& wanted = *form_->Focused();
    wanted.Notify(Aspect::Focus);
}

} // namespace korvane
