#include "controls/Observed.h"

#include <gtest/gtest.h>

#include <string>

namespace korvane {
namespace {

class Counter : public Observed {
public:
    explicit Counter(std::string& log) : log_(log) {}
    Property<int> Value{*this, Aspect::Value, 3};
    Property<int> Other{*this, Aspect::Value};

protected:
    void Changed(Aspect) override { log_ += "changed "; }

private:
    std::string& log_;
};

class Recorder : public View {
public:
    explicit Recorder(std::string& log) : log_(log) {}
    void Follow(Observed&, Aspect) override { log_ += "followed "; }

private:
    std::string& log_;
};

class PropertyTest : public testing::Test {
protected:
    std::string log;
    Counter counter{log};
};

TEST_F(PropertyTest, TellsTheViewBeforeTheOwnRulesRun) {
    Recorder view(log);
    counter.SetView(&view);
    counter.Value = 4;
    counter.SetView(nullptr);
    EXPECT_EQ(log, "followed changed ");
}

TEST_F(PropertyTest, TheSameValueIsNoChange) {
    counter.Value = 3;
    EXPECT_EQ(log, "");
}

TEST_F(PropertyTest, ReadsLikeItsValueAndTakesTheValueOfAnother) {
    counter.Other = counter.Value;
    EXPECT_EQ(counter.Other, 3);
    EXPECT_EQ(log, "changed ");
}

TEST_F(PropertyTest, WorksWithoutAView) {
    Recorder view(log);
    counter.SetView(&view);
    counter.SetView(nullptr);
    counter.Value = 5;
    EXPECT_EQ(log, "changed ");
}

} // namespace
} // namespace korvane
