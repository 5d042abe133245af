#pragma once

#include "common/text/Text.h"
#include "platform/Spreadsheet.h"

#include <cstdint>
#include <functional>
#include <memory>

namespace korvane {

class DocumentConverter;
class InstanceChannel;
class Shell;
class SystemFileTypes;
class SystemFolders;

/// The parts that are different on each system: how two starts find each other, how the desktop opens and
/// starts things, and where its folders are.
class SystemParts {
public:
    virtual ~SystemParts() = default;

    virtual InstanceChannel& Channel() = 0;
    virtual Shell& Desktop() = 0;
    virtual const SystemFolders& Folders() const = 0;
    /// What has documents converted by other programs; nullptr if none can be run.
    virtual DocumentConverter* Converter() { return nullptr; }
    /// A spreadsheet application that runs beside the program; nullptr when there is none.
    virtual std::unique_ptr<Spreadsheet> SpreadsheetApplication() { return nullptr; }
    /// What the system itself tells of files; nullptr where the desktop knows more.
    virtual const SystemFileTypes* FileTypes() const { return nullptr; }
    /// Tells the system's number of the main window when it is shown.
    virtual void MainWindowShown(std::uintptr_t /*window*/) {}
    /// Calls `end` when the system asks this program alone to end.
    virtual void WatchEnd(const std::function<void()>& /*end*/) {}
};

/// The parts for the system that the program is built for.
std::unique_ptr<SystemParts> OwnSystemParts();

} // namespace korvane
