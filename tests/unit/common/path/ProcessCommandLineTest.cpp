#include "common/path/ProcessCommandLine.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

constexpr TextView kInterpreter = u"C:\\Windows\\system32\\cmd.exe";

std::optional<Text> LineOf(TextView program, const std::vector<Text>& arguments) {
    return ProcessCommandLine(program, arguments, kInterpreter);
}

Text Line(const std::vector<Text>& arguments) {
    return LineOf(u"C:\\My Tools\\a.exe", arguments).value_or(u"(none)");
}

/// Does what the command interpreter does with a line after "/s /c": it removes the outer quotes, replaces
/// variables by their values, and then removes carets outside of quotes. The test fails if the line has more
/// than one command.
class Interpreter {
public:
    /// The arguments that the batch file gets, as one text.
    Text Read(TextView line) {
        const Text start = kQuoted + u" /d /v:off /s /c \"";
        EXPECT_TRUE(line.starts_with(start)) << ToUtf8(line);
        EXPECT_TRUE(line.ends_with(u'"'));
        line.remove_prefix(start.size());
        line.remove_suffix(1);
        return TakeCommand(WithVariables(line));
    }

private:
    /// A variable's name is between two percent signs. A name without a variable stays as it is.
    static Text WithVariables(TextView line) {
        Text replaced(line);
        for (const TextView name : {u"PATH", u"a", u"CD", u"cd:~,", u" "})
            Replace(replaced, u"%" + Text(name) + u"%", u"& calc.exe ");
        return replaced;
    }
    static void Replace(Text& text, const Text& part, const Text& by) {
        for (std::size_t at = 0; (at = text.find(part, at)) != Text::npos; at += by.size())
            text.replace(at, part.size(), by);
    }
    static Text TakeCommand(TextView line) {
        Text taken;
        bool quoted = false;
        for (std::size_t at = 0; at < line.size(); ++at) {
            if (line[at] == u'"') quoted = !quoted;
            if (!quoted && line[at] == u'^') {
                taken += line[++at];
                continue;
            }
            const bool isMore = !quoted && TextView(u"&|<>()\n").find(line[at]) != TextView::npos;
            EXPECT_FALSE(isMore) << "the command ends at " << at << " of " << ToUtf8(line);
            taken += line[at];
        }
        EXPECT_FALSE(quoted) << ToUtf8(line);
        return taken;
    }

    const Text kQuoted = u'"' + Text(kInterpreter) + u'"';
};

TEST(ProcessCommandLine, TheProgramStandsInQuotesSoThatNoBlankEndsItsName) {
    EXPECT_EQ(Line({}), u"\"C:\\My Tools\\a.exe\"");
    EXPECT_EQ(LineOf(u"calc.exe", {}), u"\"calc.exe\"");
}

TEST(ProcessCommandLine, PlainArgumentsStandAsTheyAre) {
    EXPECT_EQ(Line({u"/root,::{645FF040}", u"C:\\b\\", u"*.tbx"}),
              u"\"C:\\My Tools\\a.exe\" /root,::{645FF040} C:\\b\\ *.tbx");
}

TEST(ProcessCommandLine, QuotesHoldTogetherWhatIsOneArgument) {
    EXPECT_EQ(Line({u"a b", u"", u"a\tb"}), u"\"C:\\My Tools\\a.exe\" \"a b\" \"\" \"a\tb\"");
}

TEST(ProcessCommandLine, QuotesOfAnArgumentAreEscapedAndBackslashesInFrontOfThem) {
    EXPECT_EQ(Line({u"a\"b"}), u"\"C:\\My Tools\\a.exe\" \"a\\\"b\"");
    EXPECT_EQ(Line({u"a\\\"b"}), u"\"C:\\My Tools\\a.exe\" \"a\\\\\\\"b\"");
    EXPECT_EQ(Line({u"a b\\"}), u"\"C:\\My Tools\\a.exe\" \"a b\\\\\"");
    EXPECT_EQ(Line({u"a\\b c"}), u"\"C:\\My Tools\\a.exe\" \"a\\b c\"");
}

TEST(ProcessCommandLine, ThereIsNoneForWhatIsNoProgramsName) {
    EXPECT_FALSE(LineOf(u"", {}));
    EXPECT_FALSE(LineOf(u"a\" b.exe", {}));
    EXPECT_FALSE(LineOf(Text(u"a.exe\0b", 7), {}));
    EXPECT_FALSE(LineOf(u"a.exe", {Text(u"b\0c", 3)}));
}

TEST(ProcessCommandLineOfABatchFile, NamesTheInterpreterWhereThereAreArguments) {
    EXPECT_EQ(LineOf(u"C:\\My Tools\\a.bat", {u"b&c", u"%d"}),
              u"\"C:\\Windows\\system32\\cmd.exe\" /d /v:off /s /c "
              u"\"\"C:\\My Tools\\a.bat\" ^\"^b^&^c^\" ^\"^%^d^\"\"");
    EXPECT_EQ(LineOf(u"C:\\My Tools\\a.bat", {}), u"\"C:\\My Tools\\a.bat\"");
}

