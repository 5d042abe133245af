#include "kept/KeptTables.h"

#include "common/number/Number.h"
#include "context/App.h"
#include "grid/Grid.h"
#include "kept/DraftPace.h"
#include "kept/FileSum.h"
#include "platform/Background.h"
#include "platform/Clock.h"
#include "platform/FileSystem.h"
#include "table/model/TableHost.h"
#include "table/model/TableModel.h"
#include "table/model/TableSnapshot.h"
#include "table/model/TbxWriter.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace korvane {

namespace {

/// Sums up what is written to it.
class SummingWriter final : public FileWriter {
public:
    bool Write(std::string_view bytes) override {
        sum.Add(bytes);
        return true;
    }
    bool Close() override { return true; }

    RunningSum sum;
};

/// Counts what is written to it.
class CountingWriter final : public FileWriter {
public:
    bool Write(std::string_view bytes) override {
        count += static_cast<std::int64_t>(bytes.size());
        return true;
    }
    bool Close() override { return true; }

    std::int64_t count = 0;
};

/// Writes the table with the text that is being typed into it. False when the file didn't take all of it.
bool WriteWithTyped(const TableModel& table, const std::optional<FieldText>& typed, FileWriter& file) {
    TbxWriter tbx(table, file, ChunkedOutput::kUsualChunk, TbxContent::Whole);
    if (typed) tbx.Replace(*typed);
    return tbx.Write();
}

/// The sum of the file that a save makes of the table.
FileSum SumOfSaved(const TableModel& table) {
    SummingWriter writer;
    TbxWriter(table, writer).Write();
    return writer.sum.Get();
}

std::int64_t SizeOfSaved(const TableModel& table) {
    CountingWriter writer;
    TbxWriter(table, writer).Write();
    return writer.count;
}

/// Whether the old file may stay on its disk while the new one is written. It may not when the new one fits
/// only in its place. When the new one doesn't fit at all, the old one is all that is left, and stays.
bool MayKeepBeside(FileSystem& files, const Text& path, TextView root, const TableModel& table) {
    constexpr std::int64_t kAmple = std::int64_t{64} << 20;
    constexpr std::int64_t kSpare = std::int64_t{256} << 10;
    const auto disk = files.Volume(path);
    const auto other = files.Volume(root);
    const bool known = disk && disk->totalBytes > 0 && other && other->root == disk->root;
    const std::int64_t old = files.Size(path).value_or(0);
    if (!known || disk->freeBytes >= 2 * old + kAmple) return true;
    const std::int64_t needed = SizeOfSaved(table);
    const bool fitsBeside = needed + needed / 64 + kSpare <= disk->freeBytes;
    return fitsBeside || needed > disk->freeBytes + old;
}

} // namespace

struct KeptTables::OpenTable {
    explicit OpenTable(const TabContext& tab) : table(tab.table), host(tab.host) {}

    TableModel& table;
    const TableHost& host;
    /// Of the tab.
    Text caption;
    /// Empty as long as nothing was kept.
    Text folder;
    DraftPace pace;
    /// How often something was typed into a field that isn't committed.
    std::uint64_t typed = 0;
    /// The count of changes at the last look, and at the last draft or save that has them all.
    std::optional<std::uint64_t> seen;
    std::optional<std::uint64_t> kept;
    int lastDraft = 0;
    /// Up to this number, drafts are older than the file.
    int olderDrafts = 0;
    /// The save that left neither the old file nor the new one.
    std::optional<SaveRecord> brokenSave;
    int commands = 0;
    bool armed = false;
    bool writing = false;

    bool Altered() const { return table.TableAltered == 1 || host.Types(); }
    std::uint64_t Changes() const { return table.GridStore().ChangeCount() + typed; }
    Text Name() const { return table.TxtDbFile.empty() ? caption : table.TxtDbFile; }
};

/// What the background tells of a draft.
struct KeptTables::Draft {
    std::uint64_t changes = 0;
    Time work{0};
    bool written = false;
};

/// Keeps the old file while a table is saved, and finds out whether the new one is whole.
class KeptTables::Guard final : public SaveGuard, private FileWriter {
public:
    Guard(KeptTables& keeper, const TabContext& tab)
        : keeper_(keeper),
          files_(tab.app.Files()),
          kept_(keeper.Of(tab)),
          open_(*kept_),
          versions_(files_, keeper.root_),
          path_(files_.FullPath(tab.table.TxtDbFile)) {
        if (!path_.empty() && keeper.PrepareRun()) Begin();
    }
    Guard(const Guard&) = delete;
    Guard& operator=(const Guard&) = delete;
    ~Guard() override {
        if (folder_ && !finished_) GiveUp();
    }

