#pragma once

#include "platform/FileTypes.h"

#include <QMimeDatabase>
#include <QString>
#include <functional>
#include <map>
#include <unordered_map>

namespace korvane {

/// The types of files in the desktop's MIME data, and the pictures of its icon theme. A type is found by the
/// extension of the name; a name without one has the type of unknown files.
class QtFileTypes final : public FileTypes {
public:
    bool PrepareImages() override;
    const FileType& TypeOf(TextView path) override;
    /// Files carry no pictures on this desktop.
    Text OwnImage(TextView) override { return {}; }

private:
    /// So that a text isn't copied to look for it.
    struct HashOfText : std::hash<TextView> {
        using is_transparent = void;
    };

    const FileType& Ask(TextView extension);
    const FileType& TypeOfMime(const QString& extension, const QMimeType& mime);

    QMimeDatabase database_;
    QString theme_;
    /// By extension, without its dot. Several of them may have one type.
    std::unordered_map<Text, const FileType*, HashOfText, std::equal_to<>> byExtension_;
    /// By the names of the MIME data.
    std::map<QString, FileType> types_;
};

} // namespace korvane
