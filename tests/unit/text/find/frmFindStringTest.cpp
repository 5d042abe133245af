#include "text/find/frmFindString.h"

#include "context/exchange/WordEnds.h"
#include "context/ports/TextTools.h"
#include "context/ports/WordList.h"
#include "support/FakeMainWindow.h"
#include "support/TestApp.h"
#include "text/find/FindWindow.h"

#include <gmock/gmock.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A place in the text and the length of the selection there.
using Selection = std::pair<int, int>;

class FindStringTest : public testing::Test {
protected:
    FindStringTest() {
        t.screen.SetWorkArea({Twips{0}, Twips{0}, Twips{30000}, Twips{16000}});
        t.app.Settings.WordDelimiters = u".,";
        t.app.Settings.FindOptionB = 1;
    }

    /// Opens the window over a text and lets `act` be done in it.
    void Open(const Text& all, const std::function<void(frmFindString&)>& act) {
        text.SetAll(all);
        text.SetSelStart(0);
        text.SetDataChanged(false);
        OpenAgain(act);
    }
    void OpenAgain(const std::function<void(frmFindString&)>& act) {
        t.user.On<frmFindString>([&act](frmFindString& f) {
            act(f);
            if (f.Shown()) f.Close();
        });
        finder.FindString(text);
    }
    static bool Press(frmFindString& f, int code, int mask = Mask::None) {
        KeyEvent key{code, mask};
        f.txtFindString.KeyDown(key);
        return key.consumed;
    }
    /// Searches, and tells what is selected then.
    Selection Find(frmFindString& f, const Text& wanted) {
        f.txtFindString.SetAll(wanted);
        return FindOn(f);
    }
    Selection FindOn(frmFindString& f) {
        EXPECT_TRUE(Press(f, Key::Return));
        EXPECT_EQ(f.Focused(), &f.txtFindString);
        return {text.SelStart(), text.SelLength()};
    }
    void ExpectNothing(const Text& wanted) {
        t.user.Answer({u"No (further) find for :\r\n\t\"" + wanted + u"\"\t", MessageIcon::Information},
                      Answer::Ok);
    }
    static std::vector<Text> History(const frmFindString& f) {
        std::vector<Text> history;
        for (int entry = 0; entry < f.cboFindString.ListCount(); ++entry)
            history.push_back(f.cboFindString.List(entry));
        return history;
    }
    bool IsDelimiter(char character) const {
        return t.app.Exchange<WordEnds>().DelimiterTable[static_cast<unsigned char>(character)];
    }

    TestApp t;
    FakeMainWindow main{t.app};
    Form owner{t.app.Forms(), "frm_RTF_HTM", u""};
    TextControl text{owner, "ThisTextCtrl"};
    FindWindow finder{t.app};
};

class NotingTools final : public TextTools {
public:
    explicit NotingTools(App& app) : app_(app) { app.SetPort<TextTools>(this); }
    std::string asked;
    bool ChooseFont(TextControl&) override { return false; }
    void ShowUnicode(TextControl& target) override {
        asked += "unicode " + std::to_string(app_.DialogResult) + " ";
        target.SetSelText(u"\u03B1");
    }
    void ShowCharacters(TextControl& target) override {
        asked += "characters ";
        target.SetSelText(u"@");
    }
    void ShowElements(TextControl&) override {}

private:
    App& app_;
};

// Looks, opening and closing.

TEST_F(FindStringTest, HasItsCaptionsAndMenu) {
    const frmFindString f(t.app, text);
    EXPECT_EQ(f.Caption.Get(), u"Find string");
    std::vector<std::pair<std::string, Text>> menu;
    for (const MenuEntry& entry : f.OfficeMenu1.Entries())
        menu.emplace_back(entry.name, Text(entry.caption));
    EXPECT_THAT(menu, ElementsAre(std::pair("mnuExit", u"E&xit"), std::pair("mnuTop", u"&Top"),
                                  std::pair("mnuOutset", u"&Outset"), std::pair("mnuUnicode", u"&Unicode"),
                                  std::pair("mnuCharacters", u"C&hars"), std::pair("mnuFind", u"&Find")));
    EXPECT_EQ(f.optDown.Caption.Get(), u"&Down");
    EXPECT_EQ(f.chkCase.Caption.Get(), u"&Case sensitive search");
}

