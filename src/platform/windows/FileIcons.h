#pragma once

#include "common/text/Text.h"

#include <cstdint>
#include <vector>

namespace korvane {

/// The name of the picture that Windows has for files with this extension, which has no dot.
Text TypeIconName(TextView extension);

/// The name of the picture that a program carries, or that of what a shortcut leads to; empty for a program
/// without one. The file is read.
Text OwnIconName(TextView path);

/// A picture from its upper left pixel to its lower right one. Each pixel is 0xAARRGGBB.
struct IconPixels {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> argb{};
};

/// The picture with such a name, in the sizes that the system has; none for another name.
std::vector<IconPixels> FileIcon(TextView name);

} // namespace korvane
