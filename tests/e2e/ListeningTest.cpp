// Tests what a screen reader hears of the real program over the bus for that.

#include "e2e/DeskTest.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <sstream>

namespace korvane::e2e {
namespace {

/// Bits of the state of a part.
constexpr int kChecked = 4;
constexpr int kFocused = 12;
constexpr int kSelected = 23;

/// Where a part of a program is on the bus.
struct Part {
    std::string program;
    std::string path;
};

constexpr auto kPart = "org.a11y.atspi.Accessible.";
constexpr auto kAction = "org.a11y.atspi.Action.";

class ListeningTest : public DeskTest {
protected:
    void SetUp() override {
        ASSERT_NO_FATAL_FAILURE(DeskTest::SetUp());
        if (!desk.ProvideBus()) GTEST_SKIP() << "the bus for screen readers isn't installed";
        const auto place = Output({"dbus-send", "--session", "--print-reply=literal", "--dest=org.a11y.Bus",
                                   "/org/a11y/bus", "org.a11y.Bus.GetAddress"},
                                  desk.Environment());
        ASSERT_TRUE(place);
        address = place->substr(place->find_first_not_of(' '));
        program = desk.Start({file.string()});
        ASSERT_NE(desk.GoTo(kMain), "");
    }

    std::string Ask(const Part& part, const std::string& method,
                    const std::vector<std::string>& values = {}) {
        std::vector<std::string> command{
            "dbus-send", "--bus=" + address, "--print-reply=literal", "--dest=" + part.program, part.path,
            method};
        command.insert(command.end(), values.begin(), values.end());
        return Output(command, desk.Environment()).value_or("");
    }
    std::string Property(const Part& part, const std::string& name) {
        const std::string reply = Ask(part, "org.freedesktop.DBus.Properties.Get",
                                      {"string:org.a11y.atspi.Accessible", "string:" + name});
        const auto begin = reply.find_first_not_of(' ', reply.find("variant") + 7);
        return begin == std::string::npos ? "" : reply.substr(begin);
    }
    std::string Role(const Part& part) {
        const std::string reply = Ask(part, std::string(kPart) + "GetRoleName");
        return reply.substr(std::min(reply.size(), reply.find_first_not_of(' ')));
    }
    bool Has(const Part& part, int state) {
        std::istringstream words(Ask(part, std::string(kPart) + "GetState"));
        std::uint64_t bits = 0;
        int shift = 0;
        for (std::string word; words >> word;) {
            if (word != "uint32" || !(words >> word)) continue;
            bits |= std::stoull(word) << shift;
            shift += 32;
        }
        return (bits >> state & 1) != 0;
    }
    bool CanBeToggled(const Part& part) {
        return Ask(part, std::string(kAction) + "GetActions").find("Toggle") != std::string::npos;
    }
    std::vector<Part> Children(const Part& part) {
        std::istringstream words(Ask(part, std::string(kPart) + "GetChildren"));
        std::vector<Part> children;
        std::string before;
        for (std::string word; words >> word; before = word) {
            if (word.starts_with("/") && before.starts_with(":")) children.push_back({before, word});
        }
        return children;
    }
    /// The first part below `from` with this role and name.
    std::optional<Part> Find(const Part& from, const std::string& role, const std::string& name) {
        for (const Part& child : Children(from)) {
            if (Role(child) == role && Property(child, "Name") == name) return child;
            if (const auto found = Find(child, role, name)) return found;
        }
        return std::nullopt;
    }
    /// Asks again and again, because nothing on the display tells when a program has told the bus of
    /// something.
    static bool Soon(const std::function<bool()>& holds) {
        constexpr int kTries = 300;
        for (int tries = 0; tries < kTries; ++tries) {
            if (holds()) return true;
        }
        return false;
    }
    std::optional<Part> Window() {
        const Part all{"org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root"};
        std::optional<Part> window;
        Soon([&] { return (window = Find(all, "frame", "Korvane")).has_value(); });
        return window;
    }

    std::string address;
    std::unique_ptr<Process> program;
};

TEST_F(ListeningTest, TheTableAndTheTabsAreHeardAndARowIsTicked) {
    const auto window = Window();
    ASSERT_TRUE(window);
    const auto tab = Find(*window, "page tab", "table of people.tbx");
    ASSERT_TRUE(tab);
    EXPECT_TRUE(Has(*tab, kSelected));
    EXPECT_TRUE(Find(*window, "push button", "Close table of people.tbx"));

    const auto table = Find(*window, "table", "Table");
    ASSERT_TRUE(table);
    const auto note = Find(*table, "cell", "old");
    ASSERT_TRUE(note);
    EXPECT_EQ(Property(*note, "Description"), "Note, row 2, not ticked");
    EXPECT_FALSE(CanBeToggled(*note));

    const auto bert = Find(*table, "cell", "Bert");
    ASSERT_TRUE(bert);
    EXPECT_TRUE(CanBeToggled(*bert));
    EXPECT_FALSE(Has(*bert, kChecked));
    Ask(*bert, std::string(kAction) + "DoAction", {"int32:0"});
    EXPECT_TRUE(Has(*bert, kChecked));
    EXPECT_EQ(Property(*note, "Description"), "Note, row 2, ticked");
    desk.Press({"ctrl+Home", "Down", "Right"});
    EXPECT_TRUE(Soon([&] { return Has(*note, kFocused); }));
}

} // namespace
} // namespace korvane::e2e
