#pragma once

#include "common/text/Text.h"

#include <QHash>
#include <QIcon>

namespace korvane {

/// The pictures of rows by their names, each made once: an icon of the program, or else one of the desktop,
/// or else a picture file.
class RowIcons {
public:
    const QIcon& Icon(TextView name);

private:
    QHash<QString, QIcon> icons_;
};

} // namespace korvane
