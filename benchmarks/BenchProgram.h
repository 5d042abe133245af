#pragma once

#include "ThreadTime.h"
#include "common/text/CodePage.h"
#include "context/App.h"
#include "controls/FormHost.h"
#include "grid/GridStore.h"
#include "platform/native/NativeFileSystem.h"
#include "table/TabContext.h"
#include "table/model/TableHistory.h"
#include "table/model/TableHost.h"
#include "table/model/TableModel.h"
#include "testing/MemoryClipboard.h"
#include "testing/MemoryClock.h"
#include "testing/MemoryInstanceChannel.h"
#include "testing/MemoryScreen.h"
#include "testing/MemoryShell.h"
#include "testing/ScriptedMessageBoxes.h"

#include <string>

namespace korvane::bench {

/// Ignores all windows.
class NoForms final : public FormHost {
public:
    void RunModal(Form&) override {}
    void Show(Form&) override {}
    void Hide(Form&) override {}
    void PopUp(Menu&) override {}
    void Raise(Form&) override {}
};

class NoHost final : public TableHost {
public:
    void ShowRowHeight(std::int16_t) override {}
    Text TabCaption() const override { return {}; }
    void SetTabCaption(TextView) override {}
    void ClearDirty() override {}
};

/// The program with one tab on the real disk. Its clock doesn't move, so it never waits.
class BenchProgram {
public:
    MemoryClock clock;
    NativeFileSystem files{u"/nowhere"};
    ScriptedMessageBoxes messages;
    MemoryClipboard clipboard;
    MemoryScreen screen;
    MemoryShell shell;
    MemoryInstanceChannel instance;
    NoForms forms;
    App app{{files, messages, clipboard, clock, screen, shell, instance, forms, [] { return nullptr; }}};

    GridStore grid{CodePage::Windows1252()};
    TableModel table{grid};
    NoHost host;
    TableHistory history{table, host};
    TabContext tab{app, table, host, &history};

    /// Loads the table at the limit. If this fails the process ends, because the figures would mean nothing.
    void Load();
    void Load(const std::string& path);
};

} // namespace korvane::bench
