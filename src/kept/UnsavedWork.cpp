#include "kept/UnsavedWork.h"

#include "common/number/Number.h"
#include "platform/FileSystem.h"
#include "table/model/TbxFormat.h"

#include <algorithm>
#include <string>

namespace korvane {

namespace {

constexpr TextView kRunsFolder = u"runs";
constexpr TextView kLock = u"lock";
constexpr TextView kUnfinished = u"new";
/// More runs than this don't begin in one second.
constexpr int kMostRunsAtOnce = 100;

/// More than the last comment block of a table can take, which has a path.
constexpr std::size_t kEndSize = std::size_t{256} * 1024;

/// A table's file ends in a comment block. After a power cut a file can have its full length and yet hold
/// zeros, which no table does.
bool IsWholeTable(FileSystem& files, TextView path) {
    std::string last;
    bool hasZeros = false;
    const bool read = files.ReadInPieces(path, [&](std::string_view piece) {
        hasZeros = hasZeros || piece.find('\0') != piece.npos;
        last += piece.substr(piece.size() - std::min(piece.size(), kEndSize));
        last.erase(0, last.size() - std::min(last.size(), kEndSize));
    });
    const std::string end =
        std::string(tbx::kLineEnd) + std::string(tbx::kCommentLine) + std::string(tbx::kLineEnd);
    const std::string title = end + std::string(tbx::kEndTitle);
    return read && !hasZeros && last.ends_with(end) && last.rfind(title) != last.npos;
}

} // namespace

TableFolder::TableFolder(FileSystem& files, TextView root, TextView folder)
    : files_(files),
      versions_(files, root),
      folder_(folder),
      name_(files, folder, u"name"),
      saving_(files, folder, u"saving"),
      written_(files, folder, u"written") {}

Text TableFolder::PathOf(TextView name) const {
    return files_.Style().JoinPath(folder_, name);
}

std::vector<KeptFile> TableFolder::Drafts() const {
    return KeptFilesIn(files_, folder_);
}

Text TableFolder::Name() const {
    const auto name = name_.Read<NameRecord>();
    return name ? name->name : Text();
}

bool TableFolder::Prepare(const Text& name) {
    if (!MakePrivateDirs(files_, folder_)) return false;
    const auto known = name_.Read<NameRecord>();
    return (known && known->name == name) || name_.Write(ToRecord(NameRecord{name})).has_value();
}

bool TableFolder::WriteDraft(int number, const DateTime& today, const WriteFile& write) {
    const Text unfinished = PathOf(kUnfinished);
    const bool written = WritePrivate(files_, unfinished, write) && files_.Flush(unfinished) &&
                         files_.Rename(unfinished, PathOf(KeptFileName(number, today)));
    if (written)
        RemoveDrafts(number - 1);
    else
        files_.Remove(unfinished);
    return written;
}

void TableFolder::RemoveDrafts(int last) {
    for (const KeptFile& draft : Drafts())
        if (draft.number <= last) files_.Remove(draft.path);
}

void TableFolder::RemoveDraftsAfter(int number) {
    for (const KeptFile& draft : Drafts())
        if (draft.number > number) files_.Remove(draft.path);
}

std::optional<int> TableFolder::NoteSave(const SaveRecord& record) {
    const auto save = saving_.Write(ToRecord(record));
    // Only now: the save before this one can still be recognised if the program ends in between.
    if (save) written_.RemoveAll();
    return save;
}

void TableFolder::NoteWritten(const WrittenRecord& record) {
    written_.Write(ToRecord(record));
}

void TableFolder::ForgetSave() {
    saving_.RemoveAll();
    written_.RemoveAll();
}

bool TableFolder::SaveIsWhole(int save, const SaveRecord& begun, const FileSum& written, int olderDrafts) {
    if (!files_.Flush(begun.path) || SumOfFile(files_, begun.path) != written) return false;
    // A version that is the same as the new file is worth nothing, and would push others out.
    const Text version = versions_.FileOf(begun.version);
    if (!version.empty() && files_.Size(version) == written.size && SumOfFile(files_, version) == written)
        versions_.Drop(begun.version);
    RemoveDrafts(olderDrafts);
    // The record of a later save has a higher number and stays.
    saving_.Remove(save);
    if (!HasSave()) written_.RemoveAll();
    return true;
}

std::optional<Text> TableFolder::NeededVersion() const {
    const auto begun = saving_.Read<SaveRecord>();
    if (!begun || begun->version.empty()) return std::nullopt;
    return begun->version;
}

std::optional<UnsavedDraft> TableFolder::Settle() {
    const auto begun = saving_.Read<SaveRecord>();
    if (begun) SettleSave(*begun);
    ForgetSave();
    files_.Remove(PathOf(kUnfinished));
    const std::vector<KeptFile> drafts = Drafts();
    if (drafts.empty()) {
        Remove();
        return std::nullopt;
    }
    return UnsavedDraft{folder_, Name(), drafts.back()};
}

void TableFolder::SettleSave(const SaveRecord& begun) {
    const auto written = written_.Read<WrittenRecord>();
    const bool isWhole = IsWholeTable(files_, begun.path);
    if (isWhole && written && files_.Size(begun.path) == written->size)
        return RemoveDrafts(written->olderDrafts);
    if (ReplacedNothing(begun)) return RemoveDrafts(begun.olderDrafts);
    const std::vector<KeptFile> drafts = Drafts();
    const int newest = drafts.empty() ? 0 : drafts.back().number;
    if (isWhole) {
        // The save ended after the last draft was made, or else the file is an older one.
        const auto saved = files_.Modified(begun.path);
        const bool isNewer = drafts.empty() || (saved && *saved >= drafts.back().modified);
        return RemoveDrafts(isNewer ? newest : begun.olderDrafts);
    }
    if (newest <= begun.olderDrafts) MakeDraftOfVersion(begun);
    Prepare(begun.path);
}

/// Whether the program ended before the save deleted the old file.
bool TableFolder::ReplacedNothing(const SaveRecord& begun) const {
    const Text version = versions_.FileOf(begun.version);
    if (version.empty()) return false;
    if (files_.IsSame(version, begun.path)) return true;
    const auto sum = SumOfFile(files_, begun.path);
    return sum && sum == SumOfFile(files_, version);
}

void TableFolder::MakeDraftOfVersion(const SaveRecord& begun) {
    const Text version = versions_.FileOf(begun.version);
    const auto name = ReadKeptFileName(files_.Style().NamePart(version));
    if (!name) return;
    const Text draft = PathOf(KeptFileName(NextNumber(Drafts()), name->second));
    if (!files_.Link(version, draft)) files_.Copy(version, draft);
}

void TableFolder::Remove() {
    RemoveWithFiles(files_, folder_);
}

RunFolders::RunFolders(FileSystem& files, TextView root)
    : files_(files), root_(root), folder_(files.Style().JoinPath(root, kRunsFolder)) {}

RunFolders::Run RunFolders::Begin(const DateTime& now) {
    if (!MakePrivateDirs(files_, folder_)) return {};
    const Text name = FormatDate(now, u"yyyymmdd-hhnnss");
    for (int start = 1; start <= kMostRunsAtOnce; ++start) {
        const Text folder =
            files_.Style().JoinPath(folder_, start == 1 ? name : name + u"-" + NumberText(start));
        if (!files_.MakePrivateDir(folder)) continue;
        Run run{folder, files_.Lock(files_.Style().JoinPath(folder, kLock))};
        if (run.lock) return run;
        // Without a lock another run would take this one for ended.
        RemoveWithFiles(files_, folder);
        break;
    }
    return {};
}

void RunFolders::End(Run run) {
    run.lock.reset();
    if (!files_.HasFolders(run.folder)) RemoveWithFiles(files_, run.folder);
}

std::vector<Text> RunFolders::Runs() const {
    std::vector<Text> runs;
    for (const Text& name : files_.FolderNames(folder_))
        runs.push_back(files_.Style().JoinPath(folder_, name));
    return runs;
}

std::vector<Text> RunFolders::TablesOf(TextView run) const {
    std::vector<Text> tables;
    for (const Text& name : files_.FolderNames(run))
        tables.push_back(files_.Style().JoinPath(run, name));
    return tables;
}

bool RunFolders::HasOthers(TextView own) const {
    const std::vector<Text> runs = Runs();
    return std::ranges::any_of(runs, [own](const Text& run) { return run != own; });
}

std::vector<UnsavedDraft> RunFolders::TakeOver(TextView own) {
    std::vector<UnsavedDraft> unsaved;
    for (const Text& run : Runs())
        if (run != own) TakeOverRun(run, own, unsaved);
    std::ranges::sort(unsaved, [](const UnsavedDraft& a, const UnsavedDraft& b) {
        return a.draft.modified > b.draft.modified;
    });
    return unsaved;
}

void RunFolders::TakeOverRun(const Text& run, TextView own, std::vector<UnsavedDraft>& unsaved) {
    Run ended{run, files_.Lock(files_.Style().JoinPath(run, kLock))};
    if (!ended.lock) return;
    for (const Text& table : TablesOf(run)) {
        auto found = TableFolder(files_, root_, table).Settle();
        if (!found) continue;
        const PathStyle style = files_.Style();
        const Text moved = style.JoinPath(own, u"kept-" + NumberText(unsaved.size() + 1));
        if (!files_.Rename(table, moved)) continue;
        found->folder = moved;
        found->draft.path = style.JoinPath(moved, found->draft.name);
        unsaved.push_back(*found);
    }
    End(std::move(ended));
}

std::vector<Text> RunFolders::AllTables() const {
    std::vector<Text> all;
    for (const Text& run : Runs())
        for (Text& table : TablesOf(run))
            all.push_back(std::move(table));
    return all;
}

std::set<Text> RunFolders::NeededVersions() const {
    std::set<Text> needed;
    for (const Text& table : AllTables())
        if (const auto version = TableFolder(files_, root_, table).NeededVersion()) needed.insert(*version);
    return needed;
}

std::int64_t RunFolders::BytesOfDrafts() const {
    std::int64_t bytes = 0;
    for (const Text& table : AllTables())
        for (const KeptFile& draft : KeptFilesIn(files_, table))
            bytes += draft.size;
    return bytes;
}

} // namespace korvane
