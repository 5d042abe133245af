// Reads the table of levels in src/README.md and every include in src/. An include that the table doesn't
// allow fails with its file and line, and so does a header of Qt or of one system outside the folders that
// may use it.

#include "SourceTree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace korvane {
namespace {

namespace fs = std::filesystem;

using LevelTable = std::map<std::string, std::set<std::string>>;

const fs::path kSource = fs::path(KORVANE_SOURCE_DIR) / "src";
std::set<std::string> SplitList(const std::string& list) {
    std::set<std::string> names;
    std::stringstream stream(list);
    for (std::string name; std::getline(stream, name, ',');) {
        name.erase(std::remove(name.begin(), name.end(), ' '), name.end());
        if (!name.empty()) names.insert(name);
    }
    return names;
}

/// The rows of the table in their order. Each is a folder and the folders that it may use.
std::vector<std::pair<std::string, std::set<std::string>>> ReadRows() {
    std::vector<std::pair<std::string, std::set<std::string>>> rows;
    std::ifstream file(kSource / "README.md");
    const std::regex row(R"(^\| `([a-z/]+)` \| \[([^\]]*)\].*)");
    for (std::string line; std::getline(file, line);) {
        std::smatch match;
        if (std::regex_match(line, match, row)) rows.emplace_back(match[1], SplitList(match[2]));
    }
    return rows;
}

LevelTable ReadLevelTable() {
    const auto rows = ReadRows();
    return {rows.begin(), rows.end()};
}

/// The folder of the path (relative to src/), or an empty text when the table doesn't name it.
std::string FolderOf(const LevelTable& table, const std::string& path) {
    const std::string folder = fs::path(path).parent_path().generic_string();
    return table.contains(folder) ? folder : std::string();
}

std::vector<fs::path> AllSources() {
    std::vector<fs::path> sources;
    for (const auto& entry : fs::recursive_directory_iterator(kSource)) {
        const fs::path& path = entry.path();
        const bool source = path.extension() == ".h" || path.extension() == ".cpp";
        if (entry.is_regular_file() && source) sources.push_back(path);
    }
    return sources;
}

std::string RelativeToSource(const fs::path& path) {
    return fs::relative(path, kSource).generic_string();
}

struct Include {
    std::string where;
    std::string folder;
    std::string header;
    bool quoted;
};

/// The header that a line includes, after its first bracket or quote, or an empty text for any other line.
std::string IncludedHeader(const std::string& line) {
    static const std::string directive = "#include ";
    if (!line.starts_with(directive)) return {};
    const std::size_t end = line.find_first_of(">\"", directive.size() + 1);
    return line.substr(directive.size(), end - directive.size());
}

void ReadIncludes(const LevelTable& table, const fs::path& path, std::vector<Include>& includes) {
    const std::string relative = RelativeToSource(path);
    const std::string folder = FolderOf(table, relative);
    std::ifstream file(path);
    int number = 0;
    for (std::string line; std::getline(file, line);) {
        ++number;
        const std::string header = IncludedHeader(line);
        if (header.empty()) continue;
        includes.push_back({"src/" + relative + ":" + std::to_string(number), folder, header.substr(1),
                            header.front() == '"'});
    }
}

std::vector<Include> AllIncludes(const LevelTable& table) {
    std::vector<Include> includes;
    for (const fs::path& source : AllSources())
        ReadIncludes(table, source, includes);
    return includes;
}

/// Headers of Qt or of a system, which only some folders may include.
struct ForeignHeaders {
    std::string what;
    std::regex header;
    /// These folders may include the headers, and so may all folders below them.
    std::vector<std::string> allowedIn;
};

const std::vector<ForeignHeaders>& AllForeignHeaders() {
    static const std::vector<ForeignHeaders> headers{
        {"the toolkit", std::regex(R"(Q[A-Z][A-Za-z]*|Qt[A-Z].*/.*)"), {"platform/qt", "app"}},
        {"Windows",
         std::regex(R"((windows|winsock2|shlobj|shellapi|shldisp|objbase|oleauto|oaidl|io|direct|share)\.h)"),
         {"platform/windows", "app"}},
        {"the desktop", std::regex(R"((xcb|fontconfig)/.*\.h)"), {"platform/qt"}},
        {"the libraries for archives and XML", std::regex(R"((zip|expat)\.h)"), {"document/package"}},
        {"POSIX",
         std::regex(R"((sys|linux)/.*\.h|(unistd|fcntl|dirent|pwd|grp|poll|dlfcn|langinfo|mntent|termios|)"
                    R"(signal|sched|pthread|spawn|netdb|arpa/inet|netinet/in)\.h)"),
         {"platform/native", "platform/windows"}},
    };
    return headers;
}

bool LiesIn(const std::string& folder, const std::vector<std::string>& parents) {
    return std::ranges::any_of(parents, [&folder](const std::string& parent) {
        return folder == parent || folder.starts_with(parent + "/");
    });
}

TEST(Layers, TheTableNamesEveryFolderWithSources) {
    const LevelTable table = ReadLevelTable();
    ASSERT_FALSE(table.empty());
    for (const fs::path& source : AllSources()) {
        const std::string relative = RelativeToSource(source);
        EXPECT_NE(FolderOf(table, relative), "")
            << "src/README.md doesn't name the folder of src/" << relative;
    }
}

TEST(Layers, NoFolderHasMoreThanThirtySources) {
    std::map<std::string, int> counts;
    for (const fs::path& source : AllSources())
        ++counts[RelativeToSource(source.parent_path())];
    ASSERT_GT(counts.size(), 50u);
    for (const auto& [folder, count] : counts)
        EXPECT_LE(count, 30) << "src/" << folder << " has become too large: divide it";
}

TEST(Layers, NoIncludePointsUpwards) {
    const LevelTable table = ReadLevelTable();
    const std::vector<Include> includes = AllIncludes(table);
    ASSERT_GT(includes.size(), 100u);
    for (const Include& include : includes) {
        if (!include.quoted || include.folder.empty()) continue;
        const std::string target = FolderOf(table, include.header);
        if (target.empty() || target == include.folder) continue;
        EXPECT_TRUE(table.at(include.folder).contains(target))
            << include.where << ": " << include.folder << " may not use " << include.header;
    }
}

TEST(Layers, TheTableGoesFromTheBottomToTheTop) {
    std::set<std::string> above;
    for (const auto& [folder, allowed] : ReadRows()) {
        for (const std::string& lower : allowed)
            EXPECT_TRUE(above.contains(lower)) << folder << " names " << lower << ", which no row above has";
        above.insert(folder);
    }
}

TEST(Layers, EveryArrowOfTheTableIsUsed) {
    const LevelTable table = ReadLevelTable();
    LevelTable used;
    for (const Include& include : AllIncludes(table)) {
        if (include.quoted) used[include.folder].insert(FolderOf(table, include.header));
    }
    for (const auto& [folder, allowed] : table) {
        for (const std::string& lower : allowed)
            EXPECT_TRUE(used[folder].contains(lower)) << folder << " includes nothing of " << lower;
    }
}

TEST(Layers, OnlyTheEdgeKnowsTheToolkitAndTheSystems) {
    const LevelTable table = ReadLevelTable();
    for (const Include& include : AllIncludes(table)) {
        for (const ForeignHeaders& foreign : AllForeignHeaders()) {
            if (include.quoted || !std::regex_match(include.header, foreign.header)) continue;
            EXPECT_TRUE(LiesIn(include.folder, foreign.allowedIn))
                << include.where << ": " << include.header << " belongs to " << foreign.what;
        }
    }
}

} // namespace
} // namespace korvane
