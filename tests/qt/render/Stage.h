#pragma once

#include "Windows.h"
#include "app/Unattended.h"
#include "grid/GridStore.h"
#include "platform/qt/binder/QtFormHost.h"
#include "support/PageFiles.h"
#include "support/TestApp.h"
#include "testing/MemoryFileTypes.h"
#include "testing/MemoryFonts.h"

namespace korvane {

/// The program as it looks after a first start with the samples open. Its windows are real, and its platform
/// is in memory.
class Stage {
public:
    Stage();

    /// Handles all pending events.
    static void Settle();

    QtFormHost& Host() { return host_; }
    Surroundings& All() { return all_; }
    frmMDIParent& Main() { return all_.main; }

private:
    void FillFiles();
    void FillLists();
    void FillWebsites();
    void FillRequests();

    TestApp outside_;
    QtFormHost host_{KorvaneForms()};
    PrintedMessages messages_;
    App app_{{outside_.files,
              messages_,
              outside_.clipboard,
              outside_.clock,
              outside_.screen,
              outside_.shell,
              outside_.instance,
              host_,
              [] { return std::make_unique<GridStore>(CodePage::Windows1252()); },
              CodePage::Windows1252(),
              nullptr,
              {},
              nullptr,
              &outside_.fileTypes,
              &outside_.fonts}};
    PageFiles pages_{app_};
    Surroundings all_{app_};
};

} // namespace korvane
