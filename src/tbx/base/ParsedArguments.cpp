#include "tbx/base/ParsedArguments.h"

#include <algorithm>
#include <array>

namespace korvane {

namespace {

constexpr std::array kOptions{
    OptionSpec{'d', "delimiter", "CHAR", "what separates the fields of CSV, or \"tab\""},
    OptionSpec{'p', "code-page", "NUMBER", "code page of .tbx files: 874 or 1250 to 1258"},
    OptionSpec{'r', "restore", "N", "write the kept table N to OUT"},
    OptionSpec{'D', "diff", "N", "write the rows that differ from the kept table N"},
    OptionSpec{'t', "titles", "", "begin a document's table with the column names"},
    OptionSpec{'b', "first-back", "COLOUR", "background of the first row, as #RRGGBB"},
    OptionSpec{'f', "first-fore", "COLOUR", "text of the first row, as #RRGGBB"},
    OptionSpec{'a', "alternate", "COLOUR", "background of every other row, as #RRGGBB"},
    OptionSpec{'l', "left", "TWIPS", "where the table begins: 0 to 32767, 0 unless given"},
    OptionSpec{'w', "border", "TWIPS", "width of the lines: 0 to 128, 0 unless given"},
    OptionSpec{'g', "gap", "TWIPS", "room beside the texts: 0 to 160, 0 unless given"},
    OptionSpec{'h', "help", "", "show help, of a command when one is named"},
    OptionSpec{'V', "version", "", "show the version"},
};

template <class Predicate>
const OptionSpec* FindOption(Predicate fits) {
    const auto found = std::find_if(kOptions.begin(), kOptions.end(), fits);
    return found == kOptions.end() ? nullptr : &*found;
}

/// Walks over the arguments and sorts them into words and options.
class Parser {
public:
    Parser(std::span<const std::string> arguments, ParsedArguments& parsed)
        : rest_(arguments), parsed_(parsed) {}

    void Parse() {
        bool wordsOnly = false;
        while (!rest_.empty() && parsed_.fault.empty()) {
            const std::string_view argument = TakeNext();
            if (wordsOnly || argument.size() < 2 || argument[0] != '-')
                parsed_.words.emplace_back(argument);
            else if (argument == "--")
                wordsOnly = true;
            else if (argument.starts_with("--"))
                ParseLong(argument.substr(2));
            else
                ParseLetters(argument.substr(1));
        }
    }

private:
    std::string_view TakeNext() {
        const std::string_view next = rest_.front();
        rest_ = rest_.subspan(1);
        return next;
    }

    void ParseLong(std::string_view argument) {
        const std::size_t equals = argument.find('=');
        const std::string_view name = argument.substr(0, equals);
        const OptionSpec* option = FindOption([&](const auto& spec) { return spec.name == name; });
        if (!option)
            Fail("there is no option --" + std::string(name));
        else if (equals == argument.npos)
            Store(*option);
        else if (option->value.empty())
            Fail("the option --" + std::string(name) + " takes no value");
        else
            parsed_.options[option->letter] = argument.substr(equals + 1);
    }

    void ParseLetters(std::string_view letters) {
        while (!letters.empty() && parsed_.fault.empty()) {
            const char letter = letters.front();
            letters.remove_prefix(1);
            const OptionSpec* option = FindOption([&](const auto& spec) { return spec.letter == letter; });
            if (!option) {
                Fail(std::string("there is no option -") + letter);
            } else if (option->value.empty() || letters.empty()) {
                Store(*option);
            } else {
                parsed_.options[letter] = letters;
                return;
            }
        }
    }

    /// Stores an option whose value, if it takes one, is the next argument.
    void Store(const OptionSpec& option) {
        if (option.value.empty())
            parsed_.options[option.letter] = {};
        else if (rest_.empty())
            Fail("the option --" + std::string(option.name) + " needs a value");
        else
            parsed_.options[option.letter] = TakeNext();
    }

    void Fail(std::string fault) { parsed_.fault = std::move(fault); }

    std::span<const std::string> rest_;
    ParsedArguments& parsed_;
};

} // namespace

std::span<const OptionSpec> OptionSpecs() {
    return kOptions;
}

ParsedArguments ParseArguments(std::span<const std::string> arguments) {
    ParsedArguments parsed;
    Parser(arguments, parsed).Parse();
    return parsed;
}

} // namespace korvane