TEST(ProcessCommandLineOfABatchFile, IsMadeByTheNameThatTheSystemSees) {
    for (const TextView name : {u"C:\\a.bat", u"C:\\a.CMD", u"C:\\a.bat. ", u"C:\\a.cmd .."}) {
        const Text command = u"\"\"" + Text(name.substr(0, 8)) + u"\" ^\"^b^\"\"";
        EXPECT_TRUE(LineOf(name, {u"b"})->ends_with(command)) << ToUtf8(name);
    }
    EXPECT_EQ(LineOf(u"C:\\bat", {u"b"}), u"\"C:\\bat\" b");
    EXPECT_EQ(LineOf(u"C:\\a.bat.exe", {u"b"}), u"\"C:\\a.bat.exe\" b");
}

TEST(ProcessCommandLineOfABatchFile, NoArgumentIsMoreThanOneArgument) {
    for (const TextView argument : {u"plain",
                                    u"",
                                    u"two words",
                                    u"b & calc.exe",
                                    u"b && calc.exe",
                                    u"b | calc.exe",
                                    u"b || calc.exe",
                                    u"< in > out",
                                    u"(b) & (calc.exe)",
                                    u"^ & calc.exe",
                                    u"b^",
                                    u"b^^ & calc.exe",
                                    u"!PATH! & calc.exe",
                                    u"%PATH%",
                                    u"%a% & %CD%",
                                    u"100% & 100%",
                                    u"% %",
                                    u"%cd:~,%",
                                    u"%%PATH%%",
                                    u"b ' ` ; , = c",
                                    u"https://example.org/?a=b&c=%20d#e",
                                    u"/c calc.exe",
                                    u"K\u00E4se \u4E2D\U0001F9C0"}) {
        const auto line = LineOf(u"C:\\Tools (x86) & more\\a^b!.bat", {Text(argument), u"end"});
        ASSERT_TRUE(line) << ToUtf8(argument);
        EXPECT_EQ(Interpreter().Read(*line),
                  u"\"C:\\Tools (x86) & more\\a^b!.bat\" \"" + Text(argument) + u"\" \"end\"")
            << ToUtf8(*line);
    }
}

TEST(ProcessCommandLineOfABatchFile, ABackslashAtTheEndDoesNotEscapeTheQuoteForAProgramThatGetsItNext) {
    EXPECT_EQ(Interpreter().Read(*LineOf(u"C:\\a.bat", {u"C:\\b\\"})), u"\"C:\\a.bat\" \"C:\\b\\\\\"");
}

TEST(ProcessCommandLineOfABatchFile, ThereIsNoneForWhatNoQuotesHold) {
    for (const TextView argument :
         {u"\"", u"b\" & calc.exe & \"", u"b\ncalc.exe", u"b\rcalc.exe", u"b\r\n", u"b\tc", u"\x1A"}) {
        EXPECT_FALSE(LineOf(u"C:\\a.bat", {Text(argument)})) << ToUtf8(argument);
        EXPECT_FALSE(LineOf(u"C:\\a.bat", {u"first", Text(argument)})) << ToUtf8(argument);
    }
    EXPECT_FALSE(LineOf(u"C:\\%PATH%\\a.bat", {u"b"}));
    EXPECT_FALSE(LineOf(u"C:\\a\nb.bat", {u"b"}));
}

TEST(ProcessCommandLineOfABatchFile, ThereIsNoneForALineThatTheInterpreterWouldCut) {
    const std::size_t frame = TextView(u"\"C:\\a.bat\" ^\"^\"").size();
    EXPECT_TRUE(LineOf(u"C:\\a.bat", {Text((8191 - frame) / 2, u'b')}));
    EXPECT_FALSE(LineOf(u"C:\\a.bat", {Text((8191 - frame) / 2 + 1, u'b')}));
}

TEST(WithoutProgramName, LeavesWhatWasTypedBehindIt) {
    EXPECT_EQ(WithoutProgramName(u"korvane.exe C:\\a  b.tbx "), u"C:\\a  b.tbx ");
    EXPECT_EQ(WithoutProgramName(u"\"C:\\My Tools\\korvane.exe\"  \"C:\\a b.tbx\""), u"\"C:\\a b.tbx\"");
    EXPECT_EQ(WithoutProgramName(u"\"C:\\My Tools\\\"korvane.exe\ta.tbx"), u"a.tbx");
}

TEST(WithoutProgramName, IsEmptyWhenNothingWasTyped) {
    EXPECT_EQ(WithoutProgramName(u"korvane.exe"), u"");
    EXPECT_EQ(WithoutProgramName(u"\"C:\\My Tools\\korvane.exe\" "), u"");
    EXPECT_EQ(WithoutProgramName(u"\"C:\\My Tools"), u"");
    EXPECT_EQ(WithoutProgramName(u""), u"");
}

} // namespace
} // namespace korvane
