// The window for files on real folders of 50, 10,000 and 100,000 files, each work until it is painted,
// against the calls of the system that it can't do without. On a display of its own.

#include "PaintWatch.h"
#include "ResidentMemory.h"
#include "Times.h"
#include "Xvfb.h"
#include "common/number/Number.h"
#include "context/App.h"
#include "context/exchange/ListSort.h"
#include "context/exchange/ListerRequest.h"
#include "files/lister/frmGetFileFromTree.h"
#include "grid/GridStore.h"
#include "platform/native/NativeFileSystem.h"
#include "platform/native/NativePath.h"
#include "platform/native/NativePatientDisk.h"
#include "platform/qt/binder/CalmStyle.h"
#include "platform/qt/binder/QtFormHost.h"
#include "platform/qt/services/QtFileTypes.h"
#include "platform/qt/services/QtScreen.h"
#include "testing/MemoryClipboard.h"
#include "testing/MemoryClock.h"
#include "testing/MemoryInstanceChannel.h"
#include "testing/MemoryShell.h"
#include "testing/ScriptedMessageBoxes.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QApplication>
#include <QDialog>
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace korvane::bench {

namespace {

namespace fs = std::filesystem;

constexpr int kDefaultRounds = 5;
constexpr int kFew = 50;
constexpr int kMany = 10'000;
constexpr int kVeryMany = 100'000;

[[noreturn]] void Fail(const char* what) {
    std::fprintf(stderr, "%s\n", what);
    std::exit(1);
}

/// Folders of small files, which are made when they are needed and go again at the end.
class Folders {
public:
    Folders() : root_(fs::temp_directory_path() / ("korvane-lister-" + std::to_string(getpid()))) {}
    Folders(const Folders&) = delete;
    Folders& operator=(const Folders&) = delete;
    ~Folders() {
        std::error_code ignored;
        fs::remove_all(root_, ignored);
    }

    fs::path Of(int files) const {
        fs::path folder = root_ / std::to_string(files);
        if (fs::create_directories(folder)) Fill(folder, files);
        return folder;
    }

private:
    static void Fill(const fs::path& folder, int files) {
        static constexpr std::array kEnds{".docx", ".txt", ".tbx", ".pdf", ".jpg", ".rtf", ".csv", ""};
        for (int number = 0; number < files; ++number) {
            const auto spread = static_cast<std::size_t>(number * 7919LL % files);
            const std::string name =
                "Report of department " + std::to_string(spread) + kEnds[spread % kEnds.size()];
            std::ofstream(folder / name) << std::string(spread % 97, 'x');
        }
    }

    fs::path root_;
};

/// What nobody who lists a folder with sizes and dates can leave out.
long ReadAndStat(const fs::path& folder) {
    DIR* entries = opendir(folder.c_str());
    if (entries == nullptr) Fail("a folder can't be read");
    long bytes = 0;
    while (const dirent* entry = readdir(entries)) {
        struct stat status {};
        if (fstatat(dirfd(entries), entry->d_name, &status, 0) == 0) bytes += status.st_size;
    }
    closedir(entries);
    return bytes;
}

class Stage {
public:
    Stage() {
        app.Settings.FavGeoTree = -1;
        app.Settings.TreeFormWidth = 13500;
        app.Settings.TreeFormHeight = 9600;
        app.Settings.TreeFormWidthB = 300;
        app.Exchange<ListerRequest>().FileDialogFilter = u"*.*";
        app.SetPort<PatientDisk>(&patientDisk_);
    }
    void GoTo(const fs::path& folder) { app.Settings.TreeFormLastPath = FromNativePath(folder); }
    QWidget& WidgetOf(Form& form) { return *forms.WidgetOf(form); }

    MemoryClock clock;
    NativeFileSystem files{Text(kNoFolder)};
    ScriptedMessageBoxes messages;
    MemoryClipboard clipboard;
    QtScreen screen;
    MemoryShell shell;
    MemoryInstanceChannel instance;
    QtFileTypes fileTypes;
    QtFormHost forms{KorvaneForms()};
    App app{Platform()};

private:
    static constexpr TextView kNoFolder = u"/nowhere";

    App::Platform Platform() {
        App::Platform platform{
            files, messages, clipboard, clock, screen, shell, instance, forms, [] { return nullptr; }};
        platform.fileTypes = &fileTypes;
        return platform;
    }

    NativePatientDisk patientDisk_{[] { return std::make_unique<NativeFileSystem>(Text(kNoFolder)); }};
};

/// The window on a folder, with all its files painted.
class Lister {
public:
    Lister(Stage& stage, const fs::path& folder) : stage_(stage), form(stage.app) {
        stage.GoTo(folder);
        form.Show();
        form.Activate();
        PaintWatch(stage.WidgetOf(form)).Wait();
    }
    Lister(const Lister&) = delete;
    Lister& operator=(const Lister&) = delete;
    ~Lister() {
        form.Close();
        DeleteClosed();
    }

    void ListAgain() {
        KeyEvent enter{Key::Return, Mask::None};
        form.txtSearchSpec.KeyDown(enter);
        Paint();
    }
    void Paint() {
        Settle();
        stage_.WidgetOf(form).repaint();
    }

private:
    Stage& stage_;

public:
    frmGetFileFromTree form;
};

double Median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

void PrintRatio(const char* what, const Times& worked, const Times& floored) {
    const double done = Median(worked.processor);
    const double least = Median(floored.processor);
    std::printf("| %s | %.1f ms | %.1f ms | %.2f | %.2f |\n", what, done * 1e3, least * 1e3, done / least,
                Median(worked.wall) / Median(floored.wall));
    std::fflush(stdout);
}

/// Work and floor by turns, so that what else runs on the machine meets both.
template <class Work, class Floor>
void Compare(const char* what, int rounds, const Work& work, const Floor& floor) {
    Times worked, floored;
    for (int round = 0; round < rounds; ++round) {
        floored.Add(floor);
        worked.Add(work);
    }
    PrintRatio(what, worked, floored);
}

/// What is measured: all, or what has this text in its name.
std::string only;

bool Wanted(std::string_view what) {
    return what.find(only) != std::string_view::npos;
}

struct Work {
    const char* what;
    int files;
    std::int16_t sortColumn;
};

constexpr Work kWorks[] = {
    {"10,000 files listed", kMany, ListSort::kName},
    {"100,000 files listed", kVeryMany, ListSort::kName},
    {"10,000 files listed by size", kMany, ListSort::kSize},
    {"100,000 files listed by size", kVeryMany, ListSort::kSize},
    {"10,000 files listed by date", kMany, ListSort::kDate},
    {"100,000 files listed by date", kVeryMany, ListSort::kDate},
};

void MeasureLists(Stage& stage, const Folders& folders, int rounds) {
    long bytes = 0;
    for (const Work& work : kWorks) {
        if (!Wanted(work.what)) continue;
        stage.app.Exchange<ListSort>() = {work.sortColumn, 0};
        const fs::path folder = folders.Of(work.files);
        Lister lister(stage, folder);
        if (lister.form.ListView1.Count() != work.files) Fail("not all files are listed");
        Compare(
            work.what, rounds, [&] { lister.ListAgain(); }, [&] { bytes += ReadAndStat(folder); });
    }
    if (only.empty() && bytes == 0) Fail("the floor has read nothing");
    stage.app.Exchange<ListSort>() = {};
}

/// A dialog with nothing in it, of the size of the other.
constexpr FormEntry kEmptyForms[] = {{"frmEmpty", [] {
                                          auto dialog = std::make_unique<QDialog>();
                                          dialog->resize(900, 640);
                                          return std::unique_ptr<QWidget>(std::move(dialog));
                                      }}};

/// The empty dialog, painted.
class EmptyDialog {
public:
    explicit EmptyDialog(QtFormHost& forms) : form_(forms, "frmEmpty", u"") {
        form_.Show();
        PaintWatch(*forms.WidgetOf(form_)).Wait();
    }
    EmptyDialog(const EmptyDialog&) = delete;
    EmptyDialog& operator=(const EmptyDialog&) = delete;
    ~EmptyDialog() {
        form_.Close();
        DeleteClosed();
    }

private:
    Form form_;
};

/// Whether the program had a moment before the opening, as it has between two openings and after its start.
enum class Ahead { Nothing, Look };

void MeasureOpening(Stage& stage, const Folders& folders, int rounds, Ahead ahead) {
    const char* const what =
        ahead == Ahead::Look ? "the window opened on 50 files" : "the same with nothing made ahead";
    if (!Wanted("opened")) return;
    const fs::path folder = folders.Of(kFew);
    QtFormHost emptyForms{kEmptyForms};
    // Windows are closed again outside of what is measured.
    std::optional<Lister> lister;
    std::optional<EmptyDialog> empty;
    Times opened, floored;
    for (int round = 0; round < rounds * 4; ++round) {
        floored.Add([&] { empty.emplace(emptyForms); });
        empty.reset();
        if (ahead == Ahead::Look) stage.forms.MakeAhead("frmGetFileFromTree");
        opened.Add([&] { lister.emplace(stage, folder); });
        lister.reset();
    }
    PrintRatio(what, opened, floored);
}

/// Run first, when nothing has been given back yet that could be taken again.
void MeasureMemory(Stage& stage, const Folders& folders) {
    Lister lister(stage, folders.Of(kFew));
    lister.ListAgain();
    const long before = ResidentKilobytes();
    lister.form.FilesDropped({FromNativePath(folders.Of(kVeryMany))});
    lister.Paint();
    if (lister.form.ListView1.Count() != kVeryMany) Fail("not all files are listed");
    const long growth = ResidentKilobytes() - before;
    std::printf("Memory: %ld bytes a listed file\n\n", growth * 1024 / kVeryMany);
}

} // namespace

} // namespace korvane::bench

int main(int argc, char** argv) {
    using namespace korvane::bench;
    const int rounds = argc > 1 ? std::atoi(argv[1]) : kDefaultRounds;
    if (rounds < 1) return 2;
    if (argc > 2) only = argv[2];
    const Xvfb display;
    const QApplication application(argc, argv);
    QApplication::setStyle(new korvane::CalmStyle);
    const Folders folders;
    Stage stage;
    if (only.empty()) MeasureMemory(stage, folders);
    std::printf("| what | processor, median | floor | ratio | of the wall clock |\n");
    std::printf("| --- | --- | --- | --- | --- |\n");
    MeasureLists(stage, folders, rounds);
    for (const Ahead ahead : {Ahead::Look, Ahead::Nothing})
        MeasureOpening(stage, folders, rounds, ahead);
    return 0;
}
