#include "QtSupport.h"
#include "controls/Form.h"
#include "platform/qt/text/TextControlAdaptor.h"
#include "platform/qt/textbars/TextBarAdaptors.h"
#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QVBoxLayout>
#include <stdexcept>

namespace korvane {
namespace {

using test::Settle;

class TextBarsTest : public testing::Test {
protected:
    TextBarsTest() {
        auto* const layout = new QVBoxLayout(&window);
        for (QWidget* widget : std::initializer_list<QWidget*>{buttons, rulerView, view, status, line})
            layout->addWidget(widget);
        view->setObjectName("control");
        window.resize(700, 400);
        adaptors = {new TextControlAdaptor(control, *view), new TextButtonBarAdaptor(buttonBar, *buttons),
                    new TextRulerAdaptor(ruler, *rulerView), new TextStatusAdaptor(bar, *status),
                    new HairLineAdaptor(hairLine, *line)};
        hairLine.Visible = false;
        for (ControlAdaptor* adaptor : adaptors)
            adaptor->WriteAll();
        ruler.Target = &control;
        bar.Target = &control;
        buttonBar.Target = &control;
        window.show();
        Settle();
    }
    ~TextBarsTest() override {
        for (ControlAdaptor* adaptor : adaptors)
            adaptor->Detach();
    }

