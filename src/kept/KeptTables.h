#pragma once

#include "common/text/Text.h"
#include "kept/UnsavedWork.h"
#include "table/TableKeeper.h"

#include <chrono>
#include <map>
#include <memory>
#include <vector>

namespace korvane {

class App;
class Background;
class TableModel;

/// Keeps the versions that saves replace, and the changes that no save has brought to the disk, in a folder
/// of the user's. Where that folder can't be written, nothing is kept and all else goes on as ever.
class KeptTables final : public TableKeeper {
public:
    /// `root` is the folder, which needn't be there; nothing is kept when it is empty. App and background
    /// outlive the object.
    KeptTables(App& app, Background& background, const Text& root);
    KeptTables(const KeptTables&) = delete;
    KeptTables& operator=(const KeptTables&) = delete;
    ~KeptTables() override;

    /// Keeps all changes that aren't in a file at once. The program ends without asking about them.
    void KeepNow();
    /// Looks for what runs of the program left that didn't end as they should.
    void LookForUnsaved();

    void CommandBegins(const TabContext& tab) override;
    void CommandEnds(const TabContext& tab) override;
    void TextTyped(const TabContext& tab) override;
    std::unique_ptr<SaveGuard> GuardSave(const TabContext& tab) override;
    void GiveUp(const TabContext& tab) override;
    void Forget(const TableModel& table) override;
    const std::vector<UnsavedTable>& Unsaved() const override { return unsaved_; }
    void Adopt(const TabContext& tab, int number) override;

private:
    class Guard;
    struct OpenTable;
    struct Draft;
    using Time = std::chrono::milliseconds;

    std::shared_ptr<OpenTable> Of(const TabContext& tab);
    OpenTable* Find(const TableModel& table);
    /// False when nothing can be kept.
    bool PrepareRun();
    Text NewFolder();
    void LookAt(OpenTable& open);
    void Arm(OpenTable& open);
    void Tick(const TableModel& table);
    void WriteDraft(OpenTable& open);
    void DraftWritten(const TableModel& table, const Draft& draft);
    void CheckSave(const OpenTable& open, int save, const SaveRecord& begun);
    void SaveWasNotWhole(const Text& folder, const SaveRecord& begun);
    void SettleClosed(const Text& folder);
    void List(const std::vector<UnsavedDraft>& drafts);

    App& app_;
    Background& background_;
    Text root_;
    RunFolders::Run run_;
    int lastFolder_ = 0;
    /// A save keeps its table here in use, although the tab may close meanwhile.
    std::map<const TableModel*, std::shared_ptr<OpenTable>> open_;
    /// By the path of a file, the number of the last save to it.
    std::map<Text, int> lastSaves_;
    int saveCount_ = 0;
    std::vector<UnsavedTable> unsaved_;
    std::map<int, UnsavedDraft> unsavedDrafts_;
    int listed_ = 0;
    /// What comes back from the background after this object is gone finds that out by it.
    std::shared_ptr<KeptTables*> self_;
};

} // namespace korvane
