#pragma once

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

/// An option that commands can take. It is known by its letter: `-p 1250`, `-p1250`, `--code-page 1250` and
/// `--code-page=1250` are the same.
struct OptionSpec {
    char letter;
    std::string_view name;
    /// The word for the value in the help; empty for an option without one.
    std::string_view value;
    std::string_view summary;
};

std::span<const OptionSpec> OptionSpecs();

/// The arguments, sorted. Options may come before, between and after the words. After `--` all arguments are
/// words, and a lone `-` is always one.
struct ParsedArguments {
    std::vector<std::string> words;
    /// Value by letter; of an option given twice the last counts.
    std::map<char, std::string> options;
    /// What is wrong with the arguments; empty when nothing is.
    std::string fault;
};

ParsedArguments ParseArguments(std::span<const std::string> arguments);

} // namespace korvane