    QPoint Upper(std::int32_t twips) { return {rulerView->XOf(twips), 4}; }
    QPoint Lower(std::int32_t twips) { return {rulerView->XOf(twips), rulerView->height() - 4}; }
    void Drag(const QPoint& from, const QPoint& to) {
        QTest::mousePress(rulerView, Qt::LeftButton, Qt::NoModifier, from);
        // QTest doesn't hold the button while it moves.
        QMouseEvent move(QEvent::MouseMove, to, rulerView->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(rulerView, &move);
        QTest::mouseRelease(rulerView, Qt::LeftButton, Qt::NoModifier, to);
        Settle();
    }

    QComboBox& Box(const char* name) { return *buttons->findChild<QComboBox*>(name); }
    QAction& Button(const QString& name) {
        for (QAction* const action : buttons->actions()) {
            if (action->text() == name) return *action;
        }
        throw std::runtime_error("there is no such button");
    }
    void Choose(const char* box, const QString& text) {
        const int index = Box(box).findText(text);
        ASSERT_GE(index, 0) << text.toStdString();
        Box(box).setCurrentIndex(index);
        emit Box(box).activated(index);
        Settle();
    }
    void TypeInto(const char* box, const QString& text) {
        Box(box).setFocus();
        Box(box).lineEdit()->selectAll();
        QTest::keyClicks(Box(box).lineEdit(), text);
        QTest::keyClick(Box(box).lineEdit(), Qt::Key_Return);
        Settle();
    }

    ScriptedUser user;
    Form form{user, "Form", u""};
    TextControl control{form, "control"};
    TextRuler ruler{form, "ruler"};
    TextStatusBar bar{form, "bar"};
    TextButtonBar buttonBar{form, "buttonBar"};
    HairLine hairLine{form, "hairLine"};
    QWidget window;
    TextButtonBarView* buttons = new TextButtonBarView;
    TextRulerView* rulerView = new TextRulerView;
    QtTextView* view = new QtTextView;
    QLabel* status = new QLabel;
    QFrame* line = new QFrame;
    std::vector<ControlAdaptor*> adaptors;
};

TEST_F(TextBarsTest, TheRulerMeasuresTheTextAtEveryZoom) {
    for (const int zoom : {50, 100, 200}) {
        control.ZoomFactor = zoom;
        Settle();
        EXPECT_NEAR(rulerView->XOf(1440) - rulerView->XOf(0), TextPixels(1440) * zoom / 100, 1.5);
        EXPECT_NEAR(rulerView->TwipsAt(rulerView->XOf(1440)), 1440, 30);
    }
    control.ZoomFactor = 100;
    control.SetAll(u"a");
    control.SetIndentL(1440);
    Settle();
    const int cursor = view->viewport()->mapTo(&window, view->mapFromScene(view->CursorAt(0).topLeft())).x();
    EXPECT_NEAR(rulerView->mapTo(&window, Upper(1440)).x(), cursor, 1.5);
}

TEST_F(TextBarsTest, IndentsAreDragged) {
    control.SetAll(u"a\r\nb");
    Drag(Upper(0), Upper(720));
    EXPECT_EQ(control.IndentFL(), 720);
    Drag(Lower(0), Lower(360));
    EXPECT_EQ(control.IndentL(), 360);
    // The first line stayed where it was.
    EXPECT_EQ(control.IndentFL(), 360);
    control.SetSelStart(3);
    EXPECT_EQ(control.IndentL(), 0);
}

TEST_F(TextBarsTest, TheRightIndentIsDragged) {
    const int right =
        rulerView->TwipsAt(view->viewport()->mapTo(&window, QPoint(view->viewport()->width(), 0)).x() -
                           rulerView->mapTo(&window, QPoint()).x()) -
        TextTwips(view->MarginX());
    Drag(Lower(right), Lower(right - 1440));
    EXPECT_NEAR(control.IndentR(), 1440, 60);
}

TEST_F(TextBarsTest, TabsAreSetMovedAndTakenAway) {
    Drag(Lower(1440), Lower(1440));
    control.SetTabCurrent(1);
    EXPECT_EQ(control.TabPos(), 1440);
    Drag(Lower(1440), Lower(2880));
    EXPECT_EQ(control.TabPos(), 2880);
    Drag(Lower(720), Lower(720));
    EXPECT_EQ(control.TabPos(), 720);
    Drag(Lower(2880), Lower(2880) + QPoint(0, 100));
    control.SetTabCurrent(2);
    EXPECT_EQ(control.TabPos(), 0);
    control.SetTabCurrent(1);
    EXPECT_EQ(control.TabPos(), 720);
}

TEST_F(TextBarsTest, TheRulerGoesInMillimetres) {
    control.ScaleUnits = TextControl::kMillimetres;
    Drag(Lower(567), Lower(567));
    control.SetTabCurrent(1);
    EXPECT_EQ(control.TabPos(), 567);
}

TEST_F(TextBarsTest, TheRulerTellsOfTheMouse) {
    std::string told;
    ruler.MouseDown = [&](Twips at) { told += "down" + std::to_string(at.Number()); };
    ruler.MouseMove = [&](Twips) { told += " move"; };
    ruler.MouseUp = [&] { told += " up"; };
    Drag({40, 12}, {50, 12});
    EXPECT_EQ(told, "down600 move up");
}

TEST_F(TextBarsTest, TheStatusTellsWhereTheCursorIs) {
    control.SetAll(u"one\r\ntwo");
    control.SetSelStart(6);
    Settle();
    EXPECT_EQ(status->text(), "Line 2    Column 2    100 %");
    control.ZoomFactor = 150;
    control.ViewMode = TextControl::kPages;
    Settle();
    EXPECT_EQ(status->text(), "Page 1 of 1    Line 2    Column 2    150 %");
}

TEST_F(TextBarsTest, AHairLineIsOverTheText) {
    hairLine.Left = Twips{1500};
    hairLine.Visible = true;
    Settle();
    const QRect text(view->mapTo(&window, QPoint()), view->size());
    EXPECT_EQ(line->geometry(), QRect(text.left() + 100, text.top(), 1, text.height()));
    EXPECT_TRUE(line->isVisible());
}

TEST_F(TextBarsTest, TheButtonBarShowsWhatTheTextHasAtTheCursor) {
    control.SetAll(u"one two");
    control.SetSelection(4, 3);
    control.SetFontName(u"Arial");
    control.SetFontSize(13);
    control.SetFontBold(1);
    control.SetAlignment(2);
    control.ZoomFactor = 82;
    Settle();
    EXPECT_EQ(Box("cboFont").currentText(), "Arial");
    EXPECT_EQ(Box("cboSize").currentText(), "13");
    EXPECT_EQ(Box("cboZoom").currentText(), "82 %");
    EXPECT_EQ(Box("cboStyle").currentIndex(), -1);
    EXPECT_TRUE(Button("Bold").isChecked());
    EXPECT_FALSE(Button("Italic").isChecked());
    EXPECT_TRUE(Button("Centre").isChecked());
    EXPECT_FALSE(Button("Align left").isChecked());
    control.SetSelection(0, 3);
    Settle();
    EXPECT_FALSE(Button("Bold").isChecked());
}

TEST_F(TextBarsTest, AButtonGivesItsLookAndTakesItAway) {
    control.SetAll(u"one");
    control.SetSelection(0, 3);
    Settle();
    Button("Italic").trigger();
    EXPECT_EQ(control.FontItalic(), 1);
    Button("Italic").trigger();
    EXPECT_EQ(control.FontItalic(), 0);
    Button("Align right").trigger();
    EXPECT_EQ(control.Alignment(), 1);
    Button("Numbers").trigger();
    EXPECT_EQ(control.ParagraphFormat().list.kind, doc::ListKind::Decimal);
    Settle();
    EXPECT_TRUE(Button("Numbers").isChecked());
    Button("Numbers").trigger();
    EXPECT_EQ(control.ParagraphFormat().list.kind, doc::ListKind::None);
}

TEST_F(TextBarsTest, ABoxGivesWhatIsChosenOrTypedAndTheKeyboardGoesBack) {
    control.SetAll(u"one");
    control.SetSelection(0, 3);
    Settle();
    Choose("cboSize", "24");
    EXPECT_EQ(control.FontSize(), 24);
    TypeInto("cboSize", "17");
    EXPECT_EQ(control.FontSize(), 17);
    TypeInto("cboFont", "No Such Font");
    EXPECT_EQ(control.FontName(), u"No Such Font");
    TypeInto("cboZoom", "120");
    EXPECT_EQ(control.ZoomFactor, 120);
    TypeInto("cboZoom", "9000");
    EXPECT_EQ(control.ZoomFactor, 500);
    Choose("cboStyle", "Heading 1");
    EXPECT_EQ(control.FontSize(), 18);
    EXPECT_TRUE(view->hasFocus());
}

TEST_F(TextBarsTest, AFormatAtTheCursorShowsBeforeAnythingIsTyped) {
    control.SetAll(u"one");
    control.SetSelStart(3);
    Settle();
    Button("Bold").trigger();
    Settle();
    EXPECT_TRUE(Button("Bold").isChecked());
    control.Type(u"x");
    control.SetSelection(3, 1);
    EXPECT_EQ(control.FontBold(), 1);
}

TEST_F(TextBarsTest, TheFontsAreOnlyListedWhenTheyAreWanted) {
    EXPECT_EQ(Box("cboFont").count(), 0);
    Box("cboFont").setFocus();
    EXPECT_GT(Box("cboFont").count(), 0);
}

TEST_F(TextBarsTest, TheButtonsOfALockedTextDoNothing) {
    control.Locked = true;
    control.SetAll(u"one");
    Settle();
    EXPECT_FALSE(buttons->isEnabled());
}

TEST_F(TextBarsTest, ABarThatLostItsTextShowsNothing) {
    ruler.Target = nullptr;
    bar.Target = nullptr;
    buttonBar.Target = nullptr;
    Settle();
    EXPECT_FALSE(buttons->isEnabled());
    EXPECT_EQ(status->text(), "");
    Drag(Lower(1440), Lower(1440));
    control.SetTabCurrent(1);
    EXPECT_EQ(control.TabPos(), 0);
    window.grab();
}

} // namespace
} // namespace korvane
