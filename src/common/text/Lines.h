#pragma once

#include <cstdint>
#include <string_view>

namespace korvane {

/// What ends a line of a file. The rest after the last line end is a line too, unless it is empty.
enum class LineEnds : std::uint8_t { CrLf, CrLfOrCr, CrLfOrCrOrLf };

/// Walks the lines of a file's bytes, which outlive it.
class LineReader {
public:
    LineReader(std::string_view bytes, LineEnds ends) : rest_(bytes), ends_(ends) {}

    /// False, with `line` as it was, at the end of the file.
    bool Next(std::string_view& line);

private:
    std::size_t FindEnd() const;

    std::string_view rest_;
    LineEnds ends_;
};

} // namespace korvane
