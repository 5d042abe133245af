#pragma once

#include "common/text/CodePage.h"
#include "common/text/Text.h"
#include "tbx/base/Output.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace korvane {

class FileSystem;

/// What the command tells the shell that started it.
enum class ExitStatus {
    Success = 0,
    /// The command did its work and found something wrong, or found nothing when it looked for something.
    Problem = 1,
    /// The arguments or a file prevented the work.
    Error = 2,
};

/// What a command works with.
struct Environment {
    FileSystem& files;
    Output& out;
    /// For the lines that say what is wrong.
    Output& err;
    /// Reads all of the standard input; nothing when that fails.
    std::function<std::optional<std::string>()> readInput;
    /// The code page of files for which none is named.
    CodePage page;
    /// The folder of what the program keeps of tables; empty for none.
    Text keptFolder{};
    /// Whether the standard input is read from the file at this path.
    std::function<bool(TextView)> isInput{};
};

/// Writes one line that says what is wrong; control characters in it become "?", so that it stays one line.
void Complain(Environment& environment, std::string_view what);

/// Complains, and gives the status for it.
ExitStatus Fail(Environment& environment, std::string_view what);

} // namespace korvane
