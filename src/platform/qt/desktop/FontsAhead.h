#pragma once

#include <thread>

namespace korvane {

/// Has the list of the system's fonts read in a thread of its own, while Qt starts. Qt asks for the list when
/// the first text is measured, which waits until the list is there.
class FontsAhead {
public:
    FontsAhead();
    FontsAhead(const FontsAhead&) = delete;
    FontsAhead& operator=(const FontsAhead&) = delete;
    ~FontsAhead();

private:
    std::thread reading_;
};

} // namespace korvane
