// Kills the program at each of its steps on the disk in turn.

#include "grid/GridStore.h"
#include "unit/kept/KeptRun.h"

namespace korvane {
namespace {

using testing::HasSubstr;
using namespace std::chrono_literals;

constexpr TextView kRoot = u"/home/me/state/kept";

/// Thrown by the disk at the step at which the program is killed.
struct Killed {};

/// A disk that counts the steps by which it changes, and stops the program before one of them.
class DeadlyDisk final : public FileSystem {
public:
    explicit DeadlyDisk(MemoryFileSystem& disk) : disk_(disk) {}

    /// The program is killed before its step of this number; 0 for never.
    int killedBefore = 0;
    int steps = 0;

    PathStyle Style() const override { return disk_.Style(); }
    bool FileExists(TextView path) const override { return disk_.FileExists(path); }
    bool DirExists(TextView path) const override { return disk_.DirExists(path); }
    Text CurrentDir() const override { return disk_.CurrentDir(); }
    bool ChangeDir(TextView path) override { return disk_.ChangeDir(path); }
    Text FullPath(TextView path) const override { return disk_.FullPath(path); }
    std::optional<SharedBytes> ReadAll(TextView path) override { return disk_.ReadAll(path); }
    std::unique_ptr<FileWriter> OpenRaw(TextView path) override {
        Step();
        return Wrap(disk_.OpenRaw(path));
    }
    std::unique_ptr<FileWriter> OpenPrivate(TextView path) override {
        Step();
        return Wrap(disk_.OpenPrivate(path));
    }
    bool CanWrite(TextView path) const override { return disk_.CanWrite(path); }
    bool Remove(TextView path) override {
        Step();
        return disk_.Remove(path);
    }
    std::vector<Text> FileNames(TextView folder, TextView patterns) const override {
        return disk_.FileNames(folder, patterns);
    }
    std::vector<Text> FolderNames(TextView folder) const override { return disk_.FolderNames(folder); }
    bool HasFolders(TextView folder) const override { return disk_.HasFolders(folder); }
    bool MakeDir(TextView path) override {
        Step();
        return disk_.MakeDir(path);
    }
    bool MakePrivateDir(TextView path) override {
        Step();
        return disk_.MakePrivateDir(path);
    }
    bool RemoveDir(TextView path) override {
        Step();
        return disk_.RemoveDir(path);
    }
    bool Rename(TextView from, TextView to) override {
        Step();
        return disk_.Rename(from, to);
    }
    bool Link(TextView from, TextView to) override {
        Step();
        return canLink && disk_.Link(from, to);
    }
    bool Flush(TextView path) override {
        Step();
        return disk_.Flush(path);
    }
    std::unique_ptr<FileLock> Lock(TextView path) override { return disk_.Lock(path); }
    bool IsSame(TextView a, TextView b) const override { return disk_.IsSame(a, b); }
    bool IsLink(TextView path) const override { return disk_.IsLink(path); }
    CopyOutcome Copy(TextView from, TextView to, const CopyOptions& options) override {
        Step();
        return disk_.Copy(from, to, options);
    }
    std::optional<std::int64_t> Size(TextView path) const override { return disk_.Size(path); }
    std::optional<DateTime> Modified(TextView path) const override { return disk_.Modified(path); }
    std::optional<VolumeInfo> Volume(TextView path) const override { return disk_.Volume(path); }
    Text LastErrorText() const override { return disk_.LastErrorText(); }
    Text ProgramDir() const override { return disk_.ProgramDir(); }

    bool canLink = true;

private:
    class Writer final : public FileWriter {
    public:
        Writer(DeadlyDisk& disk, std::unique_ptr<FileWriter> file) : disk_(disk), file_(std::move(file)) {}
        bool Write(std::string_view bytes) override {
            // A write may be cut in the middle.
            disk_.Step([&] { file_->Write(bytes.substr(0, bytes.size() / 2)); });
            return file_->Write(bytes);
        }
        bool Close() override {
            disk_.Step();
            return file_->Close();
        }

    private:
        DeadlyDisk& disk_;
        std::unique_ptr<FileWriter> file_;
    };

