#pragma once

#include "platform/FileTypes.h"
#include "platform/SystemFileTypes.h"

#include <QMimeDatabase>
#include <QString>
#include <functional>
#include <map>
#include <unordered_map>
#include <utility>

namespace korvane {

/// The types of files in the desktop's MIME data, and the pictures of its icon theme. A type is found by the
/// extension of the name; a name without one has the type of unknown files.
class QtFileTypes final : public FileTypes {
public:
    /// Without what the system itself knows, there are only the MIME data. It outlives the object.
    explicit QtFileTypes(const SystemFileTypes* system = nullptr) : system_(system) {}

    bool PrepareImages() override;
    const FileType& TypeOf(TextView path) override;
    Text OwnImage(TextView path) override { return system_ == nullptr ? Text() : system_->OwnImage(path); }

private:
    /// So that a text isn't copied to look for it.
    struct HashOfText : std::hash<TextView> {
        using is_transparent = void;
    };

    const FileType& Ask(TextView extension);
    const FileType& TypeOfMime(const QString& extension, const QMimeType& mime);
    FileType Described(TextView extension, const QMimeType& mime, const Text& systemName) const;

    const SystemFileTypes* system_;
    QMimeDatabase database_;
    QString theme_;
    /// By extension, without its dot. Several of them may have one type.
    std::unordered_map<Text, const FileType*, HashOfText, std::equal_to<>> byExtension_;
    /// By the names of the MIME data, or by those of the system.
    std::map<QString, FileType> types_;
};

} // namespace korvane
