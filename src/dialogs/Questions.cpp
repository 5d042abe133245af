#include "dialogs/Questions.h"

#include "context/App.h"
#include "controls/Form.h"
#include "platform/MessageBoxes.h"

namespace korvane {

bool AskYesNo(App& app, const Text& question, YesNoDefault preset) {
    const int defaultButton = preset == YesNoDefault::Yes ? 1 : 2;
    return app.Messages().Show({question, MessageIcon::Question, MessageButtons::YesNo, defaultButton}) ==
           Answer::Yes;
}

void Inform(App& app, const Text& text) {
    app.Messages().Show({text, MessageIcon::Information});
}

void Warn(App& app, const Text& text) {
    app.Messages().Show({text, MessageIcon::Exclamation});
}

void TellError(App& app, const Text& text) {
    app.Messages().Show({text, MessageIcon::Stop});
}

std::int16_t ShowForResult(App& app, Form& form) {
    app.DialogResult = 0;
    form.ShowModal();
    return app.DialogResult;
}

} // namespace korvane