/// Kept for compatibility: puncutation-caption.
TEST_F(FindStringTest, TheCaptionForWholeWordsIsKept) {
    const frmFindString f(t.app, text);
    EXPECT_EQ(f.chkWholeWord.Caption.Get(), u"&Whole words;     Puncutation:");
}

/// Kept for compatibility: find-proposes-last-text.
TEST_F(FindStringTest, ProposesWhatWasSearchedLastAndNotTheSelection) {
    Open(u"one two", [](frmFindString& f) { f.txtFindString.SetAll(u"two"); });
    text.SetSelection(0, 3);
    OpenAgain([](frmFindString& f) {
        EXPECT_EQ(f.txtFindString.All(), u"two");
        EXPECT_EQ(f.txtFindString.SelText(), u"two");
        EXPECT_EQ(f.Focused(), &f.txtFindString);
        f.txtFindString.SetAll(u"");
    });
    OpenAgain([](frmFindString& f) { EXPECT_EQ(f.txtFindString.All(), u"two"); });
}

TEST_F(FindStringTest, TakesItsOptionsFromTheSettingsAndStoresThem) {
    Settings& settings = t.app.Settings;
    settings.FindOptionA = 1;
    settings.FindOptionC = 1;
    settings.FindOptionCopy = 0;
    Open(u"", [](frmFindString& f) {
        EXPECT_TRUE(f.optUp.Value);
        EXPECT_EQ(f.chkCase.Value, 1);
        EXPECT_EQ(f.chkWholeWord.Value, 1);
        EXPECT_EQ(f.txtWordDelimiters.Text.Get(), u".,");
        f.chkCase.Press();
    });
    EXPECT_EQ(settings.FindOptionA, 1);
    EXPECT_EQ(settings.FindOptionB, 0);
    EXPECT_EQ(settings.FindOptionC, 1);
    EXPECT_EQ(settings.FindOptionCopy, 1);
    OpenAgain([](frmFindString& f) { f.optDown.Press(); });
    EXPECT_EQ(settings.FindOptionA, 0);
}

TEST_F(FindStringTest, StoresItsPlaceWithoutAHeight) {
    t.app.Settings.FindStringLeft = 700;
    t.app.Settings.FindStringTop = 800;
    t.app.Settings.FindStringWidth = 9000;
    Open(u"", [](frmFindString& f) {
        EXPECT_EQ(f.Left.Get(), Twips{700});
        EXPECT_EQ(f.Top.Get(), Twips{800});
        EXPECT_EQ(f.Width.Get(), Twips{9000});
        EXPECT_GT(f.Height.Get(), Twips{0});
        f.Left = Twips{900};
        f.Width = Twips{8000};
    });
    EXPECT_EQ(t.app.Settings.FindStringLeft, 900);
    EXPECT_EQ(t.app.Settings.FindStringWidth, 8000);
}

TEST_F(FindStringTest, WithoutAStoredPlaceItIsWhollyOnTheScreen) {
    Open(u"", [](frmFindString& f) {
        EXPECT_GE(f.Left.Get(), Twips{0});
        EXPECT_GE(f.Top.Get(), Twips{0});
        EXPECT_GT(f.Width.Get(), Twips{4000});
        EXPECT_LE(f.Left.Get().Number() + f.Width.Get().Number(), 30000);
        EXPECT_LE(f.Top.Get().Number() + f.Height.Get().Number(), 16000);
    });
}

