#include "RandomUser.h"

#include "controls/Buttons.h"
#include "controls/CommandButton.h"
#include "controls/TextBox.h"
#include "controls/lists/ListBox.h"

namespace korvane {

void RandomUser::RunModal(Form& form) {
    for (int acts = chance_.Below(12); acts > 0 && form.Shown(); --acts)
        ActOn(*chance_.Pick(form.Controls()));
    if (form.Shown()) form.Close();
}

void RandomUser::ActOn(Control& control) {
    if (auto* button = dynamic_cast<CommandButton*>(&control)) return button->Press();
    if (auto* option = dynamic_cast<OptionButton*>(&control)) return option->Press();
    if (auto* check = dynamic_cast<CheckBox*>(&control)) return check->Press();
    if (auto* text = dynamic_cast<TextBox*>(&control)) {
        if (text->Enabled && !text->Locked) text->Text = chance_.SomeText();
    } else if (auto* list = dynamic_cast<ListBox*>(&control)) {
        if (list->ListCount() == 0) return;
        const int index = chance_.Below(list->ListCount());
        list->Select(index);
        if (chance_.OneIn(3)) list->SetSelected(index, chance_.OneIn(2));
        if (chance_.OneIn(4)) list->DoubleClick(index);
    }
}

Answer RandomUser::Show(const Message& message) {
    messages_.push_back(message);
    if (message.buttons == MessageButtons::Ok) return Answer::Ok;
    return chance_.OneIn(3) ? Answer::No : Answer::Yes;
}

void RandomUser::Choose(ListerRequest&) {}

std::optional<Colour> RandomUser::Choose(Colour, Extent) {
    if (chance_.OneIn(3)) return std::nullopt;
    return Colour{chance_.Below(0x1000000)};
}

std::optional<FontSpec> RandomUser::Choose(const FontSpec& present) {
    if (chance_.OneIn(3)) return std::nullopt;
    return FontSpec{chance_.OneIn(2) ? present.name : chance_.SomeText(), chance_.Below(30), false};
}

} // namespace korvane
