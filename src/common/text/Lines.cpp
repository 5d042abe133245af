#include "common/text/Lines.h"

#include <algorithm>

namespace korvane {

std::size_t LineReader::FindEnd() const {
    switch (ends_) {
    case LineEnds::CrLf:
        return rest_.find("\r\n");
    case LineEnds::CrLfOrCr:
        return rest_.find('\r');
    case LineEnds::CrLfOrCrOrLf:
        return rest_.find_first_of("\r\n");
    }
    return std::string_view::npos;
}

bool LineReader::Next(std::string_view& line) {
    if (rest_.empty()) return false;
    const std::size_t end = std::min(FindEnd(), rest_.size());
    line = rest_.substr(0, end);
    rest_.remove_prefix(end);
    const std::size_t endLength = rest_.starts_with("\r\n") ? 2 : 1;
    rest_.remove_prefix(std::min(endLength, rest_.size()));
    return true;
}

} // namespace korvane
