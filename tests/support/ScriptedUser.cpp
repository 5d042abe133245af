#include "support/ScriptedUser.h"

#include "controls/Menu.h"
#include "support/ScriptedPickers.h"

#include <gtest/gtest.h>

#include <array>

namespace korvane {

namespace {

/// What the kinds of steps wait for, in the order of the variant's alternatives.
constexpr std::array kAwaited{"a window",      "a message box",     "the file chooser",
                              "a pop-up menu", "the colour dialog", "the font dialog"};

bool HasButton(MessageButtons buttons, Answer answer) {
    switch (answer) {
    case Answer::Ok:
        return buttons == MessageButtons::Ok || buttons == MessageButtons::OkCancel;
    case Answer::Yes:
    case Answer::No:
        return buttons == MessageButtons::YesNo || buttons == MessageButtons::YesNoCancel;
    case Answer::Cancel:
        return buttons == MessageButtons::YesNoCancel || buttons == MessageButtons::OkCancel;
    }
    return false;
}

} // namespace

ScriptedUser::ScriptedUser() : pickers_(std::make_unique<ScriptedPickers>(*this)) {}

ScriptedUser::~ScriptedUser() {
    for (const Step& step : steps_) {
        ADD_FAILURE() << "the script still awaits " << kAwaited[step.index()];
    }
}

void ScriptedUser::ChooseFile(const Text& path) {
    OnChooser([path](ListerRequest& request) { request.ChosenFilePath = path; });
}

void ScriptedUser::ChooseFiles(const std::vector<Text>& paths) {
    OnChooser([paths](ListerRequest& request) {
        request.ChosenFiles.assign(1, Text());
        request.ChosenFiles.insert(request.ChosenFiles.end(), paths.begin(), paths.end());
        request.ChosenFileCount = static_cast<std::int16_t>(paths.size());
        request.ChosenFilePath = paths.front();
    });
}

void ScriptedUser::CancelChooser() {
    OnChooser([](ListerRequest&) {});
}

const std::vector<ListerRequest>& ScriptedUser::Requests() const {
    return pickers_->requests;
}

const std::vector<ColourRequest>& ScriptedUser::ColourRequests() const {
    return pickers_->colourRequests;
}

const std::vector<FontSpec>& ScriptedUser::FontRequests() const {
    return pickers_->fontRequests;
}

void ScriptedUser::RunModal(Form& form) {
    ++modal_;
    const bool played = PlayWindow(form);
    --modal_;
    if (!form.Shown()) return;
    if (played) ADD_FAILURE() << "the window " << form.Name() << " was left open";
    form.Close();
}

void ScriptedUser::Show(Form& form) {
    shown_.push_back(&form);
    PlayWindow(form);
}

void ScriptedUser::Hide(Form& form) {
    std::erase(shown_, &form);
}

void ScriptedUser::PopUp(Menu& menu) {
    popUps_.push_back(menu.Name());
    const auto step = Take<PopUpStep>("the pop-up menu " + menu.Name());
    if (step && !step->entry.empty()) menu.Choose(step->entry);
}

void ScriptedUser::Raise(Form& form) {
    raised_.push_back(form.Name());
}

Answer ScriptedUser::Show(const Message& message) {
    messages_.push_back(message);
    const auto step = Take<BoxStep>(DescribeMessage(message));
    if (!step) return EscAnswer(message.buttons);
    EXPECT_EQ(message, step->expected.value_or(message));
    if (step->meanwhile) step->meanwhile();
    if (HasButton(message.buttons, step->answer)) return step->answer;
    ADD_FAILURE() << "no such button on " << DescribeMessage(message);
    return EscAnswer(message.buttons);
}

void ScriptedUser::PickFiles(ListerRequest& request) {
    if (const auto step = Take<ChooserStep>("the file chooser")) step->choose(request);
}

std::optional<Colour> ScriptedUser::PickColour() {
    const auto step = Take<ColourStep>("the colour dialog");
    return step ? step->chosen : std::nullopt;
}

std::optional<FontSpec> ScriptedUser::PickFont() {
    const auto step = Take<FontStep>("the font dialog");
    return step ? step->chosen : std::nullopt;
}

template <class Kind>
std::optional<Kind> ScriptedUser::Take(const std::string& what) {
    if (steps_.empty()) {
        ADD_FAILURE() << "nobody scripted " << what;
        return std::nullopt;
    }
    auto* next = std::get_if<Kind>(&steps_.front());
    if (next == nullptr) {
        ADD_FAILURE() << "out of turn: " << what << "; the script awaits "
                      << kAwaited[steps_.front().index()];
        return std::nullopt;
    }
    Kind step = std::move(*next);
    steps_.pop_front();
    return step;
}

bool ScriptedUser::PlayWindow(Form& form) {
    const auto step = Take<WindowStep>("the window " + form.Name());
    if (!step) return false;
    const bool played = step->run(form);
    EXPECT_TRUE(played) << "the script awaits another window than " << form.Name();
    return played;
}

} // namespace korvane
