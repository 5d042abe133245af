#pragma once

#include "context/ports/WordList.h"
#include "dialogs/frmMyInputBox.h"
#include "support/FakeMainWindow.h"
#include "support/FakeSystemFileDialog.h"
#include "support/TestApp.h"
#include "text/files/DocumentFiles.h"
#include "text/words/WordListWindow.h"
#include "text/words/frmHoldWordList.h"

#include <gmock/gmock.h>

#include <functional>
#include <optional>
#include <string_view>
#include <vector>

namespace korvane {

/// A word list on a disk in memory.
class WordListStage : public testing::Test {
protected:
    WordListStage() {
        t.screen.SetWorkArea({Twips{0}, Twips{0}, Twips{30000}, Twips{16000}});
        t.files.AddDir(u"C:\\Korvane");
        t.app.SetPort<TextFiles>(&documents);
        main.window.Left = Twips{9000};
        main.window.Top = Twips{1000};
        main.window.Width = Twips{10000};
        main.window.Height = Twips{9000};
    }

    WordListState& State() { return t.app.Exchange<WordListState>(); }
    /// What the list begins with.
    void Have(const std::vector<Text>& words) {
        for (const Text& word : words)
            State().WordListBuffer += word + u'\r';
    }
    void HaveFile(std::string_view bytes) {
        t.files.AddFile(kFile, bytes);
        t.app.Settings.WordListFile = kFile;
    }
    /// Does something in the window, which is closed afterwards unless that has closed it.
    std::optional<Text> Open(const std::function<void(frmHoldWordList&)>& act = [](auto&) {}) {
        t.user.On<frmHoldWordList>([&act](frmHoldWordList& f) {
            act(f);
            if (f.Shown()) f.cmdCancel.Press();
        });
        return t.app.Port<WordList>()->Choose();
    }
    /// The words that the list has when it opens.
    std::vector<Text> Listed() {
        std::vector<Text> words;
        Open([&words](frmHoldWordList& f) { words = WordsIn(f); });
        return words;
    }
    static std::vector<Text> WordsIn(const frmHoldWordList& f) {
        std::vector<Text> words;
        for (int row = 1; row <= f.lstWordList.Count(); ++row)
            words.emplace_back(f.lstWordList.TextAt(row, 1));
        return words;
    }
    static void Pick(frmHoldWordList& f, const std::vector<int>& rows) {
        f.lstWordList.SetAllSelected(false);
        for (const int row : rows)
            f.lstWordList.SetSelected(row, true);
    }
    static bool Press(frmHoldWordList& f, int code, int mask = Mask::None) {
        KeyEvent key{code, mask};
        f.lstWordList.KeyDown(key);
        return key.consumed;
    }
    /// The user types an answer into the input box, or cancels it.
    void Type(const std::optional<Text>& answer, const Text& question, const Text& offered = {}) {
        t.user.On<frmMyInputBox>([=](frmMyInputBox& box) {
            EXPECT_EQ(box.txtBoxCaption.Caption.Get(), question);
            EXPECT_EQ(box.txtBoxText.Text.Get(), offered);
            if (!answer) return box.cmdCancel.Press();
            box.txtBoxText.Text = *answer;
            box.cmdOk.Press();
        });
    }
    std::string Written(const Text& path) const { return t.files.Contents(path).value_or("(no such file)"); }

    static constexpr TextView kFile = u"C:\\Korvane\\words.lst";
    static constexpr TextView kDunmark = u"C:\\Drive_G\\Sandrel\\Dunmark\\Dunmark.exe";

    TestApp t;
    DocumentFiles documents{t.files, CodePage::Windows1252(), nullptr};
    FakeMainWindow main{t.app};
    FakeSystemFileDialog dialog{t.app};
    WordListWindow list{t.app};
};

} // namespace korvane
