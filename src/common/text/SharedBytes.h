#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

namespace korvane {

/// A run of bytes that several holders share and nobody changes.
struct SharedBytes {
    std::shared_ptr<const char[]> data;
    std::size_t size = 0;

    std::string_view View() const { return {data.get(), size}; }
};

} // namespace korvane
