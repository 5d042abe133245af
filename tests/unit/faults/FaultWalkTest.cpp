// Walks along every road on which the program writes, and makes each call of the file system fail in turn:
// once, and together with all calls after it. Whatever fails, what the user wrote is somewhere, the pointer
// is as before, and nothing is said but what the road may say.

#include "context/exchange/FolderPick.h"
#include "context/exchange/ListerRequest.h"
#include "context/exchange/StateFiles.h"
#include "context/ports/FilePicker.h"
#include "extras/web/frmWebList.h"
#include "files/jobs/CopyJob.h"
#include "files/lists/ListFile.h"
#include "files/lists/frmFavouriteLocations.h"
#include "files/lists/frmFoldersToday.h"
#include "files/lists/frmOpenFileWith.h"
#include "grid/GridStore.h"
#include "kept/KeptTables.h"
#include "kept/KeptTexts.h"
#include "kept/KeptVersions.h"
#include "platform/xls/XlsSpreadsheet.h"
#include "shell/recent/RecentRecord.h"
#include "shell/settings/SettingsFile.h"
#include "support/FakeMainWindow.h"
#include "support/FakeSystemFileDialog.h"
#include "support/TableBytes.h"
#include "support/TestApp.h"
#include "table/SaveCommands.h"
#include "table/TableFile.h"
#include "text/files/DocumentFiles.h"
#include "text/words/WordListState.h"
#include "text/words/frmHoldWordList.h"
#include "unit/kept/KeptRun.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace korvane {
namespace {

using Lasting = FileFaults::Lasting;

const Text kFolder = u"/home/me";
const Text kTable = u"/home/me/books.tbx";
const Text kOther = u"/home/me/other.tbx";
const Text kRoot = u"/home/me/state/kept";
/// What the user had on the disk, and what the road writes. No other text holds these words.
constexpr auto kOld = "oldest words";
constexpr auto kNew = "newest words";

/// A user who sees boxes and answers each as Esc does, and who chooses one file.
class EasyUser final : public FormHost, public MessageBoxes, public FilePicker {
public:
    void RunModal(Form& form) override { form.Close(); }
    void Show(Form& form) override { form.Activate(); }
    void Hide(Form&) override {}
    void PopUp(Menu&) override {}
    void Raise(Form&) override {}
    korvane::Answer Show(const Message& message) override {
        seen.push_back(ToUtf8(message.text));
        return EscAnswer(message.buttons);
    }
    void Choose(ListerRequest& request) override {
        request.ChosenFilePath = chosen;
        request.ChosenFileCount = 1;
    }

    Text chosen = kOther;
    std::vector<std::string> seen;
};

/// The program on a disk that outlives it.
class Stage {
public:
    Stage() {
        files.AddDir(kFolder);
        files.AddDir(u"/media/stick");
        app.SetPort<FilePicker>(&user);
        app.Settings.ShowFileInfoAfterSave = 0;
        app.Exchange<StateFiles>() = {{}, u"/home/me/Korvane.ini", u"/home/me/Korvane.rec"};
    }

    /// Whether a file on the disk holds the words.
    bool OnDisk(std::string_view words) const { return Holds(u"/", words); }

    MemoryClock clock;
    MemoryFileSystem files{PathStyle::Posix, clock};
    MemoryClipboard clipboard;
    MemoryScreen screen;
    MemoryShell shell;
    MemoryInstanceChannel instance;
    EasyUser user;
    App app{{files, user, clipboard, clock, screen, shell, instance, user,
             [] { return std::make_unique<GridStore>(CodePage::Windows1252()); }}};

private:
    bool Holds(const Text& folder, std::string_view words) const {
        const auto holds = [&](const Text& name) {
            return files.Contents(files.Style().JoinPath(folder, name))->find(words) != std::string::npos;
        };
        const auto contains = [&](const Text& name) {
            return Holds(files.Style().JoinPath(folder, name), words);
        };
        return std::ranges::any_of(files.FileNames(folder, u"*"), holds) ||
               std::ranges::any_of(files.FolderNames(folder), contains);
    }
};

/// One road.
class Work {
public:
    virtual ~Work() = default;
    /// Runs while the file system fails.
    virtual void Do(Stage& stage) = 0;
    /// Looks at what must hold then. `failed` is whether anything did fail.
    virtual void Check(Stage& stage, bool failed) = 0;
};

void ExpectWords(const Stage& stage, std::string_view words, bool inMemory = false) {
    EXPECT_TRUE(inMemory || stage.OnDisk(words)) << '"' << words << "\" is nowhere";
}

// Tables.

class SaveWork : public Work {
public:
    explicit SaveWork(Stage& stage)
        : run_(std::make_unique<KeptRun>(stage.app, stage.files, stage.clock, kRoot)),
          tab_(run_->NewTable(kTable, FromAscii(kOld))) {
        tab_->model.TableBackColour = Colour{0xFFFFFF};
        tab_->model.TableFontName = u"Calibri";
        tab_->model.TableFontSize = std::int16_t{12};
        tab_->Save();
        run_->background.DoAll();
        tab_->Type(FromAscii(kNew));
    }

