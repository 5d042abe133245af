#pragma once

#include <functional>

namespace korvane {

/// The whole run of the program, with the arguments of `main`. `begun` is called when the toolkit has
/// started. Returns the exit status.
int Start(int argc, char** argv, const std::function<void()>& begun = {});

} // namespace korvane
