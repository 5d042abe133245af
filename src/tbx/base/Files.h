#pragma once

#include "common/text/SharedBytes.h"
#include "tbx/base/Environment.h"

#include <optional>
#include <string>
#include <string_view>

namespace korvane {

/// The name that means the standard input or output.
inline constexpr std::string_view kStandardStream = "-";

/// All bytes of the file named by an argument, or of the standard input. When it can't be read the reason
/// goes to `err`.
std::optional<SharedBytes> ReadInput(const std::string& name, Environment& environment);

/// The same of a file that no argument names.
std::optional<SharedBytes> ReadFileAt(TextView path, Environment& environment);

/// Writes the bytes to the file named by an argument, or to the standard output. When that fails the reason
/// goes to `err`, and the file is as it was.
bool WriteOutput(const std::string& name, std::string_view bytes, Environment& environment);

/// The full path of the file named by an argument; the standard stream's name is left as it is.
Text PathOfArgument(const std::string& name, Environment& environment);

/// Whether both arguments lead to one file, by whatever names, or from the standard input to its own file.
bool LeadToOneFile(const std::string& in, const std::string& out, Environment& environment);

/// Refuses to write over the file from which the table came.
ExitStatus LeaveAsItWas(const std::string& name, Environment& environment);

/// The argument's name in quotes, for complaints.
std::string Quoted(std::string_view name);

} // namespace korvane
