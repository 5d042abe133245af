// Reads the level table of src/README.md and every include of src/: an arrow that points the wrong way, or a
// header of the toolkit or of one system outside the folders that stand at the edge, fails with file and
// line.

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
const std::set<std::string> kEdge{"platform/qt", "platform/qt/desktop", "platform/qt/instance",
                                  "platform/windows", "app"};

std::set<std::string> SplitList(const std::string& list) {
    std::set<std::string> names;
    std::stringstream stream(list);
    for (std::string name; std::getline(stream, name, ',');) {
        name.erase(std::remove(name.begin(), name.end(), ' '), name.end());
        if (!name.empty()) names.insert(name);
    }
    return names;
}

LevelTable ReadLevelTable() {
    LevelTable table;
    std::ifstream file(kSource / "README.md");
    const std::regex row(R"(^\| `([a-z/]+)` \| \[([^\]]*)\].*)");
    for (std::string line; std::getline(file, line);) {
        std::smatch match;
        if (std::regex_match(line, match, row)) table[match[1]] = SplitList(match[2]);
    }
    return table;
}

/// The longest folder of the table that the path (relative to src/) lies in; empty when there is none.
std::string FolderOf(const LevelTable& table, const std::string& path) {
    std::string best;
    for (const auto& [folder, allowed] : table) {
        if (path.starts_with(folder + "/") && folder.size() > best.size()) best = folder;
    }
    return best;
}

bool IsSource(const fs::path& path) {
    return path.extension() == ".h" || path.extension() == ".cpp";
}

struct Include {
    std::string where;
    std::string folder;
    std::string header;
    bool quoted;
};

void ReadIncludes(const LevelTable& table, const fs::path& path, std::vector<Include>& includes) {
    const std::regex pattern(R"(^\s*#\s*include\s*([<"])([^>"]+)[>"].*)");
    const std::string relative = fs::relative(path, kSource).generic_string();
    std::ifstream file(path);
    int number = 0;
    for (std::string line; std::getline(file, line);) {
        ++number;
        std::smatch match;
        if (!std::regex_match(line, match, pattern)) continue;
        includes.push_back({"src/" + relative + ":" + std::to_string(number), FolderOf(table, relative),
                            match[2], match[1] == "\""});
    }
}

std::vector<Include> AllIncludes(const LevelTable& table) {
    std::vector<Include> includes;
    for (const auto& entry : fs::recursive_directory_iterator(kSource)) {
        if (entry.is_regular_file() && IsSource(entry.path())) ReadIncludes(table, entry.path(), includes);
    }
    return includes;
}

bool IsForeign(const Include& include) {
    static const std::regex foreign(
        R"(Q[A-Z][A-Za-z]*|Qt[A-Z].*/.*|windows\.h|shlobj\.h|shellapi\.h|shldisp\.h|objbase\.h|oleauto\.h)");
    return std::regex_match(include.header, foreign);
}

TEST(Layers, TheTableNamesEveryFolderWithSources) {
    const LevelTable table = ReadLevelTable();
    ASSERT_FALSE(table.empty());
    for (const auto& entry : fs::recursive_directory_iterator(kSource)) {
        if (!entry.is_regular_file() || !IsSource(entry.path())) continue;
        const std::string relative = fs::relative(entry.path(), kSource).generic_string();
        EXPECT_NE(FolderOf(table, relative), "")
            << "src/" << relative << " lies in no folder of src/README.md";
    }
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

TEST(Layers, TheTableHasNoCircle) {
    const LevelTable table = ReadLevelTable();
    for (const auto& [folder, allowed] : table) {
        for (const std::string& lower : allowed) {
            ASSERT_TRUE(table.contains(lower)) << folder << " names the unknown folder " << lower;
            EXPECT_FALSE(table.at(lower).contains(folder)) << folder << " and " << lower << " use each other";
        }
    }
}

TEST(Layers, OnlyTheEdgeKnowsTheToolkitAndTheSystem) {
    const LevelTable table = ReadLevelTable();
    for (const Include& include : AllIncludes(table)) {
        if (kEdge.contains(include.folder)) continue;
        EXPECT_FALSE(IsForeign(include)) << include.where << ": " << include.header;
    }
}

} // namespace
} // namespace korvane
