#include "QtSupport.h"
#include "common/text/CaseFold.h"
#include "platform/qt/base/Convert.h"
#include "platform/qt/dialogs/QtMessageBoxes.h"
#include "platform/qt/dialogs/QtPickers.h"
#include "platform/qt/look/Palettes.h"
#include "platform/qt/services/QtClipboard.h"
#include "platform/qt/services/QtFonts.h"
#include "platform/qt/services/QtScreen.h"
#include "platform/qt/services/QtSystemFolders.h"
#include "platform/qt/services/QtTextOrder.h"
#include "platform/qt/services/QtUserLocale.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QColorDialog>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFontDatabase>
#include <QFontDialog>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <map>

namespace korvane {
namespace {

// ---- Message boxes ------------------------------------------------------------------------------------

class QtMessageBoxesTest : public testing::Test {
protected:
    /// Calls `act` as soon as the box is shown, and returns the answer.
    Answer Show(const Message& message, const std::function<void(QMessageBox&)>& act) {
        bool seen = false;
        QTimer::singleShot(0, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            seen = true;
            act(*box);
        });
        const Answer answer = boxes.Show(message);
        EXPECT_TRUE(seen);
        return answer;
    }
    static void Press(QMessageBox& box, Qt::Key key) { QTest::keyClick(&box, key); }

    QtMessageBoxes boxes;
};

TEST_F(QtMessageBoxesTest, ShowsTheTextAsItStandsUnderTheProgramsName) {
    const Message message{u"<b>a</b>\r\nb", MessageIcon::Stop};
    const Answer answer = Show(message, [](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), QString("Korvane"));
        EXPECT_EQ(box.text(), QString("<b>a</b>\nb"));
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        EXPECT_EQ(box.buttons().size(), 1);
        Press(box, Qt::Key_Return);
    });
    EXPECT_EQ(answer, Answer::Ok);
}

TEST_F(QtMessageBoxesTest, EachIconIsItsOwn) {
    const std::pair<MessageIcon, QMessageBox::Icon> icons[] = {
        {MessageIcon::None, QMessageBox::NoIcon},       {MessageIcon::Information, QMessageBox::Information},
        {MessageIcon::Question, QMessageBox::Question}, {MessageIcon::Exclamation, QMessageBox::Warning},
        {MessageIcon::Stop, QMessageBox::Critical},
    };
    for (const auto& [icon, shown] : icons) {
        Show({u"text", icon}, [shown = shown](QMessageBox& box) {
            EXPECT_EQ(box.icon(), shown);
            box.reject();
        });
    }
}

TEST_F(QtMessageBoxesTest, ReturnPressesTheDefaultButton) {
    const Answer answers[] = {Answer::Yes, Answer::No, Answer::Cancel};
    for (int button = 1; button <= 3; ++button) {
        const Message message{u"text", MessageIcon::Question, MessageButtons::YesNoCancel, button};
        EXPECT_EQ(Show(message, [](QMessageBox& box) { Press(box, Qt::Key_Return); }), answers[button - 1]);
    }
}

TEST_F(QtMessageBoxesTest, EscAnswersWhatHarmsLeast) {
    const auto esc = [](QMessageBox& box) { Press(box, Qt::Key_Escape); };
    EXPECT_EQ(Show({u"", MessageIcon::None, MessageButtons::Ok}, esc), Answer::Ok);
    EXPECT_EQ(Show({u"", MessageIcon::None, MessageButtons::YesNo}, esc), Answer::No);
    EXPECT_EQ(Show({u"", MessageIcon::None, MessageButtons::YesNoCancel}, esc), Answer::Cancel);
    EXPECT_EQ(Show({u"", MessageIcon::None, MessageButtons::OkCancel}, esc), Answer::Cancel);
}

TEST_F(QtMessageBoxesTest, TheCloseBoxIsEsc) {
    EXPECT_EQ(Show({u"", MessageIcon::None, MessageButtons::YesNo}, [](QMessageBox& box) { box.close(); }),
              Answer::No);
}

TEST_F(QtMessageBoxesTest, AClickAnswers) {
    const Message message{u"text", MessageIcon::Question, MessageButtons::YesNo};
    const Answer answer = Show(
        message, [](QMessageBox& box) { QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton); });
    EXPECT_EQ(answer, Answer::No);
}

TEST_F(QtMessageBoxesTest, BelongsToTheWindowAndNotToAMenuThatCloses) {
    QWidget window;
    window.show();
    auto* const menu = new QMenu(&window);
    menu->show();
    QApplication::setActiveWindow(menu);
    Show({u"text"}, [&window, menu](QMessageBox& box) {
        EXPECT_EQ(box.parentWidget(), &window);
        delete menu;
        box.close();
    });
}

TEST_F(QtMessageBoxesTest, BelongsToNothingWhenAMenuOfItsOwnCloses) {
    QMenu menu;
    menu.show();
    QApplication::setActiveWindow(&menu);
    Show({u"text"}, [](QMessageBox& box) {
        EXPECT_EQ(box.parentWidget(), nullptr);
        box.close();
    });
}

