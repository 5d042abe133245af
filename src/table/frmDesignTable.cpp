#include "table/frmDesignTable.h"

#include "common/number/Number.h"
#include "context/App.h"
#include "controls/KeyTable.h"
#include "controls/UpdateScope.h"
#include "platform/MessageBoxes.h"
#include "table/model/TableModel.h"

#include <utility>
#include <vector>

namespace korvane {

namespace {

constexpr Twips kWidth{7500};
constexpr Twips kHeight{7350};
/// The width of what is beside the list: the margins of the window and the two arrows.
constexpr int kBesideList = 1050;

constexpr int kEntries = MaxColumns.Number();

enum Column : int { kNumber = 1, kTitle };

} // namespace

struct frmDesignTable::Tables {
    static constexpr WindowKey<frmDesignTable> kListKeys[] = {{"Delete", &frmDesignTable::cmdDeleteEntry},
                                                              {"Return", &frmDesignTable::GoOn}};
    static constexpr WindowKey<frmDesignTable> kNameKeys[] = {{"Return", &frmDesignTable::cmdAssign}};
};

frmDesignTable::frmDesignTable(const TabContext& tab)
    : Form(tab.app.Forms(), "frmDesignTable", u"Devise columns for new table"),
      ListView1(*this, "ListView1", {{u"No.", Twips{}}, {u"Title", Twips{}}}),
      tab_(tab) {
    ListView1.MultiSelect = true;
    ListView1.GridLines = true;
    ListView1.EditColumn = kTitle;
    ListView1.TextTyped = [this](int index, TextView text) { TakeTyped(index, text); };
    ListView1.KeyDown = KeysOf(*this, Tables::kListKeys);
    txtColumnName.KeyDown = KeysOf(*this, Tables::kNameKeys);
    Image2.Click = [this] { MoveCurrent(-1); };
    Image1.Click = [this] { MoveCurrent(1); };
    cmdAssign.Click = [this] { cmdAssign_Click(); };
    cmdAutoLabel.Click = [this] { cmdAutoLabel_Click(); };
    cmdDeleteEntry.Click = [this] { cmdDeleteEntry_Click(); };
    cmdMake.Click = [this] { cmdMake_Click(); };
    cmdCancel.Click = [this] { Close(); };
    cmdCancel.Cancel = true;
}

void frmDesignTable::Load() {
    Width = kWidth;
    Height = kHeight;
    LayOutColumns();
    FillList();
    txtColumnName.Text = u"(enter label)";
    txtColumnName.SelectAll();
    ListView1.SetCurrent(1);
    ListView1.SetFocus();
}

void frmDesignTable::Resize() {
    LayOutColumns();
}

void frmDesignTable::FillList() {
    const UpdateScope update(ListView1);
    ListView1.Clear();
    for (int number = 1; number <= kEntries; ++number) {
        ListRow row;
        row.key = u"K_" + NumberText(number);
        row.texts = {NumberText(number), {}};
        ListView1.Add(row);
    }
}

void frmDesignTable::LayOutColumns() {
    const int list = Width.Get().Number() - kBesideList;
    ListView1.SetColumnWidth(kNumber, Twips{list / 10});
    ListView1.SetColumnWidth(kTitle, Twips{list * 2 / 3});
}

void frmDesignTable::SetTitle(int index, TextView title) {
    ListView1.SetText(index, kTitle, title);
}

/// A title of blanks is none.
void frmDesignTable::TakeTyped(int index, TextView text) {
    SetTitle(index, Trim(text).empty() ? TextView() : text);
}

void frmDesignTable::GoOn() {
    if (ListView1.Current() < kEntries) ListView1.SetCurrent(ListView1.Current() + 1);
}

void frmDesignTable::ClearSelectedTitles() {
    for (const int index : ListView1.SelectedRows())
        SetTitle(index, {});
}

void frmDesignTable::MoveCurrent(int step) {
    const int from = ListView1.Current();
    const int to = from + step;
    if (from == 0 || to < 1 || to > kEntries) return;
    ListRow moved = ListView1.RowAt(from);
    ListRow neighbour = ListView1.RowAt(to);
    // The keys belong to the places in the list, not to the titles in them.
    std::swap(moved.texts, neighbour.texts);
    ListView1.Set(from, moved);
    ListView1.Set(to, neighbour);
    ListView1.SetCurrent(to);
}

void frmDesignTable::cmdAssign_Click() {
    const Text& title = txtColumnName.Text;
    if (ListView1.Current() == 0 || Trim(title).empty()) return;
    SetTitle(ListView1.Current(), title);
    GoOn();
    txtColumnName.SelectAll();
    txtColumnName.SetFocus();
}

void frmDesignTable::cmdAutoLabel_Click() {
    for (int index = 1; index <= kEntries; ++index)
        SetTitle(index, u"Col " + NumberText(index));
}

void frmDesignTable::cmdDeleteEntry_Click() {
    const int count = ListView1.SelectedCount();
    if (count == 0) {
        tab_.app.Messages().Show({u"No items checked.", MessageIcon::Information});
        return;
    }
    const Text question = u"Delete  [ " + NumberText(count) + u" ]  entries ?" + Text(kCrLf);
    const Answer answer = tab_.app.Messages().Show({question, MessageIcon::Question, MessageButtons::YesNo});
    if (answer != Answer::Yes) return;
    ClearSelectedTitles();
    ListView1.SetFocus();
    ListView1.SetCurrent(1);
}

void frmDesignTable::cmdMake_Click() {
    std::vector<Text> titles;
    for (int index = 1; index <= kEntries; ++index) {
        const TextView title = ListView1.TextAt(index, kTitle);
        if (!title.empty()) titles.emplace_back(title);
    }
    if (titles.empty()) {
        tab_.app.Messages().Show({u"No column names have been specified!", MessageIcon::Exclamation});
        return;
    }
    tab_.table.lstNewTableColumns = std::move(titles);
    Close();
}

} // namespace korvane