    void OldFileDeleted() override {
        if (keepsOld_ && files_.FileExists(path_)) versions_.PartFrom(path_, record_.version);
    }

    FileWriter& Watch(FileWriter& file) override {
        file_ = &file;
        return *this;
    }

    bool Finish() override {
        finished_ = true;
        if (whole_) {
            EndWhole();
        } else if (folder_) {
            open_.brokenSave = record_;
        }
        keeper_.Arm(open_);
        return whole_;
    }

private:
    void Begin() {
        if (open_.folder.empty()) open_.folder = keeper_.NewFolder();
        folder_.emplace(files_, keeper_.root_, open_.folder);
        folder_->Prepare(open_.Name());
        record_ = {open_.olderDrafts, {}, path_};
        // A file that isn't whole is no version, and the last whole one stays the one to go back to.
        if (open_.brokenSave && open_.brokenSave->path == path_) {
            record_ = *open_.brokenSave;
        } else if (files_.FileExists(path_) && files_.CanWrite(path_) &&
                   MayKeepBeside(files_, path_, keeper_.root_, open_.table)) {
            record_.version = versions_.Keep(path_, keeper_.app_.Clock().Now());
            keepsOld_ = !record_.version.empty();
        }
        number_ = folder_->NoteSave(record_);
    }

    void EndWhole() {
        open_.brokenSave.reset();
        open_.olderDrafts = open_.lastDraft;
        open_.seen = open_.kept = open_.Changes();
        open_.pace.NothingChanged();
        if (!folder_) return;
        folder_->NoteWritten({size_, open_.lastDraft});
        if (number_) keeper_.CheckSave(open_, *number_, record_);
    }

    /// The save has stopped before the new file was written.
    void GiveUp() {
        if (file_ == nullptr && files_.FileExists(path_)) {
            if (keepsOld_) versions_.Drop(record_.version);
            if (!open_.brokenSave) folder_->ForgetSave();
        } else {
            open_.brokenSave = record_;
        }
        keeper_.Arm(open_);
    }

    bool Write(std::string_view bytes) override {
        size_ += static_cast<std::int64_t>(bytes.size());
        const bool written = file_->Write(bytes);
        whole_ = whole_ && written;
        return written;
    }

    bool Close() override {
        const bool closed = file_->Close();
        whole_ = whole_ && closed;
        return closed;
    }

    KeptTables& keeper_;
    FileSystem& files_;
    /// The tab may close while its table is saved.
    std::shared_ptr<OpenTable> kept_;
    OpenTable& open_;
    KeptVersions versions_;
    Text path_;
    /// There is none when nothing can be kept.
    std::optional<TableFolder> folder_;
    SaveRecord record_;
    std::optional<int> number_;
    bool keepsOld_ = false;
    FileWriter* file_ = nullptr;
    std::int64_t size_ = 0;
    bool whole_ = true;
    bool finished_ = false;
};

KeptTables::KeptTables(App& app, Background& background, const Text& root)
    : app_(app), background_(background), root_(root), self_(std::make_shared<KeptTables*>(this)) {}

KeptTables::~KeptTables() {
    if (!run_.lock) return;
    const auto run = std::make_shared<RunFolders::Run>(std::move(run_));
    background_.Do([run, root = root_](FileSystem& files) { RunFolders(files, root).End(std::move(*run)); },
                   AtEnd::Done, {});
}

bool KeptTables::PrepareRun() {
    if (root_.empty()) return false;
    if (!run_.lock) run_ = RunFolders(app_.Files(), root_).Begin(app_.Clock().Now());
    return run_.lock != nullptr;
}

Text KeptTables::NewFolder() {
    return app_.Files().Style().JoinPath(run_.folder, NumberText(++lastFolder_));
}

std::shared_ptr<KeptTables::OpenTable> KeptTables::Of(const TabContext& tab) {
    auto& open = open_[&tab.table];
    if (open == nullptr) open = std::make_shared<OpenTable>(tab);
    open->caption = tab.host.TabCaption();
    return open;
}

KeptTables::OpenTable* KeptTables::Find(const TableModel& table) {
    const auto found = open_.find(&table);
    return found == open_.end() ? nullptr : found->second.get();
}

void KeptTables::CommandBegins(const TabContext& tab) {
    OpenTable& open = *Of(tab);
    ++open.commands;
    Arm(open);
}