    std::unique_ptr<FileWriter> Wrap(std::unique_ptr<FileWriter> file) {
        return file ? std::make_unique<Writer>(*this, std::move(file)) : nullptr;
    }
    template <class LastActT>
    void Step(LastActT lastAct) {
        if (++steps != killedBefore) return;
        lastAct();
        throw Killed();
    }
    void Step() {
        Step([] {});
    }

    MemoryFileSystem& disk_;
};

/// Everything that a user does with one table, and afterwards the disk and what should be there.
class KilledRun {
public:
    explicit KilledRun(bool canLink) {
        disk_.canLink = canLink;
        parts_.files.AddDir(u"/home/me");
    }

    /// Returns whether the program was killed.
    bool RunAndKill(int step) {
        disk_.killedBefore = step;
        bool killed = false;
        try {
            KeptRun run(app_, disk_, parts_.clock, Text(kRoot));
            auto tab = run.NewTable(kPath, u"version 1");
            Live(run, *tab);
            run.Close(std::move(tab));
            run.End();
        } catch (const Killed&) {
            killed = true;
        }
        disk_.killedBefore = 0;
        return killed;
    }

    void ExpectNothingLost() {
        KeptRun next(app_, disk_, parts_.clock, Text(kRoot));
        std::vector<std::string> all{parts_.files.Contents(kPath).value_or("")};
        for (const UnsavedTable& table : next.keeper->Unsaved())
            all.push_back(parts_.files.Contents(table.file).value_or(""));
        const auto holds = [&all](const std::string& text) {
            const std::string cell = "@col_1\r\n" + text + "\r\n";
            return std::ranges::any_of(all, [&cell](const std::string& bytes) {
                return bytes.find(cell) != std::string::npos &&
                       bytes.ends_with("; End of File: /home/me/books.tbx\r\n;\r\n");
            });
        };
        if (latestSafe_.empty()) return;
        EXPECT_TRUE(holds(latestSafe_) || holds(current_)) << latestSafe_ << " or " << current_;
    }

private:
    void Live(KeptRun& run, KeptTab& tab) {
        Save(run, tab, "version 1");
        for (const std::string text : {"version 2", "version 3"}) {
            Type(tab, text + " draft");
            run.background.Pass(10s);
            latestSafe_ = current_;
            Type(tab, text);
            Save(run, tab, text);
        }
        // Saved again before the last save is known to be whole.
        Type(tab, "version 4");
        tab.Save();
        latestSafe_ = current_;
        Type(tab, "version 5");
        tab.Save();
        latestSafe_ = current_;
        run.background.DoAll();
    }

    void Type(KeptTab& tab, const std::string& text) {
        current_ = text;
        tab.Type(FromAscii(text));
    }
    void Save(KeptRun& run, KeptTab& tab, const std::string& text) {
        current_ = text;
        tab.Save();
        latestSafe_ = text;
        run.background.DoAll();
    }

    const Text kPath = u"/home/me/books.tbx";
    TestApp parts_{PathStyle::Posix};
    DeadlyDisk disk_{parts_.files};
    App app_{{disk_, parts_.user, parts_.clipboard, parts_.clock, parts_.screen, parts_.shell,
              parts_.instance, parts_.user,
              [] { return std::make_unique<GridStore>(CodePage::Windows1252()); }}};
    /// What was saved last, or typed ten seconds ago: this or what came after it has to be there.
    std::string latestSafe_;
    std::string current_;
};

class KilledRuns : public testing::TestWithParam<bool> {};

TEST_P(KilledRuns, LoseNothingThatWasSavedOrIsOlderThanTenSeconds) {
    int step = 1;
    for (;; ++step) {
        SCOPED_TRACE("killed before step " + std::to_string(step));
        KilledRun run(GetParam());
        const bool killed = run.RunAndKill(step);
        run.ExpectNothingLost();
        if (!killed || HasFailure()) break;
    }
    // The loop has gone through a whole run of the program.
    EXPECT_GT(step, 80);
}

INSTANTIATE_TEST_SUITE_P(WhereAFileCanHaveTwoNames, KilledRuns, testing::Values(true));
INSTANTIATE_TEST_SUITE_P(WhereItCannot, KilledRuns, testing::Values(false));

} // namespace
} // namespace korvane
