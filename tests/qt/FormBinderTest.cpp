#include "QtSupport.h"
#include "controls/Buttons.h"
#include "controls/CommandButton.h"
#include "controls/DropDown.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/TextBox.h"
#include "controls/views/ProgressBar.h"
#include "controls/views/Slider.h"
#include "controls/views/Splitter.h"
#include "platform/qt/base/Convert.h"
#include "platform/qt/binder/QtFormHost.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSplitter>

namespace korvane {
namespace {

class frmEveryKind : public Form {
public:
    explicit frmEveryKind(FormHost& host) : Form(host, "frmEveryKind", u"Every kind") {}

    Panel Frame1{*this, "Frame1"};
    Label lblName{*this, "lblName", u"A & B"};
    CommandButton cmdGo{*this, "cmdGo", u"&Go", u"Goes"};
    CommandButton cmdTool{*this, "cmdTool", u"", u"A tool"};
    CheckBox chkYes{*this, "chkYes", u"&Yes"};
    OptionButton optOne{*this, "optOne", "choice", u"One"};
    OptionButton optTwo{*this, "optTwo", "choice", u"Two"};
    TextBox txtLine{*this, "txtLine", u"line", u"A line"};
    TextBox txtLines{*this, "txtLines"};
    Slider ZoomSlider{*this, "ZoomSlider", 13, 360};
    DropDown txtPattern{*this, "txtPattern"};
    ProgressBar ProgressBar1{*this, "ProgressBar1"};
    Splitter imgSplitV{*this, "imgSplitV"};

    void KeyDown(KeyEvent& key) override {
        if (onKey) onKey(key);
    }
    std::function<void(KeyEvent&)> onKey;
};

template <class WidgetT>
WidgetT* Add(QWidget& window, const char* name) {
    auto* widget = new WidgetT(&window);
    widget->setObjectName(name);
    widget->setAccessibleName(name);
    return widget;
}

std::unique_ptr<QWidget> MakeEveryKind() {
    auto window = std::make_unique<QDialog>();
    window->resize(300, 200);
    QWidget& frame = *Add<QGroupBox>(*window, "Frame1");
    Add<QLabel>(frame, "lblName");
    Add<QPushButton>(frame, "cmdGo");
    Add<QCheckBox>(frame, "chkYes");
    Add<QRadioButton>(frame, "optOne");
    Add<QRadioButton>(frame, "optTwo");
    Add<QLineEdit>(frame, "txtLine");
    Add<QPlainTextEdit>(frame, "txtLines");
    Add<QSlider>(frame, "ZoomSlider");
    Add<QComboBox>(*window, "txtPattern");
    Add<QProgressBar>(*window, "ProgressBar1");
    auto* splitter = Add<QSplitter>(*window, "imgSplitV");
    splitter->addWidget(new QWidget(splitter));
    splitter->addWidget(new QWidget(splitter));
    splitter->resize(300, 100);
    auto* tool = new QAction(window.get());
    tool->setObjectName("cmdTool");
    return window;
}

constexpr FormEntry kForms[] = {{"frmEveryKind", MakeEveryKind}};

class FormBinderTest : public testing::Test {
protected:
    void SetUp() override {
        form.Show();
        test::Settle();
    }

    template <class WidgetT>
    WidgetT& Widget(const char* name) {
        return *host.WidgetOf(form)->findChild<WidgetT*>(name);
    }

