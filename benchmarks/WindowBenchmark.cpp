// Measures what the user waits for in the main window: another tab, another style of the tabs, and the
// sidebar. The program runs on a display of its own.

#include "SourceTree.h"
#include "Times.h"
#include "Xvfb.h"
#include "context/App.h"
#include "grid/GridStore.h"
#include "platform/qt/binder/CalmStyle.h"
#include "platform/qt/binder/QtFormHost.h"
#include "platform/qt/services/QtScreen.h"
#include "shell/main/frmMDIParent.h"
#include "testing/MemoryClipboard.h"
#include "testing/MemoryClock.h"
#include "testing/MemoryFileSystem.h"
#include "testing/MemoryInstanceChannel.h"
#include "testing/MemoryShell.h"
#include "testing/ScriptedMessageBoxes.h"

#include <QApplication>
#include <QWidget>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace korvane::bench {

namespace {

constexpr int kDefaultRounds = 5;
constexpr int kTabs = 100;
constexpr int kSwitches = 40;

std::string BytesOf(const char* path) {
    std::ifstream file(path, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(file), {}};
    if (!bytes.empty()) return bytes;
    std::fprintf(stderr, "cannot read %s\n", path);
    std::exit(1);
}

Text PathOf(int number) {
    return u"C:\\Data\\Books " + FromAscii(std::to_string(number)) + u".tbx";
}

/// The main window on the screen, with its files in memory.
class Window {
public:
    Window() {
        files.AddFile(u"C:\\Korvane\\Korvane.ini", BytesOf(KORVANE_SOURCE_DIR "/packaging/Korvane.ini"));
        const std::string books = BytesOf(KORVANE_SOURCE_DIR "/samples/Books.tbx");
        for (int number = 1; number <= kTabs; ++number)
            files.AddFile(PathOf(number), books);
        main.EnsureLoaded();
        main.Show();
        Settle();
    }
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;
    ~Window() {
        main.Close();
        Settle();
    }

    void Open(int number) { main.Parts().pipeline.OpenDatabase(PathOf(number), LoadInto::NewTab); }
    void Run(std::string_view command) { main.RunCommand(command); }
    /// Runs the event loop until everything is painted.
    void Settle() {
        // An event may lead to other events, and these may ask for a paint.
        for (int turn = 0; turn < 3; ++turn) {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        }
    }

    /// Paints everything now, even if the window system hasn't asked for it yet. A user would wait for at
    /// least this.
    void PaintAll() {
        for (QWidget* shown : QApplication::topLevelWidgets()) {
            if (shown->isVisible()) shown->repaint();
        }
    }

    MemoryClock clock;
    MemoryFileSystem files{PathStyle::Windows, clock};
    ScriptedMessageBoxes messages;
    MemoryClipboard clipboard;
    QtScreen screen;
    MemoryShell shell;
    MemoryInstanceChannel instance;
    QtFormHost forms{KorvaneForms()};
    App app{{files, messages, clipboard, clock, screen, shell, instance, forms,
             [] { return std::make_unique<GridStore>(CodePage::Windows1252()); }, CodePage::Windows1252(),
             nullptr}};
    frmMDIParent main{app, {}};
};

void MeasureTabs(int rounds) {
    Times second;
    Times last;
    for (int round = 0; round < rounds; ++round) {
        Window window;
        for (int number = 1; number <= kTabs; ++number) {
            Times& times = number == kTabs ? last : second;
            const auto open = [&] {
                window.Open(number);
                window.Settle();
            };
            if (number == 2 || number == kTabs) {
                times.Add(open);
            } else {
                open();
            }
        }
    }
    Print("opening the 2nd tab", second);
    Print("opening the 100th tab", last);
}

/// Whether the window system asks for the paint after a command while the benchmark waits, or must be told
/// to.
enum class Paints { Itself, WhenTold };

void MeasureCommand(const char* what, std::string_view command, Paints paints) {
    Window window;
    for (int number = 1; number <= 3; ++number)
        window.Open(number);
    window.Settle();
    Times times;
    for (int i = 0; i < kSwitches; ++i) {
        times.Add([&] {
            window.Run(command);
            window.Settle();
            if (paints == Paints::WhenTold) window.PaintAll();
        });
    }
    Print(what, times);
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
    PrintHead();
    MeasureTabs(rounds);
    MeasureCommand("the next style of the tabs", "StyleForward", Paints::WhenTold);
    MeasureCommand("the sidebar off or on", "mnuSideBar", Paints::Itself);
    MeasureCommand("the next width of the sidebar", "NextSideBarWidth", Paints::Itself);
    return 0;
}
