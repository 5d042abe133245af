#pragma once

#include <functional>

namespace korvane {

/// Begins to wait for another program. The result is asked many times a second and tells whether the user
/// still wants to wait: once that takes long, a dialog offers to end it. The wait is over when the result is
/// destroyed.
std::function<bool()> BeginPatience();

} // namespace korvane
