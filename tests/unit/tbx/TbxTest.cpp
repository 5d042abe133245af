#include "tbx/Verb.h"
#include "unit/tbx/TbxHarness.h"

#include <gmock/gmock.h>

#include <sstream>

namespace korvane {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

class Tbx : public testing::Test {
protected:
    Tbx() { run.files.AddFile(u"/data/people.tbx", TbxFile(RowLines(1, {"Anna", "x"}))); }

    /// Expects a refusal in this one line.
    void ExpectRefusal(const std::vector<std::string>& arguments, const std::string& line) {
        EXPECT_EQ(run.Run(arguments), ExitStatus::Error);
        EXPECT_EQ(run.err, "tbx: " + line + "\n");
        EXPECT_EQ(run.out, "");
    }

    TbxHarness run;
};

TEST_F(Tbx, WithoutACommandItPointsToTheHelp) {
    ExpectRefusal({}, "no command given; try tbx --help");
    ExpectRefusal({"-p", "1250"}, "no command given; try tbx --help");
    ExpectRefusal({"cvs", "a"}, "there is no command \"cvs\"; try tbx --help");
    ExpectRefusal({"cvs", "--help"}, "there is no command \"cvs\"; try tbx --help");
}

TEST_F(Tbx, TheWrongNumberOfArgumentsGivesTheUsage) {
    ExpectRefusal({"dump"}, "too few arguments; usage: tbx dump [-p NUMBER] FILE");
    ExpectRefusal({"import", "a.csv"},
                  "too few arguments; usage: tbx import [-d CHAR] [-p NUMBER] FILE.csv OUT");
    ExpectRefusal({"find", "a", "b", "c"}, "too many arguments; usage: tbx find [-p NUMBER] FILE TEXT");
}

TEST_F(Tbx, AnOptionThatACommandCannotUseIsRefused) {
    ExpectRefusal({"dump", "-d", ";", "/data/people.tbx"}, "dump takes no option --delimiter");
    ExpectRefusal({"dump", "--frob", "/data/people.tbx"}, "there is no option --frob");
}

TEST_F(Tbx, ValuesOfOptionsAreTested) {
    for (const char* page : {"1249", "65001", "x", "", "1250x"})
        ExpectRefusal({"dump", "-p", page, "/data/people.tbx"},
                      "the code page has to be 874 or 1250 to 1258, not \"" + std::string(page) + "\"");
    for (const char* delimiter : {"", "ab", "\"", "\xE9"})
        ExpectRefusal({"csv", "-d", delimiter, "/data/people.tbx"},
                      "the delimiter has to be one character, not \"" + std::string(delimiter) + "\"");
}

TEST_F(Tbx, ALineBreakInAnArgumentDoesNotBreakTheLineThatRefusesIt) {
    ExpectRefusal({"a\nb"}, "there is no command \"a?b\"; try tbx --help");
}

TEST_F(Tbx, HelpNamesEveryCommandAndOption) {
    EXPECT_EQ(run.Run({"--help"}), ExitStatus::Success);
    EXPECT_THAT(run.out, StartsWith("Usage: tbx COMMAND"));
    for (const Verb& verb : Verbs())
        EXPECT_THAT(run.out, HasSubstr("  " + std::string(verb.name) + " " + std::string(verb.operands)));
    for (const char* option : {"--delimiter", "--code-page", "--help", "--version"})
        EXPECT_THAT(run.out, HasSubstr(option));
    EXPECT_EQ(run.err, "");
}

TEST_F(Tbx, EveryCommandHasItsHelpWithOrWithoutArguments) {
    for (const Verb& verb : Verbs()) {
        const std::string name(verb.name);
        EXPECT_EQ(run.Run({name, "--help"}), ExitStatus::Success);
        EXPECT_THAT(run.out, StartsWith("Usage: tbx " + name + " "));
        EXPECT_EQ(run.Run({"-h", name, "some", "more"}), ExitStatus::Success);
        EXPECT_THAT(run.out, StartsWith("Usage: tbx " + name + " "));
    }
}

TEST_F(Tbx, NoLineOfHelpIsWiderThanATerminal) {
    const auto expectNarrow = [this](const std::vector<std::string>& arguments) {
        run.Run(arguments);
        EXPECT_THAT(run.out, EndsWith("\n"));
        std::istringstream lines(run.out);
        for (std::string line; std::getline(lines, line);)
            EXPECT_LE(line.size(), 80u) << line;
    };
    expectNarrow({"--help"});
    for (const Verb& verb : Verbs())
        expectNarrow({std::string(verb.name), "--help"});
}

TEST_F(Tbx, VersionNamesTheProgram) {
    EXPECT_EQ(run.Run({"--version"}), ExitStatus::Success);
    EXPECT_THAT(run.out, StartsWith("tbx (Korvane) "));
    EXPECT_THAT(run.out, EndsWith("\n"));
}

TEST_F(Tbx, AFileThatCannotBeReadIsAnErrorOfEveryCommand) {
    for (const std::string verb : {"dump", "csv", "tsv", "json", "info", "check"})
        ExpectRefusal({verb, "/data/none.tbx"}, "cannot read \"/data/none.tbx\": No such file or directory");
    ExpectRefusal({"find", "/data/none.tbx", "x"},
                  "cannot read \"/data/none.tbx\": No such file or directory");
    ExpectRefusal({"rewrite", "/data/none.tbx", "-"},
                  "cannot read \"/data/none.tbx\": No such file or directory");
    ExpectRefusal({"import", "/data/none.csv", "-"},
                  "cannot read \"/data/none.csv\": No such file or directory");
    EXPECT_EQ(run.Run({"dump", "/data"}), ExitStatus::Error);
    EXPECT_THAT(run.err, StartsWith("tbx: cannot read \"/data\": "));
    EXPECT_EQ(run.Run({"dump", ""}), ExitStatus::Error);
    EXPECT_THAT(run.err, StartsWith("tbx: cannot read \"\""));
}

TEST_F(Tbx, ADashReadsTheStandardInput) {
    run.Run({"dump", "/data/people.tbx"});
    const std::string dump = run.out;
    run.input = TbxFile(RowLines(1, {"Anna", "x"}));
    EXPECT_EQ(run.Run({"dump", "-"}), ExitStatus::Success);
    EXPECT_EQ(run.out, dump);
}

TEST_F(Tbx, AStandardInputThatCannotBeReadIsAnError) {
    run.input.reset();
    ExpectRefusal({"dump", "-"}, "cannot read the standard input");
    ExpectRefusal({"import", "-", "/data/out.tbx"}, "cannot read the standard input");
}

TEST_F(Tbx, TheCodePageRulesTheCharacters) {
    run.files.AddFile(u"/data/people.tbx", TbxFile(RowLines(1, {"\xE3", "x"})));
    run.Run({"csv", "/data/people.tbx"});
    EXPECT_EQ(run.out, "Name,Note\r\nã,x\r\n");
    run.Run({"csv", "-p", "1250", "/data/people.tbx"});
    EXPECT_EQ(run.out, "Name,Note\r\nă,x\r\n");
    run.page = *CodePage::ForNumber(1251);
    run.Run({"csv", "/data/people.tbx"});
    EXPECT_EQ(run.out, "Name,Note\r\nг,x\r\n") << "the user's page, since none is named";
}

TEST_F(Tbx, CsvTakesADelimiter) {
    run.Run({"csv", "--delimiter=tab", "/data/people.tbx"});
    EXPECT_EQ(run.out, "Name\tNote\r\nAnna\tx\r\n");
}

TEST_F(Tbx, ALoadThatStoppedIsToldAndAProblem) {
    std::string file = ";\r\n!0\r\n!A\r\n!1\r\n!1\r\n";
    for (int i = 1; i <= 25; ++i)
        file += "!Name\r\n!80\r\n";
    run.files.AddFile(u"/data/wide.tbx", file);
    for (const std::string verb : {"csv", "tsv", "json", "info"}) {
        EXPECT_EQ(run.Run({verb, "/data/wide.tbx"}), ExitStatus::Problem) << verb;
        EXPECT_EQ(run.err, "tbx: Numbers of columns in this table exceeds the maximum of  24\n");
    }
    EXPECT_EQ(run.Run({"dump", "/data/wide.tbx"}), ExitStatus::Success) << "the message is part of the dump";
    EXPECT_EQ(run.err, "");
}

TEST_F(Tbx, SaysSoWhenTheMemoryIsNotEnough) {
    run.memoryIsFull = true;
    ExpectRefusal({"dump", "-"}, "there isn't enough memory");
}

TEST(TbxInput, APipeIsUnreadableUnlessItIsTheStandardInput) {
    TbxHarness run;
    run.files.AddPipe(u"/dev/stdin");
    run.files.AddPipe(u"/tmp/pipe");
    run.inputFile = u"/dev/stdin";
    run.input = TbxFile(RowLines(1, {"Anna", "x"}));
    EXPECT_EQ(run.Run({"csv", "/dev/stdin"}), ExitStatus::Success);
    EXPECT_EQ(run.out, "Name,Note\r\nAnna,x\r\n");
    EXPECT_EQ(run.Run({"csv", "/tmp/pipe"}), ExitStatus::Error);
    EXPECT_EQ(run.out, "");
}

} // namespace
} // namespace korvane
