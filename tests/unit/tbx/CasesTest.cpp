// Each folder of tests/cases/tbx holds a file, input.tbx, and what the commands have to make of it, byte for
// byte.

#include "SourceTree.h"
#include "support/TempDir.h"
#include "unit/tbx/TbxHarness.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>

namespace korvane {
namespace {

namespace fs = std::filesystem;

const fs::path kCases = fs::path(KORVANE_SOURCE_DIR) / "tests/cases/tbx";

std::vector<std::string> CaseNames() {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(kCases))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

/// Which arguments have to give which file of a folder. Where a file is rewritten, that file is compared, not
/// the output.
struct Expectation {
    const char* file;
    std::vector<std::string> arguments;
};
const std::vector<Expectation> kExpectations{
    {"dump.json", {"dump", "/tables/input.tbx"}},
    {"check.txt", {"check", "/tables/input.tbx"}},
    {"rows.csv", {"csv", "/tables/input.tbx"}},
    {"rows.tsv", {"tsv", "/tables/input.tbx"}},
    {"rows.json", {"json", "/tables/input.tbx"}},
    {"rewrite.tbx", {"rewrite", "/tables/input.tbx", "/tables/rewritten.tbx"}},
};

/// All files of all folders, as "folder/rows.csv".
std::vector<std::string> ExpectedFiles() {
    std::vector<std::string> files;
    for (const std::string& name : CaseNames())
        for (const Expectation& expectation : kExpectations)
            if (fs::exists(kCases / name / expectation.file)) files.push_back(name + "/" + expectation.file);
    return files;
}

/// The cases in which nothing is to be found wrong.
std::vector<std::string> SoundCases() {
    std::vector<std::string> sound;
    for (const std::string& name : CaseNames()) {
        const fs::path check = kCases / name / "check.txt";
        if (fs::exists(check) && fs::is_empty(check)) sound.push_back(name);
    }
    return sound;
}

std::string TestName(const testing::TestParamInfo<std::string>& param) {
    std::string name = param.param;
    std::replace_if(
        name.begin(), name.end(), [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
    return name;
}

class InputOfCase : public testing::TestWithParam<std::string> {
protected:
    void LoadInput(const std::string& name) {
        run.files.AddFile(u"/tables/input.tbx", ReadBytes(kCases / name / "input.tbx"));
    }

    TbxHarness run;
};

class ExpectedFile : public InputOfCase {};

TEST_P(ExpectedFile, ComesOutByteForByte) {
    const fs::path expected = GetParam();
    LoadInput(expected.parent_path().string());
    const auto expectation = std::find_if(kExpectations.begin(), kExpectations.end(),
                                          [&](const auto& e) { return expected.filename() == e.file; });
    run.Run(expectation->arguments);
    const auto rewritten = run.files.Contents(u"/tables/rewritten.tbx");
    EXPECT_EQ(rewritten.value_or(run.out), ReadBytes(kCases / expected));
}

INSTANTIATE_TEST_SUITE_P(Cases, ExpectedFile, testing::ValuesIn(ExpectedFiles()), TestName);

class SoundCase : public InputOfCase {};

TEST_P(SoundCase, SurvivesARewrite) {
    LoadInput(GetParam());
    ASSERT_EQ(run.Run({"check", "/tables/input.tbx"}), ExitStatus::Success);
    run.Run({"dump", "/tables/input.tbx"});
    const std::string before = run.out;
    EXPECT_EQ(run.Run({"rewrite", "/tables/input.tbx", "/tables/rewritten.tbx"}), ExitStatus::Success);
    run.Run({"dump", "/tables/rewritten.tbx"});
    EXPECT_EQ(run.out, before);
}

INSTANTIATE_TEST_SUITE_P(Cases, SoundCase, testing::ValuesIn(SoundCases()), TestName);

class EveryCase : public InputOfCase {};

TEST_P(EveryCase, FailsTheCheckExactlyWhereSomethingIsFound) {
    LoadInput(GetParam());
    const ExitStatus status = run.Run({"check", "/tables/input.tbx"});
    EXPECT_EQ(status, run.out.empty() ? ExitStatus::Success : ExitStatus::Problem);
    EXPECT_EQ(run.err, "");
}

INSTANTIATE_TEST_SUITE_P(Cases, EveryCase, testing::ValuesIn(CaseNames()), TestName);

TEST(TbxCases, EveryFolderHoldsAFileAndItsDump) {
    EXPECT_GE(CaseNames().size(), 50u);
    for (const std::string& name : CaseNames()) {
        EXPECT_TRUE(fs::exists(kCases / name / "input.tbx")) << name;
        EXPECT_TRUE(fs::exists(kCases / name / "dump.json")) << name;
    }
}

} // namespace
} // namespace korvane
