#include "controls/text/TextControl.h"

#include "controls/Form.h"
#include "controls/text/TextBars.h"
#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace korvane {
namespace {

/// Notes what the control tells it.
class NotingView final : public View {
public:
    void Follow(Observed&, Aspect aspect) override { told.push_back(aspect); }
    std::vector<Aspect> told;
};

/// Has one file and notes what is saved.
class FakeFiles final : public TextFiles {
public:
    std::optional<doc::ReadResult> Load(TextView path, int format) override {
        loaded = path;
        return Read({}, format);
    }
    TextSaving Save(TextView, int, const doc::Document& document) override {
        saved = document;
        return saving;
    }
    std::optional<doc::ReadResult> Read(std::string_view, int) override { return file; }
    Text Needed(int, FileUse) const override { return {}; }
    std::optional<std::string> Written(const doc::Document&, int) override { return "written"; }

    std::optional<doc::ReadResult> file;
    TextSaving saving = TextSaving::Saved;
    Text loaded;
    doc::Document saved;
};

class TextControlTest : public testing::Test {
protected:
    TextControlTest() {
        control.Change = [this] { ++changes; };
        control.Error = [this](const Text& reason) { errors.push_back(reason); };
        control.Files = &files;
    }

    FakeFiles files;
    ScriptedUser user;
    Form form{user, "Form", u""};
    TextControl control{form, "control"};
    int changes = 0;
    std::vector<Text> errors;
};

TEST_F(TextControlTest, AChangeIsToldToItsViewAndToItsWindow) {
    NotingView view;
    control.SetView(&view);
    control.SetSelText(u"ab");
    EXPECT_EQ(view.told, (std::vector<Aspect>{Aspect::Text, Aspect::Selection}));
    EXPECT_EQ(changes, 1);
    view.told.clear();
    control.SetSelStart(1);
    EXPECT_EQ(view.told, (std::vector<Aspect>{Aspect::Selection}));
    control.SetView(nullptr);
}

TEST_F(TextControlTest, ASelectionOfTheUserIsNotToldBackToTheView) {
    control.SetAll(u"abc");
    NotingView view;
    int moves = 0;
    control.SelChange = [&moves] { ++moves; };
    control.SetView(&view);
    control.MoveSelection(1, 2);
    EXPECT_EQ(control.SelText(), u"bc");
    EXPECT_TRUE(view.told.empty());
    EXPECT_EQ(moves, 1);
    control.SetView(nullptr);
}

TEST_F(TextControlTest, TypedTextGoesIntoTheTextUnlessItsHandlerConsumesIt) {
    control.Type(u"a");
    control.KeyPress = [](TypedText& typed) { typed.consumed = typed.Is(u'b'); };
    control.Type(u"b");
    control.Type(u"c");
    control.Type(u"\r");
    EXPECT_EQ(control.All(), u"ac\r\n");
    EXPECT_TRUE(control.DataChanged());
    EXPECT_EQ(changes, 3);
}

TEST_F(TextControlTest, ALockedControlTakesNoTypedText) {
    control.Locked = true;
    control.Type(u"a");
    control.Locked = false;
    control.Enabled = false;
    control.Type(u"a");
    EXPECT_EQ(control.All(), u"");
}

TEST_F(TextControlTest, ATypedSpaceAloneIsNoChange) {
    control.Type(u" ");
    EXPECT_EQ(control.All(), u" ");
    EXPECT_FALSE(control.DataChanged());
    EXPECT_EQ(changes, 0);
    control.Type(u"a");
    control.Type(u" ");
    EXPECT_TRUE(control.DataChanged());
    EXPECT_EQ(changes, 1);
}

TEST_F(TextControlTest, ATypedSpaceInPlaceOfASelectionIsAChange) {
    control.SetAll(u"abc");
    control.SetDataChanged(false);
    control.SetSelection(0, 2);
    control.Type(u" ");
    EXPECT_EQ(control.All(), u" c");
    EXPECT_TRUE(control.DataChanged());
}

TEST_F(TextControlTest, TheMouseOverAFieldIsToldOnce) {
    std::vector<int> entered;
    int left = 0;
    control.FieldEntered = [&entered](int field) { entered.push_back(field); };
    control.FieldLeft = [&left] { ++left; };
    control.Hover(0);
    control.Hover(3);
    control.Hover(3);
    control.Hover(4);
    control.Hover(0);
    EXPECT_EQ(entered, (std::vector<int>{3, 4}));
    EXPECT_EQ(left, 1);
}

TEST_F(TextControlTest, AClickTellsAHyperlinkWithItsAddressAndAnotherFieldByItsNumber) {
    control.FieldInsert(u"note");
    control.FieldInsert(u"link");
    control.SetFieldType(2, 1);
    control.SetFieldTypeData(2, u"www.a.b");
    std::vector<int> notes;
    std::vector<std::string> links;
    control.FieldClicked = [&notes](int field) { notes.push_back(field); };
    control.HyperlinkClicked = [&links](int field, int kind, const Text& link) {
        links.push_back(std::to_string(field) + " " + std::to_string(kind) + " " + ToUtf8(link));
    };
    control.Click(1);
    control.Click(2);
    EXPECT_EQ(notes, (std::vector<int>{1}));
    EXPECT_EQ(links, (std::vector<std::string>{"2 1 www.a.b"}));
}

TEST_F(TextControlTest, ALoadTakesTheTextAndTellsTheSizesThatTheFileHas) {
    files.file = doc::ReadResult{doc::FromPlainText(u"abc")};
    files.file->document.page[doc::Page::Width] = 5000;
    files.file->document.page[doc::Page::Height] = 6000;
    files.file->pageGiven[doc::Page::Width] = true;
    const int width = control.PageSize(doc::Page::Width);
    control.SetLoadSaveAttribute(1, 1);
    EXPECT_TRUE(control.Load(u"C:\\a.rtf", TextFormat::Rtf));
    EXPECT_EQ(files.loaded, u"C:\\a.rtf");
    EXPECT_EQ(control.All(), u"abc");
    EXPECT_EQ(control.LoadSaveAttribute(0), 5000);
    EXPECT_EQ(control.LoadSaveAttribute(1), 0);
    EXPECT_EQ(control.PageSize(doc::Page::Width), width);
}

/// Has one place at the upper edge.
class FakeScroll final : public TextScroll {
public:
    TextTop Top() override { return top; }
    void SetTop(const TextTop& wanted) override { top = wanted; }
    TextTop top;
};

TEST_F(TextControlTest, ATextWithMoreInItKeepsWhatIsSeen) {
    FakeScroll scroll;
    control.Scroll = &scroll;
    control.SetAll(u"one two");
    scroll.top = {4, 3};
    files.file = doc::ReadResult{doc::FromPlainText(u"\uFFFCone \uFFFCtwo")};
    ASSERT_TRUE(control.LoadMoreFromMemory("x", TextFormat::Html));
    EXPECT_EQ(scroll.top.place, 6);
    EXPECT_EQ(scroll.top.above, 3);
    control.ShowTop();
    EXPECT_EQ(scroll.top.place, 0);
    EXPECT_EQ(scroll.top.above, 0);
}

TEST_F(TextControlTest, WhatCantBeReadInMemoryLeavesTheText) {
    control.SetAll(u"abc");
    control.SetSelection(1, 1);
    EXPECT_FALSE(control.LoadMoreFromMemory("x", TextFormat::Html));
    EXPECT_FALSE(control.LoadFromMemory("x", TextFormat::Html));
    control.Files = nullptr;
    EXPECT_FALSE(control.Load(u"C:\\a.rtf", TextFormat::Rtf));
    EXPECT_FALSE(control.LoadFromMemory("x", TextFormat::Html));
    EXPECT_EQ(control.SaveToMemory(TextFormat::Rtf), "");
    EXPECT_EQ(errors.size(), 4U);
    EXPECT_EQ(control.All(), u"abc");
    EXPECT_EQ(control.SelText(), u"b");
}

TEST_F(TextControlTest, AWindowThatListensToNothingIsNotTold) {
    control.SetAll(u"abc");
    control.Hover(1);
    control.Hover(0);
    control.Click(0);
    control.Error = nullptr;
    control.Files = nullptr;
    EXPECT_FALSE(control.Load(u"C:\\a.rtf", TextFormat::Rtf));
    control.Change = nullptr;
    control.Type(u"x");
    EXPECT_EQ(control.All(), u"xabc");
}

TEST_F(TextControlTest, AFailedLoadLeavesTheTextAndTellsAReason) {
    control.SetAll(u"abc");
    EXPECT_FALSE(control.Load(u"C:\\a.rtf", TextFormat::Rtf));
    EXPECT_EQ(control.All(), u"abc");
    ASSERT_EQ(errors.size(), 1U);
    EXPECT_EQ(errors[0].find(u"1d09"), Text::npos);
}

TEST_F(TextControlTest, OnlyTheReasonOfAFileThatCantBeWrittenHasItsCode) {
    control.SetAll(u"abc");
    EXPECT_TRUE(control.Save(u"C:\\a.rtf", TextFormat::Rtf));
    EXPECT_EQ(doc::PlainText(files.saved), u"abc");
    files.saving = TextSaving::NotWritten;
    EXPECT_FALSE(control.Save(u"C:\\a.rtf", TextFormat::Rtf));
    files.saving = TextSaving::NotMade;
    EXPECT_FALSE(control.Save(u"C:\\a.pdf", TextFormat::Pdf));
    control.Files = nullptr;
    EXPECT_FALSE(control.Save(u"C:\\a.rtf", TextFormat::Rtf));
    ASSERT_EQ(errors.size(), 3U);
    EXPECT_NE(errors[0].find(u"1d09"), Text::npos);
    EXPECT_EQ(errors[1].find(u"1d09"), Text::npos);
    EXPECT_EQ(errors[2].find(u"1d09"), Text::npos);
}

TEST_F(TextControlTest, ATextWithMoreInItKeepsTheSelection) {
    control.SetAll(u"one two\r\nthree");
    files.file = doc::ReadResult{doc::FromPlainText(u"\uFFFCone \uFFFCtwo\r\n\uFFFC\r\nthree")};
    control.SetSelection(4, 3);
    ASSERT_TRUE(control.LoadMoreFromMemory("x", TextFormat::Html));
    EXPECT_EQ(control.SelText(), u"two");
    EXPECT_EQ(control.SelStart(), 6);
    control.SetAll(u"one two\r\nthree");
    ASSERT_TRUE(control.LoadMoreFromMemory("x", TextFormat::Html));
    EXPECT_EQ(control.SelStart(), 0);
    control.SetSelection(0, -1);
    files.file = doc::ReadResult{doc::FromPlainText(u"other")};
    ASSERT_TRUE(control.LoadMoreFromMemory("x", TextFormat::Html));
    EXPECT_EQ(control.All(), u"other");
    files.file.reset();
    control.SetSelection(2, 2);
    EXPECT_FALSE(control.LoadMoreFromMemory("x", TextFormat::Html));
    EXPECT_EQ(control.SelText(), u"he");
}

TEST_F(TextControlTest, AttributesAreNumbersAndTexts) {
    EXPECT_EQ(control.LoadSaveAttribute(37), 0);
    control.SetLoadSaveAttribute(37, 1);
    control.SetLoadSaveAttribute(17, u"COMMENT");
    EXPECT_EQ(control.LoadSaveAttribute(37), 1);
    EXPECT_EQ(control.LoadSaveAttribute(17), 0);
}

TEST_F(TextControlTest, ItsDialogsAreAskedForByName) {
    class NotingDialogs final : public TextDialogs {
    public:
        std::vector<TextDialog> shown;
        void Show(TextDialog dialog, TextControl&) override { shown.push_back(dialog); }
    };
    control.ParagraphDialog();
    NotingDialogs dialogs;
    control.Dialogs = &dialogs;
    control.FindReplaceDialog(1);
    control.FindReplaceDialog(2);
    control.TabDialog();
    EXPECT_EQ(dialogs.shown,
              (std::vector<TextDialog>{TextDialog::Find, TextDialog::Replace, TextDialog::Tabs}));
}

TEST_F(TextControlTest, ItsBarsAreAttachedToIt) {
    TextRuler ruler(form, "ruler");
    EXPECT_EQ(ruler.Target, nullptr);
    ruler.Target = &control;
    EXPECT_EQ(ruler.Target, &control);
}

class KeyRunTest : public TextControlTest {
protected:
    void Type(TextView text) {
        for (const char16_t character : text)
            control.Type(TextView(&character, 1));
    }
    void Backspace() {
        control.MoveSelection(control.SelStart() - 1, 1);
        control.Erase();
    }
    /// The texts to which undoing comes back, down to the first.
    std::vector<std::string> Undone() {
        std::vector<std::string> texts;
        while (control.Undo())
            texts.push_back(ToUtf8(control.All()));
        return texts;
    }
};

TEST_F(KeyRunTest, WhatIsTypedIsUndoneWordByWord) {
    Type(u"one two  three");
    EXPECT_EQ(Undone(), (std::vector<std::string>{"one two  ", "one ", ""}));
    ASSERT_TRUE(control.Redo());
    EXPECT_EQ(control.All(), u"one ");
    EXPECT_EQ(control.SelStart(), 4);
}

TEST_F(KeyRunTest, AParagraphAndATabAreStepsOfTheirOwn) {
    Type(u"a\rb\tc");
    EXPECT_EQ(Undone(), (std::vector<std::string>{"a\r\nb\t", "a\r\nb", "a\r\n", "a", ""}));
}

TEST_F(KeyRunTest, TypingElsewhereIsAnotherStep) {
    Type(u"ab");
    control.MoveSelection(0, 0);
    Type(u"c");
    EXPECT_EQ(Undone(), (std::vector<std::string>{"ab", ""}));
}

TEST_F(KeyRunTest, AnotherChangeEndsTheRun) {
    Type(u"a");
    control.SetAlignment(1);
    Type(u"b");
    EXPECT_EQ(Undone(), (std::vector<std::string>{"a", "a", ""}));
}

TEST_F(KeyRunTest, ATextThatTakesThePlaceOfASelectionIsAStep) {
    Type(u"ab");
    control.MoveSelection(1, 1);
    Type(u"c");
    Type(u"d");
    EXPECT_EQ(Undone(), (std::vector<std::string>{"ab", ""}));
}

TEST_F(KeyRunTest, ARowOfDeletionsIsUndoneAsOne) {
    control.SetAll(u"12345");
    control.SetSelStart(4);
    Backspace();
    Backspace();
    control.MoveSelection(2, 1);
    control.Erase();
    EXPECT_EQ(control.All(), u"12");
    EXPECT_EQ(Undone(), (std::vector<std::string>{"12345"}));
    EXPECT_EQ(control.SelStart(), 5);
    Type(u"x");
    Backspace();
    EXPECT_EQ(Undone(), (std::vector<std::string>{"12345x", "12345"}));
}

TEST_F(KeyRunTest, UndoingLeavesTheCursorAtTheChange) {
    control.SetAll(u"one two three");
    control.SetSelection(4, 3);
    control.SetSelText(u"2");
    control.SetSelStart(0);
    ASSERT_TRUE(control.Undo());
    EXPECT_EQ(control.SelStart(), 7);
    ASSERT_TRUE(control.Redo());
    EXPECT_EQ(control.SelStart(), 5);
}

} // namespace
} // namespace korvane
