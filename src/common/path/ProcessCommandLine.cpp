#include "common/path/ProcessCommandLine.h"

#include "common/text/CaseFold.h"

#include <algorithm>

namespace korvane {

namespace {

constexpr char16_t kQuote = u'"';
constexpr char16_t kBackslash = u'\\';
constexpr TextView kBlanks = u" \t";
constexpr TextView kNeedsQuotes = u" \t\n\v\"";

/// The greatest length of a command for the command interpreter.
constexpr std::size_t kLongestCommand = 8191;

/// The name without the dots and blanks at its end, which Windows ignores.
TextView WithoutEnd(TextView program) {
    const std::size_t last = program.find_last_not_of(u". ");
    return program.substr(0, last == TextView::npos ? 0 : last + 1);
}

bool IsBatchFile(TextView name) {
    return EndsWithIgnoringCase(name, u".bat") || EndsWithIgnoringCase(name, u".cmd");
}

bool HoldsNull(const Text& argument) {
    return argument.find(u'\0') != Text::npos;
}

bool CanBeStarted(TextView program, const std::vector<Text>& arguments) {
    constexpr TextView kInNoName(u"\"\0", 2);
    if (program.empty() || program.find_first_of(kInNoName) != TextView::npos) return false;
    return std::ranges::none_of(arguments, HoldsNull);
}

/// Backslashes must be doubled before a quote. Elsewhere they are taken literally.
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

/// Whether a batch file may get the argument. When the batch file uses it, the interpreter reads it a second
/// time. A quote in it would then end the quotes around it, and a line end would end the command.
bool IsSafeForBatchFile(const Text& argument) {
    return std::ranges::none_of(argument, [](char16_t each) { return each == kQuote || each < u' '; });
}

/// Whether this is the second code unit of a character that has two.
bool IsSecondHalf(char16_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// The argument in a form that the interpreter passes on unchanged. A caret before a character takes away its
/// special meaning. This works for a percent sign too, because no variable has a name with carets.
Text Careted(TextView argument) {
    Text careted;
    for (const char16_t unit : argument) {
        if (!IsSecondHalf(unit)) careted += u'^';
        careted += unit;
    }
    return careted;
}

/// Whether the name is safe between quotes without carets. There only a percent sign has a special meaning.
bool IsSafeInPlainQuotes(TextView name) {
    return name.find(u'%') == TextView::npos &&
           std::ranges::none_of(name, [](char16_t each) { return each < u' '; });
}

std::optional<Text> BatchCommandLine(TextView batch, const std::vector<Text>& arguments,
                                     TextView interpreter) {
    if (!IsSafeInPlainQuotes(batch) || !std::ranges::all_of(arguments, IsSafeForBatchFile))
        return std::nullopt;
    Text command = kQuote + Text(batch) + kQuote;
    for (const Text& argument : arguments)
        command += u' ' + Careted(Quoted(argument));
    if (command.size() > kLongestCommand) return std::nullopt;
    // /d runs no commands of the user's own first, /v:off leaves "!" alone, and /s always removes the outer
    // quotes.
    return kQuote + Text(interpreter) + u"\" /d /v:off /s /c \"" + command + kQuote;
}

/// The end of the first word, which is the program's name. In it a backslash before a quote has no special
/// meaning.
std::size_t EndOfProgramName(TextView commandLine) {
    bool quoted = false;
    for (std::size_t i = 0; i < commandLine.size(); ++i) {
        if (commandLine[i] == kQuote) quoted = !quoted;
        if (!quoted && kBlanks.find(commandLine[i]) != TextView::npos) return i;
    }
    return commandLine.size();
}

} // namespace

std::optional<Text> ProcessCommandLine(TextView program, const std::vector<Text>& arguments,
                                       TextView interpreter) {
    if (!CanBeStarted(program, arguments)) return std::nullopt;
    const TextView name = WithoutEnd(program);
    if (IsBatchFile(name) && !arguments.empty()) return BatchCommandLine(name, arguments, interpreter);
    // Without quotes Windows would try each blank as the end of the program's name.
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