// ---- Clipboard ----------------------------------------------------------------------------------------

TEST(QtClipboardTest, HoldsTheTextExactly) {
    QtClipboard clipboard;
    clipboard.SetText(u"a\tb\r\nc\u00A0");
    EXPECT_TRUE(clipboard.HasText());
    EXPECT_EQ(clipboard.GetText(), u"a\tb\r\nc\u00A0");
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("a\tb\r\nc\u00A0"));
    clipboard.Clear();
    EXPECT_FALSE(clipboard.HasText());
    EXPECT_EQ(clipboard.GetText(), u"");
}

#ifdef Q_OS_WIN
TEST(QtClipboardTest, RtfIsFoundByEachOfItsNames) {
    for (const char* const name : {"text/rtf", "application/rtf", "text/richtext",
                                   "application/x-qt-windows-mime;value=\"Rich Text Format\""}) {
        auto* const data = new QMimeData;
        data->setData(name, "{\\rtf1 x}");
        QGuiApplication::clipboard()->setMimeData(data);
        EXPECT_EQ(QtClipboard().GetRtf(), "{\\rtf1 x}") << name;
    }
    QGuiApplication::clipboard()->setText("plain");
    EXPECT_FALSE(QtClipboard().GetRtf());
}

TEST(QtClipboardTest, LinesOfOtherProgramsEndInCrLf) {
    QApplication::clipboard()->setText("a\tb\nc\r\nd\n");
    EXPECT_EQ(QtClipboard().GetText(), u"a\tb\r\nc\r\nd\r\n");
}
#else
TEST(QtClipboardTest, LinesOfOtherProgramsEndAsTheyDid) {
    QApplication::clipboard()->setText("a\tb\nc\r\nd\n");
    EXPECT_EQ(QtClipboard().GetText(), u"a\tb\nc\r\nd\n");
}
#endif

// ---- Screen -------------------------------------------------------------------------------------------

TEST(QtScreenTest, TellsTheWorkAreaInTwips) {
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    const Rect told = QtScreen().WorkArea();
    EXPECT_EQ(told.width, Twips{area.width() * 15});
    EXPECT_EQ(told.height, Twips{area.height() * 15});
}

