#pragma once

#include "common/number/Units.h"
#include "common/text/Text.h"

#include <optional>

namespace korvane {

struct PictureSize {
    Twips width, height;
    bool operator==(const PictureSize&) const = default;
};

/// What is known of the pictures in files.
class PictureFiles {
public:
    virtual ~PictureFiles() = default;
    /// The size in which the picture is shown as it is, read from the head of the file. Nothing for a file
    /// that is no picture of a known kind.
    virtual std::optional<PictureSize> NaturalSize(TextView path) = 0;
};

} // namespace korvane
