#pragma once

#include "context/exchange/ListerRequest.h"
#include "context/ports/ColourPicker.h"
#include "context/ports/FilePicker.h"
#include "context/ports/FontPicker.h"

#include <optional>
#include <vector>

namespace korvane {

class App;
class ScriptedUser;

/// What a colour dialog was opened with.
struct ColourRequest {
    Colour start;
    ColourPicker::Extent extent;
    bool operator==(const ColourRequest&) const = default;
};

/// The choosers of files, colours and fonts, which a scripted user answers. They remember what was asked.
class ScriptedPickers final : public FilePicker, public ColourPicker, public FontPicker {
public:
    explicit ScriptedPickers(ScriptedUser& user) : user_(user) {}

    /// Sets the three ports of the program.
    void AnswerFor(App& app);

    void Choose(ListerRequest& request) override;
    std::optional<Colour> Choose(Colour start, Extent extent) override;
    std::optional<FontSpec> Choose(const FontSpec& present) override;

    std::vector<ListerRequest> requests;
    std::vector<ColourRequest> colourRequests;
    std::vector<FontSpec> fontRequests;

private:
    ScriptedUser& user_;
};

} // namespace korvane
