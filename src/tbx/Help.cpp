#include "tbx/Help.h"

#include "tbx/base/ParsedArguments.h"

#include <algorithm>

namespace korvane {

namespace {

/// More options than these are only listed below the usage line.
constexpr std::size_t kMostInLine = 4;

void AddColumns(std::string_view left, std::size_t width, std::string_view right, std::string& text) {
    text += "  ";
    text += left;
    text.append(left.size() < width ? width - left.size() : 0, ' ');
    text += "  ";
    text += right;
    text += '\n';
}

std::string OptionNames(const OptionSpec& option) {
    std::string names = std::string("-") + option.letter + ", --" + std::string(option.name);
    if (!option.value.empty()) names += " " + std::string(option.value);
    return names;
}

template <class Predicate>
void AddOptions(std::string& text, Predicate wanted) {
    text += "\nOptions:\n";
    for (const OptionSpec& option : OptionSpecs())
        if (wanted(option)) AddColumns(OptionNames(option), 22, option.summary, text);
}

} // namespace

std::string UsageLine(const Verb& verb) {
    std::string line = "tbx " + std::string(verb.name);
    if (verb.options.size() > kMostInLine) {
        line += " [OPTION]...";
    } else {
        for (const OptionSpec& option : OptionSpecs()) {
            if (verb.options.find(option.letter) == verb.options.npos) continue;
            line += std::string(" [-") + option.letter + " " + std::string(option.value) + "]";
        }
    }
    return line + " " + std::string(verb.operands);
}

std::string GeneralHelp() {
    std::string text = "Usage: tbx COMMAND [OPTION]... FILE...\n"
                       "Works on the tables of Korvane (.tbx files) from the command line.\n"
                       "\nCommands:\n";
    for (const Verb& verb : Verbs())
        AddColumns(std::string(verb.name) + " " + std::string(verb.operands), 24, verb.summary, text);
    AddOptions(text, [](const OptionSpec&) { return true; });
    return text + "\nFILE may be - for the standard input, OUT for the standard output.\n"
                  "Exit status: 0 done, 1 a problem or nothing found, 2 wrong use or file error.\n"
                  "tbx COMMAND --help tells more about a command.\n";
}

std::string VerbHelp(const Verb& verb) {
    std::string text = "Usage: " + UsageLine(verb) + "\n" + std::string(verb.summary) + ".\n";
    if (!verb.details.empty()) text += "\n" + std::string(verb.details);
    AddOptions(text, [&](const OptionSpec& option) {
        return option.letter == 'h' || verb.options.find(option.letter) != verb.options.npos;
    });
    return text;
}

std::string VersionText() {
    return "tbx (Korvane) " KORVANE_VERSION "\n";
}

} // namespace korvane
