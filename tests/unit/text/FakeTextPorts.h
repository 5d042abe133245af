#pragma once

#include "context/App.h"
#include "context/ports/OpenText.h"
#include "context/ports/SystemFileDialog.h"
#include "context/ports/TextTools.h"
#include "controls/Form.h"
#include "controls/text/TextControl.h"
#include "support/FakeMainWindow.h"

#include <optional>
#include <string>
#include <vector>

namespace korvane {

/// The controls of a text window that is open.
class FakeOpenText {
public:
    explicit FakeOpenText(App& app) : app_(app), form_(app.Forms(), "frm_RTF_HTM", u"") {
        app_.SetPort<OpenText>(&open_);
    }
    FakeOpenText(const FakeOpenText&) = delete;
    FakeOpenText& operator=(const FakeOpenText&) = delete;
    ~FakeOpenText() { app_.SetPort<OpenText>(nullptr); }

    Text All() const { return text.All(); }

private:
    App& app_;
    Form form_;

public:
    TextControl text{form_, "ThisTextCtrl"};

private:
    TextControl scratch_{form_, "rtfTempText"};
    OpenText open_{text, scratch_};
};

/// Counts the font dialogs, and takes the choice when told.
class FakeTextTools final : public TextTools {
public:
    explicit FakeTextTools(App& app) { app.SetPort<TextTools>(this); }
    int fonts = 0;
    bool takesFont = false;

    bool ChooseFont(TextControl&) override {
        ++fonts;
        return takesFont;
    }
    void ShowUnicode(TextControl&) override {}
    void ShowCharacters(TextControl&) override {}
    void ShowElements(TextControl&) override {}
};

/// Chooses a file, or nothing, and remembers what it was asked.
class FakeSystemFileDialog final : public SystemFileDialog {
public:
    explicit FakeSystemFileDialog(App& app) { app.SetPort<SystemFileDialog>(this); }
    std::optional<Text> answer;
    std::vector<Request> requests;

    std::optional<Text> Choose(const Request& request) override {
        requests.push_back(request);
        return answer;
    }
};

} // namespace korvane
