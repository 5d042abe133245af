#pragma once

#include "tbx/base/Call.h"
#include "tbx/base/Environment.h"

#include <cstddef>
#include <span>
#include <string_view>

namespace korvane {

/// One command of the program.
struct Verb {
    std::string_view name;
    /// The words for them in the usage line, separated by blanks. One in brackets may be left out.
    std::string_view operands;
    /// The letters of its options, besides that of the help.
    std::string_view options;
    std::string_view summary;
    /// Further lines of its help.
    std::string_view details;
    ExitStatus (*run)(const Call& call, Environment& environment);

    std::size_t MostOperands() const;
    std::size_t LeastOperands() const;
};

/// All commands in the order of the help.
std::span<const Verb> Verbs();

ExitStatus RunDump(const Call& call, Environment& environment);
ExitStatus RunRewrite(const Call& call, Environment& environment);
ExitStatus RunCsv(const Call& call, Environment& environment);
ExitStatus RunTsv(const Call& call, Environment& environment);
ExitStatus RunJson(const Call& call, Environment& environment);
ExitStatus RunRtf(const Call& call, Environment& environment);
ExitStatus RunHtml(const Call& call, Environment& environment);
ExitStatus RunDocx(const Call& call, Environment& environment);
ExitStatus RunImport(const Call& call, Environment& environment);
ExitStatus RunFind(const Call& call, Environment& environment);
ExitStatus RunInfo(const Call& call, Environment& environment);
ExitStatus RunKept(const Call& call, Environment& environment);
ExitStatus RunCheck(const Call& call, Environment& environment);

} // namespace korvane
