// The window of the word list with a hundred thousand entries, each work until it is painted. On a display
// of its own.

#include "Times.h"
#include "Xvfb.h"
#include "common/number/Number.h"
#include "context/App.h"
#include "grid/Grid.h"
#include "platform/qt/binder/CalmStyle.h"
#include "platform/qt/binder/QtFormHost.h"
#include "platform/qt/services/QtScreen.h"
#include "testing/MemoryClipboard.h"
#include "testing/MemoryClock.h"
#include "testing/MemoryFileSystem.h"
#include "testing/MemoryInstanceChannel.h"
#include "testing/MemoryShell.h"
#include "testing/ScriptedMessageBoxes.h"
#include "text/words/WordListState.h"
#include "text/words/WordRows.h"
#include "text/words/frmHoldWordList.h"

#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>

namespace korvane::bench {

namespace {

constexpr int kDefaultRounds = 5;
constexpr int kWords = 100'000;
constexpr int kQuestions = 1'000;

const Text kFile = u"C:\\words.lst";

Text WordNumber(int number) {
    return u"phrase for repeated use " + NumberText(number * 7919LL % kWords);
}

class Bench {
public:
    Bench() {
        std::string lines;
        for (int number = 0; number < kWords; ++number)
            lines += app.Page().ToBytes(WordNumber(number)) + "\r\n";
        files.AddFile(kFile, lines);
        app.Settings.WordListFile = kFile;
        app.Settings.WordListWidth = 6000;
        app.Settings.WordListHeight = 9000;
    }

    WordListState& State() { return app.Exchange<WordListState>(); }
    void Open() {
        form.emplace(app);
        form->Show();
        Settle();
        if (form->lstWordList.Count() == kWords) return;
        std::fprintf(stderr, "the list has lost words\n");
        std::exit(1);
    }
    void Close() {
        form->Close();
        form.reset();
    }

    MemoryClock clock;
    MemoryFileSystem files{PathStyle::Windows, clock};
    ScriptedMessageBoxes messages;
    MemoryClipboard clipboard;
    QtScreen screen;
    MemoryShell shell;
    MemoryInstanceChannel instance;
    QtFormHost forms{KorvaneForms()};
    App app{{files, messages, clipboard, clock, screen, shell, instance, forms, [] { return nullptr; }}};
    std::optional<frmHoldWordList> form;

private:
    /// Until everything is painted.
    void Settle() {
        for (int turn = 0; turn < 3; ++turn) {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        }
        forms.WidgetOf(*form)->repaint();
    }
};

/// Whether all are known that are there, and none else.
bool AskForWords(const WordRows& rows) {
    bool right = true;
    for (int number = 0; number < kQuestions; ++number)
        right &= rows.Holds(WordNumber(number)) && !rows.Holds(WordNumber(number) + u"s");
    return right;
}

void Measure(Bench& bench, int rounds) {
    Times read, shown, closed, taken, asked;
    for (int round = 0; round < rounds; ++round) {
        bench.State() = {};
        read.Add([&] { bench.Open(); });
        closed.Add([&] { bench.Close(); });
        shown.Add([&] { bench.Open(); });
        taken.Add([&] {
            bench.form->cmdSelectAll.Press();
            bench.form->cmdClip.Press();
        });
        WordRows rows(bench.form->lstWordList);
        rows.ShowBuffer(bench.State().WordListBuffer);
        bool right = false;
        asked.Add([&] { right = AskForWords(rows); });
        if (!right) std::exit(1);
        bench.Close();
    }
    PrintHead();
    Print("the list opened for the first time, with its file read", read);
    Print("the list opened again", shown);
    Print("the list closed", closed);
    Print("all 100,000 entries to the clipboard", taken);
    Print("2,000 words looked up", asked);
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
    Measure(bench, rounds);
    return 0;
}
