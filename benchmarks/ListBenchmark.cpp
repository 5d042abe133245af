// Lists of a hundred thousand rows and trees of fifty thousand nodes, each step until it is painted. On a
// display of its own.

#include "ResidentMemory.h"
#include "Times.h"
#include "Xvfb.h"
#include "common/number/Number.h"
#include "controls/Form.h"
#include "controls/UpdateScope.h"
#include "controls/lists/ListView.h"
#include "controls/lists/TreeView.h"
#include "platform/qt/binder/CalmStyle.h"
#include "platform/qt/binder/QtFormHost.h"

#include <QApplication>
#include <QDialog>
#include <QTreeView>
#include <QVBoxLayout>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <numeric>

namespace korvane::bench {

namespace {

constexpr int kDefaultRounds = 5;
constexpr int kRows = 100'000;
constexpr int kChanges = 1'000;
constexpr int kFolders = 500;
constexpr int kInFolder = 100;
constexpr int kSteps = 100;

class frmBench : public Form {
public:
    explicit frmBench(FormHost& host) : Form(host, "frmBench", u"Lists") { ListView1.MultiSelect = true; }

    ListView ListView1{
        *this,
        "ListView1",
        {{u"Name", Twips{4500}}, {u"Size", Twips{1500}, ColumnAlign::Right}, {u"mm/dd/yyyy", Twips{2400}}}};
    TreeView TreeView1{*this, "TreeView1"};
};

void AddView(QWidget& window, const char* name) {
    auto* view = new QTreeView(&window);
    view->setObjectName(name);
    window.layout()->addWidget(view);
}

std::unique_ptr<QWidget> MakeLook() {
    auto window = std::make_unique<QDialog>();
    window->resize(700, 800);
    new QVBoxLayout(window.get());
    AddView(*window, "ListView1");
    AddView(*window, "TreeView1");
    return window;
}

constexpr FormEntry kLooks[] = {{"frmBench", MakeLook}};

/// Spreads the numbers from 0 to `count` - 1, so that neighbours come apart.
int Spread(int number, int count) {
    return static_cast<int>(number * 7919LL % count);
}

ListRow RowOf(int number) {
    ListRow row;
    row.key = u"K_ " + NumberText(number + 1);
    const int spread = Spread(number, kRows);
    row.texts = {u"Report of department " + NumberText(spread) + u".docx", FormatGrouped(spread * 1237LL),
                 u"03/14/2026  14:" + NumberText(10 + spread % 50)};
    row.icon = spread % 20 == 0 ? u"fileLost" : u"fileFound";
    return row;
}

class Bench {
public:
    Bench() {
        form.Show();
        Settle();
    }

    /// Until everything is painted.
    void Settle() {
        // What an event leads to may ask for a paint of its own.
        for (int turn = 0; turn < 3; ++turn) {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        }
        host.WidgetOf(form)->repaint();
    }

    template <class Work>
    void Measure(Times& times, const Work& work) {
        times.Add([&] {
            work();
            Settle();
        });
    }

