// The list of websites with 20,000 rows, each work until it is painted. On a display of its own.

#include "Times.h"
#include "Xvfb.h"
#include "common/number/Number.h"
#include "context/App.h"
#include "extras/web/WebsiteFile.h"
#include "extras/web/frmWebList.h"
#include "files/lists/ListFile.h"
#include "grid/GridStore.h"
#include "platform/native/NativeFileSystem.h"
#include "platform/native/NativePath.h"
#include "platform/qt/binder/CalmStyle.h"
#include "platform/qt/binder/QtFormHost.h"
#include "platform/qt/services/QtScreen.h"
#include "testing/MemoryClipboard.h"
#include "testing/MemoryClock.h"
#include "testing/MemoryInstanceChannel.h"
#include "testing/MemoryShell.h"
#include "testing/ScriptedMessageBoxes.h"

#include <unistd.h>

#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

namespace korvane::bench {

namespace {

constexpr int kRows = 20'000;
constexpr int kDefaultRounds = 15;

void Settle() {
    // What an event leads to may ask for a paint of its own.
    for (int turn = 0; turn < 3; ++turn) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

struct Stage {
    MemoryClock clock;
    NativeFileSystem files{u"/nowhere"};
    ScriptedMessageBoxes messages;
    MemoryClipboard clipboard;
    QtScreen screen;
    MemoryShell shell;
    MemoryInstanceChannel instance;
    QtFormHost forms{KorvaneForms()};
    App app{{files, messages, clipboard, clock, screen, shell, instance, forms, [] { return nullptr; }}};
    Form owner{forms, "frmMDIParent", u""};
};

/// A file of websites, which goes again at the end.
class ListOnDisk {
public:
    explicit ListOnDisk(App& app) {
        WebsiteLists lists;
        for (int row = 1; row <= kRows; ++row)
            lists.websites.push_back({u"Website number " + NumberText(row),
                                      u"https://www.example.org/pages/" + NumberText(row) + u".html",
                                      row % 7 == 0});
        app.Settings.WebListFile = FromNativePath(path_);
        if (!WriteListFile(app, app.Settings.WebListFile, LinesOfWebsites(lists))) std::exit(1);
    }
    ListOnDisk(const ListOnDisk&) = delete;
    ListOnDisk& operator=(const ListOnDisk&) = delete;
    ~ListOnDisk() {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }

private:
    std::filesystem::path path_ =
        std::filesystem::temp_directory_path() / ("korvane-websites-" + std::to_string(getpid()) + ".lst");
};

class Shown {
public:
    explicit Shown(Stage& stage) : stage_(stage), form(stage.app, stage.owner) {
        form.Show();
        Paint();
        if (form.ListView1.Count() != kRows) std::exit(1);
    }
    Shown(const Shown&) = delete;
    Shown& operator=(const Shown&) = delete;
    ~Shown() {
        form.ListDirty = 0;
        form.Close();
        Settle();
    }

    void Paint() {
        Settle();
        stage_.forms.WidgetOf(form)->repaint();
    }

private:
    Stage& stage_;

public:
    frmWebList form;
};

void Measure(int rounds) {
    Stage stage;
    const ListOnDisk list(stage.app);
    Times opening, moving, adding;
    for (int round = 0; round < rounds; ++round) {
        std::unique_ptr<Shown> shown;
        opening.Add([&] { shown = std::make_unique<Shown>(stage); });
        shown->form.ListView1.SetCurrent(kRows / 2);
        shown->Paint();
        moving.Add([&] {
            shown->form.cmdArrowUp.Press();
            shown->Paint();
        });
        shown->form.ListView1.SetCurrent(1);
        shown->Paint();
        adding.Add([&] {
            shown->form.cmdAddItem.Press();
            shown->Paint();
        });
    }
    PrintHead();
    Print("20,000 websites opened", opening);
    Print("one of them moved up", moving);
    Print("one added before all others", adding);
}

} // namespace

} // namespace korvane::bench

int main(int argc, char** argv) {
    const int rounds = argc > 1 ? std::atoi(argv[1]) : korvane::bench::kDefaultRounds;
    if (rounds < 1) return 2;
    const korvane::bench::Xvfb display;
    const QApplication application(argc, argv);
    QApplication::setStyle(new korvane::CalmStyle);
    korvane::bench::Measure(rounds);
    return 0;
}
