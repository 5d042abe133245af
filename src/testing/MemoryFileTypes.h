#pragma once

#include "platform/FileTypes.h"

#include <algorithm>
#include <functional>
#include <map>
#include <utility>
#include <vector>

namespace korvane {

/// Types of files that a test sets, by the extension of the name.
class MemoryFileTypes final : public FileTypes {
public:
    bool PrepareImages() override {
        ++preparations_;
        return hasImages_;
    }
    const FileType& TypeOf(TextView path) override {
        const auto found = types_.find(Text(path.substr(std::min(path.rfind(u'.'), path.size()))));
        return found == types_.end() ? other_ : found->second;
    }
    Text OwnImage(TextView path) override {
        read_.emplace_back(path);
        const auto found = ownImages_.find(path);
        return found == ownImages_.end() ? Text() : found->second;
    }

    /// The extension is written with its dot: ".exe".
    void SetType(TextView extension, FileType type) { types_[Text(extension)] = std::move(type); }
    /// The type of all other names.
    void SetOtherType(FileType type) { other_ = std::move(type); }
    void SetOwnImage(TextView path, TextView image) { ownImages_[Text(path)] = image; }
    void SetHasImages(bool hasImages) { hasImages_ = hasImages; }

    /// How often a list was about to be filled.
    int Preparations() const { return preparations_; }
    /// The paths of the files that were read for their pictures, in order.
    const std::vector<Text>& FilesRead() const { return read_; }

private:
    std::map<Text, FileType, std::less<>> types_;
    FileType other_{.name = u"File", .image = u"fileOther"};
    std::map<Text, Text, std::less<>> ownImages_;
    std::vector<Text> read_;
    bool hasImages_ = true;
    int preparations_ = 0;
};

} // namespace korvane