    QtFormHost host{kLooks};
    frmBench form{host};
    ListView& list = form.ListView1;
    TreeView& tree = form.TreeView1;
};

void Fill(ListView& list) {
    const UpdateScope update(list);
    for (int number = 0; number < kRows; ++number)
        list.Add(RowOf(number));
}

/// Random access, as the rows of a job are.
template <class Work>
void ForSomeRows(const Work& work) {
    for (int change = 0; change < kChanges; ++change)
        work(Spread(change * 97, kRows - kChanges) + 1);
}

void MeasureMass(Bench& bench, int rounds) {
    ListView& list = bench.list;
    std::vector<ListRow> rows;
    for (int number = 0; number < kRows; ++number)
        rows.push_back(RowOf(number));
    std::vector<int> backwards(kRows);
    std::iota(backwards.rbegin(), backwards.rend(), 1);

    Times filled, filledSingly, markedAll, markedSingly, markedGaps, sorted, reordered, emptied;
    for (int round = 0; round < rounds; ++round) {
        bench.Measure(filledSingly, [&] { std::ranges::for_each(rows, [&](auto& row) { list.Add(row); }); });
        list.Clear();
        bench.Settle();
        bench.Measure(filled, [&] {
            const UpdateScope update(list);
            std::ranges::for_each(rows, [&](auto& row) { list.Add(row); });
        });
        bench.Measure(markedAll, [&] { list.SetAllSelected(true); });
        list.SetAllSelected(false);
        bench.Settle();
        bench.Measure(markedSingly, [&] {
            for (int index = 1; index <= kRows; ++index)
                list.SetSelected(index, true);
        });
        bench.Measure(sorted, [&] { list.SortBy(1, SortOrder::Ascending); });
        bench.Measure(reordered, [&] { list.Reorder(backwards); });
        bench.Measure(markedGaps, [&] {
            for (int index = 1; index <= kRows; index += 2)
                list.SetSelected(index, false);
        });
        bench.Measure(emptied, [&] { list.Clear(); });
    }
    Print("100,000 rows filled in an update", filled);
    Print("100,000 rows added one by one", filledSingly);
    Print("all marked at once", markedAll);
    Print("all marked one by one", markedSingly);
    Print("every second one of them unmarked", markedGaps);
    Print("sorted by name", sorted);
    Print("brought into another order", reordered);
    Print("emptied", emptied);
}

void MeasureSingle(Bench& bench, int rounds) {
    ListView& list = bench.list;
    Fill(list);
    bench.Settle();
    const ListRow row = RowOf(1);
    Times written, marked, inserted, removed, gone;
    for (int round = 0; round < rounds; ++round) {
        const Text text = u"Round " + NumberText(round);
        bench.Measure(written, [&] { ForSomeRows([&](int index) { list.SetText(index, 1, text); }); });
        bench.Measure(marked,
                      [&] { ForSomeRows([&](int index) { list.SetSelected(index, round % 2 == 0); }); });
        bench.Measure(inserted, [&] { ForSomeRows([&](int index) { list.Insert(index, row); }); });
        bench.Measure(removed, [&] { ForSomeRows([&](int index) { list.Remove(index); }); });
        bench.Measure(gone, [&] { ForSomeRows([&](int index) { list.SetCurrent(index); }); });
    }
    Print("1,000 texts written in a list of 100,000 rows", written);
    Print("1,000 rows marked or unmarked", marked);
    Print("1,000 rows inserted", inserted);
    Print("1,000 rows removed", removed);
    Print("1,000 rows made the current one", gone);
    list.Clear();
}

Text FolderKey(int folder) {
    return u"/home/somebody/documents/" + NumberText(folder);
}

void AddTo(TreeView& tree, const Text& parent, int from, int to) {
    for (int number = from; number < to; ++number) {
        const Text name = u"Folder " + NumberText(number);
        tree.Add(parent, parent + u"/" + name, name);
    }
}

void MeasureTree(Bench& bench) {
    TreeView& tree = bench.tree;
    Times filled, opened, extended, lazily, closed, removed;
    bench.Measure(filled, [&] {
        const UpdateScope update(tree);
        for (int folder = 0; folder < kFolders; ++folder) {
            tree.Add({}, FolderKey(folder), NumberText(folder));
            AddTo(tree, FolderKey(folder), 0, kInFolder);
        }
    });
    for (int folder = 0; folder < kFolders; ++folder)
        bench.Measure(opened, [&] { tree.SetExpanded(FolderKey(folder), true); });
    for (int step = 0; step < kSteps; ++step) {
        const Text folder = FolderKey(Spread(step, kFolders));
        bench.Measure(extended, [&] { AddTo(tree, folder, kInFolder, kInFolder + 1); });
        bench.Measure(removed, [&] { tree.Remove(folder + u"/Folder " + NumberText(kInFolder)); });
    }
    tree.Expand = [&tree](TextView key) { AddTo(tree, Text(key), 0, kInFolder); };
    for (int step = 0; step < kSteps; ++step) {
        const Text folder = FolderKey(Spread(step, kFolders)) + u"/Folder 7";
        tree.SetExpandable(folder, true);
        bench.Settle();
        bench.Measure(lazily, [&] {
            tree.SetExpanded(folder, true);
            tree.Select(folder + u"/Folder 1");
        });
        bench.Measure(closed, [&] { tree.SetExpanded(folder, false); });
        for (int number = 0; number < kInFolder; ++number)
            tree.Remove(folder + u"/Folder " + NumberText(number));
    }
    Print("a tree of 50,000 nodes filled in an update", filled);
    Print("one of its 500 folders opened", opened);
    Print("a node added to an open folder", extended);
    Print("a node removed from an open folder", removed);
    Print("a folder opened, filled with 100 nodes as it opens, and one of them selected", lazily);
    Print("that folder closed", closed);
}

/// Run first, when nothing has been given back yet that could be taken again.
void MeasureMemory(Bench& bench) {
    const long before = ResidentKilobytes();
    Fill(bench.list);
    bench.list.SetCurrent(1);
    bench.Settle();
    const long growth = ResidentKilobytes() - before;
    std::printf("Memory: %ld bytes a row, with what the view needs\n\n", growth * 1024 / kRows);
    bench.list.Clear();
    bench.Settle();
}

} // namespace

} // namespace korvane::bench

int main(int argc, char** argv) {
    using namespace korvane::bench;
    const int rounds = argc > 1 ? std::atoi(argv[1]) : kDefaultRounds;
    if (rounds < 1) return 2;
    const Xvfb display;
    const QApplication application(argc, argv);
    QApplication::setStyle(new korvane::CalmStyle);
    Bench bench;
    MeasureMemory(bench);
    PrintHead();
    MeasureMass(bench, rounds);
    MeasureSingle(bench, rounds);
    MeasureTree(bench);
    return 0;
}
