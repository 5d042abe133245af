#pragma once

#include "e2e/Events.h"

#include <filesystem>

namespace korvane::e2e {

/// Reports when a file in a folder was written and closed, moved there, or removed.
class FolderEvents final : public EventSource {
public:
    explicit FolderEvents(const std::filesystem::path& folder);
    FolderEvents(const FolderEvents&) = delete;
    FolderEvents& operator=(const FolderEvents&) = delete;
    ~FolderEvents() override;

    int Descriptor() const override { return descriptor_; }
    void Drain() override;

private:
    int descriptor_;
};

} // namespace korvane::e2e
