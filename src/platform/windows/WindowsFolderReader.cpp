#include "platform/native/FolderReader.h"
#include "platform/native/NativePath.h"

#include <system_error>

namespace korvane {

namespace fs = std::filesystem;

struct FolderReader::Opened {
    fs::path folder;
    std::error_code error;
    fs::directory_iterator entry;
    bool started = false;

    explicit Opened(const fs::path& path) : folder(path), entry(path, error) {}
};

FolderReader::FolderReader(const fs::path& folder, Reach) : opened_(std::make_unique<Opened>(folder)) {}

FolderReader::~FolderReader() = default;

bool FolderReader::IsElsewhere() const {
    return false;
}

bool FolderReader::Next() {
    Opened& opened = *opened_;
    if (opened.started && opened.entry != fs::directory_iterator()) opened.entry.increment(opened.error);
    opened.started = true;
    return !opened.error && opened.entry != fs::directory_iterator();
}

Text FolderReader::Name() const {
    return FromNativePath(opened_->entry->path().filename());
}

bool FolderReader::MustBeAsked() const {
    std::error_code error;
    return opened_->entry->is_symlink(error);
}

bool FolderReader::IsFolder() const {
    std::error_code error;
    return opened_->entry->is_directory(error);
}

bool FolderReader::IsProgram() const {
    return system_calls::IsProgram(opened_->entry->path());
}

std::optional<system_calls::FileFacts> FolderReader::FactsOf(TextView name) const {
    return system_calls::FactsOf(opened_->folder / ToNativePath(name));
}

} // namespace korvane
