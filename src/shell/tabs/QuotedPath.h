#pragma once

#include "common/text/Text.h"

namespace korvane {

/// A path that stands between double quotes, without this one pair; any other as it is.
inline Text WithoutOuterQuotes(TextView path) {
    const bool quoted = path.size() >= 2 && path.starts_with(u'"') && path.ends_with(u'"');
    return Text(quoted ? path.substr(1, path.size() - 2) : path);
}

} // namespace korvane
