// Every test of a window relies on the scripted user: it has to notice what isn't scripted.

#include "support/ScriptedUser.h"

#include "context/exchange/ListerRequest.h"
#include "context/ports/ColourPicker.h"
#include "controls/CommandButton.h"
#include "controls/Menu.h"
#include "support/ScriptedPickers.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace korvane {
namespace {

class Question : public Form {
public:
    explicit Question(FormHost& host) : Form(host, "Question", u"Question") {
        cmdClose.Click = [this] { Close(); };
    }
    CommandButton cmdClose{*this, "cmdClose", u"&Close"};
};

class OtherWindow : public Form {
public:
    explicit OtherWindow(FormHost& host) : Form(host, "OtherWindow", u"") {}
};

const Message kYesNo{u"Sure?", MessageIcon::Question, MessageButtons::YesNo};

TEST(ScriptedUser, PlaysWindowsAndBoxesInTheOrderOfTheScript) {
    ScriptedUser user;
    user.On<Question>([&](Question& window) {
        EXPECT_EQ(user.Show(kYesNo), Answer::Yes);
        window.cmdClose.Press();
    });
    user.Answer(kYesNo, Answer::Yes);
    Question window(user);
    window.ShowModal();
    EXPECT_FALSE(window.Shown());
    EXPECT_EQ(user.Messages(), std::vector<Message>{kYesNo});
}

TEST(ScriptedUser, FailsForAWindowThatIsNotScripted) {
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedUser user;
            Question window(user);
            window.ShowModal();
        },
        "nobody scripted the window Question");
}

TEST(ScriptedUser, FailsForAModalWindowThatItsScriptLeavesOpen) {
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedUser user;
            user.On<Question>([](Question&) {});
            Question window(user);
            window.ShowModal();
        },
        "the window Question was left open");
}

TEST(ScriptedUser, FailsForAnotherWindowThanTheScriptAwaits) {
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedUser user;
            user.On<OtherWindow>([](OtherWindow&) {});
            Question window(user);
            window.Show();
        },
        "another window than Question");
}

TEST(ScriptedUser, FailsForABoxThatIsNotScriptedAndNamesIt) {
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedUser user;
            EXPECT_EQ(user.Show(kYesNo), Answer::No);
        },
        "Sure?");
}

TEST(ScriptedUser, FailsForABoxThatDiffersInItsButtonsAlone) {
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedUser user;
            Message other = kYesNo;
            other.buttons = MessageButtons::YesNoCancel;
            user.Answer(kYesNo, Answer::Yes);
            user.Show(other);
        },
        "Sure?");
}

TEST(ScriptedUser, FailsForAnAnswerThatTheBoxHasNoButtonFor) {
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedUser user;
            user.Answer(Answer::Cancel);
            EXPECT_EQ(user.Show(kYesNo), Answer::No);
        },
        "no such button");
}

TEST(ScriptedUser, FailsForABoxOutOfTurn) {
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedUser user;
            user.ChooseFile(u"C:\\a.tbx");
            user.Show(kYesNo);
            ListerRequest request;
            user.Pickers().Choose(request);
        },
        "the script awaits the file chooser");
}

TEST(ScriptedUser, FailsForWhatTheScriptAwaitsAndNeverComes) {
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedUser user;
            user.ChooseFromPopUp("mnuEdit_Find");
        },
        "still awaits a pop-up menu");
}

TEST(ScriptedUser, ChoosesSeveralFiles) {
    ScriptedUser user;
    user.ChooseFiles({u"C:\\a.tbx", u"C:\\b.tbx"});
    ListerRequest request;
    user.Pickers().Choose(request);
    EXPECT_EQ(request.ChosenFileCount, 2);
    EXPECT_EQ(request.ChosenFiles[2], u"C:\\b.tbx");
    EXPECT_EQ(request.ChosenFilePath, u"C:\\a.tbx");
}

TEST(ScriptedUser, ChoosesAColourAndTellsWhereTheDialogOpened) {
    using enum ColourPicker::Extent;
    ScriptedUser user;
    user.ChooseColour(Colour{255});
    user.ChooseColour(std::nullopt);
    EXPECT_EQ(user.Pickers().Choose(Colour{1}, Full), Colour{255});
    EXPECT_EQ(user.Pickers().Choose(Colour{2}, Simple), std::nullopt);
    const std::vector<ColourRequest> requests{{Colour{1}, Full}, {Colour{2}, Simple}};
    EXPECT_EQ(user.ColourRequests(), requests);
}

TEST(ScriptedUser, ChoosesAFontAndTellsWithWhichTheDialogOpened) {
    const FontSpec present{u"Arial", 9};
    const FontSpec chosen{u"Courier", 12, true};
    ScriptedUser user;
    user.ChooseFont(chosen);
    user.ChooseFont(std::nullopt);
    EXPECT_EQ(user.Pickers().Choose(present), chosen);
    EXPECT_EQ(user.Pickers().Choose(chosen), std::nullopt);
    EXPECT_EQ(user.FontRequests(), (std::vector<FontSpec>{present, chosen}));
}

TEST(ScriptedUser, FailsForAColourOrFontDialogThatIsNotScripted) {
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedUser user;
            EXPECT_EQ(user.Pickers().Choose(Colour{1}, ColourPicker::Extent::Simple), std::nullopt);
        },
        "nobody scripted the colour dialog");
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedUser user;
            EXPECT_EQ(user.Pickers().Choose(FontSpec{}), std::nullopt);
        },
        "nobody scripted the font dialog");
}

TEST(ScriptedUser, ChoosesAnEntryOfAPopUpMenu) {
    static constexpr std::array entries{MenuEntry{0, "first", u"First", ""}};
    ScriptedUser user;
    Question window(user);
    Menu menu(window, "mnuPopupMenu", entries);
    std::string chosen;
    menu.Chosen = [&](std::string_view name) { chosen = name; };
    user.ChooseFromPopUp("first");
    user.PopUp(menu);
    EXPECT_EQ(chosen, "first");
    EXPECT_EQ(user.PopUps(), std::vector<std::string>{"mnuPopupMenu"});
}

} // namespace
} // namespace korvane
