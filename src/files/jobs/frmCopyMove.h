#pragma once

#include "controls/Buttons.h"
#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/Menu.h"
#include "controls/TextBox.h"
#include "controls/Timer.h"
#include "controls/lists/ListBox.h"
#include "controls/lists/TreeView.h"
#include "files/jobs/CopyMoveRun.h"
#include "files/tree/FolderTree.h"

#include <cstddef>
#include <optional>

namespace korvane {

class App;
struct CopyMoveRequest;

/// Copies or moves the files of the `CopyMoveRequest` to a folder that is picked in a tree. Modal.
class frmCopyMove : public Form {
public:
    explicit frmCopyMove(App& app);

    Menu OfficeMenu1;
    CommandButton cmdNewDir{*this, "cmdNewDir", u"", u"New folder"};
    CommandButton cmdDelDir{*this, "cmdDelDir", u"", u"Delete folder"};
    CommandButton cmdExploreSource{*this, "cmdExploreSource", u"", u"Explore source folder"};
    CommandButton cmdExploreTarget{*this, "cmdExploreTarget", u"", u"Explore target folder"};
    CommandButton cmdGetFromTarget{*this, "cmdGetFromTarget", u"", u"Get target folder from list"};
    TextBox txtFullPath{*this, "txtFullPath"};
    TreeView TreeView1{*this, "TreeView1"};
    Timer FolderTimer{*this, "FolderTimer", FolderTree::kBetween};
    ListBox lstMarkedFiles{*this, "lstMarkedFiles"};
    Label lblNewName{*this, "lblNewName", u"New name for file to copy"};
    TextBox txtTargetName{*this, "txtTargetName"};
    CheckBox chkUpdateOnly{*this, "chkUpdateOnly", u"Only copy newer files or those not on target"};
    Panel frmCopying{*this, "frmCopying"};
    CommandButton cmdOk{*this, "cmdOk", u"Proceed"};
    /// Shown while a job runs.
    CommandButton cmdCancel{*this, "cmdCancel", u"Escape = Stop"};

    void Load() override;
    bool QueryUnload() override;
    void Unload() override;
    void Resize() override;
    void KeyDown(KeyEvent& key) override;

private:
    struct Tables;

    void Wire();
    bool Ask(const DiskQuestion& question, const std::function<bool()>& wanted);
    template <class AnswerT, class QuestionT>
    std::optional<AnswerT> AnswerOf(QuestionT question);
    void Place();
    void ShowRequest();
    void GoToStart();

    void Proceed();
    /// Returns when the job has ended.
    void Run();
    void SetRunning(bool running);
    void ShowNumber(std::size_t number);
    void ReportEnd();
    void Stop();
    void txtTargetName_KeyDown(KeyEvent& key);

    void NewFolder();
    void DeleteFolder();
    void RemoveFolder(const Text& folder);
    void ShowFolder(const Text& folder);
    void ExploreSource();
    void ExploreTarget();
    void GetFromTarget();

    CopyMoveRequest& Request() const;

    App& app_;
    FolderTree folders_;
    CopyMoveRun run_;
    bool running_ = false;
    /// The current directory at opening.
    Text savedDir_;
};

} // namespace korvane
