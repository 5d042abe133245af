#include "controls/KeyTable.h"

#include "controls/Form.h"
#include "controls/TextBox.h"
#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

#include <string>

namespace korvane {
namespace {

/// A window that takes down what its keys start.
class Keyed : public Form {
public:
    explicit Keyed(FormHost& host) : Form(host, "Keyed", u"") {
        Text1.KeyDown = KeysOf(*this, kRows);
        cmdPress.Click = [this] { done += "button "; };
    }
    TextBox Text1{*this, "Text1"};
    CommandButton cmdPress{*this, "cmdPress"};
    std::string done;

    KeyEvent Press(int code, int mask = Mask::None) {
        KeyEvent key{code, mask};
        Text1.KeyDown(key);
        return key;
    }

private:
    void Save() { done += "save "; }
    void First() { done += "first "; }
    void Second() { done += "second "; }
    bool Answer() {
        done += "answer ";
        return false;
    }
    void Look(KeyEvent& key) {
        done += key.consumed ? "consumed " : "passing ";
        done += std::to_string(key.mask) + " ";
        key.consumed = key.mask != Mask::Shift;
    }

    static const WindowKey<Keyed> kRows[9];
};

const WindowKey<Keyed> Keyed::kRows[9] = {
    {"Ctrl+S", &Keyed::Save},
    {"Ctrl+F12", &Keyed::Save},
    {"Ctrl+Alt+L", &Keyed::First},
    {"Ctrl+Alt+L", &Keyed::Second},
    {"F11", &Keyed::First},
    {"Any+F11", &Keyed::Second},
    {"Ctrl+V", &Keyed::Answer, KeyUse::Passes},
    {"Any+Tab", &Keyed::Look},
    {"Return", &Keyed::cmdPress},
};

class KeyTableTest : public testing::Test {
protected:
    ScriptedUser user;
    Keyed form{user};
};

TEST_F(KeyTableTest, AKeyRunsARoutineOfTheWindowAndIsConsumed) {
    EXPECT_TRUE(form.Press('S', Mask::Ctrl).consumed);
    EXPECT_TRUE(form.Press(Key::F(12), Mask::Ctrl).consumed);
    EXPECT_EQ(form.done, "save save ");
}

TEST_F(KeyTableTest, TheFirstRowThatHasTheKeyWins) {
    form.Press('L', Mask::Ctrl | Mask::Alt);
    form.Press(Key::F(11));
    form.Press(Key::F(11), Mask::Alt);
    EXPECT_EQ(form.done, "first first second ");
}

TEST_F(KeyTableTest, AKeyWithoutARowIsLeftAlone) {
    EXPECT_FALSE(form.Press('S').consumed);
    EXPECT_FALSE(form.Press('S', Mask::Ctrl | Mask::Shift).consumed);
    KeyEvent key{'S', Mask::None, true};
    form.Text1.KeyDown(key);
    EXPECT_TRUE(key.consumed) << "whoever consumed it has the word";
    EXPECT_EQ(form.done, "");
}

TEST_F(KeyTableTest, AKeyThatPassesIsRunAllTheSame) {
    EXPECT_FALSE(form.Press('V', Mask::Ctrl).consumed);
    EXPECT_EQ(form.done, "answer ");
}

TEST_F(KeyTableTest, ARoutineMayLookAtTheKeyAndDecideAboutIt) {
    EXPECT_TRUE(form.Press(Key::Tab).consumed);
    EXPECT_FALSE(form.Press(Key::Tab, Mask::Shift).consumed);
    EXPECT_EQ(form.done, "consumed 0 consumed 1 ");
}

TEST_F(KeyTableTest, AKeyPressesAButtonAsTheUserWould) {
    EXPECT_TRUE(form.Press(Key::Return).consumed);
    form.cmdPress.Enabled = false;
    EXPECT_TRUE(form.Press(Key::Return).consumed);
    EXPECT_EQ(form.done, "button ");
}

TEST(FindKey, LooksUpWhateverTheRowsHold) {
    static constexpr KeyRow<char> kRows[] = {{"Any+F10", 'a'}, {"Alt+X", 'b', KeyUse::Passes}};
    const KeyEvent altX{'X', Mask::Alt};
    ASSERT_NE(FindKey<char>(kRows, altX), nullptr);
    EXPECT_EQ(FindKey<char>(kRows, altX)->starts, 'b');
    EXPECT_EQ(FindKey<char>(kRows, altX)->use, KeyUse::Passes);
    EXPECT_EQ(FindKey<char>(kRows, {'X', Mask::None}), nullptr);
}

} // namespace
} // namespace korvane
