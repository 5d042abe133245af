#include "platform/windows/WindowHandOver.h"

#include <gmock/gmock.h>

#include <functional>
#include <map>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A desktop whose windows exist only in memory.
class FakeWindowList final : public WindowList {
public:
    struct Window {
        std::string className;
        Text text;
        std::vector<WindowHandle> children;
        bool own = false;
    };

    WindowHandle Add(WindowHandle parent, const std::string& className, const Text& text = {}) {
        const WindowHandle handle = windows_.size() + 1;
        windows_[handle] = {className, text, {}};
        (parent == kNoWindow ? topLevel_ : windows_[parent].children).push_back(handle);
        return handle;
    }
    Window& At(WindowHandle window) { return windows_.at(window); }

    bool AnotherCopyRuns() override { return anotherCopyRuns; }
    std::vector<WindowHandle> TopLevel() const override { return topLevel_; }
    bool IsOwn(WindowHandle window) const override { return windows_.at(window).own; }
    WindowHandle FirstChild(WindowHandle parent) const override {
        const auto& children = windows_.at(parent).children;
        return children.empty() ? kNoWindow : children.front();
    }
    WindowHandle NextSibling(WindowHandle window) const override {
        for (const auto& [handle, parent] : windows_) {
            const auto& children = parent.children;
            const auto found = std::find(children.begin(), children.end(), window);
            if (found != children.end() && found + 1 != children.end()) return found[1];
        }
        return kNoWindow;
    }
    std::string ClassName(WindowHandle window, std::size_t room) const override {
        classNameRooms.push_back(room);
        return windows_.at(window).className.substr(0, room - 1);
    }
    Text WindowText(WindowHandle window, std::size_t room) const override {
        textRooms.push_back(room);
        return windows_.at(window).text.substr(0, room - 1);
    }
    std::size_t TextLength(WindowHandle window) const override {
        ++lengthQuestions;
        return windows_.at(window).text.size();
    }
    bool SetText(WindowHandle window, TextView text) override {
        if (takesText) windows_.at(window).text = text;
        return takesText;
    }
    void Activate(WindowHandle window) override { activated.push_back(window); }
    void Rest() override {
        ++rests;
        whileResting();
    }

    bool anotherCopyRuns = false;
    bool takesText = true;
    std::function<void()> whileResting;
    int rests = 0;
    std::vector<WindowHandle> activated;
    mutable int lengthQuestions = 0;
    mutable std::vector<std::size_t> classNameRooms;
    mutable std::vector<std::size_t> textRooms;

private:
    std::map<WindowHandle, Window> windows_;
    std::vector<WindowHandle> topLevel_;
};

class FakeCommandBox final : public CommandBox {
public:
    void Open(std::function<void(TextView text)> opened) override { changed = std::move(opened); }

    std::function<void(TextView text)> changed;
};

/// Provides a desktop with a running copy among other windows.
struct WindowHandOverTest : testing::Test {
    WindowHandOverTest() {
        windows.Add(kNoWindow, "Notepad", u"letter.txt - Editor");
        main = windows.Add(kNoWindow, "ThunderRT6MDIForm", u"KORVANE");
        windows.Add(main, "ThunderRT6TextBox");
        windows.Add(main, "MDIClient");
        pictureBox = windows.Add(main, "ThunderRT6PictureBoxDC");
        windows.Add(main, "ThunderRT6PictureBoxDC");
        windows.Add(pictureBox, "ThunderRT6CommandButton");
        textBox = windows.Add(pictureBox, "ThunderRT6TextBox");
        windows.Add(pictureBox, "ThunderRT6TextBox");
    }

    FakeWindowList windows;
    FakeCommandBox box;
    WindowHandOver channel{windows, box};
    WindowHandle main = kNoWindow;
    WindowHandle pictureBox = kNoWindow;
    WindowHandle textBox = kNoWindow;
};

TEST_F(WindowHandOverTest, TheSystemTellsOfAPreviousInstance) {
    EXPECT_FALSE(channel.PreviousInstanceRuns());
    windows.anotherCopyRuns = true;
    EXPECT_TRUE(channel.PreviousInstanceRuns());
}

TEST_F(WindowHandOverTest, ThePathGoesIntoTheFirstTextBoxOfTheFirstPictureBox) {
    ASSERT_TRUE(channel.FindReceiver());
    EXPECT_TRUE(channel.WaitUntilSlotEmpty());
    EXPECT_TRUE(channel.Deliver(u"C:\\Data\\a b.tbx"));
    EXPECT_EQ(windows.At(textBox).text, u"C:\\Data\\a b.tbx");
}

TEST_F(WindowHandOverTest, ATitleThatHoldsTheNameAnywhereWillDoTheFirstOfThem) {
    windows.At(main).text = u"a.tbx - Korvane 2";
    const WindowHandle later = windows.Add(kNoWindow, "ThunderRT6MDIForm", u"Korvane");
    windows.Add(windows.Add(later, "ThunderRT6PictureBoxDC"), "ThunderRT6TextBox");
    ASSERT_TRUE(channel.FindReceiver());
    channel.Deliver(u"C:\\a.tbx");
    EXPECT_EQ(windows.At(textBox).text, u"C:\\a.tbx");
}

TEST_F(WindowHandOverTest, AWindowWithTheNameThatIsNotTheProgramEndsTheSearch) {
    windows.At(1).text = u"korvane.txt - Editor";
    EXPECT_FALSE(channel.FindReceiver());
}

