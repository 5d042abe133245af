#include "e2e/FolderEvents.h"

#include <sys/inotify.h>
#include <unistd.h>

#include <array>

namespace korvane::e2e {

FolderEvents::FolderEvents(const std::filesystem::path& folder)
    : descriptor_(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
    Watch(folder);
}

FolderEvents::~FolderEvents() {
    close(descriptor_);
}

void FolderEvents::Watch(const std::filesystem::path& folder) {
    inotify_add_watch(descriptor_, folder.c_str(), IN_CREATE | IN_CLOSE_WRITE | IN_MOVE | IN_DELETE);
}

void FolderEvents::Drain() {
    std::array<char, 4096> buffer{};
    while (read(descriptor_, buffer.data(), buffer.size()) > 0) {
    }
}

} // namespace korvane::e2e
