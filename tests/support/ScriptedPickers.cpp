#include "support/ScriptedPickers.h"

#include "context/App.h"
#include "support/ScriptedUser.h"

namespace korvane {

void ScriptedPickers::AnswerFor(App& app) {
    app.SetPort<FilePicker>(this);
    app.SetPort<ColourPicker>(this);
    app.SetPort<FontPicker>(this);
}

void ScriptedPickers::Choose(ListerRequest& request) {
    requests.push_back(request);
    user_.PickFiles(request);
}

std::optional<Colour> ScriptedPickers::Choose(Colour start, Extent extent) {
    colourRequests.push_back({start, extent});
    return user_.PickColour();
}

std::optional<FontSpec> ScriptedPickers::Choose(const FontSpec& present) {
    fontRequests.push_back(present);
    return user_.PickFont();
}

} // namespace korvane
