#include "tbx/base/Environment.h"

#include <algorithm>

namespace korvane {

void Complain(Environment& environment, std::string_view what) {
    std::string line = "tbx: " + std::string(what);
    const auto isControl = [](char byte) { return static_cast<unsigned char>(byte) < 0x20 || byte == 0x7F; };
    std::replace_if(line.begin(), line.end(), isControl, '?');
    environment.err.Write(line + "\n");
}

ExitStatus Fail(Environment& environment, std::string_view what) {
    Complain(environment, what);
    return ExitStatus::Error;
}

} // namespace korvane
