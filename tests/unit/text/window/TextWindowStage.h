#pragma once

#include "context/exchange/MessageQuestion.h"
#include "context/exchange/TextWindowState.h"
#include "dialogs/frmMyMsgBox.h"
#include "support/FakeMainWindow.h"
#include "support/TestApp.h"
#include "testing/MemoryDocumentConverter.h"
#include "text/files/DocumentFiles.h"
#include "text/window/frm_RTF_HTM.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <vector>

namespace korvane {

/// A text window on a disk in memory.
class TextWindowStage : public testing::Test {
protected:
    TextWindowStage() {
        t.app.SetPort<TextFiles>(&documents);
        t.app.SetPort<TextDialogs>(&dialogs);
        State().TextWindowUntitled = 1;
        main.window.Left = Twips{1000};
        main.window.Top = Twips{500};
        main.window.Width = Twips{10000};
        main.window.Height = Twips{8000};
    }

    TextWindowState& State() { return t.app.Exchange<TextWindowState>(); }
    /// Opens the window, which stays open until the test ends.
    frm_RTF_HTM& Open(const Text& path = {}) {
        State().TextWindowFile = path;
        State().TextWindowUntitled = path.empty() ? 1 : 0;
        window = std::make_unique<frm_RTF_HTM>(t.app);
        window->EnsureLoaded();
        ExpectWindow();
        window->Show();
        return *window;
    }
    /// The next to appear is the text window, which stays open.
    void ExpectWindow() {
        t.user.On<frm_RTF_HTM>([](frm_RTF_HTM&) {});
    }
    TextControl& Control() { return window->ThisTextCtrl; }
    /// Whether the key was taken.
    bool Press(int code, int mask = Mask::None) {
        KeyEvent key{code, mask};
        Control().KeyDown(key);
        return key.consumed;
    }
    void Type(const Text& text) {
        for (const char16_t character : text)
            Control().Type(Text(1, character));
    }
    /// Writes what is between the tags as by the program, and selects it.
    void SelectAll(const Text& text) {
        Control().SetAll(text);
        Control().SetSelection(0, -1);
    }
    /// The user answers the question for the altered text.
    void AnswerSaving(MsgAnswer answer) {
        t.user.On<frmMyMsgBox>([this, answer](frmMyMsgBox& box) {
            t.app.Exchange<MessageQuestion>().MsgAnswer = answer;
            box.Close();
        });
    }
    void CloseUnsaved() {
        window->TextAltered = 0;
        Control().SetDataChanged(false);
        window->Close();
    }

    class NotingDialogs final : public TextDialogs {
    public:
        std::vector<TextDialog> shown;
        void Show(TextDialog dialog, TextControl&) override { shown.push_back(dialog); }
    };

    TestApp t;
    MemoryDocumentConverter converter;
    DocumentFiles documents{t.files, CodePage::Windows1252(), &converter};
    NotingDialogs dialogs;
    FakeMainWindow main{t.app};
    std::unique_ptr<frm_RTF_HTM> window;
};

} // namespace korvane