TEST_F(FindStringTest, TheTickForWholeWordsIsStoredTwice) {
    for (const std::int16_t ticked : {std::int16_t{1}, std::int16_t{0}}) {
        Open(u"", [ticked](frmFindString& f) { f.chkWholeWord.Value = ticked; });
        EXPECT_EQ(t.app.Settings.FindOptionC, ticked);
        EXPECT_EQ(t.app.Settings.FindOptionCopy, ticked);
    }
}

TEST_F(FindStringTest, AStoredPlaceBesideTheScreenIsMovedBack) {
    t.app.Settings.FindStringLeft = 29000;
    t.app.Settings.FindStringTop = 15000;
    t.app.Settings.FindStringWidth = 9000;
    Open(u"", [](frmFindString& f) {
        EXPECT_EQ(f.Left.Get(), Twips{30000 - 9000 - 600});
        EXPECT_LT(f.Top.Get(), Twips{15000});
    });
}

// Down and up.

TEST_F(FindStringTest, ReturnGoesFromHitToHitDownwards) {
    Open(u"one two one\r\none", [this](frmFindString& f) {
        EXPECT_EQ(Find(f, u"one"), (Selection{0, 3}));
        EXPECT_EQ(FindOn(f), (Selection{8, 3}));
        f.OfficeMenu1.Choose("mnuFind");
        EXPECT_EQ(text.SelStart(), 13);
        ExpectNothing(u"one");
        EXPECT_EQ(FindOn(f), (Selection{13, 3}));
        f.OfficeMenu1.Choose("mnuTop");
        EXPECT_EQ(f.Focused(), &f.txtFindString);
        EXPECT_EQ(text.SelLength(), 0);
        EXPECT_EQ(FindOn(f), (Selection{0, 3}));
    });
}

TEST_F(FindStringTest, GoesUpFromTheBeginningOfTheSelection) {
    Open(u"one two one two", [this](frmFindString& f) {
        f.optUp.Press();
        text.SetSelection(11, 4);
        EXPECT_EQ(Find(f, u"one"), (Selection{8, 3}));
        EXPECT_EQ(FindOn(f), (Selection{0, 3}));
        ExpectNothing(u"one");
        EXPECT_EQ(FindOn(f), (Selection{0, 3}));
    });
}

TEST_F(FindStringTest, CaseIsIgnoredUpwardsToo) {
    t.app.Settings.FindOptionB = 0;
    Open(u"One \u00C4 one ONE", [this](frmFindString& f) {
        f.optUp.Press();
        text.SetSelStart(10);
        EXPECT_EQ(Find(f, u"oNe"), (Selection{6, 3}));
        EXPECT_EQ(FindOn(f), (Selection{0, 3}));
        text.SetSelStart(10);
        EXPECT_EQ(Find(f, u"\u00E4"), (Selection{4, 1}));
        f.chkCase.Press();
        ExpectNothing(u"\u00E4");
        text.SetSelStart(10);
        FindOn(f);
    });
}

TEST_F(FindStringTest, ASearchDownStartsAfterTheSelection) {
    Open(u"aaaa", [this](frmFindString& f) {
        text.SetSelection(0, 1);
        EXPECT_EQ(Find(f, u"aa"), (Selection{1, 2}));
        ExpectNothing(u"aa");
        FindOn(f);
    });
}

TEST_F(FindStringTest, CaseCountsWhenTheBoxIsTicked) {
    Open(u"One one \u00C4", [this](frmFindString& f) {
        EXPECT_EQ(Find(f, u"one"), (Selection{4, 3}));
        f.chkCase.Press();
        f.OfficeMenu1.Choose("mnuTop");
        EXPECT_EQ(FindOn(f), (Selection{0, 3}));
        EXPECT_EQ(Find(f, u"\u00E4"), (Selection{8, 1}));
    });
}

TEST_F(FindStringTest, NothingIsSearchedForNothing) {
    Open(u"one", [this](frmFindString& f) {
        EXPECT_EQ(Find(f, u""), (Selection{0, 0}));
        EXPECT_THAT(History(f), IsEmpty());
    });
}

