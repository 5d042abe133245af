#pragma once

#include <cstdint>
#include <memory>

namespace korvane {

class InstanceChannel;
class Shell;
class SystemFolders;

/// What each system does in a way of its own: how two starts meet, how the desktop is asked to open and to
/// start things, and where its folders are.
class SystemParts {
public:
    virtual ~SystemParts() = default;

    virtual InstanceChannel& Channel() = 0;
    virtual Shell& Desktop() = 0;
    virtual const SystemFolders& Folders() const = 0;
    /// Tells the number under which the system knows the main window, which is on the screen now.
    virtual void MainWindowShown(std::uintptr_t /*window*/) {}
};

/// The parts for the system that the program is built for.
std::unique_ptr<SystemParts> OwnSystemParts();

} // namespace korvane
