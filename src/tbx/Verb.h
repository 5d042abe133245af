#pragma once

#include "common/text/CodePage.h"
#include "tbx/Output.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

class FileSystem;

/// What the command tells the shell that started it.
enum class ExitStatus {
    Success = 0,
    /// The command did its work and found something wrong, or nothing where it was to find something.
    Problem = 1,
    /// The arguments or a file prevented the work.
    Error = 2,
};

/// What a command works on and with.
struct Environment {
    FileSystem& files;
    Output& out;
    /// For the lines that say what is wrong.
    Output& err;
    /// Reads all of the standard input; nothing when that fails.
    std::function<std::optional<std::string>()> readInput;
    /// The code page of files for which none is named.
    CodePage page;
};

/// One call of a command, its arguments tested.
struct Call {
    std::vector<std::string> operands;
    CodePage page;
    char delimiter = ',';
};

/// One command of the program.
struct Verb {
    std::string_view name;
    /// As they stand in the usage line, separated by blanks.
    std::string_view operands;
    /// The letters of the options it takes beside the help.
    std::string_view options;
    std::string_view summary;
    /// Further lines of its help.
    std::string_view details;
    ExitStatus (*run)(const Call& call, Environment& environment);

    std::size_t OperandCount() const;
};

/// All commands in the order of the help.
std::span<const Verb> Verbs();

ExitStatus RunDump(const Call& call, Environment& environment);
ExitStatus RunRewrite(const Call& call, Environment& environment);
ExitStatus RunCsv(const Call& call, Environment& environment);
ExitStatus RunTsv(const Call& call, Environment& environment);
ExitStatus RunJson(const Call& call, Environment& environment);
ExitStatus RunImport(const Call& call, Environment& environment);
ExitStatus RunFind(const Call& call, Environment& environment);
ExitStatus RunInfo(const Call& call, Environment& environment);
ExitStatus RunCheck(const Call& call, Environment& environment);

/// Writes one line that says what is wrong; control characters in it become "?", so that it stays one line.
void Complain(Environment& environment, std::string_view what);

/// Complains, and gives the status for it.
ExitStatus Fail(Environment& environment, std::string_view what);

} // namespace korvane
