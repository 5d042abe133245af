#include "support/Captions.h"

#include "controls/Buttons.h"
#include "controls/CommandButton.h"

namespace korvane {

namespace {

template <class ControlT>
void AddCaption(const Control& control, std::vector<Text>& captions) {
    if (const auto* captioned = dynamic_cast<const ControlT*>(&control))
        captions.push_back(captioned->Caption);
}

} // namespace

std::vector<Text> CaptionsOf(const Form& form) {
    std::vector<Text> captions;
    for (const Control* const control : form.Controls()) {
        AddCaption<CommandButton>(*control, captions);
        AddCaption<CheckBox>(*control, captions);
        AddCaption<OptionButton>(*control, captions);
    }
    return captions;
}

} // namespace korvane