TEST(QtScreenTest, ThePointerChangesOnceAndComesBack) {
    QtScreen screen;
    screen.SetPointer(Pointer::Hourglass);
    screen.SetPointer(Pointer::Hourglass);
    ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    screen.SetPointer(Pointer::Default);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    screen.SetPointer(Pointer::Default);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST(QtScreenTest, LetsMessagesRun) {
    bool ran = false;
    QTimer::singleShot(0, [&ran] { ran = true; });
    QtScreen().ProcessMessages();
    EXPECT_TRUE(ran);
}

TEST(QtScreenTest, IsDarkWhereTheWindowsAre) {
    EXPECT_FALSE(QtScreen().IsDark());
    const test::UnderPalette under(DarkPalette());
    EXPECT_TRUE(QtScreen().IsDark());
}

// ---- Dates --------------------------------------------------------------------------------------------

TEST(QtUserLocaleTest, WritesDatesAsTheUsersLanguageDoes) {
    constexpr DateTime when{2026, 11, 21, 9, 12, 30};
    EXPECT_EQ(QtUserLocale(QLocale("de_DE")).GeneralDate(when), u"21.11.26 09:12");
    EXPECT_EQ(QtUserLocale(QLocale("en_GB")).GeneralDate(when), u"21/11/2026 09:12");
    EXPECT_EQ(FormatDate(when, u"dddd, mmmm d", QtUserLocale(QLocale("de_DE")).Names()),
              u"Samstag, November 21");
    EXPECT_EQ(FormatDate({2026, 11, 22}, u"dddd, mmm", QtUserLocale(QLocale("fr_FR")).Names()),
              u"dimanche, nov.");
}

// ---- Folders ------------------------------------------------------------------------------------------

TEST(QtSystemFoldersTest, TheDocumentsAreWhereTheDesktopKeepsThem) {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    EXPECT_EQ(QtSystemFolders().Documents(), ToText(QDir::toNativeSeparators(documents)));
    EXPECT_NE(QtSystemFolders().Fonts(), u"");
}

TEST(QtSystemFoldersTest, WhatOnlyWindowsHasIsEmpty) {
    EXPECT_EQ(QtSystemFolders().ProgramFiles(), u"");
    EXPECT_EQ(QtSystemFolders().Windows(), u"");
    EXPECT_EQ(QtSystemFolders().System(), u"");
}

// ---- The system's own dialogs -------------------------------------------------------------------------

/// Shows a window in front of which the dialogs open.
class DialogsTest : public testing::Test {
protected:
    void SetUp() override {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    /// Calls `act` as soon as the dialog is shown.
    template <class DialogT>
    void When(const std::function<void(DialogT&)>& act) {
        QTimer::singleShot(0, [this, act] {
            auto* dialog = qobject_cast<DialogT*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            EXPECT_EQ(dialog->parentWidget(), &window);
            act(*dialog);
        });
    }

    QWidget window;
    QTemporaryDir dir;
};

TEST_F(DialogsTest, TheFontDialogOpensOnThePresentFontAndTellsTheChosenOne) {
    When<QFontDialog>([](QFontDialog& dialog) {
        EXPECT_EQ(dialog.currentFont().family(), QString("DejaVu Serif"));
        EXPECT_EQ(dialog.currentFont().pointSize(), 14);
        QFont font("DejaVu Sans", 9);
        font.setBold(true);
        dialog.setCurrentFont(font);
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(QtFontDialog().Choose({u"DejaVu Serif", 14}), (FontSpec{u"DejaVu Sans", 9, true}));
}

TEST_F(DialogsTest, ACancelledFontDialogTellsNothing) {
    When<QFontDialog>([](QFontDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(QtFontDialog().Choose({}), std::nullopt);
}

TEST_F(DialogsTest, TheColourDialogOpensOnTheStartAndTellsTheChosenColour) {
    When<QColorDialog>([](QColorDialog& dialog) {
        EXPECT_EQ(dialog.currentColor(), QColor(0x10, 0x20, 0x30));
        dialog.setCurrentColor(QColor(1, 2, 3));
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(QtColourPicker().Choose(Colour{0x302010}, ColourPicker::Extent::Simple), Colour{0x030201});
}

TEST_F(DialogsTest, ACancelledColourDialogTellsNothing) {
    When<QColorDialog>([](QColorDialog& dialog) {
        EXPECT_EQ(dialog.currentColor(), QColor(Qt::white));
        dialog.reject();
    });
    EXPECT_EQ(QtColourPicker().Choose(kNoColour, ColourPicker::Extent::Full), std::nullopt);
}

// ---- Fonts --------------------------------------------------------------------------------------------

TEST(QtFontsTest, KnowsTheInstalledFontsByName) {
    const std::vector<Text> names = QtFonts().Names();
    EXPECT_TRUE(std::ranges::is_sorted(names, {}, [](const Text& name) { return ToLower(name); }));
    EXPECT_EQ(std::ranges::count(names, Text(u"DejaVu Sans")), 1);
    EXPECT_TRUE(QtFonts().Has(u"dejavu sans"));
    EXPECT_FALSE(QtFonts().Has(u"A Font of Nobody"));
}

/// A font of the system under another name of the same length.
QByteArray RenamedFont() {
    QFile file("/usr/share/fonts/truetype/dejavu/DejaVuSansMono.ttf");
    if (!file.open(QIODevice::ReadOnly)) return {};
    QByteArray font = file.readAll();
    for (const int step : {1, 2}) {
        const auto spread = [step](const char* name) {
            QByteArray bytes;
            for (const char letter : QByteArray(name))
                bytes += step == 2 ? QByteArray(1, '\0') + letter : QByteArray(1, letter);
            return bytes;
        };
        font.replace(spread("DejaVu Sans Mono"), spread("Font Of A Moment"));
    }
    return font;
}

TEST(QtFontsTest, KnowsAFontAsLongAsItIsInstalled) {
    const QtFonts fonts;
    const Text name = u"Font Of A Moment";
    EXPECT_EQ(std::ranges::count(fonts.Names(), name), 0);
    const int font = QFontDatabase::addApplicationFontFromData(RenamedFont());
    if (font < 0) GTEST_SKIP() << "the font isn't installed";
    EXPECT_EQ(std::ranges::count(fonts.Names(), name), 1);
    QFontDatabase::removeApplicationFont(font);
    EXPECT_EQ(std::ranges::count(fonts.Names(), name), 0);
}

// ---- The order of texts -------------------------------------------------------------------------------

std::vector<Text> SortedBy(const QtTextOrder& order, const std::vector<Text>& texts) {
    const std::vector<int> ranks = order.RanksOf(texts);
    std::map<int, Text> sorted;
    for (std::size_t at = 0; at < texts.size(); ++at)
        sorted[ranks[at]] = texts[at];
    std::vector<Text> result;
    for (const auto& [rank, text] : sorted)
        result.push_back(text);
    return result;
}

TEST(QtTextOrderTest, IsThatOfTheUsersLanguage) {
    const std::vector<Text> texts{u"zon", u"\u00E4pple", u"apa", u"\u00D6", u"Apa"};
    EXPECT_EQ(SortedBy(QtTextOrder(QLocale("de_DE")), texts),
              (std::vector<Text>{u"apa", u"Apa", u"\u00E4pple", u"\u00D6", u"zon"}));
    EXPECT_EQ(SortedBy(QtTextOrder(QLocale("sv_SE")), texts),
              (std::vector<Text>{u"apa", u"Apa", u"zon", u"\u00E4pple", u"\u00D6"}));
}

TEST(QtTextOrderTest, NumbersInTextsCountByTheirValueAlsoWithoutALanguage) {
    EXPECT_EQ(SortedBy(QtTextOrder(QLocale::c()), {u"Room 10", u"Room 9", u"room 9", u"\u00E9tage", u"z"}),
              (std::vector<Text>{u"\u00E9tage", u"room 9", u"Room 9", u"Room 10", u"z"}));
}

} // namespace
} // namespace korvane
