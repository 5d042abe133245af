#pragma once

#include "Require.h"
#include "context/App.h"
#include "context/exchange/StateFiles.h"
#include "controls/FormHost.h"
#include "grid/GridStore.h"
#include "platform/MessageBoxes.h"
#include "testing/MemoryClipboard.h"
#include "testing/MemoryClock.h"
#include "testing/MemoryFileSystem.h"
#include "testing/MemoryInstanceChannel.h"
#include "testing/MemoryScreen.h"
#include "testing/MemoryShell.h"

#include <memory>

namespace korvane {

/// A user who must never be shown a message.
class SilentUser final : public MessageBoxes, public FormHost {
public:
    Answer Show(const Message&) override {
        Require(false, "nothing is to be told");
        return Answer::Ok;
    }
    void RunModal(Form&) override {}
    void Show(Form&) override {}
    void Hide(Form&) override {}
    void PopUp(Menu&) override {}
    void Raise(Form&) override {}
};

/// An App on an in-memory disk for the readers and writers of the state files.
class StateStage {
public:
    StateStage() {
        app.Exchange<StateFiles>().IniFilePath = u"C:\\Korvane\\Korvane.ini";
        app.Exchange<StateFiles>().RecFilePath = u"C:\\Korvane\\Korvane.rec";
    }

    MemoryClock clock;
    MemoryFileSystem files{PathStyle::Windows, clock};
    MemoryClipboard clipboard;
    MemoryScreen screen;
    MemoryShell shell;
    MemoryInstanceChannel instance;
    SilentUser user;
    App app{{files, user, clipboard, clock, screen, shell, instance, user,
             [] { return std::make_unique<GridStore>(CodePage::Windows1252()); }, CodePage::Windows1252(),
             nullptr}};
};

} // namespace korvane
