#include "files/lister/rows/FileRows.h"

#include "common/number/Number.h"
#include "common/text/FoldedOrder.h"
#include "common/text/ScopedValue.h"
#include "context/App.h"
#include "context/exchange/ListSort.h"
#include "controls/CommandButton.h"
#include "controls/UpdateScope.h"
#include "controls/lists/ListView.h"
#include "controls/views/ProgressBar.h"
#include "dialogs/Questions.h"
#include "files/lister/rows/SortForms.h"
#include "platform/FileSystem.h"
#include "platform/Screen.h"

#include <algorithm>
#include <atomic>
#include <unordered_set>
#include <utility>

namespace korvane {

namespace {

constexpr int kNameColumn = 1;
constexpr int kSizeColumn = 2;
constexpr int kDateColumn = 3;
constexpr std::size_t kColumns = 3;

SortOrder OrderOf(const ListSort& sort) {
    return sort.ListSortOrder == 0 ? SortOrder::Ascending : SortOrder::Descending;
}

} // namespace

FileRows::FileRows(App& app, Parts parts, DiskWait& wait)
    : app_(app), parts_(parts), wait_(wait), images_(app) {}

bool FileRows::Fill(const Text& folder, const Text& patterns) {
    const int mine = ++fill_;
    parts_.list.Clear();
    if (!images_.Prepare()) {
        Warn(app_, u"Cannot initialise image list!");
        return true;
    }
    const Hourglass hourglass(app_.Screen());
    chosenByUser_ = false;
    const auto names = FindNames(folder, patterns);
    if (mine != fill_) return false;
    // A folder that has answered can be entered without a wait.
    if (names) app_.Files().ChangeDir(folder);
    if (names && !Read(folder, *names)) return false;
    parts_.list.Visible = true;
    parts_.list.SetFocus();
    const bool answered = names && (names->empty() || parts_.list.Count() > 0);
    if (answered && !TellHowMany(*names)) return false;
    Choose(1);
    End();
    return answered;
}

/// False when the reading was overtaken.
bool FileRows::TellHowMany(const std::vector<Text>& names) {
    const int mine = fill_;
    const auto read = static_cast<std::size_t>(parts_.list.Count());
    if (read < names.size()) {
        Warn(app_, u"Only " + FormatGrouped(read) + u" of the " + FormatGrouped(names.size()) +
                       u" files in this directory were read.");
    } else {
        parts_.bar.Value = parts_.bar.Max;
    }
    return mine == fill_;
}

void FileRows::End() {
    parts_.bar.Visible = false;
    parts_.stop.Visible = false;
}

std::optional<std::vector<Text>> FileRows::FindNames(const Text& folder, const Text& patterns) {
    const int mine = fill_;
    wait_.BeginAgain();
    wait_.Show(false);
    const auto found = std::make_shared<std::atomic<std::size_t>>(0);
    auto names = AnswerTo<std::vector<Text>>(
        [&](const DiskQuestion& question) {
            return wait_.Ask(
                question, [&] { return mine == fill_; }, [&] { return *found > kMostReadAtOnce; });
        },
        [folder, patterns, found](const FileSystem& files, const StillWaits& stillWaits) {
            return files.FileNamesInSteps(folder, patterns, [&](std::size_t count) {
                *found = count;
                return stillWaits();
            });
        });
    if (mine != fill_ || !names || names->size() <= kMostReadAtOnce) return names;
    wait_.Show(true);
    parts_.bar.Max = static_cast<int>(names->size()) - 1;
    return names;
}

/// False when the reading was overtaken.
bool FileRows::Read(const Text& folder, const std::vector<Text>& names) {
    const UpdateScope update(parts_.list);
    const int mine = fill_;
    const bool shown = names.size() > kMostReadAtOnce;
    std::vector<Text> sortForms;
    Step step;
    ListRow row;
    for (std::size_t index = 0; index < names.size(); ++index) {
        if (shown) app_.Screen().Yield();
        if (mine != fill_) return false;
        if (index == step.end && !step.last) step = FindDetails(folder, names, index);
        if (mine != fill_) return false;
        if (index == step.end) break;
        row.key = u"K_ ";
        row.key += NumberText(index + 1);
        WriteRow(row, folder, names[index], step.details[step.details.size() - (step.end - index)]);
        TakeSortForm(row, sortForms);
        parts_.list.Add(row);
        // Kept for compatibility: bar-skips-every-32nd.
        if (shown && index % 32 != 0) parts_.bar.Value = static_cast<int>(index);
        if (shown && wait_.Stopped() && !step.last) break;
    }
    Order(sortForms);
    return true;
}

FileRows::Step FileRows::FindDetails(const Text& folder, const std::vector<Text>& names, std::size_t first) {
    const int mine = fill_;
    const auto begin = names.begin() + static_cast<std::ptrdiff_t>(first);
    const std::vector<Text> some(
        begin, begin + static_cast<std::ptrdiff_t>(std::min(kDetailsInStep, names.size() - first)));
    AllDetails found = PartsSoFar<std::optional<FileDetails>>(
        [&](const DiskQuestion& question) { return wait_.Ask(question, [&] { return mine == fill_; }); },
        [folder, some](const FileSystem& files, const auto& take) {
            const std::unique_ptr<FolderDetails> details = files.DetailsIn(folder);
            for (const Text& name : some)
                if (!take(details->Of(name))) return;
        });
    const std::size_t count = found.size();
    return {first + count, std::move(found), count < some.size()};
}

void FileRows::WriteRow(ListRow& row, const Text& folder, const Text& name,
                        const std::optional<FileDetails>& details) {
    row.texts.resize(kColumns);
    row.texts[kNameColumn - 1] = name;
    if (!details) {
        row.texts[kSizeColumn - 1].clear();
        row.texts[kDateColumn - 1].clear();
        row.icon.clear();
        return;
    }
    const std::int16_t sortColumn = app_.Exchange<ListSort>().ListSortColumn;
    row.texts[kSizeColumn - 1] = SizeText(details->size, sortColumn);
    row.texts[kDateColumn - 1] = DateText(details->modified, sortColumn);
    row.icon = images_.ImageOf(folder, name);
}

/// The row shows the same for all sorts.
void FileRows::TakeSortForm(ListRow& row, std::vector<Text>& sortForms) const {
    const std::int16_t sortColumn = app_.Exchange<ListSort>().ListSortColumn;
    if (sortColumn == ListSort::kName) return;
    Text& text = row.texts[static_cast<std::size_t>(sortColumn)];
    sortForms.push_back(std::exchange(text, {}));
    const Text& sorted = sortForms.back();
    // A file that had gone before it was reached has none.
    if (!sorted.empty()) text = sortColumn == ListSort::kSize ? ShownSize(sorted) : ShownDate(sorted);
}

void FileRows::Order(const std::vector<Text>& sortForms) {
    const ListSort& sort = app_.Exchange<ListSort>();
    if (sort.ListSortColumn == ListSort::kName) {
        // The names come in their order.
        if (sort.ListSortOrder != 0) Sort();
        return;
    }
    const std::vector<TextView> forms(sortForms.begin(), sortForms.end());
    std::vector<int> order;
    order.reserve(forms.size());
    for (const std::uint32_t index : FoldedOrder(forms, OrderOf(sort)))
        order.push_back(static_cast<int>(index) + 1);
    parts_.list.Reorder(order);
}

void FileRows::Sort() {
    const ListSort& sort = app_.Exchange<ListSort>();
    parts_.list.SortBy(sort.ListSortColumn + 1, OrderOf(sort));
}

void FileRows::Choose(int row) {
    const ScopedValue choosing(choosing_, true);
    parts_.list.SetCurrent(row);
}

int FileRows::Count() const {
    return parts_.list.Count();
}

int FileRows::Current() const {
    return parts_.list.Current();
}

Text FileRows::CurrentName() const {
    return Text(parts_.list.TextAt(parts_.list.Current(), kNameColumn));
}

std::vector<Text> FileRows::MarkedNames() const {
    std::vector<Text> names;
    for (const int row : parts_.list.SelectedRows())
        names.emplace_back(parts_.list.TextAt(row, kNameColumn));
    return names;
}

void FileRows::MarkAll() {
    NoteChoice();
    parts_.list.SetAllSelected(true);
}

void FileRows::Mark(const std::vector<Text>& names) {
    const std::unordered_set<TextView> marked(names.begin(), names.end());
    ListView& list = parts_.list;
    const UpdateScope update(list);
    list.SetAllSelected(false);
    for (int row = 1; row <= list.Count(); ++row) {
        if (marked.contains(list.TextAt(row, kNameColumn))) list.SetSelected(row, true);
    }
}

void FileRows::GoToRow(int row) {
    Choose(std::min(row, parts_.list.Count()));
}

void FileRows::TakeFocus() {
    parts_.list.SetSelected(Current(), true);
    parts_.list.SetFocus();
}

void FileRows::GoToName(TextView name) {
    ListView& list = parts_.list;
    for (int row = 1; row <= list.Count(); ++row) {
        if (app_.Files().Style().SameName(list.TextAt(row, kNameColumn), name)) return Choose(row);
    }
}

} // namespace korvane