TEST_F(WindowHandOverTest, AWindowOfThisProcessIsNotTheRunningCopy) {
    windows.At(1).text = u"Korvane";
    windows.At(1).own = true;
    EXPECT_TRUE(channel.FindReceiver());
    channel.ActivateRunning();
    EXPECT_THAT(windows.activated, ElementsAre(main));
}

TEST_F(WindowHandOverTest, WithoutAWindowThereIsNoReceiver) {
    windows.At(main).text = u"Korvan";
    EXPECT_FALSE(channel.FindReceiver());
}

TEST_F(WindowHandOverTest, WithoutAPictureBoxThereIsNoReceiver) {
    windows.At(main).children.resize(2);
    EXPECT_FALSE(channel.FindReceiver());
}

TEST_F(WindowHandOverTest, WithoutATextBoxInTheFirstPictureBoxThereIsNoReceiver) {
    windows.At(pictureBox).children.resize(1);
    EXPECT_FALSE(channel.FindReceiver());
}

TEST_F(WindowHandOverTest, WaitsUntilTheBoxIsEmpty) {
    windows.At(textBox).text = u"C:\\earlier.tbx";
    windows.whileResting = [&] {
        if (windows.rests == 3) windows.At(textBox).text.clear();
    };
    ASSERT_TRUE(channel.FindReceiver());
    EXPECT_TRUE(channel.WaitUntilSlotEmpty());
    EXPECT_EQ(windows.rests, 3);
}

TEST_F(WindowHandOverTest, ABoxThatDoesNotTakeThePathFailsTheDelivery) {
    windows.takesText = false;
    ASSERT_TRUE(channel.FindReceiver());
    EXPECT_FALSE(channel.Deliver(u"C:\\a.tbx"));
}

TEST_F(WindowHandOverTest, ActivatesTheWindowOfThatTitle) {
    const WindowHandle exact = windows.Add(kNoWindow, "ThunderRT6MDIForm", u"Korvane");
    windows.At(main).text = u"Korvane - a.tbx";
    channel.ActivateRunning();
    EXPECT_THAT(windows.activated, ElementsAre(exact));
}

TEST_F(WindowHandOverTest, ActivatesAWindowWhoseTitleBeginsSoWhenNoneIsTitledSo) {
    windows.At(1).text = u"About Korvane";
    windows.At(main).text = u"Korvane - a.tbx";
    channel.ActivateRunning();
    EXPECT_THAT(windows.activated, ElementsAre(main));
}

TEST_F(WindowHandOverTest, ActivatesNothingWhenThereIsNoSuchWindow) {
    windows.At(main).text = u"My Korvane";
    channel.ActivateRunning();
    EXPECT_THAT(windows.activated, IsEmpty());
}

TEST_F(WindowHandOverTest, TheRunningCopyHearsOfWhatIsWrittenIntoItsBox) {
    Text received;
    channel.Listen({[&](TextView path) { received = path; }, [] { return true; }, [] {}});
    ASSERT_TRUE(box.changed);
    box.changed(u"C:\\a.tbx");
    EXPECT_EQ(received, u"C:\\a.tbx");
}

// Tests of the single steps.

TEST_F(WindowHandOverTest, ListsTopLevelWindowsInOrderWithTheirTitles) {
    const auto listed = EnumerateWindows(windows);
    ASSERT_EQ(listed.size(), 2u);
    EXPECT_EQ(listed[0].handle, 1u);
    EXPECT_EQ(listed[0].title, u"letter.txt - Editor");
    EXPECT_EQ(listed[1].handle, main);
    EXPECT_EQ(listed[1].title, u"KORVANE");
}

TEST_F(WindowHandOverTest, ClassNamesAreComparedAtBothEndsAndWithCase) {
    EXPECT_EQ(FindChildWindow(windows, main, "Thunder", "PictureBoxDC"), pictureBox);
    EXPECT_EQ(FindChildWindow(windows, main, "", "Client"), 4u);
    EXPECT_EQ(FindChildWindow(windows, main, "thunder", "PictureBoxDC"), kNoWindow);
    EXPECT_EQ(FindChildWindow(windows, main, "Thunder", "PictureBox"), kNoWindow);
    EXPECT_THAT(windows.classNameRooms, testing::Each(1024u));
}

TEST_F(WindowHandOverTest, OnlyDirectChildrenAreSearched) {
    EXPECT_EQ(FindChildWindow(windows, main, "Thunder", "CommandButton"), kNoWindow);
    EXPECT_EQ(FindChildWindow(windows, textBox, "Thunder", "TextBox"), kNoWindow);
}

TEST_F(WindowHandOverTest, AWindowsTextIsReadAtTheLengthThatItTells) {
    windows.At(textBox).text = u"C:\\a.tbx";
    EXPECT_EQ(ReadWindowText(windows, textBox), u"C:\\a.tbx");
    EXPECT_THAT(windows.textRooms, ElementsAre(9u));
    EXPECT_EQ(windows.lengthQuestions, 1);
}

TEST_F(WindowHandOverTest, NoWindowAndNoTextReadAsEmpty) {
    EXPECT_EQ(ReadWindowText(windows, kNoWindow), u"");
    EXPECT_EQ(windows.lengthQuestions, 0);
    EXPECT_EQ(ReadWindowText(windows, textBox), u"");
    EXPECT_THAT(windows.textRooms, IsEmpty());
}

} // namespace
} // namespace korvane
