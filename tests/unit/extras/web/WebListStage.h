#pragma once

#include "extras/web/WebsiteFile.h"
#include "extras/web/frmWebList.h"
#include "support/FakeMainWindow.h"
#include "support/FakeSystemFileDialog.h"
#include "support/TestApp.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace korvane {

/// A question with the buttons, of which Return presses the one with the number `preset`.
inline Message Question(const Text& text, MessageButtons buttons = MessageButtons::YesNo, int preset = 1) {
    return {text, MessageIcon::Question, buttons, preset};
}

/// A list of three websites and a browser on the disk.
class WebListStage : public testing::Test {
protected:
    WebListStage() {
        t.files.AddFile(kList, kThree);
        t.files.AddFile(kBrowser);
        t.app.Settings.WebListFile = kList;
        t.app.Settings.WebListA = kBrowser;
    }

    /// Opens the window and lets `act` be done in it. Then it is closed without a question.
    void InWindow(const std::function<void(frmWebList&)>& act) {
        frmWebList window(t.app, main.window);
        t.user.On<frmWebList>([](frmWebList&) {});
        window.Show();
        act(window);
        if (!window.Shown()) return;
        window.ListDirty = 0;
        window.Close();
    }
    /// The same with other bytes in the file.
    void With(std::string_view bytes, const std::function<void(frmWebList&)>& act) {
        t.files.AddFile(kList, bytes);
        InWindow(act);
    }

    static bool Press(frmWebList& f, Control& control, int code, int mask = Mask::None) {
        KeyEvent key{code, mask};
        f.KeyDown(key);
        if (!key.consumed && control.KeyDown) control.KeyDown(key);
        return key.consumed;
    }
    static std::vector<Text> Column(const frmWebList& f, int column) {
        std::vector<Text> texts;
        for (int row = 1; row <= f.ListView1.Count(); ++row)
            texts.emplace_back(f.ListView1.TextAt(row, column));
        return texts;
    }
    static std::vector<Text> Names(const frmWebList& f) { return Column(f, 1); }
    static std::vector<Text> Urls(const frmWebList& f) { return Column(f, 2); }
    static std::vector<int> Checks(const frmWebList& f) {
        std::vector<int> checks;
        for (int row = 1; row <= f.ListView1.Count(); ++row)
            checks.push_back(f.ListView1.Checked(row) ? 1 : 0);
        return checks;
    }
    static std::vector<Text> Groups(const frmWebList& f) {
        std::vector<Text> groups;
        for (int index = 0; index < f.lstGroup.ListCount(); ++index)
            groups.push_back(f.lstGroup.List(index));
        return groups;
    }
    /// Checks the rows alone.
    static void Check(frmWebList& f, const std::vector<int>& rows) {
        for (int row = 1; row <= f.ListView1.Count(); ++row)
            f.ListView1.SetChecked(row, false);
        for (const int row : rows)
            f.ListView1.SetChecked(row, true);
    }
    ProgramStart Browser(const std::vector<Text>& urls) const { return {kBrowser, urls}; }
    std::string Written() const { return t.files.Contents(kList).value_or("(no such file)"); }

    static constexpr std::string_view kThree =
        "A\r\nhttp://a\r\n0\r\nB\r\nhttp://b\r\n1\r\nC\r\nhttp://c\r\n0\r\n"
        "***\r\nhttp://a http://b\r\nhttp://c\r\n";
    const Text kList = u"C:\\Data\\sites.lst";
    const Text kBrowser = u"C:\\Web\\b.exe";
    const Text kMarker{kSeparatorMarker};
    TestApp t;
    FakeMainWindow main{t.app};
    FakeSystemFileDialog dialog{t.app};
};

} // namespace korvane
