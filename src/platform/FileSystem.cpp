#include "platform/FileSystem.h"

namespace korvane {

namespace {

class DetailsByPath final : public FolderDetails {
public:
    DetailsByPath(const FileSystem& files, TextView folder) : files_(files), folder_(folder) {}

    std::optional<FileDetails> Of(TextView name) const override {
        return files_.Details(files_.Style().JoinPath(folder_, name));
    }

private:
    const FileSystem& files_;
    Text folder_;
};

} // namespace

bool FileSystem::ReadInPieces(TextView path, const TakePiece& take) {
    const auto bytes = ReadAll(path);
    if (bytes) take(bytes->View());
    return bytes.has_value();
}

std::vector<Text> FileSystem::FileNamesInSteps(TextView folder, TextView patterns,
                                               const ReadsOn& readsOn) const {
    std::vector<Text> names = FileNames(folder, patterns);
    for (std::size_t found = kEntriesInStep; found <= names.size(); found += kEntriesInStep) {
        if (!readsOn(found)) names.resize(found);
    }
    return names;
}

std::unique_ptr<FolderDetails> FileSystem::DetailsIn(TextView folder) const {
    return std::make_unique<DetailsByPath>(*this, folder);
}

} // namespace korvane