TEST_F(FindStringTest, TheTextMayChangeWhileTheWindowIsOpen) {
    for (const int wholeWords : {0, 1}) {
        t.app.Settings.FindOptionC = static_cast<std::int16_t>(wholeWords);
        Open(u"a long text with one word", [this](frmFindString& f) {
            EXPECT_EQ(Find(f, u"one"), (Selection{17, 3}));
            text.SetAll(u"one ");
            text.SetSelStart(0);
            EXPECT_EQ(FindOn(f), (Selection{0, 3}));
            text.SetAll(u"");
            ExpectNothing(u"one");
            FindOn(f);
        });
    }
}

TEST_F(FindStringTest, TheHitIsWantedHighInTheView) {
    class NotingView final : public View {
    public:
        std::vector<Aspect> followed;
        void Follow(Observed&, Aspect aspect) override { followed.push_back(aspect); }
    } view;
    Open(u"one two", [&](frmFindString& f) {
        text.SetView(&view);
        Find(f, u"two");
        text.SetView(nullptr);
    });
    EXPECT_THAT(view.followed,
                ElementsAre(Aspect::Visible, Aspect::Selection, Aspect::Range, Aspect::Visible));
    EXPECT_TRUE(text.Redraw);
    EXPECT_FALSE(text.DataChanged());
}

// Whole words.

class FindWords : public FindStringTest {
protected:
    FindWords() { t.app.Settings.FindOptionC = 1; }
};

TEST_F(FindWords, AWordStandsBetweenDelimiters) {
    Open(u"stones bone,one.", [this](frmFindString& f) { EXPECT_EQ(Find(f, u"one"), (Selection{12, 3})); });
}

/// Kept for compatibility: second-place-begins-word.
TEST_F(FindWords, AtTheSecondPlaceOfTheTextNothingHasToBeInFront) {
    Open(u"xone xxone.", [this](frmFindString& f) { EXPECT_EQ(Find(f, u"one"), (Selection{1, 3})); });
    Open(u"xxone.", [this](frmFindString& f) {
        ExpectNothing(u"one");
        Find(f, u"one");
    });
}

TEST_F(FindWords, TopStartsAgain) {
    Open(u"one two one.", [this](frmFindString& f) {
        text.SetSelection(4, 3);
        EXPECT_EQ(Find(f, u"one"), (Selection{8, 3}));
        f.OfficeMenu1.Choose("mnuTop");
        EXPECT_EQ(text.SelStart(), 0);
        EXPECT_EQ(text.SelLength(), 0);
        EXPECT_EQ(FindOn(f), (Selection{0, 3}));
    });
}

/// Kept for compatibility: word-search-finds-hit-again.
TEST_F(FindWords, ReturnFindsTheSelectedWordAgain) {
    Open(u"a one, one.", [this](frmFindString& f) {
        EXPECT_EQ(Find(f, u"one"), (Selection{2, 3}));
        EXPECT_EQ(FindOn(f), (Selection{2, 3}));
        text.SetSelStart(3);
        EXPECT_EQ(FindOn(f), (Selection{7, 3}));
    });
}

TEST_F(FindWords, UpIsIgnored) {
    t.app.Settings.FindOptionA = 1;
    Open(u"one two one.", [this](frmFindString& f) {
        text.SetSelStart(4);
        EXPECT_EQ(Find(f, u"one"), (Selection{8, 3}));
        EXPECT_EQ(t.app.Settings.FindOptionA, 0);
    });
    EXPECT_EQ(t.app.Settings.FindOptionA, 1);
}

