#pragma once

#include "platform/FileTypes.h"

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
    /// The name that the system itself has for files with this extension, in place of that in the MIME data;
    /// empty for none.
    using SystemName = std::function<Text(TextView extension)>;

    explicit QtFileTypes(SystemName systemName = {}) : systemName_(std::move(systemName)) {}

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
    const FileType& Named(const QString& key, const Text& name, const QMimeType& mime);

    SystemName systemName_;
    QMimeDatabase database_;
    QString theme_;
    /// By extension, without its dot. Several of them may have one type.
    std::unordered_map<Text, const FileType*, HashOfText, std::equal_to<>> byExtension_;
    /// By the names of the MIME data, or by those of the system.
    std::map<QString, FileType> types_;
};

} // namespace korvane