void KeptTables::CommandEnds(const TabContext& tab) {
    // The command may have closed the tab.
    OpenTable* open = Find(tab.table);
    if (open == nullptr) return;
    --open->commands;
    LookAt(*open);
    Arm(*open);
}

void KeptTables::TextTyped(const TabContext& tab) {
    OpenTable& open = *Of(tab);
    if (open.host.Types()) ++open.typed;
    LookAt(open);
    Arm(open);
}

std::unique_ptr<SaveGuard> KeptTables::GuardSave(const TabContext& tab) {
    return std::make_unique<Guard>(*this, tab);
}

/// Finds out whether there is something to keep.
void KeptTables::LookAt(OpenTable& open) {
    const std::uint64_t changes = open.Changes();
    if (open.Altered()) {
        const bool isNew = open.seen != changes && open.kept != changes;
        open.seen = changes;
        if (isNew) open.pace.Changed(app_.Clock().Uptime());
        return;
    }
    open.pace.NothingChanged();
    open.seen.reset();
    open.kept.reset();
    // All changes were taken back. After a save the drafts stay until its file is known to be whole.
    if (open.lastDraft == open.olderDrafts || open.folder.empty()) return;
    background_.Do([root = root_, folder = open.folder, last = open.lastDraft](
                       FileSystem& files) { TableFolder(files, root, folder).RemoveDrafts(last); },
                   AtEnd::Done, {});
    open.olderDrafts = open.lastDraft;
}

/// Asks for a call at the time of the next draft. A command that lasts is looked at from time to time.
void KeptTables::Arm(OpenTable& open) {
    const auto due = open.pace.Due();
    if (open.armed || root_.empty() || (!due && open.commands == 0)) return;
    open.armed = true;
    const Time now = app_.Clock().Uptime();
    const Time soon = std::max(due.value_or(now + DraftPace::kAfterLastChange) - now, Time(1));
    background_.After(std::min(soon, DraftPace::kAfterLastChange),
                      [alive = std::weak_ptr(self_), &table = std::as_const(open.table)] {
                          if (const auto self = alive.lock()) (*self)->Tick(table);
                      });
}

void KeptTables::Tick(const TableModel& table) {
    OpenTable* open = Find(table);
    if (open == nullptr) return;
    open->armed = false;
    LookAt(*open);
    const auto due = open->pace.Due();
    if (due && *due <= app_.Clock().Uptime() && !open->writing) WriteDraft(*open);
    Arm(*open);
}

void KeptTables::WriteDraft(OpenTable& open) {
    if (!PrepareRun()) return open.pace.NothingChanged();
    const Clock& clock = app_.Clock();
    const Time begin = clock.Uptime();
    open.pace.Begin(begin);
    if (open.folder.empty()) open.folder = NewFolder();
    open.writing = true;
    const auto draft = std::make_shared<Draft>();
    draft->changes = open.Changes();
    const auto table = std::make_shared<const TableSnapshot>(open.table);
    draft->work = clock.Uptime() - begin;
    background_.Do(
        [=, &clock, root = root_, folder = open.folder, name = open.Name(), number = ++open.lastDraft,
         today = clock.Now(), typed = open.host.Typed()](FileSystem& files) {
            const Time start = clock.Uptime();
            TableFolder place(files, root, folder);
            const auto write = [&](FileWriter& file) { return WriteWithTyped(table->Table(), typed, file); };
            draft->written = place.Prepare(name) && place.WriteDraft(number, today, write);
            draft->work += clock.Uptime() - start;
        },
        AtEnd::LeftOut,
        [=, alive = std::weak_ptr(self_), &table = std::as_const(open.table)] {
            if (const auto self = alive.lock()) (*self)->DraftWritten(table, *draft);
        });
}

void KeptTables::KeepNow() {
    if (!PrepareRun()) return;
    for (const auto& [table, open] : open_) {
        if (!open->Altered()) continue;
        if (open->folder.empty()) open->folder = NewFolder();
        TableFolder place(app_.Files(), root_, open->folder);
        const auto write = [&now = *open](FileWriter& file) {
            return WriteWithTyped(now.table, now.host.Typed(), file);
        };
        if (place.Prepare(open->Name())) place.WriteDraft(++open->lastDraft, app_.Clock().Now(), write);
    }
}

void KeptTables::DraftWritten(const TableModel& table, const Draft& draft) {
    OpenTable* open = Find(table);
    if (open == nullptr) return;
    open->writing = false;
    open->pace.Took(draft.work);
    // What couldn't be written is tried again after a while.
    if (draft.written)
        open->kept = draft.changes;
    else
        open->seen.reset();
    LookAt(*open);
    Arm(*open);
}