    void Do(Stage&) override {
        Save();
        run_->background.DoAll();
    }
    void Check(Stage& stage, bool failed) override {
        const bool altered = tab_->model.TableAltered == 1;
        EXPECT_EQ(tab_->Cell(), FromAscii(kNew)) << "the table on the screen stays";
        ExpectWords(stage, kNew, altered);
        if (!altered) {
            EXPECT_EQ(stage.files.Contents(Target()), NameTable(Target(), {kNew}));
        }
        if (!failed) {
            EXPECT_FALSE(altered);
        }
    }

protected:
    virtual void Save() { mnuFile_Save_Clack(tab_->tab); }
    virtual Text Target() const { return kTable; }

    std::unique_ptr<KeptRun> run_;
    std::unique_ptr<KeptTab> tab_;
};

class SaveAsWork final : public SaveWork {
public:
    using SaveWork::SaveWork;

    void Check(Stage& stage, bool failed) override {
        SaveWork::Check(stage, failed);
        EXPECT_EQ(stage.files.Contents(kTable), NameTable(kTable, {kOld})) << "the first file isn't touched";
    }

protected:
    void Save() override { mnuFile_SaveAs_Clack(tab_->tab); }
    Text Target() const override { return kOther; }
};

/// The program keeps changes that aren't saved, is killed, and the next start takes them over.
class KeepWork final : public SaveWork {
public:
    using SaveWork::SaveWork;

    void Do(Stage& stage) override {
        run_->keeper->KeepNow();
        inMemory_ = !stage.OnDisk(kNew);
        tab_.reset();
        run_.reset();
        run_ = std::make_unique<KeptRun>(stage.app, stage.files, stage.clock, kRoot);
    }
    void Check(Stage& stage, bool failed) override {
        ExpectWords(stage, kOld);
        // What never reached the disk is lost with the killed program.
        if (!inMemory_) ExpectWords(stage, kNew);
        if (!failed) {
            EXPECT_THAT(run_->Unsaved(), testing::ElementsAre(ToUtf8(kTable)));
        }
    }

private:
    bool inMemory_ = false;
};

/// The program has to end and keeps a text for the second time.
class KeepTextWork final : public Work {
public:
    explicit KeepTextWork(Stage& stage) : texts_(stage.files, kRoot) {
        file_ = texts_.Keep({}, kOther, kOld);
    }

    void Do(Stage&) override { file_ = texts_.Keep(file_, kTable, kNew); }
    void Check(Stage& stage, bool failed) override {
        texts_.LookForUnsaved();
        ASSERT_EQ(texts_.Unsaved().size(), 1u);
        EXPECT_EQ(texts_.Unsaved().front().file, file_);
        const std::string bytes = stage.files.Contents(file_).value_or("");
        EXPECT_TRUE(bytes == kOld || bytes == kNew) << '"' << bytes << '"';
        if (!failed) {
            EXPECT_EQ(bytes, kNew);
            EXPECT_EQ(texts_.Unsaved().front().name, kTable);
        }
    }

private:
    KeptTexts texts_;
    Text file_;
};

// Files that are replaced as a whole.

/// Puts bytes with the new words in the place of a file with the old ones.
class ReplaceWork : public Work {
public:
    ReplaceWork(Stage& stage, Text path) : path_(std::move(path)) { stage.files.AddFile(path_, kOld); }

