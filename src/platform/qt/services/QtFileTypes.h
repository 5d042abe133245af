#pragma once

#include "platform/FileTypes.h"

#include <QHash>
#include <QMimeDatabase>
#include <QString>
#include <QStringView>
#include <map>

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
    const FileType& Ask(const QString& extension);
    const FileType& TypeOfMime(const QString& extension, const QMimeType& mime);

    QMimeDatabase database_;
    QString theme_;
    /// By extension, without its dot. Several of them may have one type.
    QHash<QString, const FileType*> byExtension_;
    /// By the names of the MIME data.
    std::map<QString, FileType> types_;
};

} // namespace korvane
