#include "extras/lock/frmWallpaper.h"

#include "context/exchange/InputQuestion.h"
#include "dialogs/frmMyInputBox.h"
#include "support/FakeSystemFileDialog.h"
#include "support/TestApp.h"

#include <gtest/gtest.h>

#include <map>

namespace korvane {
namespace {

class FakePictureFiles final : public PictureFiles {
public:
    explicit FakePictureFiles(App& app) { app.SetPort<PictureFiles>(this); }
    std::optional<PictureSize> NaturalSize(TextView path) override {
        const auto found = sizes.find(Text(path));
        return found == sizes.end() ? std::nullopt : std::optional(found->second);
    }
    std::map<Text, PictureSize> sizes;
};

constexpr TextView kSea = u"C:\\pictures\\sea.jpg";
constexpr Rect kNoPlace{};

Rect Place(int left, int top, int width, int height) {
    return {Twips(left), Twips(top), Twips(width), Twips(height)};
}

class WallpaperTest : public testing::Test {
protected:
    WallpaperTest() {
        t.screen.SetWorkArea(Place(500, 300, 10000, 8000));
        t.files.AddFile(kSea);
        pictures.sizes[Text(kSea)] = {Twips(5000), Twips(4000)};
        t.app.Settings.WallpaperFile = kSea;
        t.app.Settings.ReturnPassword = u"Secret";
    }

    /// Opens the lock. After the script the right password opens it.
    void InLock(const std::function<void(frmWallpaper&)>& script) {
        t.user.On<frmWallpaper>([this, script](frmWallpaper& f) {
            script(f);
            Answer(u"Secret");
            EXPECT_TRUE(f.Close());
        });
        frmWallpaper(t.app).ShowModal();
    }
    /// The next question gets this answer.
    void Answer(TextView answer) {
        t.user.On<frmMyInputBox>([answer = Text(answer)](frmMyInputBox& box) {
            box.txtBoxText.Text = answer;
            box.cmdOk.Press();
        });
    }
    void ExpectWrong(TextView answer) {
        t.user.Answer({u"Wrong password!\r\n\r\n\"" + Text(answer) + u"\"", MessageIcon::Stop},
                      korvane::Answer::Ok);
    }

