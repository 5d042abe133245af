// Compares docs/compatibility.md with the places in the code that name its entries after the words "Kept for
// compatibility: ". Each name must have an entry, and each entry must be named where the program does it and
// where a test proves it.

#include "SourceTree.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace korvane {
namespace {

namespace fs = std::filesystem;

const fs::path kRoot = KORVANE_SOURCE_DIR;

std::string Contents(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::multiset<std::string> Entries() {
    std::multiset<std::string> entries;
    const std::string page = Contents(kRoot / "docs/compatibility.md");
    static const std::regex kRow(R"(\n\| `([a-z0-9-]+)` \| [^|]+ \| [^|]+ \|(?=\n))");
    for (std::sregex_iterator it(page.begin(), page.end(), kRow), end; it != end; ++it)
        entries.insert((*it)[1]);
    return entries;
}

struct Mention {
    std::string file;
    /// Empty if no name follows the words.
    std::string entry;
};

/// Finds the names after the words. They are separated by commas and may go on in the next line of a comment.
std::vector<Mention> MentionsIn(const fs::path& path) {
    static const std::regex kNextCommentLine(R"(\n\s*///? )");
    static const std::regex kMention(R"([Kk]ept for compatibility(?:: ((?:[a-z0-9-]+, )*[a-z0-9-]+)[.);])?)");
    static const std::regex kName("[a-z0-9-]+");
    std::vector<Mention> mentions;
    // Searching with a regular expression takes long, and most files have nothing to find.
    const std::string contents = Contents(path);
    if (contents.find("compatibility") == contents.npos) return {};
    const std::string text = std::regex_replace(contents, kNextCommentLine, " ");
    const std::string file = fs::relative(path, kRoot).generic_string();
    for (std::sregex_iterator it(text.begin(), text.end(), kMention), end; it != end; ++it) {
        const std::string names = (*it)[1];
        if (names.empty()) mentions.push_back({file, ""});
        for (std::sregex_iterator name(names.begin(), names.end(), kName); name != end; ++name)
            mentions.push_back({file, name->str()});
    }
    return mentions;
}

std::vector<fs::path> SourceFiles() {
    std::vector<fs::path> files;
    for (const char* folder : {"src", "tests"}) {
        for (const auto& entry : fs::recursive_directory_iterator(kRoot / folder)) {
            const bool source = entry.path().extension() == ".h" || entry.path().extension() == ".cpp";
            const bool thisFile = entry.path().filename() == "CompatibilityTest.cpp";
            if (entry.is_regular_file() && source && !thisFile) files.push_back(entry.path());
        }
    }
    return files;
}

class Compatibility : public testing::Test {
protected:
    static void SetUpTestSuite() {
        for (const fs::path& file : SourceFiles())
            for (const Mention& mention : MentionsIn(file))
                mentions_.push_back(mention);
    }

    inline static std::vector<Mention> mentions_;
    const std::multiset<std::string> entries_ = Entries();
};

TEST_F(Compatibility, EveryEntryIsThereOnce) {
    EXPECT_GT(entries_.size(), 50u);
    for (const std::string& entry : entries_)
        EXPECT_EQ(entries_.count(entry), 1u) << entry << " is in docs/compatibility.md twice";
}

TEST_F(Compatibility, EveryNameInTheCodeHasAnEntry) {
    EXPECT_GT(mentions_.size(), 100u);
    for (const auto& [file, entry] : mentions_) {
        EXPECT_NE(entry, "") << file << ": name an entry, as in \"Kept for compatibility: bytes-twice.\"";
        EXPECT_TRUE(entry.empty() || entries_.contains(entry))
            << file << ": docs/compatibility.md has no entry " << entry;
    }
}

TEST_F(Compatibility, EveryEntryIsNamedInTheSourcesAndInTheTests) {
    for (const std::string side : {"src", "tests"}) {
        std::set<std::string> named;
        for (const Mention& mention : mentions_)
            if (mention.file.starts_with(side + "/")) named.insert(mention.entry);
        for (const std::string& entry : entries_)
            EXPECT_TRUE(named.contains(entry)) << "no file of " << side << " names " << entry;
    }
}

TEST_F(Compatibility, NoFileGivesAReasonOfItsOwn) {
    for (const fs::path& file : SourceFiles()) {
        EXPECT_EQ(Contents(file).find("eliberate"), std::string::npos)
            << fs::relative(file, kRoot).generic_string()
            << ": say \"Kept for compatibility: \" and an entry of docs/compatibility.md";
    }
}

} // namespace
} // namespace korvane
