#include "platform/windows/ProcessCommandLine.h"

#include "common/text/CaseFold.h"

#include <algorithm>

namespace korvane {

namespace {

constexpr char16_t kQuote = u'"';
constexpr char16_t kBackslash = u'\\';
constexpr TextView kBlanks = u" \t";
constexpr TextView kNeedsQuotes = u" \t\n\v\"";

bool IsBatchFile(TextView program) {
    // The system drops points and blanks at the end of a name.
    const std::size_t last = program.find_last_not_of(u". ");
    const TextView name = program.substr(0, last == TextView::npos ? 0 : last + 1);
    return EndsWithIgnoringCase(name, u".bat") || EndsWithIgnoringCase(name, u".cmd");
}

bool HoldsNull(const Text& argument) {
    return argument.find(u'\0') != Text::npos;
}

bool CanBeStarted(TextView program, const std::vector<Text>& arguments) {
    constexpr TextView kInNoName(u"\"\0", 2);
    if (program.empty() || program.find_first_of(kInNoName) != TextView::npos) return false;
    if (!arguments.empty() && IsBatchFile(program)) return false;
    return std::ranges::none_of(arguments, HoldsNull);
}

/// Backslashes stand for themselves, except in front of a quote.
Text Quoted(TextView argument) {
    Text quoted(1, kQuote);
    std::size_t backslashes = 0;
    for (const char16_t character : argument) {
        if (character == kQuote) quoted.append(backslashes + 1, kBackslash);
        backslashes = character == kBackslash ? backslashes + 1 : 0;
        quoted += character;
    }
    quoted.append(backslashes, kBackslash);
    return quoted + kQuote;
}

bool NeedsQuotes(TextView argument) {
    return argument.empty() || argument.find_first_of(kNeedsQuotes) != TextView::npos;
}

/// Where the first word ends. It is the program's name, in which a backslash escapes no quote.
std::size_t EndOfProgramName(TextView commandLine) {
    bool quoted = false;
    for (std::size_t i = 0; i < commandLine.size(); ++i) {
        if (commandLine[i] == kQuote) quoted = !quoted;
        if (!quoted && kBlanks.find(commandLine[i]) != TextView::npos) return i;
    }
    return commandLine.size();
}

} // namespace

std::optional<Text> ProcessCommandLine(TextView program, const std::vector<Text>& arguments) {
    if (!CanBeStarted(program, arguments)) return std::nullopt;
    // Always in quotes: otherwise the system tries every blank of the name as its end.
    Text line = kQuote + Text(program) + kQuote;
    for (const Text& argument : arguments)
        line += u' ' + (NeedsQuotes(argument) ? Quoted(argument) : argument);
    return line;
}

TextView WithoutProgramName(TextView commandLine) {
    const TextView rest = commandLine.substr(EndOfProgramName(commandLine));
    const std::size_t first = rest.find_first_not_of(kBlanks);
    return first == TextView::npos ? TextView() : rest.substr(first);
}

} // namespace korvane
