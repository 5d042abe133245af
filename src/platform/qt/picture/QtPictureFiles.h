#pragma once

#include "context/ports/PictureFiles.h"

namespace korvane {

/// JPEG, PNG, BMP and GIF files. One of their pixels is one of the screen's.
class QtPictureFiles final : public PictureFiles {
public:
    std::optional<PictureSize> NaturalSize(TextView path) override;
};

} // namespace korvane