    QtFormHost host{kForms};
    frmEveryKind form{host};
};

TEST_F(FormBinderTest, EverythingFits) {
    EXPECT_EQ(FormProblems(form, *host.WidgetOf(form)), std::vector<std::string>());
}

TEST_F(FormBinderTest, NamesWhatDoesNotFit) {
    QWidget& window = *host.WidgetOf(form);
    delete window.findChild<QSlider*>("ZoomSlider");
    auto* stray = Add<QLineEdit>(window, "txtStray");
    Add<QLineEdit>(window, "plainLine");
    Widget<QLineEdit>("txtLine").setAccessibleName("");
    EXPECT_EQ(FormProblems(form, window),
              (std::vector<std::string>{"frmEveryKind: no widget for the control ZoomSlider",
                                        "frmEveryKind: a screen reader can't name txtLine",
                                        "frmEveryKind: no control for the widget txtStray"}));
    delete stray;
}

TEST_F(FormBinderTest, AColourOfItsOwnIsPaintedWithATextThatCanBeRead) {
    constexpr Colour dark{0x401000};
    form.Frame1.BackColor = dark;
    form.lblName.BackColor = dark;
    form.cmdGo.BackColor = dark;
    const auto& label = Widget<QLabel>("lblName");
    EXPECT_EQ(label.palette().color(QPalette::WindowText), QColor(Qt::white));
    EXPECT_TRUE(Widget<QWidget>("Frame1").autoFillBackground());
    EXPECT_EQ(Widget<QWidget>("Frame1").palette().color(QPalette::Window), ToQColor(dark));
    EXPECT_EQ(QColor(Widget<QLabel>("lblName").grab().toImage().pixel(0, 0)), ToQColor(dark));
    EXPECT_EQ(Widget<QPushButton>("cmdGo").palette().color(QPalette::Button), ToQColor(dark));
}

TEST_F(FormBinderTest, ALabelCanHaveATextColourOfItsOwn) {
    constexpr Colour kBack{0x401000};
    constexpr Colour kFore{0x0000FF};
    form.lblName.BackColor = kBack;
    form.lblName.ForeColor = kFore;
    const auto& label = Widget<QLabel>("lblName");
    EXPECT_EQ(label.palette().color(QPalette::WindowText), ToQColor(kFore));
    EXPECT_EQ(label.palette().color(QPalette::Window), ToQColor(kBack));
    form.lblName.ForeColor = kNoColour;
    EXPECT_EQ(label.palette().color(QPalette::WindowText), QColor(Qt::white));
}

TEST_F(FormBinderTest, WithoutAColourItGoesWithTheWindow) {
    form.lblName.BackColor = Colour{0x401000};
    form.lblName.BackColor = kNoColour;
    const auto& label = Widget<QLabel>("lblName");
    EXPECT_FALSE(label.autoFillBackground());
    EXPECT_EQ(label.palette(), host.WidgetOf(form)->palette());
}

TEST_F(FormBinderTest, CaptionsTipsAndTitleComeFromTheControls) {
    EXPECT_EQ(host.WidgetOf(form)->windowTitle(), QString("Every kind"));
    EXPECT_EQ(Widget<QLabel>("lblName").text(), QString("A & B"));
    EXPECT_EQ(Widget<QPushButton>("cmdGo").text(), QString("&Go"));
    EXPECT_EQ(Widget<QPushButton>("cmdGo").toolTip(), QString("Goes"));
    EXPECT_EQ(Widget<QAction>("cmdTool").text(), QString("A tool"));
    EXPECT_EQ(Widget<QCheckBox>("chkYes").text(), QString("&Yes"));
    form.lblName.Caption = u"one\r\ntwo";
    form.Caption = u"a[*].tbx";
    EXPECT_EQ(Widget<QLabel>("lblName").text(), QString("one\ntwo"));
    EXPECT_EQ(host.WidgetOf(form)->windowTitle(), QString("a[*][*].tbx"));
}

TEST_F(FormBinderTest, EnabledVisibleAndFontReachTheWidget) {
    form.cmdGo.Enabled = false;
    form.txtLine.Visible = false;
    form.lblName.Font = FontSpec{u"DejaVu Serif", 17, true};
    EXPECT_FALSE(Widget<QPushButton>("cmdGo").isEnabled());
    EXPECT_TRUE(Widget<QLineEdit>("txtLine").isHidden());
    EXPECT_EQ(Widget<QLabel>("lblName").font().family(), QString("DejaVu Serif"));
    EXPECT_EQ(Widget<QLabel>("lblName").font().pointSize(), 17);
    EXPECT_TRUE(Widget<QLabel>("lblName").font().bold());
    form.cmdTool.Enabled = false;
    EXPECT_FALSE(Widget<QAction>("cmdTool").isEnabled());
}

TEST_F(FormBinderTest, AFrameShowsItsCaption) {
    form.Frame1.Caption = u"> plain text <";
    EXPECT_EQ(Widget<QGroupBox>("Frame1").title(), QString("> plain text <"));
}

TEST_F(FormBinderTest, APanelHidesWhatItHolds) {
    form.Frame1.Visible = false;
    EXPECT_FALSE(Widget<QPushButton>("cmdGo").isVisible());
}

TEST_F(FormBinderTest, AWidthOfAControlIsItsWidgets) {
    form.Frame1.Width = Twips{2000};
    EXPECT_EQ(Widget<QWidget>("Frame1").minimumWidth(), 133);
    EXPECT_EQ(Widget<QWidget>("Frame1").maximumWidth(), 133);
}

TEST_F(FormBinderTest, ButtonsPress) {
    int presses = 0;
    form.cmdGo.Click = [&presses] { ++presses; };
    form.cmdTool.Click = [&presses] { presses += 10; };
    QTest::mouseClick(&Widget<QPushButton>("cmdGo"), Qt::LeftButton);
    Widget<QAction>("cmdTool").trigger();
    EXPECT_EQ(presses, 11);
}

TEST_F(FormBinderTest, AltAndALetterClickAtOnce) {
    int presses = 0;
    form.cmdGo.Click = [&presses] { ++presses; };
    QWidget& window = *host.WidgetOf(form);
    window.activateWindow();
    test::Settle();
    QTest::keyClick(&window, Qt::Key_G, Qt::AltModifier);
    EXPECT_EQ(presses, 1);
    QTest::keyClick(&window, Qt::Key_Y, Qt::AltModifier);
    EXPECT_EQ(form.chkYes.Value, 1);
    EXPECT_TRUE(Widget<QCheckBox>("chkYes").hasFocus());
}

TEST_F(FormBinderTest, ACheckBoxFollowsAndLeads) {
    int clicks = 0;
    form.chkYes.Click = [&clicks] { ++clicks; };
    Widget<QCheckBox>("chkYes").click();
    EXPECT_EQ(form.chkYes.Value, 1);
    form.chkYes.Value = 0;
    EXPECT_FALSE(Widget<QCheckBox>("chkYes").isChecked());
    EXPECT_EQ(clicks, 2);
}

TEST_F(FormBinderTest, ABoxOfWhichOnlySomeAreTickedIsHalfTickedUntilAClick) {
    auto& box = Widget<QCheckBox>("chkYes");
    form.chkYes.Value = CheckBox::kMixed;
    EXPECT_EQ(box.checkState(), Qt::PartiallyChecked);
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(&box)->state().checkStateMixed);
    for (const int value : {1, 0, 1}) {
        box.click();
        EXPECT_EQ(form.chkYes.Value, value);
        EXPECT_EQ(box.checkState(), value == 1 ? Qt::Checked : Qt::Unchecked);
    }
    form.chkYes.Value = CheckBox::kMixed;
    form.chkYes.Value = 0;
    EXPECT_EQ(box.checkState(), Qt::Unchecked);
}

TEST_F(FormBinderTest, OptionsAreRadioButtonsAmongWhichTheArrowsChoose) {
    auto& one = Widget<QRadioButton>("optOne");
    auto& two = Widget<QRadioButton>("optTwo");
    two.move(one.geometry().bottomLeft());
    form.optOne.Value = true;
    QAccessibleInterface* access = QAccessible::queryAccessibleInterface(&one);
    EXPECT_EQ(access->role(), QAccessible::RadioButton);
    EXPECT_TRUE(access->state().checked);
    one.setFocus();
    QTest::keyClick(&one, Qt::Key_Down);
    test::Settle();
    EXPECT_TRUE(form.optTwo.Value);
    EXPECT_FALSE(form.optOne.Value);
    EXPECT_TRUE(two.hasFocus());
}

TEST_F(FormBinderTest, TabComesToOneOptionOfAGroup) {
    const auto stops = [this](const char* name) {
        return (Widget<QRadioButton>(name).focusPolicy() & Qt::TabFocus) != 0;
    };
    EXPECT_TRUE(stops("optOne"));
    EXPECT_FALSE(stops("optTwo"));
    form.optTwo.Value = true;
    EXPECT_FALSE(stops("optOne"));
    EXPECT_TRUE(stops("optTwo"));
    form.optTwo.Value = false;
    EXPECT_FALSE(Widget<QRadioButton>("optTwo").isChecked());
    EXPECT_TRUE(stops("optOne"));
}

TEST_F(FormBinderTest, ATextTakesNothingFromAnEmptyClipboard) {
    auto& lines = Widget<QPlainTextEdit>("txtLines");
    form.txtLines.Text = u"as it was";
    QGuiApplication::clipboard()->setMimeData(new QMimeData);
    QTest::keyClick(&lines, Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(&lines, Qt::Key_Insert, Qt::ShiftModifier);
    QTest::mouseClick(lines.viewport(), Qt::MiddleButton);
    EXPECT_EQ(form.txtLines.Text.Get(), u"as it was");
    QGuiApplication::clipboard()->setText("new, ");
    QTest::keyClick(&lines, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(form.txtLines.Text.Get(), u"new, as it was");
}

TEST_F(FormBinderTest, ALabelWithATitleIsSpokenWithIt) {
    form.lblName.Caption = u"Anna";
    EXPECT_EQ(Widget<QLabel>("lblName").accessibleName(), "lblName: Anna");
}

TEST_F(FormBinderTest, OptionsOfAGroupExcludeEachOther) {
    Widget<QRadioButton>("optOne").click();
    Widget<QRadioButton>("optTwo").click();
    EXPECT_FALSE(form.optOne.Value);
    EXPECT_TRUE(form.optTwo.Value);
    EXPECT_FALSE(Widget<QRadioButton>("optOne").isChecked());
    Widget<QRadioButton>("optTwo").click();
    EXPECT_TRUE(Widget<QRadioButton>("optTwo").isChecked());
}

TEST_F(FormBinderTest, ASliderKeepsAValueOutsideItsRange) {
    auto& slider = Widget<QSlider>("ZoomSlider");
    EXPECT_EQ(slider.minimum(), 13);
    EXPECT_EQ(slider.maximum(), 360);
    int changes = 0;
    form.ZoomSlider.Change = [&changes] { ++changes; };
    form.ZoomSlider.Value = 500;
    EXPECT_EQ(slider.value(), 360);
    EXPECT_EQ(form.ZoomSlider.Value, 500);
    slider.setValue(64);
    EXPECT_EQ(form.ZoomSlider.Value, 64);
    EXPECT_EQ(changes, 2);
}

TEST_F(FormBinderTest, ASliderTellsWhenItIsLetGoOf) {
    auto& slider = Widget<QSlider>("ZoomSlider");
    int scrolls = 0;
    int releases = 0;
    form.ZoomSlider.Scroll = [&scrolls] { ++scrolls; };
    form.ZoomSlider.Released = [&releases] { ++releases; };
    slider.setSliderDown(true);
    slider.setSliderPosition(40);
    slider.setSliderPosition(50);
    EXPECT_EQ(scrolls, 2);
    EXPECT_EQ(releases, 0);
    slider.setSliderDown(false);
    EXPECT_EQ(releases, 1);
}

TEST_F(FormBinderTest, ASliderMovedByKeyIsLetGoOfAtOnce) {
    int releases = 0;
    form.ZoomSlider.Released = [&releases] { ++releases; };
    Widget<QSlider>("ZoomSlider").triggerAction(QAbstractSlider::SliderPageStepAdd);
    EXPECT_EQ(releases, 1);
}

TEST_F(FormBinderTest, ASliderThatTheProgramMovesTellsNoMoveOfTheUser) {
    int moves = 0;
    form.ZoomSlider.Scroll = form.ZoomSlider.Released = [&moves] { ++moves; };
    form.ZoomSlider.Value = 40;
    EXPECT_EQ(moves, 0);
}

TEST_F(FormBinderTest, ALineFollowsAndLeads) {
    auto& line = Widget<QLineEdit>("txtLine");
    EXPECT_EQ(line.text(), QString("line"));
    form.txtLine.Text = u"other";
    EXPECT_EQ(line.text(), QString("other"));
    int changes = 0;
    form.txtLine.Change = [this, &changes] {
        ++changes;
        EXPECT_EQ(form.txtLine.SelStart, 6);
    };
    line.setFocus();
    line.end(false);
    QTest::keyClicks(&line, "s");
    EXPECT_EQ(form.txtLine.Text.Get(), u"others");
    EXPECT_EQ(changes, 1);
}

TEST_F(FormBinderTest, WhatAHandlerMakesOfTypedTextIsShown) {
    form.txtLine.Change = [this] { form.txtLine.Text = u"put right"; };
    auto& line = Widget<QLineEdit>("txtLine");
    line.setFocus();
    QTest::keyClicks(&line, "x");
    EXPECT_EQ(line.text(), QString("put right"));
}

TEST_F(FormBinderTest, TheSelectionOfALineGoesBothWays) {
    auto& line = Widget<QLineEdit>("txtLine");
    form.txtLine.SelectAll();
    EXPECT_EQ(line.selectedText(), QString("line"));
    line.setSelection(1, 2);
    EXPECT_EQ(form.txtLine.SelStart, 1);
    EXPECT_EQ(form.txtLine.SelLength, 2);
    line.deselect();
    line.setCursorPosition(4);
    EXPECT_EQ(form.txtLine.SelStart, 4);
    EXPECT_EQ(form.txtLine.SelLength, 0);
}

TEST_F(FormBinderTest, ALockedTextCanBeSelectedByKeyboard) {
    form.txtLines.Text = u"one\r\ntwo";
    form.txtLines.Locked = true;
    auto& lines = Widget<QPlainTextEdit>("txtLines");
    lines.setFocus();
    QTest::keyClick(&lines, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(form.txtLines.SelText(), u"one\r\ntwo");
    form.txtLines.Locked = false;
    EXPECT_FALSE(lines.isReadOnly());
}

TEST_F(FormBinderTest, OfAVeryLongTextThatIsLockedTheStartIsShown) {
    form.txtLines.Locked = true;
    form.txtLines.Text = Text(100'001, u'x');
    auto& lines = Widget<QPlainTextEdit>("txtLines");
    EXPECT_EQ(lines.toPlainText().size(), 100'000);
    EXPECT_EQ(form.txtLines.Text.Get().size(), 100'001u);
}

TEST_F(FormBinderTest, ALockedFieldCannotBeTypedInto) {
    form.txtLine.Locked = true;
    form.txtLines.Locked = true;
    EXPECT_TRUE(Widget<QLineEdit>("txtLine").isReadOnly());
    EXPECT_TRUE(Widget<QPlainTextEdit>("txtLines").isReadOnly());
    form.txtLine.Text = u"by program";
    EXPECT_EQ(Widget<QLineEdit>("txtLine").text(), QString("by program"));
}

TEST_F(FormBinderTest, LinesEndInCrLfInTheControlAndInLfInTheWidget) {
    auto& lines = Widget<QPlainTextEdit>("txtLines");
    form.txtLines.Text = u"one\r\ntwo";
    EXPECT_EQ(lines.toPlainText(), QString("one\ntwo"));
    lines.setFocus();
    lines.moveCursor(QTextCursor::End);
    QTest::keyClick(&lines, Qt::Key_Return);
    QTest::keyClicks(&lines, "3");
    EXPECT_EQ(form.txtLines.Text.Get(), u"one\r\ntwo\r\n3");
    EXPECT_EQ(form.txtLines.SelStart, 11);
}

TEST_F(FormBinderTest, ANoBreakSpaceIsNoBlank) {
    auto& lines = Widget<QPlainTextEdit>("txtLines");
    form.txtLines.Text = u"a\u00A0b";
    lines.setFocus();
    lines.moveCursor(QTextCursor::End);
    QTest::keyClicks(&lines, "c");
    EXPECT_EQ(form.txtLines.Text.Get(), u"a\u00A0bc");
}

TEST_F(FormBinderTest, TheSelectionOfLinesCountsCrLfAsTwo) {
    auto& lines = Widget<QPlainTextEdit>("txtLines");
    form.txtLines.Text = u"one\r\ntwo";
    form.txtLines.SelStart = 5;
    form.txtLines.SelLength = 3;
    EXPECT_EQ(lines.textCursor().selectedText(), QString("two"));
    lines.selectAll();
    EXPECT_EQ(form.txtLines.SelStart, 0);
    EXPECT_EQ(form.txtLines.SelLength, 8);
}

TEST_F(FormBinderTest, AKeyGoesToTheWindowThenToTheControlThenToTheWidget) {
    std::vector<std::string> seen;
    form.onKey = [&seen](KeyEvent& key) {
        seen.push_back("form");
        key.consumed = key.code == 'F';
    };
    form.txtLine.KeyDown = [&seen](KeyEvent& key) {
        seen.push_back("control");
        key.consumed = key.code == 'C';
    };
    auto& line = Widget<QLineEdit>("txtLine");
    line.setFocus();
    line.clear();
    QTest::keyClicks(&line, "fcw");
    EXPECT_EQ(seen, (std::vector<std::string>{"form", "form", "control", "form", "control"}));
    EXPECT_EQ(line.text(), QString("w"));
}

TEST_F(FormBinderTest, TheMaskIsComparedAsAWhole) {
    std::vector<int> masks;
    form.txtLine.KeyDown = [&masks](KeyEvent& key) {
        if (key.code == Key::Return) masks.push_back(key.mask);
        key.consumed = true;
    };
    auto& line = Widget<QLineEdit>("txtLine");
    line.setFocus();
    QTest::keyClick(&line, Qt::Key_Return, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(masks, (std::vector<int>{Mask::Ctrl | Mask::Shift}));
}

TEST_F(FormBinderTest, TheKeyboardGoesWhereTheControlWantsIt) {
    int got = 0;
    form.txtLines.GotFocus = [&got] { ++got; };
    form.txtLines.SetFocus();
    test::Settle();
    EXPECT_EQ(host.WidgetOf(form)->focusWidget(), &Widget<QPlainTextEdit>("txtLines"));
    Widget<QLineEdit>("txtLine").setFocus();
    test::Settle();
    EXPECT_EQ(form.Focused(), &form.txtLine);
    EXPECT_EQ(got, 1);
}

TEST_F(FormBinderTest, AClosedWindowLetsGoOfItsControls) {
    QPointer<QWidget> window = host.WidgetOf(form);
    form.Close();
    form.txtLine.Text = u"nobody looks";
    test::Settle();
    EXPECT_TRUE(window.isNull());
    form.Show();
    EXPECT_EQ(Widget<QLineEdit>("txtLine").text(), QString("nobody looks"));
}

TEST_F(FormBinderTest, ADropDownOffersItsItemsAndTakesOthers) {
    auto& field = Widget<QComboBox>("txtPattern");
    form.txtPattern.Items = std::vector<Text>{u"*.*", u"*.tbx"};
    form.txtPattern.Text = u"*.rtf";
    EXPECT_EQ(field.count(), 2);
    EXPECT_EQ(field.itemText(1), QString("*.tbx"));
    EXPECT_EQ(field.currentText(), QString("*.rtf"));
    test::Settle();
    field.setFocus();
    field.lineEdit()->clear();
    QTest::keyClicks(&field, "*.t");
    EXPECT_EQ(form.txtPattern.Text.Get(), u"*.t");
}

TEST_F(FormBinderTest, ADropDownTellsWhatIsChosen) {
    auto& field = Widget<QComboBox>("txtPattern");
    form.txtPattern.Items = std::vector<Text>{u"*.*", u"*.tbx"};
    int clicks = 0;
    form.txtPattern.Click = [&clicks] { ++clicks; };
    field.setCurrentIndex(1);
    EXPECT_EQ(clicks, 0);
    emit field.activated(1);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(form.txtPattern.Text.Get(), u"*.tbx");
}

TEST_F(FormBinderTest, ADropDownShowsItsKeysToTheWindow) {
    auto& field = Widget<QComboBox>("txtPattern");
    int returns = 0;
    form.txtPattern.KeyDown = [&returns](KeyEvent& key) { returns += key.Is(Key::Return, Mask::None); };
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(returns, 1);
}

TEST_F(FormBinderTest, AProgressBarShowsItsValue) {
    auto& bar = Widget<QProgressBar>("ProgressBar1");
    form.ProgressBar1.Max = 1000;
    form.ProgressBar1.Value = 250;
    EXPECT_EQ(bar.maximum(), 1000);
    EXPECT_EQ(bar.value(), 250);
}

TEST_F(FormBinderTest, AProgressBarIsToldOfTheStepsThatAreSeen) {
    auto& bar = Widget<QProgressBar>("ProgressBar1");
    form.ProgressBar1.Max = 100'000;
    form.ProgressBar1.Value = 999;
    EXPECT_EQ(bar.value(), 0);
    form.ProgressBar1.Value = 1'000;
    EXPECT_EQ(bar.value(), 1'000);
    form.ProgressBar1.Value = 99'999;
    form.ProgressBar1.Value = 100'000;
    EXPECT_EQ(bar.value(), 100'000);
    form.ProgressBar1.Value = 99'950;
    form.ProgressBar1.Value = 0;
    EXPECT_EQ(bar.value(), 0);
}

TEST_F(FormBinderTest, ASplitterStandsWhereItIsPut) {
    auto& splitter = Widget<QSplitter>("imgSplitV");
    form.imgSplitV.Position = 120;
    EXPECT_EQ(splitter.sizes().constFirst(), 120);
    splitter.resize(500, 100);
    // Without a moment in which the window would be seen otherwise.
    EXPECT_EQ(splitter.sizes().constFirst(), 120);
    test::Settle();
    EXPECT_EQ(splitter.sizes().constFirst(), 120);
}

TEST_F(FormBinderTest, ASplitterTellsThatItIsMoved) {
    auto& splitter = Widget<QSplitter>("imgSplitV");
    form.imgSplitV.Position = 120;
    int moves = 0;
    form.imgSplitV.Moved = [&moves] { ++moves; };
    emit splitter.splitterMoved(150, 1);
    EXPECT_EQ(form.imgSplitV.Position.Get(), 150);
    EXPECT_EQ(moves, 1);
}

} // namespace
} // namespace korvane
