#include "dbops/commands/TabCommands.h"

#include <gtest/gtest.h>

#include <set>

namespace korvane {
namespace {

TEST(TabCommands, EachNameStandsOnceAndRunsSomething) {
    std::set<std::string_view> names;
    for (const DbOpsCommand& command : DbOpsCommands()) {
        EXPECT_TRUE(names.insert(command.name).second) << command.name;
        EXPECT_NE(command.run, nullptr) << command.name;
    }
    EXPECT_FALSE(names.empty());
}

} // namespace
} // namespace korvane
