#pragma once

#include "Chance.h"
#include "RandomUser.h"
#include "context/App.h"
#include "grid/GridStore.h"
#include "shell/tabs/TabStates.h"
#include "shell/tabs/frmMDIChild.h"
#include "testing/MemoryClipboard.h"
#include "testing/MemoryClock.h"
#include "testing/MemoryFileSystem.h"
#include "testing/MemoryInstanceChannel.h"
#include "testing/MemoryScreen.h"
#include "testing/MemoryShell.h"

#include <memory>
#include <string>

namespace korvane {

/// A random table on a tab, and a user who does random things to it.
class RandomTab {
public:
    explicit RandomTab(unsigned seed);

    /// Does something and checks what came of it.
    void Act();
    /// Everything that was done is undone and redone: the table and the bytes of its file are the same
    /// before and after.
    void GoBackAndForth();

    /// What was done so far, for the message of a failed test.
    const std::string& Trace() const { return trace_; }

private:
    void RunCommand();
    void UndoOrRedo();
    void Edit();
    void Tick();
    void Sort();
    void DragColumn();
    void MoveSlider();
    void TypeRowHeight();
    void Find();
    void Go();
    void Save();

    Grid& Store() { return tab_.GridStore(); }
    Row SomeRow() { return Row{1 + chance_.Below(Store().RowCount().Number() + 1)}; }
    Col SomeCol() { return Col{1 + chance_.Below(Store().ColCount().Number() + 1)}; }
    /// Undoes or redoes a step. False when there was none.
    bool Turn(TabRoutine routine);
    std::string SavedBytes();
    std::string State();

    Chance chance_;
    RandomUser user_{chance_};
    MemoryClock clock_;
    MemoryFileSystem files_{PathStyle::Windows, clock_};
    MemoryClipboard clipboard_;
    MemoryScreen screen_;
    MemoryShell shell_;
    MemoryInstanceChannel instance_;
    App app_{{files_, user_, clipboard_, clock_, screen_, shell_, instance_, user_,
              [] { return std::make_unique<GridStore>(CodePage::Windows1252()); }}};
    TabStates states_;
    frmMDIChild tab_{app_, states_};
    std::string trace_;
    std::string firstBytes_;
    std::string firstState_;
};

} // namespace korvane