    TestApp t;
    FakePictureFiles pictures{t.app};
    FakeSystemFileDialog chooser{t.app};
};

TEST_F(WallpaperTest, CoversTheWorkArea) {
    InLock([](frmWallpaper& f) {
        EXPECT_EQ((Rect{f.Left, f.Top, f.Width, f.Height}), Place(500, 300, 10000, 8000));
    });
}

TEST_F(WallpaperTest, HasItsBar) {
    InLock([](frmWallpaper& f) {
        std::vector<Text> captions;
        for (const MenuEntry& entry : f.OfficeMenu1.Entries())
            captions.emplace_back(entry.caption);
        EXPECT_EQ(captions, (std::vector<Text>{u"E&xit", u"&Stretch", u"&Image"}));
    });
}

// The picture.

TEST_F(WallpaperTest, AnEmptyNameIsReportedAndTheWindowStaysBlank) {
    t.app.Settings.WallpaperFile = u"";
    t.user.Answer({u"Cannot locate the following program/file:\r\n\r\n( Filename empty! )\r\n\r\nCheck the "
                   u"path before the name and see whether\r\nthe program/file exists on your hard disk.",
                   MessageIcon::Stop},
                  Answer::Ok);
    InLock([](frmWallpaper& f) {
        EXPECT_EQ(f.Image1.File.Get(), u"");
        EXPECT_EQ(f.Image1.Place.Get(), kNoPlace);
    });
    EXPECT_EQ(t.app.Settings.WallpaperFile, u"");
}

TEST_F(WallpaperTest, ALostFileIsReportedAndTheWindowStaysBlank) {
    t.app.Settings.WallpaperFile = u"C:\\lost.png";
    t.user.Answer({u"Cannot locate the following program/file:\r\n\r\nC:\\lost.png\r\n\r\nCheck the path "
                   u"before the name and see whether\r\nthe program/file exists on your hard disk.",
                   MessageIcon::Stop},
                  Answer::Ok);
    InLock([](frmWallpaper& f) {
        EXPECT_EQ(f.Image1.File.Get(), u"");
        EXPECT_FALSE(f.HScroll1.Visible);
        EXPECT_FALSE(f.VScroll1.Visible);
    });
}

TEST_F(WallpaperTest, AnUnreadablePictureLeavesTheImageEmptyWithoutAWord) {
    pictures.sizes.clear();
    InLock([](frmWallpaper& f) {
        EXPECT_EQ(f.Image1.File.Get(), u"");
        EXPECT_EQ(f.Image1.Place.Get(), kNoPlace);
    });
    EXPECT_TRUE(t.user.Messages().empty());
}

TEST_F(WallpaperTest, APictureIsCentredInItsOwnSize) {
    InLock([](frmWallpaper& f) {
        EXPECT_EQ(f.Image1.File.Get(), kSea);
        EXPECT_EQ(f.Image1.Place.Get(), Place(2500, 2000, 5000, 4000));
        EXPECT_FALSE(f.HScroll1.Visible);
        EXPECT_FALSE(f.VScroll1.Visible);
    });
}

TEST_F(WallpaperTest, APictureIsStretchedWhenTheSettingIsOne) {
    t.app.Settings.WallpaperNumber = u"1";
    InLock([](frmWallpaper& f) { EXPECT_EQ(f.Image1.Place.Get(), Place(0, 0, 10000, 8000)); });
}

TEST_F(WallpaperTest, AnyOtherSettingLeavesItsSize) {
    for (const TextView number : {u"", u"0", u"2", u"-1"}) {
        t.app.Settings.WallpaperNumber = number;
        InLock([](frmWallpaper& f) { EXPECT_EQ(f.Image1.Place.Get(), Place(2500, 2000, 5000, 4000)); });
    }
}

TEST_F(WallpaperTest, FollowsTheRoomInsideTheWindow) {
    InLock([](frmWallpaper& f) {
        f.Image1.Resized(Twips(10000), Twips(7700));
        EXPECT_EQ(f.Image1.Place.Get(), Place(2500, 1850, 5000, 4000));
    });
}

TEST_F(WallpaperTest, NothingIsFittedIntoNoRoom) {
    InLock([](frmWallpaper& f) {
        f.Image1.Resized(Twips(0), Twips(0));
        EXPECT_EQ(f.Image1.Place.Get(), kNoPlace);
    });
}

TEST_F(WallpaperTest, StretchTogglesTheSettingAndTwiceGivesTheFirstViewAgain) {
    InLock([this](frmWallpaper& f) {
        const Rect before = f.Image1.Place;
        f.OfficeMenu1.Choose("mnuStretch");
        EXPECT_EQ(t.app.Settings.WallpaperNumber, u"1");
        EXPECT_EQ(f.Image1.Place.Get(), Place(0, 0, 10000, 8000));
        f.OfficeMenu1.Choose("mnuStretch");
        EXPECT_EQ(t.app.Settings.WallpaperNumber, u"0");
        EXPECT_EQ(f.Image1.Place.Get(), before);
    });
}

TEST_F(WallpaperTest, StretchTurnsAnyOtherSettingOn) {
    for (const TextView number : {u"", u"2", u"-1", u"yes", u" 1"}) {
        t.app.Settings.WallpaperNumber = number;
        InLock([this](frmWallpaper& f) {
            f.OfficeMenu1.Choose("mnuStretch");
            EXPECT_EQ(t.app.Settings.WallpaperNumber, u"1");
            EXPECT_EQ(f.Image1.Place.Get(), Place(0, 0, 10000, 8000));
        });
    }
}

TEST_F(WallpaperTest, APictureOfTheWindowsSizeFillsItWithAndWithoutStretching) {
    pictures.sizes[Text(kSea)] = {Twips(10000), Twips(8000)};
    for (const TextView number : {u"0", u"1"}) {
        t.app.Settings.WallpaperNumber = number;
        InLock([](frmWallpaper& f) {
            EXPECT_EQ(f.Image1.Place.Get(), Place(0, 0, 10000, 8000));
            EXPECT_FALSE(f.HScroll1.Visible);
            EXPECT_FALSE(f.VScroll1.Visible);
        });
    }
}

class LargePictureTest : public WallpaperTest {
protected:
    LargePictureTest() { pictures.sizes[Text(kSea)] = {Twips(15000), Twips(9000)}; }
    static constexpr int kBar = 255;
};

TEST_F(LargePictureTest, HasScrollBarsThatReachItsLastEdges) {
    InLock([](frmWallpaper& f) {
        EXPECT_EQ(f.Image1.Place.Get(), Place(0, 0, 15000, 9000));
        EXPECT_TRUE(f.HScroll1.Visible);
        EXPECT_TRUE(f.VScroll1.Visible);
        EXPECT_EQ(f.HScroll1.Max, 5000 + kBar);
        EXPECT_EQ(f.VScroll1.Max, 1000 + kBar);
        EXPECT_EQ(f.HScroll1.LargeChange, 10000);
        f.HScroll1.MoveTo(5000 + kBar);
        f.VScroll1.MoveTo(700);
        EXPECT_EQ(f.Image1.Place.Get(), Place(-5000 - kBar, -700, 15000, 9000));
    });
}

TEST_F(LargePictureTest, AnAxisThatFitsHasNoBar) {
    pictures.sizes[Text(kSea)] = {Twips(15000), Twips(7000)};
    InLock([](frmWallpaper& f) {
        EXPECT_TRUE(f.HScroll1.Visible);
        EXPECT_FALSE(f.VScroll1.Visible);
        EXPECT_EQ(f.HScroll1.Max, 5000);
        EXPECT_EQ(f.Image1.Place.Get(), Place(0, 0, 15000, 7000));
    });
}

TEST_F(LargePictureTest, StretchingTakesTheBarsAwayAndComesBackToTheCorner) {
    InLock([](frmWallpaper& f) {
        f.HScroll1.MoveTo(4000);
        f.OfficeMenu1.Choose("mnuStretch");
        EXPECT_EQ(f.Image1.Place.Get(), Place(0, 985, 10000, 6030));
        EXPECT_FALSE(f.HScroll1.Visible);
        EXPECT_FALSE(f.VScroll1.Visible);
        f.OfficeMenu1.Choose("mnuStretch");
        EXPECT_EQ(f.Image1.Place.Get(), Place(0, 0, 15000, 9000));
        EXPECT_EQ(f.HScroll1.Value, 0);
    });
}

TEST_F(WallpaperTest, AnotherImageIsChosenInTheSystemsDialog) {
    t.files.AddFile(u"C:\\hill.png");
    pictures.sizes[u"C:\\hill.png"] = {Twips(1000), Twips(1000)};
    chooser.answer = u"C:\\hill.png";
    InLock([this](frmWallpaper& f) {
        f.OfficeMenu1.Choose("mnuImage");
        EXPECT_EQ(t.app.Settings.WallpaperFile, u"C:\\hill.png");
        EXPECT_EQ(f.Image1.File.Get(), u"C:\\hill.png");
        EXPECT_EQ(f.Image1.Place.Get(), Place(4500, 3500, 1000, 1000));
    });
    EXPECT_EQ(chooser.requests,
              (std::vector<SystemFileDialog::Request>{
                  {.filter = u"Image files (*.jpg;*.png;*.bmp;*.gif)|*.jpg;*.png;*.bmp;*.gif",
                   .title = u"Select wallpaper image",
                   .name = Text(kSea)}}));
}

TEST_F(WallpaperTest, ACancelOrALostFileChangesNothing) {
    InLock([this](frmWallpaper& f) {
        f.OfficeMenu1.Choose("mnuImage");
        chooser.answer = u"C:\\lost.png";
        f.OfficeMenu1.Choose("mnuImage");
        EXPECT_EQ(t.app.Settings.WallpaperFile, kSea);
        EXPECT_EQ(f.Image1.File.Get(), kSea);
    });
}

TEST_F(WallpaperTest, AChosenFileThatIsNoPictureLeavesTheImageEmpty) {
    t.files.AddFile(u"C:\\text.png");
    chooser.answer = u"C:\\text.png";
    InLock([this](frmWallpaper& f) {
        f.OfficeMenu1.Choose("mnuImage");
        EXPECT_EQ(t.app.Settings.WallpaperFile, u"C:\\text.png");
        EXPECT_EQ(f.Image1.File.Get(), u"");
        EXPECT_EQ(f.Image1.Place.Get(), kNoPlace);
        EXPECT_TRUE(f.Shown());
    });
    EXPECT_TRUE(t.user.Messages().empty());
}

TEST_F(WallpaperTest, AnUnreadablePictureIsNoWayOut) {
    pictures.sizes.clear();
    InLock([this](frmWallpaper& f) {
        Answer(u"wrong");
        ExpectWrong(u"wrong");
        EXPECT_FALSE(f.Close());
        EXPECT_TRUE(f.Shown());
    });
}

// The way out.

TEST_F(WallpaperTest, AsksForThePasswordWithAnEmptyField) {
    t.user.On<frmWallpaper>([this](frmWallpaper& f) {
        t.user.On<frmMyInputBox>([](frmMyInputBox& box) {
            EXPECT_EQ(box.txtBoxCaption.Caption.Get(), u"Enter password to return to program.");
            EXPECT_EQ(box.txtBoxText.Text.Get(), u"");
            box.txtBoxText.Text = u"Secret";
            box.cmdOk.Press();
        });
        EXPECT_TRUE(f.Close());
        EXPECT_FALSE(f.Shown());
    });
    frmWallpaper(t.app).ShowModal();
}

struct Road {
    std::string name;
    void (*take)(frmWallpaper&);
};

class RoadOutTest : public WallpaperTest, public testing::WithParamInterface<Road> {};

TEST_P(RoadOutTest, LeadsThroughThePassword) {
    InLock([this](frmWallpaper& f) {
        Answer(u"secret");
        ExpectWrong(u"secret");
        GetParam().take(f);
        EXPECT_TRUE(f.Shown());
    });
    t.user.On<frmWallpaper>([this](frmWallpaper& f) {
        Answer(u"Secret");
        GetParam().take(f);
        EXPECT_FALSE(f.Shown());
    });
    frmWallpaper(t.app).ShowModal();
}

void Press(frmWallpaper& f, KeyEvent key) {
    f.KeyDown(key);
    EXPECT_TRUE(key.consumed);
}

INSTANTIATE_TEST_SUITE_P(
    Roads, RoadOutTest,
    testing::Values(Road{"Exit", [](frmWallpaper& f) { f.OfficeMenu1.Choose("mnuExit"); }},
                    Road{"Click", [](frmWallpaper& f) { f.Clicked(); }},
                    Road{"CloseBox", [](frmWallpaper& f) { f.Close(); }},
                    Road{"Letter", [](frmWallpaper& f) { Press(f, KeyEvent{'A'}); }},
                    Road{"LetterWithoutCode", [](frmWallpaper& f) { Press(f, KeyEvent{0}); }},
                    Road{"Esc", [](frmWallpaper& f) { Press(f, KeyEvent{Key::Escape}); }},
                    Road{"AltF4",
                         [](frmWallpaper& f) {
                             Press(f, KeyEvent{Key::F(4), Mask::Alt});
                         }},
                    Road{"F7", [](frmWallpaper& f) { Press(f, KeyEvent{Key::F(7)}); }}),
    [](const auto& road) { return road.param.name; });

// Kept for compatibility: modifiers-alone-are-no-keys.
TEST_F(WallpaperTest, AModifierAloneAsksNothing) {
    InLock([](frmWallpaper& f) {
        for (const int code : {Key::Shift, Key::Control, Key::Alt})
            Press(f, KeyEvent{code});
        EXPECT_TRUE(f.Shown());
    });
}

TEST_F(WallpaperTest, BlanksAroundTheRightPasswordDoNotMatter) {
    t.user.On<frmWallpaper>([this](frmWallpaper& f) {
        Answer(u"  Secret ");
        EXPECT_TRUE(f.Close());
    });
    frmWallpaper(t.app).ShowModal();
}

TEST_F(WallpaperTest, CapitalLettersMatter) {
    InLock([this](frmWallpaper& f) {
        Answer(u"SECRET");
        ExpectWrong(u"SECRET");
        EXPECT_FALSE(f.Close());
    });
}

TEST_F(WallpaperTest, TheMessageShowsTheAnswerAsItWasTyped) {
    InLock([this](frmWallpaper& f) {
        Answer(u" wrong  ");
        ExpectWrong(u" wrong  ");
        EXPECT_FALSE(f.Close());
    });
}

TEST_F(WallpaperTest, ACancelIsAnEmptyAnswerAndRefused) {
    InLock([this](frmWallpaper& f) {
        t.user.On<frmMyInputBox>([](frmMyInputBox& box) {
            box.txtBoxText.Text = u"Secret";
            box.cmdCancel.Press();
        });
        ExpectWrong(u"");
        EXPECT_FALSE(f.Close());
        EXPECT_TRUE(f.Shown());
    });
}

// Kept for compatibility: empty-password-locks.
TEST_F(WallpaperTest, AnEmptyPasswordIsNeverGiven) {
    t.app.Settings.ReturnPassword = u"";
    InLock([this](frmWallpaper& f) {
        for (const TextView answer : {u"", u" ", u"Secret"}) {
            Answer(answer);
            ExpectWrong(answer);
            EXPECT_FALSE(f.Close());
        }
        t.app.Settings.ReturnPassword = u"Secret";
    });
}

// Kept for compatibility: empty-password-locks.
TEST_F(WallpaperTest, APasswordWithBlanksAtItsEndsIsNeverGiven) {
    t.app.Settings.ReturnPassword = u"Secret ";
    InLock([this](frmWallpaper& f) {
        Answer(u"Secret ");
        ExpectWrong(u"Secret ");
        EXPECT_FALSE(f.Close());
        t.app.Settings.ReturnPassword = u"Secret";
    });
}

// Kept for compatibility: lock-question-shows-desktop.
TEST_F(WallpaperTest, TheQuestionHasTheButtonsOfEveryQuestion) {
    InLock([this](frmWallpaper& f) {
        t.user.On<frmMyInputBox>([this](frmMyInputBox& box) {
            box.cmdDesktop.Press();
            EXPECT_EQ(t.shell.Calls(), (std::vector<ShellCall>{{ShellCall::Kind::ToggleDesktop, {}}}));
            box.cmdCancel.Press();
        });
        ExpectWrong(u"");
        EXPECT_FALSE(f.Close());
    });
}

TEST_F(WallpaperTest, ASecondCloseWhileItAsksIsRefused) {
    t.user.On<frmWallpaper>([this](frmWallpaper& f) {
        t.user.On<frmMyInputBox>([&f](frmMyInputBox& box) {
            EXPECT_FALSE(f.Close());
            box.txtBoxText.Text = u"Secret";
            box.cmdOk.Press();
        });
        EXPECT_TRUE(f.Close());
    });
    frmWallpaper(t.app).ShowModal();
}

TEST_F(WallpaperTest, OpensWithoutThePortsOfThePlatform) {
    t.app.SetPort<PictureFiles>(nullptr);
    t.app.SetPort<SystemFileDialog>(nullptr);
    InLock([](frmWallpaper& f) {
        f.OfficeMenu1.Choose("mnuImage");
        EXPECT_EQ(f.Image1.File.Get(), u"");
    });
}

} // namespace
} // namespace korvane
