#pragma once

#include "e2e/Events.h"

#include <filesystem>

namespace korvane::e2e {

/// Reports when a file in one of its folders was made, written and closed, moved, or removed.
class FolderEvents final : public EventSource {
public:
    explicit FolderEvents(const std::filesystem::path& folder);
    FolderEvents(const FolderEvents&) = delete;
    FolderEvents& operator=(const FolderEvents&) = delete;
    ~FolderEvents() override;

    /// The folders in a folder aren't watched with it.
    void Watch(const std::filesystem::path& folder);

    int Descriptor() const override { return descriptor_; }
    void Drain() override;

private:
    int descriptor_;
};

} // namespace korvane::e2e
