#pragma once

#include "common/text/Text.h"

namespace korvane {

/// The path without the pair of double quotes around it. A path without such a pair is returned as it is.
inline Text WithoutOuterQuotes(TextView path) {
    const bool quoted = path.size() >= 2 && path.starts_with(u'"') && path.ends_with(u'"');
    return Text(quoted ? path.substr(1, path.size() - 2) : path);
}

} // namespace korvane