    void Check(Stage& stage, bool failed) override {
        const std::string bytes = stage.files.Contents(path_).value_or("");
        EXPECT_TRUE(bytes == kOld || bytes.find(kNew) != std::string::npos) << '"' << bytes << '"';
        if (!failed) {
            EXPECT_NE(bytes, kOld);
        }
        if (bytes == kOld) ExpectTold(stage);
    }

protected:
    virtual void ExpectTold(const Stage& stage) const {
        EXPECT_EQ(stage.user.seen.size(), 1u) << "the user is told that it wasn't written";
    }

    const Text path_;
};

class SettingsWork final : public ReplaceWork {
public:
    explicit SettingsWork(Stage& stage) : ReplaceWork(stage, stage.app.Exchange<StateFiles>().IniFilePath) {}
    void Do(Stage& stage) override {
        stage.app.Settings.LastDbFindText = FromAscii(kNew);
        WriteSettings(stage.app);
    }
};

class RecordWork final : public ReplaceWork {
public:
    explicit RecordWork(Stage& stage) : ReplaceWork(stage, stage.app.Exchange<StateFiles>().RecFilePath) {}
    void Do(Stage& stage) override {
        RecentRecord record;
        record.AddToRecent(FromAscii(kNew), 1, stage.clock.Now());
        record.Write(stage.app);
    }
};

class ListWork final : public ReplaceWork {
public:
    explicit ListWork(Stage& stage) : ReplaceWork(stage, u"/home/me/words.lst") {}
    void Do(Stage& stage) override { WriteListFile(stage.app, path_, {FromAscii(kNew)}); }
};

// The windows of lists, which read the file when they open.

struct ListWindow {
    virtual ~ListWindow() = default;
    /// One entry of the list in its file.
    virtual std::string Lines(const std::string& entry) const { return entry + "\r\n"; }
    virtual void Prepare(Stage&, const Text& /*path*/) {}
    /// Opens the window, adds an entry unless the list is missing, and saves as the window does it.
    virtual void Use(Stage& stage, const Text& entry) = 0;
};

template <class Window>
void InWindow(Window& window, const std::function<void()>& act) {
    window.EnsureLoaded();
    window.Activate();
    act();
    window.Close();
}

struct ProgramList final : ListWindow {
    std::string Lines(const std::string& entry) const override { return entry + "\r\n/usr/bin/\r\n"; }
    void Prepare(Stage& stage, const Text& path) override { stage.app.Settings.OpenWithListFile = path; }
    void Use(Stage& stage, const Text& entry) override {
        frmOpenFileWith window(stage.app);
        InWindow(window, [&] {
            if (window.ListView1.Count() == 0) return;
            stage.user.chosen = u"/usr/bin/" + entry;
            window.cmdAddProgram.Press();
        });
    }
};

struct FavouriteList final : ListWindow {
    void Prepare(Stage& stage, const Text& path) override { stage.app.Settings.FavCurrentFile = path; }
    void Use(Stage& stage, const Text& entry) override {
        FakeMainWindow main(stage.app);
        frmFavouriteLocations window(stage.app, main.window, kFolder);
        InWindow(window, [&] { window.List1.AddItem(entry); });
        stage.app.SetPort<MainWindow>(nullptr);
    }
};

struct FolderList final : ListWindow {
    std::string Lines(const std::string& entry) const override { return "/home/me/" + entry + "\r\n"; }
    void Prepare(Stage& stage, const Text& path) override {
        stage.app.Settings.FoldersFile = path;
        stage.files.AddDir(kFolder + u"/" + FromAscii(kOld));
        stage.files.AddDir(kFolder + u"/" + FromAscii(kNew));
    }
    void Use(Stage& stage, const Text& entry) override {
        stage.app.Exchange<FolderPick>().TodaysFolders = {kFolder + u"/" + entry};
        frmFoldersToday window(stage.app, u"");
        InWindow(window, [] {});
    }
};

struct WordList final : ListWindow {
    void Prepare(Stage& stage, const Text& path) override {
        stage.app.Settings.WordListFile = path;
        stage.app.Exchange<WordListState>().WordListAutoSave = 1;
    }
    void Use(Stage& stage, const Text& entry) override {
        frmHoldWordList window(stage.app);
        InWindow(window, [&] { window.lstWordList.Add({.texts = {entry}}); });
    }
};

struct WebsiteList final : ListWindow {
    std::string Lines(const std::string& entry) const override { return entry + "\r\nhttp://a\r\n0\r\n"; }
    void Prepare(Stage& stage, const Text& path) override { stage.app.Settings.WebListFile = path; }
    void Use(Stage& stage, const Text& entry) override {
        FakeMainWindow main(stage.app);
        FakeSystemFileDialog dialog(stage.app);
        dialog.answer = stage.app.Settings.WebListFile;
        frmWebList window(stage.app, main.window);
        InWindow(window, [&] {
            if (window.ListView1.Count() == 0) return;
            window.ListView1.Add({.texts = {entry, u"http://b"}});
            window.cmdSaveList.Press();
        });
        stage.app.SetPort<MainWindow>(nullptr);
        stage.app.SetPort<SystemFileDialog>(nullptr);
    }
};

/// A list that can't be read is told and left as it is. What the user adds to one that could be read is in
/// the file afterwards, or a message says that it isn't.
template <class Window>
class ListWindowWork final : public Work {
public:
    explicit ListWindowWork(Stage& stage) {
        stage.files.AddFile(kPath, window_.Lines(kOld));
        window_.Prepare(stage, kPath);
    }
    void Do(Stage& stage) override { window_.Use(stage, FromAscii(kNew)); }
    void Check(Stage& stage, bool failed) override {
        const std::string bytes = stage.files.Contents(kPath).value_or("");
        EXPECT_NE(bytes.find(kOld), std::string::npos) << '"' << bytes << '"';
        const bool written = bytes.find(kNew) != std::string::npos;
        EXPECT_TRUE(written || !stage.user.seen.empty()) << "nobody was told";
        EXPECT_TRUE(written || failed);
    }

private:
    const Text kPath = u"/home/me/list.lst";
    Window window_;
};

class DocumentWork final : public ReplaceWork {
public:
    explicit DocumentWork(Stage& stage) : ReplaceWork(stage, u"/home/me/letter.rtf") {
        document_ = DocumentFiles(stage.files, stage.app.Page(), nullptr)
                        .Read(std::string("{\\rtf1 ") + kNew + "}", TextFormat::Rtf)
                        ->document;
    }
    void Do(Stage& stage) override {
        outcome_ =
            DocumentFiles(stage.files, stage.app.Page(), nullptr).Save(path_, TextFormat::Rtf, document_);
    }

private:
    void ExpectTold(const Stage&) const override { EXPECT_EQ(outcome_, TextSaving::NotWritten); }

