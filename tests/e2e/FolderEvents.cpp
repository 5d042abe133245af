#include "e2e/FolderEvents.h"

#include <sys/inotify.h>
#include <unistd.h>

#include <array>

namespace korvane::e2e {

FolderEvents::FolderEvents(const std::filesystem::path& folder)
    : descriptor_(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
    inotify_add_watch(descriptor_, folder.c_str(), IN_CLOSE_WRITE | IN_MOVED_TO | IN_DELETE);
}

FolderEvents::~FolderEvents() {
    close(descriptor_);
}

void FolderEvents::Drain() {
    std::array<char, 4096> buffer{};
    while (read(descriptor_, buffer.data(), buffer.size()) > 0) {
    }
}

} // namespace korvane::e2e
