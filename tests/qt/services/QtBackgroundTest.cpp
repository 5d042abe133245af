#include "platform/qt/services/QtBackground.h"

#include "platform/native/NativeFileSystem.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace korvane {
namespace {

class QtBackgroundTest : public testing::Test {
protected:
    Background::Work Says(const std::string& word) {
        return [this, word](FileSystem&) { said.push_back(word); };
    }

    NativeFileSystem files{u"/opt/korvane"};
    /// It is the thread's until the background has ended.
    std::vector<std::string> said;
};

TEST_F(QtBackgroundTest, DoesAllWorkInItsOrderBeforeItEnds) {
    {
        QtBackground background(files);
        for (const char* word : {"one", "two", "three"})
            background.Do(Says(word), AtEnd::Done, {});
    }
    EXPECT_EQ(said, (std::vector<std::string>{"one", "two", "three"}));
}

TEST_F(QtBackgroundTest, GoesOnAfterWorkThatFails) {
    {
        QtBackground background(files);
        background.Do([](FileSystem&) { throw std::runtime_error("no disk"); }, AtEnd::Done, {});
        background.Do(Says("next"), AtEnd::Done, {});
    }
    EXPECT_EQ(said, std::vector<std::string>{"next"});
}

TEST_F(QtBackgroundTest, EndsWithoutAnyWork) {
    { QtBackground background(files); }
    EXPECT_TRUE(said.empty());
}

} // namespace
} // namespace korvane