/// Kept for compatibility: blank-ends-word-search.
TEST_F(FindWords, ABlankOrTabTakesTheTickAway) {
    for (const TextView blank : {u" ", u"\t"}) {
        const Text wanted = u"b" + Text(blank) + u"c";
        t.app.Settings.FindOptionA = 0;
        t.app.Settings.FindOptionC = 1;
        Open(u"ab" + Text(blank) + u"cd bc.", [&](frmFindString& f) {
            EXPECT_EQ(Find(f, wanted), (Selection{1, 3}));
            EXPECT_EQ(f.chkWholeWord.Value, 0);
            EXPECT_EQ(Find(f, u"d"), (Selection{4, 1}));
            EXPECT_EQ(f.chkWholeWord.Value, 0);
            f.optUp.Press();
            EXPECT_EQ(Find(f, wanted), (Selection{1, 3}));
        });
        EXPECT_EQ(t.app.Settings.FindOptionC, 0);
    }
}

/// Kept for compatibility: word-search-passes-hits.
TEST_F(FindWords, TheLastWordOfTheTextIsntFound) {
    Open(u"the one", [this](frmFindString& f) {
        ExpectNothing(u"one");
        EXPECT_EQ(Find(f, u"one"), (Selection{0, 0}));
        f.chkWholeWord.Press();
        EXPECT_EQ(FindOn(f), (Selection{4, 3}));
    });
}

TEST_F(FindWords, TheTickCountsAtOnce) {
    t.app.Settings.FindOptionC = 0;
    Open(u"bone one.", [this](frmFindString& f) {
        EXPECT_EQ(Find(f, u"one"), (Selection{1, 3}));
        f.chkWholeWord.Press();
        text.SetSelStart(2);
        EXPECT_EQ(FindOn(f), (Selection{5, 3}));
        EXPECT_EQ(f.chkWholeWord.Value, 1);
    });
}

TEST_F(FindWords, OtherDelimitersCountAtOnceAndStay) {
    Open(u"a one+two", [this](frmFindString& f) {
        EXPECT_TRUE(IsDelimiter('.'));
        ExpectNothing(u"one");
        Find(f, u"one");
        f.txtWordDelimiters.Text = u"+";
        EXPECT_TRUE(IsDelimiter('+'));
        EXPECT_FALSE(IsDelimiter('.'));
        EXPECT_TRUE(IsDelimiter(' '));
        EXPECT_EQ(FindOn(f), (Selection{2, 3}));
    });
    EXPECT_EQ(t.app.Settings.WordDelimiters, u"+");
}

TEST_F(FindWords, WithoutDelimitersThoseThatAlwaysCountAreThere) {
    t.app.Settings.WordDelimiters.clear();
    t.app.Exchange<WordEnds>().DelimiterTable.fill(true);
    Open(u"", [this](frmFindString&) {
        EXPECT_TRUE(IsDelimiter(' '));
        EXPECT_FALSE(IsDelimiter('.'));
    });
}

TEST_F(FindWords, CaseCountsWhenTheBoxIsTicked) {
    Open(u"a One, one.", [this](frmFindString& f) {
        EXPECT_EQ(Find(f, u"one"), (Selection{7, 3}));
        f.chkCase.Press();
        text.SetSelStart(0);
        EXPECT_EQ(FindOn(f), (Selection{2, 3}));
    });
}

// The history.

TEST_F(FindStringTest, WhatWasSearchedStaysInTheList) {
    Open(u"one One two", [this](frmFindString& f) {
        Find(f, u"one");
        Find(f, u"One");
        t.user.Answer(Answer::Ok);
        Find(f, u"one");
        EXPECT_THAT(History(f), ElementsAre(u"one", u"One"));
    });
    OpenAgain([](frmFindString& f) {
        EXPECT_THAT(History(f), ElementsAre(u"one", u"One"));
        f.cboFindString.Select(1);
        EXPECT_EQ(f.txtFindString.All(), u"One");
        EXPECT_EQ(f.txtFindString.SelText(), u"One");
        EXPECT_EQ(f.Focused(), &f.txtFindString);
    });
    EXPECT_EQ(t.app.Exchange<FindState>().FindHistory, u"one\rOne\r");
}

// Other commands.

