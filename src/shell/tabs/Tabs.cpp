#include "shell/tabs/Tabs.h"

#include "common/number/Number.h"
#include "context/App.h"
#include "controls/views/TabStrip.h"
#include "grid/Grid.h"
#include "platform/FileSystem.h"
#include "platform/Screen.h"
#include "shell/tabs/frmMDIChild.h"

#include <algorithm>
#include <array>

namespace korvane {

namespace {

struct PageSize {
    TextView name;
    int width;
    int height;
};

constexpr std::array kPageSizes{
    PageSize{u"A4", 11906, 16837},
    PageSize{u"A4_Landscape", 16837, 11906},
    PageSize{u"A5", 8418, 11906},
    PageSize{u"A5_Landscape", 11906, 8418},
    PageSize{u"B5", 9978, 14174},
    PageSize{u"LETTER", 12240, 15840},
    PageSize{u"LETTER_Landscape", 15840, 12240},
    PageSize{u"LEGAL", 12240, 20160},
};

/// Holds the painting of the strip as long as it lives.
class WithoutDrawing {
public:
    explicit WithoutDrawing(TabStrip& strip) : strip_(strip) { strip_.AllowDrawing = false; }
    WithoutDrawing(const WithoutDrawing&) = delete;
    WithoutDrawing& operator=(const WithoutDrawing&) = delete;
    ~WithoutDrawing() { strip_.AllowDrawing = true; }

private:
    TabStrip& strip_;
};

} // namespace

Tabs::Tabs(App& app, TabStrip& strip) : app_(app), strip_(strip), documents_(1) {
    strip_.NoteOf = [](const Form& child) {
        const auto* document = dynamic_cast<const frmMDIChild*>(&child);
        return document == nullptr ? TabNote() : document->Note();
    };
    strip_.StatusParts = [this] {
        const frmMDIChild* active = Active();
        return active == nullptr ? std::vector<Text>() : active->StatusParts();
    };
}

Tabs::~Tabs() = default;

frmMDIChild* Tabs::Document(int slot) {
    return TabState.InUse(slot) ? documents_[static_cast<std::size_t>(slot)].get() : nullptr;
}

frmMDIChild* Tabs::Active() const {
    return dynamic_cast<frmMDIChild*>(strip_.ActiveChild());
}

/// Without a tab, nothing is done or said. Kept for compatibility: no-tab-no-word.
void Tabs::RunOnActive(TabRoutine routine) {
    if (frmMDIChild* tab = Active()) tab->Run(routine);
}

void Tabs::NewDocument() {
    auto loaded = std::make_unique<frmMDIChild>(app_, TabState);
    loaded->EnsureLoaded();
    const int slot = TabState.FindFreeIndex();
    documents_.resize(std::max(documents_.size(), static_cast<std::size_t>(slot) + 1));
    auto& document = documents_[static_cast<std::size_t>(slot)];
    if (document != nullptr) stranded_.push_back(std::move(document));
    document = std::move(loaded);
    ResolvePageSize();
    document->Tag = NumberText(slot);
    // A slot that is used again gives its name again. Kept for compatibility: untitled-by-slot.
    document->Caption = u"Untitled_" + NumberText(slot) + u".tbx";
    TabState[slot].Path = document->Caption;
    document->Told = [this] {
        strip_.TellNotes();
        strip_.TellStatus();
    };
    strip_.Add(*document);
    CurrentTabIndex = static_cast<std::int16_t>(slot);
    if (CountChanged) CountChanged();
}

void Tabs::NameTab(frmMDIChild& tab, const Text& path) {
    korvane::TabState& state = TabState[tab.Slot()];
    state.Path = path;
    state.Name = Text(app_.Files().Style().NamePart(path));
    tab.Caption = app_.Settings.ShowFullPath == 1 ? state.Path : state.Name;
}

void Tabs::AddNewTab() {
    // The strip arranges its tabs when it may draw again, so nothing else has to be done for that.
    const WithoutDrawing held(strip_);
    NewDocument();
}

bool Tabs::Close(Form& child) {
    if (OwnerOf(child) == nullptr) return false;
    // The user sees what the question is about.
    if (strip_.NoteOf(child).altered) strip_.Select(child);
    if (!child.Close()) return false;
    strip_.Remove(child);
    // The owner is looked up again: another tab may have been opened during the question, which moves the
    // documents.
    closed_.push_back(std::move(*OwnerOf(child)));
    if (CountChanged) CountChanged();
    return true;
}

std::unique_ptr<frmMDIChild>* Tabs::OwnerOf(const Form& child) {
    for (auto* windows : {&documents_, &stranded_}) {
        const auto found = std::ranges::find(*windows, &child,
                                             [](const auto& window) -> const Form* { return window.get(); });
        if (found != windows->end()) return &*found;
    }
    return nullptr;
}

bool Tabs::CloseAll() {
    while (!strip_.Children().empty()) {
        if (!Close(*strip_.Children().front())) return false;
    }
    return true;
}

void Tabs::ReleaseClosed() {
    closed_.clear();
}

void Tabs::SwitchForward() {
    SwitchBy(1);
}

void Tabs::SwitchBack() {
    SwitchBy(-1);
}

void Tabs::Show(int slot) {
    frmMDIChild* document = Document(slot);
    if (document == nullptr) return;
    strip_.Select(*document);
    document->GridStore().GridSetFocus();
}

int Tabs::ActiveSlot() const {
    const frmMDIChild* active = Active();
    return active == nullptr ? 0 : active->Slot();
}

/// Goes by the slots, whatever the strip shows. Kept for compatibility: tabs-switch-by-slot.
void Tabs::SwitchBy(int step) {
    if (TabState.CountInUse() == 0) return;
    const auto next = [this, step](int slot) {
        const int moved = slot + step;
        if (moved < 1) return TabState.UpperBound();
        return moved > TabState.UpperBound() ? 1 : moved;
    };
    int slot = next(ActiveSlot());
    while (!TabState.InUse(slot))
        slot = next(slot);
    app_.Screen().ProcessMessages();
    Show(slot);
}

/// Nothing uses the size. Kept for compatibility: page-size-unused.
void Tabs::ResolvePageSize() {
    for (const PageSize& size : kPageSizes) {
        if (app_.Settings.PageSizeName != size.name) continue;
        PageWidth = size.width;
        PageHeight = size.height;
    }
}

} // namespace korvane