/// What should be in the file is made again from the table, because a sum made while the user waits for the
/// save would make the wait longer.
void KeptTables::CheckSave(const OpenTable& open, int save, const SaveRecord& begun) {
    const int count = ++saveCount_;
    lastSaves_[begun.path] = count;
    const auto whole = std::make_shared<bool>(false);
    background_.Do(
        [=, root = root_, folder = open.folder, older = open.lastDraft,
         table = std::make_shared<const TableSnapshot>(open.table),
         today = app_.Clock().Now()](FileSystem& files) {
            const FileSum written = SumOfSaved(table->Table());
            *whole = TableFolder(files, root, folder).SaveIsWhole(save, begun, written, older);
            if (!*whole) return;
            const RunFolders runs(files, root);
            KeptVersions(files, root).Prune(today, runs.NeededVersions(), runs.BytesOfDrafts());
        },
        AtEnd::LeftOut,
        [=, alive = std::weak_ptr(self_), folder = open.folder] {
            const auto self = alive.lock();
            // A later save to the same file has taken its place.
            if (self == nullptr || *whole || (*self)->lastSaves_[begun.path] != count) return;
            (*self)->SaveWasNotWhole(folder, begun);
        });
}

void KeptTables::SaveWasNotWhole(const Text& folder, const SaveRecord& begun) {
    const auto found =
        std::ranges::find(open_, folder, [](const auto& entry) { return entry.second->folder; });
    if (found == open_.end()) return SettleClosed(folder);
    OpenTable& open = *found->second;
    open.table.TableAltered = 1;
    open.brokenSave = begun;
    open.olderDrafts = begun.olderDrafts;
    open.seen.reset();
    open.kept.reset();
    LookAt(open);
    Arm(open);
}

/// What the save of a closed tab has lost is listed like what an earlier run left.
void KeptTables::SettleClosed(const Text& folder) {
    const auto draft = std::make_shared<std::optional<UnsavedDraft>>();
    background_.Do(
        [=, root = root_](FileSystem& files) { *draft = TableFolder(files, root, folder).Settle(); },
        AtEnd::LeftOut,
        [=, alive = std::weak_ptr(self_)] {
            if (const auto self = alive.lock(); self != nullptr && *draft) (*self)->List({**draft});
        });
}

void KeptTables::GiveUp(const TabContext& tab) {
    const OpenTable* open = Find(tab.table);
    if (open != nullptr && !open->folder.empty()) {
        // A save that isn't known to be whole still needs the rest.
        background_.Do(
            [root = root_, folder = open->folder, older = open->olderDrafts](FileSystem& files) {
                TableFolder place(files, root, folder);
                place.RemoveDraftsAfter(older);
                if (!place.HasSave()) place.Remove();
            },
            AtEnd::Done, {});
    }
    Forget(tab.table);
}

void KeptTables::Forget(const TableModel& table) {
    open_.erase(&table);
}

void KeptTables::LookForUnsaved() {
    const RunFolders runs(app_.Files(), root_);
    if (root_.empty() || !runs.HasOthers(run_.folder) || !PrepareRun()) return;
    const auto found = std::make_shared<std::vector<UnsavedDraft>>();
    background_.Do([=, root = root_,
                    own = run_.folder](FileSystem& files) { *found = RunFolders(files, root).TakeOver(own); },
                   AtEnd::LeftOut,
                   [=, alive = std::weak_ptr(self_)] {
                       if (const auto self = alive.lock()) (*self)->List(*found);
                   });
}

void KeptTables::List(const std::vector<UnsavedDraft>& drafts) {
    for (const UnsavedDraft& draft : drafts) {
        unsaved_.push_back({++listed_, draft.name, draft.draft.path, draft.draft.modified});
        unsavedDrafts_[listed_] = draft;
    }
    if (!drafts.empty() && UnsavedChanged) UnsavedChanged();
}

void KeptTables::Adopt(const TabContext& tab, int number) {
    const auto found = unsavedDrafts_.extract(number);
    if (found.empty()) return;
    OpenTable& open = *Of(tab);
    open.folder = found.mapped().folder;
    open.lastDraft = found.mapped().draft.number;
    open.kept = open.seen = open.Changes();
    std::erase_if(unsaved_, [number](const UnsavedTable& each) { return each.number == number; });
    if (UnsavedChanged) UnsavedChanged();
}

} // namespace korvane
