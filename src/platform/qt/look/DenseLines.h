#pragma once

namespace korvane {

/// The property of a list and a text whose lines are beside each other: the lines of both have the height of
/// a line of text, and nothing above the first one.
inline constexpr auto kDenseLines = "denseLines";

} // namespace korvane
