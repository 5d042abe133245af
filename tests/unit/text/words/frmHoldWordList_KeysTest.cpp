#include "unit/text/words/WordListStage.h"

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class WordListKeys : public WordListStage {
protected:
    WordListKeys() { Have({u"one", u"two", u"three"}); }
};

TEST_F(WordListKeys, EscClosesAndReturnOrMinusTakes) {
    EXPECT_EQ(Open([](frmHoldWordList& f) {
                  EXPECT_TRUE(Press(f, Key::Escape));
                  EXPECT_FALSE(f.Shown());
              }),
              std::nullopt);
    EXPECT_EQ(Open([](frmHoldWordList& f) { EXPECT_TRUE(Press(f, Key::Return)); }), u"one");
    // The sign is on other keys too: on some keyboards on that of a digit.
    constexpr int kMinus = 189;
    for (const int code : {kMinus, Key::NumMinus, int{'6'}}) {
        EXPECT_EQ(Open([code](frmHoldWordList& f) {
                      KeyEvent key{.code = code, .typed = u'-'};
                      f.lstWordList.KeyDown(key);
                      EXPECT_TRUE(key.consumed);
                  }),
                  u"one");
    }
    Open([](frmHoldWordList& f) {
        EXPECT_FALSE(Press(f, '6'));
        f.Close();
    });
}

TEST_F(WordListKeys, DocksBesideTheMainWindow) {
    const auto left = [this](int code, int mask) {
        Twips at{-1};
        Twips width{-1};
        Open([&](frmHoldWordList& f) {
            f.Width = Twips{3000};
            EXPECT_TRUE(Press(f, code, mask));
            at = f.Left;
            width = f.Width;
        });
        return std::pair{at.Number(), width.Number()};
    };
    EXPECT_EQ(left('L', Mask::Ctrl), (std::pair{0, 9000}));
    EXPECT_EQ(left('L', Mask::Ctrl | Mask::Alt), (std::pair{0, 9000}));
    EXPECT_EQ(left('L', Mask::Ctrl | Mask::Shift), (std::pair{6000, 3000}));
    EXPECT_EQ(left('R', Mask::Ctrl), (std::pair{19000, 11000}));
    EXPECT_EQ(left('R', Mask::Ctrl | Mask::Alt), (std::pair{19000, 11000}));
    EXPECT_EQ(left('R', Mask::Ctrl | Mask::Shift), (std::pair{19000, 3000}));
}

TEST_F(WordListKeys, CentresOnTheMainWindowInItsSize) {
    Open([](frmHoldWordList& f) {
        f.Left = Twips{0};
        f.Width = Twips{3000};
        EXPECT_TRUE(Press(f, Key::F(2), Mask::Ctrl | Mask::Shift));
        EXPECT_EQ(f.Left.Get(), Twips{12500});
        EXPECT_EQ(f.Width.Get(), Twips{3000});
    });
}

TEST_F(WordListKeys, UAndDMoveTheEntryWithAnyMaskFromThreeOn) {
    Open([](frmHoldWordList& f) {
        f.lstWordList.SetCurrent(2);
        for (const int mask : {0, 1, 2}) {
            EXPECT_FALSE(Press(f, 'U', mask));
            EXPECT_FALSE(Press(f, 'D', mask));
        }
        EXPECT_EQ(f.lstWordList.Current(), 2);
        for (const int mask : {3, 4, 5, 6, 7}) {
            EXPECT_TRUE(Press(f, 'U', mask));
            EXPECT_THAT(WordsIn(f), ElementsAre(u"two", u"one", u"three"));
            EXPECT_TRUE(Press(f, 'D', mask));
            EXPECT_THAT(WordsIn(f), ElementsAre(u"one", u"two", u"three"));
        }
    });
}

/// Kept for compatibility: word-list-takes-ctrl-alt-d.
TEST_F(WordListKeys, CtrlAltDMovesAndShowsNoDesktop) {
    Open([](frmHoldWordList& f) {
        EXPECT_TRUE(Press(f, 'D', Mask::Ctrl | Mask::Alt));
        EXPECT_THAT(WordsIn(f), ElementsAre(u"two", u"one", u"three"));
    });
    EXPECT_THAT(t.shell.Calls(), IsEmpty());
}

TEST_F(WordListKeys, InsertAddsAndDeleteRemoves) {
    Open([this](frmHoldWordList& f) {
        Type(u"four", u"Enter string to put in list.");
        EXPECT_TRUE(Press(f, Key::Insert));
        t.user.Answer(Answer::Yes);
        EXPECT_TRUE(Press(f, Key::Delete));
        EXPECT_THAT(WordsIn(f), ElementsAre(u"one", u"two", u"three"));
    });
}

TEST_F(WordListKeys, StartsTheBrowserAndTheMail) {
    const Text browser = u"C:\\Web\\browser.exe";
    t.files.AddFile(browser);
    t.app.Settings.CustomBrowserPath = browser;
    t.app.Settings.WebmailUrl = u"old";
    Open([this](frmHoldWordList& f) {
        EXPECT_TRUE(Press(f, 'B', Mask::Alt));
        Type(u"mail.example", u"Enter URL for webmail interface", u"old");
        EXPECT_TRUE(Press(f, Key::F(5), Mask::Ctrl | Mask::Alt));
        Type(std::nullopt, u"Enter URL for webmail interface", u"mail.example");
        EXPECT_TRUE(Press(f, Key::F(5), Mask::Ctrl | Mask::Alt));
    });
    EXPECT_THAT(t.shell.Starts(),
                ElementsAre(ProgramStart{browser}, ProgramStart{browser, {u"mail.example"}}));
}

TEST_F(WordListKeys, ExploresTheFolderOfTheList) {
    t.app.Settings.WordListFile = u"C:\\Korvane\\my.lst";
    Open([](frmHoldWordList& f) {
        EXPECT_TRUE(Press(f, 'X', Mask::Ctrl | Mask::Alt));
        f.OfficeMenu1.Choose("mnuExplorer");
    });
    const ShellCall explores{ShellCall::Kind::Explore, u"C:\\Korvane"};
    EXPECT_THAT(t.shell.Calls(), ElementsAre(explores, explores));
}

TEST_F(WordListKeys, LorritGetsTheFolderOfTheList) {
    const Text lorrit = u"C:\\Drive_G\\Sandrel\\Hadrell\\Lorrit\\Lorrit.exe";
    t.files.AddFile(lorrit);
    t.app.Settings.WordListFile = u"C:\\Korvane\\my.lst";
    Open([](frmHoldWordList& f) { f.OfficeMenu1.Choose("mnuLorrit"); });
    EXPECT_THAT(t.shell.Starts(), ElementsAre(ProgramStart{lorrit, {u"C:\\Korvane"}}));
}

TEST_F(WordListKeys, AnyOtherKeyPasses) {
    Open([](frmHoldWordList& f) {
        EXPECT_FALSE(Press(f, 'A'));
        EXPECT_FALSE(Press(f, Key::Down));
    });
}

} // namespace
} // namespace korvane
