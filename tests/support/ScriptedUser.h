#pragma once

#include "controls/FontSpec.h"
#include "controls/Form.h"
#include "controls/FormHost.h"
#include "testing/ScriptedMessageBoxes.h"

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace korvane {

class ScriptedPickers;
struct ColourRequest;
struct ListerRequest;

/// Plays the user without a screen. It answers windows, message boxes, choosers and pop-up menus from one
/// script, in the order in which they appear. The test fails with the name of the window or box if something
/// isn't in the script, appears out of order, is left open by its script, or never appears.
class ScriptedUser final : public FormHost, public MessageBoxes {
public:
    ScriptedUser();
    ScriptedUser(const ScriptedUser&) = delete;
    ScriptedUser& operator=(const ScriptedUser&) = delete;
    ~ScriptedUser() override;

    // Writing the script.

    /// The next to appear is a window of class `Window`. A modal window must be closed at the end of
    /// `script`.
    template <class Window, class Script>
    void On(Script script) {
        steps_.push_back(WindowStep{[script = std::move(script)](Form& form) {
            auto* window = dynamic_cast<Window*>(&form);
            if (window != nullptr) script(*window);
            return window != nullptr;
        }});
    }
    /// The next to appear is any message box that has this button.
    void Answer(korvane::Answer answer) { steps_.push_back(BoxStep{std::nullopt, answer, {}}); }
    /// The next to appear is exactly this message box.
    void Answer(const Message& expected, korvane::Answer answer) {
        steps_.push_back(BoxStep{expected, answer, {}});
    }
    /// The next to appear is any message box that has this button, and `meanwhile` is called while it is
    /// shown.
    void AnswerAfter(std::function<void()> meanwhile, korvane::Answer answer) {
        steps_.push_back(BoxStep{std::nullopt, answer, std::move(meanwhile)});
    }
    /// The next to appear is the file chooser, and `choose` fills in its result.
    void OnChooser(std::function<void(ListerRequest&)> choose) {
        steps_.push_back(ChooserStep{std::move(choose)});
    }
    void ChooseFile(const Text& path);
    void ChooseFiles(const std::vector<Text>& paths);
    void CancelChooser();
    /// The next to appear is the colour dialog. nullopt cancels it.
    void ChooseColour(std::optional<Colour> chosen) { steps_.push_back(ColourStep{chosen}); }
    /// The next to appear is the font dialog. nullopt cancels it.
    void ChooseFont(std::optional<FontSpec> chosen) { steps_.push_back(FontStep{std::move(chosen)}); }
    /// The next to appear is a pop-up menu, and this entry is chosen. An empty name chooses nothing.
    void ChooseFromPopUp(std::string entry) { steps_.push_back(PopUpStep{std::move(entry)}); }

    // What has appeared.

    const std::vector<Message>& Messages() const { return messages_; }
    /// The requests to the file chooser.
    const std::vector<ListerRequest>& Requests() const;
    /// What each colour dialog was opened with.
    const std::vector<ColourRequest>& ColourRequests() const;
    /// What each font dialog was opened with.
    const std::vector<FontSpec>& FontRequests() const;
    /// The names of all pop-up menus that were shown.
    const std::vector<std::string>& PopUps() const { return popUps_; }
    /// The names of all windows that were brought to the front.
    const std::vector<std::string>& Raised() const { return raised_; }
    /// The open windows that aren't modal.
    const std::vector<Form*>& Shown() const { return shown_; }

    // What the program calls.

    void RunModal(Form& form) override;
    void Show(Form& form) override;
    void Hide(Form& form) override;
    void PopUp(Menu& menu) override;
    void Raise(Form& form) override;
    bool ShowsModal() const override { return modal_ > 0; }
    korvane::Answer Show(const Message& message) override;
    /// The choosers that follow this script.
    ScriptedPickers& Pickers() { return *pickers_; }

    // What the choosers call.

    void PickFiles(ListerRequest& request);
    std::optional<Colour> PickColour();
    std::optional<FontSpec> PickFont();

private:
    struct WindowStep {
        /// Returns false when the window is of another class.
        std::function<bool(Form&)> run;
    };
    struct BoxStep {
        std::optional<Message> expected;
        korvane::Answer answer;
        std::function<void()> meanwhile;
    };
    struct ChooserStep {
        std::function<void(ListerRequest&)> choose;
    };
    struct PopUpStep {
        std::string entry;
    };
    struct ColourStep {
        std::optional<Colour> chosen;
    };
    struct FontStep {
        std::optional<FontSpec> chosen;
    };
    using Step = std::variant<WindowStep, BoxStep, ChooserStep, PopUpStep, ColourStep, FontStep>;

    /// Takes the next step if it is of this kind. Otherwise the test fails and says that `what` appeared.
    template <class Kind>
    std::optional<Kind> Take(const std::string& what);
    /// Returns whether this window was next in the script.
    bool PlayWindow(Form& form);

    std::deque<Step> steps_;
    std::vector<Message> messages_;
    std::vector<std::string> popUps_;
    std::vector<std::string> raised_;
    std::vector<Form*> shown_;
    int modal_ = 0;
    std::unique_ptr<ScriptedPickers> pickers_;
};

} // namespace korvane
