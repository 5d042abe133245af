#pragma once

#include "common/number/DateTime.h"
#include "common/text/Text.h"
#include "kept/FileSum.h"
#include "kept/KeptFiles.h"
#include "kept/KeptRecords.h"
#include "kept/KeptVersions.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <vector>

namespace korvane {

class FileLock;
class FileSystem;

/// A kept table whose changes aren't in its file.
struct UnsavedDraft {
    Text folder;
    Text name;
    KeptFile draft;
};

/// What is kept of one open table, in a folder of its own: drafts of its changes, and records of a save that
/// may not be whole.
class TableFolder {
public:
    TableFolder(FileSystem& files, TextView root, TextView folder);

    /// Makes the folder, and notes the table's name when it has changed.
    bool Prepare(const Text& name);
    /// Keeps what `write` writes as a draft in place of the earlier ones. They stay until it is safe on the
    /// disk.
    bool WriteDraft(int number, const DateTime& today, const WriteFile& write);
    /// Removes the drafts up to this number.
    void RemoveDrafts(int last);
    /// Removes those with a higher number.
    void RemoveDraftsAfter(int number);

    /// Returns the number by which `SaveIsWhole` knows the save; nothing when it couldn't be noted.
    std::optional<int> NoteSave(const SaveRecord& record);
    void NoteWritten(const WrittenRecord& record);
    void ForgetSave();
    /// Whether the file on the disk is what was to be written. If so, what the save has made needless is
    /// removed.
    bool SaveIsWhole(int save, const SaveRecord& begun, const FileSum& written, int olderDrafts);
    /// Whether there is a save that isn't known to be whole.
    bool HasSave() const { return saving_.Read<SaveRecord>().has_value(); }
    /// The version that a save replaced whose file may not be whole.
    std::optional<Text> NeededVersion() const;
    /// What is lost without the drafts, by what a program that ended has left here. When a save has left
    /// neither the old file nor the new one, the version of the old file becomes a draft. Without anything
    /// to tell, the folder goes.
    std::optional<UnsavedDraft> Settle();
    void Remove();

    std::vector<KeptFile> Drafts() const;
    /// The table's path or caption, as it was noted last.
    Text Name() const;

private:
    void SettleSave(const SaveRecord& begun);
    bool ReplacedNothing(const SaveRecord& begun) const;
    void MakeDraftOfVersion(const SaveRecord& begun);
    Text PathOf(TextView name) const;

    FileSystem& files_;
    KeptVersions versions_;
    Text folder_;
    RecordFile name_;
    RecordFile saving_;
    RecordFile written_;
};

/// The folders of the runs of the program. A run holds the lock of its folder as long as it lasts.
class RunFolders {
public:
    RunFolders(FileSystem& files, TextView root);

    /// A run's folder with its lock; without a lock it couldn't be made.
    struct Run {
        Text folder;
        std::unique_ptr<FileLock> lock;
    };
    Run Begin(const DateTime& now);
    /// Removes the folder of a run unless it keeps something.
    void End(Run run);
    /// Whether there may be something of other runs.
    bool HasOthers(TextView own) const;
    /// Moves what runs that have ended left unsaved into the folder of this one, the newest first.
    std::vector<UnsavedDraft> TakeOver(TextView own);

    /// The folders of all tables that any run keeps.
    std::vector<Text> AllTables() const;
    /// The versions that must stay whatever their age.
    std::set<Text> NeededVersions() const;
    std::int64_t BytesOfDrafts() const;

private:
    void TakeOverRun(const Text& run, TextView own, std::vector<UnsavedDraft>& unsaved);
    std::vector<Text> Runs() const;
    std::vector<Text> TablesOf(TextView run) const;

    FileSystem& files_;
    Text root_;
    Text folder_;
};

} // namespace korvane
