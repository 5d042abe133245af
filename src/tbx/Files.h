#pragma once

#include "common/text/SharedBytes.h"
#include "tbx/Environment.h"

#include <optional>
#include <string>
#include <string_view>

namespace korvane {

/// The name that means the standard input or output.
inline constexpr std::string_view kStandardStream = "-";

/// All bytes of the file named by an argument, or of the standard input. When it can't be read the reason
/// goes to `err`.
std::optional<SharedBytes> ReadInput(const std::string& name, Environment& environment);

/// Writes the bytes to the file named by an argument, or to the standard output. When that fails the reason
/// goes to `err`. What the file held before is gone either way.
bool WriteOutput(const std::string& name, std::string_view bytes, Environment& environment);

/// The full path of the file named by an argument; the standard stream's name is left as it is.
Text PathOfArgument(const std::string& name, Environment& environment);

/// The argument's name in quotes, for complaints.
std::string Quoted(std::string_view name);

} // namespace korvane
