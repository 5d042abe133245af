#include "tbx/Tbx.h"

#include "tbx/Help.h"
#include "tbx/Verb.h"
#include "tbx/base/LookOptions.h"
#include "tbx/base/ParsedArguments.h"

#include <algorithm>
#include <charconv>
#include <new>
#include <optional>

namespace korvane {

namespace {

const Verb* FindVerb(std::string_view name) {
    const auto verbs = Verbs();
    const auto found =
        std::find_if(verbs.begin(), verbs.end(), [&](const Verb& v) { return v.name == name; });
    return found == verbs.end() ? nullptr : &*found;
}

std::optional<CodePage> ReadCodePage(const std::string& value) {
    int number = 0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
    if (error != std::errc{} || end != value.data() + value.size()) return std::nullopt;
    return CodePage::ForNumber(number);
}

std::optional<char> ReadDelimiter(const std::string& value) {
    if (value == "tab") return '\t';
    const bool usable = value.size() == 1 &&
                        std::string_view("\"\r\n").find(value[0]) == std::string_view::npos &&
                        static_cast<unsigned char>(value[0]) < 0x80;
    return usable ? std::optional(value[0]) : std::nullopt;
}

/// Tests the arguments of one command and runs it.
class VerbCall {
public:
    VerbCall(const Verb& verb, const ParsedArguments& parsed, Environment& environment)
        : verb_(verb),
          parsed_(parsed),
          environment_(environment),
          call_{{parsed.words.begin() + 1, parsed.words.end()}, environment.page, ',', {}, {}, {}} {}

    ExitStatus Run() {
        std::string fault = OptionFault();
        if (fault.empty()) fault = OperandFault();
        if (fault.empty()) fault = ReadOptions();
        if (!fault.empty()) return Fail(environment_, fault);
        try {
            return verb_.run(call_, environment_);
        } catch (const std::bad_alloc&) {
            return Fail(environment_, "there isn't enough memory");
        }
    }

private:
    std::string OptionFault() const {
        for (const OptionSpec& option : OptionSpecs()) {
            const bool given = parsed_.options.contains(option.letter);
            if (given && verb_.options.find(option.letter) == verb_.options.npos)
                return std::string(verb_.name) + " takes no option --" + std::string(option.name);
        }
        return {};
    }

    std::string OperandFault() const {
        const std::size_t count = call_.operands.size();
        const bool tooFew = count < verb_.LeastOperands();
        if (!tooFew && count <= verb_.MostOperands()) return {};
        return std::string(tooFew ? "too few" : "too many") + " arguments; usage: " + UsageLine(verb_);
    }

    std::string ReadOptions() {
        for (const auto& [letter, value] : parsed_.options) {
            const std::string fault = ReadOption(letter, value);
            if (!fault.empty()) return fault;
        }
        return {};
    }

    std::string ReadOption(char letter, const std::string& value) {
        if (letter == 'p') {
            const auto page = ReadCodePage(value);
            if (!page) return "the code page has to be 874 or 1250 to 1258, not \"" + value + "\"";
            call_.page = *page;
        } else if (letter == 'd') {
            const auto delimiter = ReadDelimiter(value);
            if (!delimiter) return "the delimiter has to be one character, not \"" + value + "\"";
            call_.delimiter = *delimiter;
        } else if (letter == 'r') {
            call_.restore = value;
        } else if (letter == 'D') {
            call_.diff = value;
        } else {
            return ReadLook(letter, value, call_.look);
        }
        return {};
    }

    const Verb& verb_;
    const ParsedArguments& parsed_;
    Environment& environment_;
    Call call_;
};

} // namespace

ExitStatus RunTbx(std::span<const std::string> arguments, Environment& environment) {
    const ParsedArguments parsed = ParseArguments(arguments);
    if (!parsed.fault.empty()) return Fail(environment, parsed.fault);
    if (parsed.options.contains('V')) {
        environment.out.Write(VersionText());
        return ExitStatus::Success;
    }
    const bool help = parsed.options.contains('h');
    if (parsed.words.empty() && !help) return Fail(environment, "no command given; try tbx --help");
    const Verb* verb = parsed.words.empty() ? nullptr : FindVerb(parsed.words.front());
    if (!verb && !parsed.words.empty())
        return Fail(environment, "there is no command \"" + parsed.words.front() + "\"; try tbx --help");
    if (help) {
        environment.out.Write(verb ? VerbHelp(*verb) : GeneralHelp());
        return ExitStatus::Success;
    }
    return VerbCall(*verb, parsed, environment).Run();
}

} // namespace korvane
