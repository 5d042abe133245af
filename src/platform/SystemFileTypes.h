#pragma once

#include "common/text/Text.h"

namespace korvane {

/// What the system itself tells of files, where it is more than the desktop knows. The texts are empty for
/// what it doesn't know.
class SystemFileTypes {
public:
    virtual ~SystemFileTypes() = default;

    /// The name and the picture of files with this extension, which has no dot.
    virtual Text NameOf(TextView extension) const = 0;
    virtual Text ImageOf(TextView extension) const = 0;
    /// The picture that the file itself carries.
    virtual Text OwnImage(TextView path) const = 0;
};

} // namespace korvane
