#pragma once

#include "context/ports/ColourPicker.h"
#include "context/ports/FontPicker.h"
#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/FormHost.h"
#include "controls/TextBox.h"
#include "controls/lists/ListBox.h"
#include "platform/MessageBoxes.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace korvane {

/// Does the same in every window, dialog and message box that comes.
class OneMindedUser final : public FormHost, public MessageBoxes, public ColourPicker, public FontPicker {
public:
    /// Fills in every window, presses its button of this number, counted from 0 and round again after the
    /// last one, and says Yes. Without a number, closes and cancels whatever comes.
    explicit OneMindedUser(std::optional<std::size_t> button) : button_(button) {}

    /// How often something came.
    int asked = 0;

    void RunModal(Form& form) override {
        ++asked;
        if (button_) {
            FillIn(form);
            PressButtonOf(form);
        }
        if (form.Shown()) form.Close();
    }
    void Show(Form&) override {}
    void Hide(Form&) override {}
    void PopUp(Menu&) override {}
    void Raise(Form&) override {}
    Answer Show(const Message& message) override {
        ++asked;
        if (message.buttons == MessageButtons::Ok) return Answer::Ok;
        return button_ ? Answer::Yes : Answer::No;
    }
    std::optional<Colour> Choose(Colour, Extent) override {
        ++asked;
        return button_ ? std::optional(Colour{0x00FF00}) : std::nullopt;
    }
    std::optional<FontSpec> Choose(const FontSpec&) override {
        ++asked;
        return button_ ? std::optional(FontSpec{u"Courier", 12}) : std::nullopt;
    }

private:
    static void FillIn(const Form& form) {
        for (Control* control : form.Controls()) {
            if (auto* list = dynamic_cast<ListBox*>(control)) list->Select(list->ListCount() - 1);
            auto* box = dynamic_cast<TextBox*>(control);
            if (box != nullptr && box->Enabled && !box->Locked) box->Type(u"1");
        }
    }
    void PressButtonOf(const Form& form) const {
        std::vector<CommandButton*> buttons;
        for (Control* control : form.Controls()) {
            if (auto* button = dynamic_cast<CommandButton*>(control)) buttons.push_back(button);
        }
        if (!buttons.empty()) buttons[*button_ % buttons.size()]->Press();
    }

    std::optional<std::size_t> button_;
};

} // namespace korvane