    doc::Document document_;
    TextSaving outcome_ = TextSaving::Saved;
};

class ExportWork final : public ReplaceWork {
public:
    explicit ExportWork(Stage& stage) : ReplaceWork(stage, u"/home/me/books.xls") {}
    void Do(Stage& stage) override {
        XlsSpreadsheet excel(stage.files, stage.shell);
        excel.AddWorkbook();
        excel.SelectRange(u"A1");
        excel.SetActiveCellValue(FromAscii(kNew));
        saved_ = excel.SaveAs(path_, kNormalWorkbook);
    }

private:
    void ExpectTold(const Stage&) const override { EXPECT_FALSE(saved_); }

    bool saved_ = true;
};

// Jobs.

template <bool kMove, bool kToOtherDisk>
class JobWork final : public Work {
public:
    explicit JobWork(Stage& stage) {
        stage.files.AddFile(u"/home/me/from/a.txt", kNew);
        stage.files.AddFile(kTarget + u"/a.txt", kOld);
        stage.files.AddDir(kTarget);
        run_.YesToAll = 1;
    }
    void Do(Stage& stage) override {
        CopyJob job(
            stage.app,
            {.move = kMove, .sourceFolder = u"/home/me/from", .items = {u"a.txt"}, .targetFolder = kTarget},
            run_, {[] {}, [] {}});
        while (job.Step()) {
        }
    }
    void Check(Stage& stage, bool failed) override {
        ExpectWords(stage, kNew);
        const std::string target = stage.files.Contents(kTarget + u"/a.txt").value_or("");
        EXPECT_TRUE(target == kOld || target == kNew) << '"' << target << '"';
        if (!failed) {
            EXPECT_EQ(stage.files.FileExists(u"/home/me/from/a.txt"), !kMove);
        }
    }

private:
    const Text kTarget = kToOtherDisk ? u"/media/stick/to" : u"/home/me/to";
    CopyMoveRun run_;
};

// The walk.

struct Road {
    std::string name;
    std::function<std::unique_ptr<Work>(Stage&)> begin;
    /// How a box may begin that is shown when a step fails.
    std::vector<std::string> boxes;
};

void PrintTo(const Road& road, std::ostream* stream) {
    *stream << road.name;
}

template <class WorkT>
std::unique_ptr<Work> Begin(Stage& stage) {
    return std::make_unique<WorkT>(stage);
}

constexpr auto kCannotSave = "Cannot save this file";
const std::vector<std::string> kListBoxes{kCannotSave, "Cannot load the following file",
                                          "Can't open file: ", "Cannot locate the following"};

const std::vector<Road> kRoads{
    {"Save", Begin<SaveWork>, {kCannotSave}},
    {"SaveAs", Begin<SaveAsWork>, {kCannotSave}},
    {"KeepUnsaved", Begin<KeepWork>, {}},
    {"KeepText", Begin<KeepTextWork>, {}},
    {"Settings", Begin<SettingsWork>, {kCannotSave}},
    {"Record", Begin<RecordWork>, {kCannotSave}},
    {"List", Begin<ListWork>, {kCannotSave}},
    {"Programs", Begin<ListWindowWork<ProgramList>>, kListBoxes},
    {"Favourites", Begin<ListWindowWork<FavouriteList>>, kListBoxes},
    {"Folders", Begin<ListWindowWork<FolderList>>, kListBoxes},
    {"Words", Begin<ListWindowWork<WordList>>, kListBoxes},
    {"Websites", Begin<ListWindowWork<WebsiteList>>, kListBoxes},
    {"Document", Begin<DocumentWork>, {}},
    {"Export", Begin<ExportWork>, {}},
    {"Copy", Begin<JobWork<false, true>>, {kCannotSave}},
    {"MoveOnOneDisk", Begin<JobWork<true, false>>, {kCannotSave}},
    {"MoveToAnother", Begin<JobWork<true, true>>, {kCannotSave}},
};

class FaultWalk : public testing::TestWithParam<std::tuple<Road, Lasting>> {
protected:
    /// Walks along the road with that failure. False when the road ended before it.
    bool Walk(int nth) {
        const auto& [road, lasting] = GetParam();
        Stage stage;
        const auto work = road.begin(stage);
        stage.user.seen.clear();
        stage.files.Faults().FailNthOfAll(nth, lasting);
        work->Do(stage);
        const bool failed = stage.files.Faults().HasFailedOfAll();
        stage.files.Faults().Mend();
        work->Check(stage, failed);
        EXPECT_EQ(stage.screen.CurrentPointer(), Pointer::Default);
        for (const std::string& box : stage.user.seen)
            EXPECT_TRUE(failed && IsAllowed(box)) << box;
        return failed;
    }

private:
    static bool IsAllowed(const std::string& box) {
        const auto& boxes = std::get<Road>(GetParam()).boxes;
        return std::ranges::any_of(boxes, [&](const std::string& begin) { return box.starts_with(begin); });
    }
};

TEST_P(FaultWalk, LosesNothing) {
    int nth = 1;
    while (Walk(nth)) {
        ASSERT_FALSE(HasFailure()) << "at call " << nth;
        ASSERT_LT(++nth, 1000);
    }
    EXPECT_GT(nth, 3) << "the road hardly writes";
}

INSTANTIATE_TEST_SUITE_P(Roads, FaultWalk,
                         testing::Combine(testing::ValuesIn(kRoads),
                                          testing::Values(Lasting::Once, Lasting::EverAfter)),
                         [](const auto& walk) {
                             const bool once = std::get<Lasting>(walk.param) == Lasting::Once;
                             return std::get<Road>(walk.param).name + (once ? "Once" : "EverAfter");
                         });

} // namespace
} // namespace korvane