/// Kept for compatibility: outset-only-closes.
TEST_F(FindStringTest, OutsetClosesAndLeavesTheCursor) {
    Open(u"one two", [this](frmFindString& f) {
        Find(f, u"two");
        f.OfficeMenu1.Choose("mnuOutset");
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(t.app.DialogResult, 9);
    EXPECT_EQ(text.SelStart(), 4);
}

TEST_F(FindStringTest, EscAndExitClose) {
    Open(u"", [](frmFindString& f) {
        KeyEvent esc{Key::Escape};
        f.KeyDown(esc);
        EXPECT_TRUE(esc.consumed);
        EXPECT_FALSE(f.Shown());
    });
    OpenAgain([](frmFindString& f) {
        f.OfficeMenu1.Choose("mnuExit");
        EXPECT_FALSE(f.Shown());
    });
}

TEST_F(FindStringTest, CharactersComeToTheCursor) {
    Open(u"", [](frmFindString& f) {
        f.OfficeMenu1.Choose("mnuUnicode");
        f.OfficeMenu1.Choose("mnuCharacters");
        EXPECT_EQ(f.txtFindString.All(), u"");
    });
    NotingTools tools(t.app);
    OpenAgain([](frmFindString& f) {
        f.txtFindString.SetAll(u"ab");
        f.txtFindString.SetSelStart(1);
        f.OfficeMenu1.Choose("mnuUnicode");
        EXPECT_EQ(f.Focused(), &f.txtFindString);
        f.OfficeMenu1.Choose("mnuCharacters");
        EXPECT_EQ(f.txtFindString.All(), u"a\u03B1@b");
    });
    EXPECT_EQ(tools.asked, "unicode 20 characters ");
}

TEST_F(FindStringTest, CtrlKPutsInWhatIsTakenFromTheWordList) {
    class List final : public WordList {
    public:
        std::optional<Text> word;
        std::optional<Text> Choose() override { return word; }
        void Collect(TextView) override { ADD_FAILURE() << "nothing is collected here"; }
    } list;
    Open(u"", [](frmFindString& f) { EXPECT_TRUE(Press(f, 'K', Mask::Ctrl)); });
    t.app.SetPort<WordList>(&list);
    OpenAgain([&list](frmFindString& f) {
        f.txtFindString.SetAll(u"ab");
        f.txtFindString.SetSelection(1, 1);
        EXPECT_TRUE(Press(f, 'K', Mask::Ctrl));
        EXPECT_EQ(f.txtFindString.All(), u"ab");
        list.word = u"word";
        EXPECT_TRUE(Press(f, 'K', Mask::Ctrl));
        EXPECT_EQ(f.txtFindString.All(), u"aword");
        EXPECT_EQ(f.Focused(), &f.txtFindString);
    });
}

TEST_F(FindStringTest, TakesMostOfTheMainWindow) {
    main.window.Left = Twips{1000};
    main.window.Width = Twips{10000};
    main.window.Height = Twips{8000};
    Open(u"", [](frmFindString& f) {
        EXPECT_TRUE(Press(f, Key::F(2), Mask::Ctrl | Mask::Shift));
        EXPECT_EQ(f.Width.Get(), Twips{9000});
        EXPECT_EQ(f.Left.Get(), Twips{1500});
        EXPECT_EQ(f.Height.Get(), Twips{7200});
    });
}

TEST_F(FindStringTest, OtherKeysPass) {
    Open(u"", [](frmFindString& f) {
        EXPECT_FALSE(Press(f, 'A'));
        EXPECT_FALSE(Press(f, Key::Return, Mask::Ctrl));
    });
}

TEST_F(FindStringTest, IsThePortAsLongAsItLives) {
    {
        const FindWindow other(t.app);
        EXPECT_EQ(t.app.Port<TextFinder>(), &other);
    }
    EXPECT_EQ(t.app.Port<TextFinder>(), nullptr);
}

} // namespace
} // namespace korvane
