#pragma once

#include "Chance.h"
#include "context/ports/ColourPicker.h"
#include "context/ports/FilePicker.h"
#include "context/ports/FontPicker.h"
#include "controls/Form.h"
#include "controls/FormHost.h"
#include "platform/MessageBoxes.h"

#include <optional>
#include <vector>

namespace korvane {

/// Answers every window, message box and chooser by chance: types, ticks, picks and presses here and there,
/// and closes what is open in the end.
class RandomUser final : public FormHost,
                         public MessageBoxes,
                         public FilePicker,
                         public ColourPicker,
                         public FontPicker {
public:
    /// `chance` outlives the user.
    explicit RandomUser(Chance& chance) : chance_(chance) {}

    /// The message boxes since `ForgetMessages`.
    const std::vector<Message>& Messages() const { return messages_; }
    void ForgetMessages() { messages_.clear(); }

    void RunModal(Form& form) override;
    void Show(Form&) override {}
    void Hide(Form&) override {}
    void PopUp(Menu&) override {}
    void Raise(Form&) override {}
    Answer Show(const Message& message) override;
    void Choose(ListerRequest& request) override;
    std::optional<Colour> Choose(Colour start, Extent extent) override;
    std::optional<FontSpec> Choose(const FontSpec& present) override;

private:
    void ActOn(Control& control);

    Chance& chance_;
    std::vector<Message> messages_;
};

} // namespace korvane
