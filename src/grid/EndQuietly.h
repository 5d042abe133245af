#pragma once

#include <exception>
#include <utility>

namespace korvane {

/// Runs what a destructor has to do, and passes over what fails in it. The failure would end the program,
/// while what wasn't shown or noted comes with the next change.
template <class Task>
void EndQuietly(Task&& task) noexcept {
    try {
        std::forward<Task>(task)();
    } catch (const std::exception&) { // NOLINT(bugprone-empty-catch): see above
    }
}

} // namespace korvane
