#pragma once

#include "context/ports/InsertTools.h"

namespace korvane {

class App;
class TextControl;

// These show a window that writes at the selection of a formatted text, and return when it has closed.
// Without a target the window writes nothing.

void ShowElements(App& app, TextControl* target);
void ShowCharacters(App& app, TextControl* target);
void ShowSymbolTables(App& app, TextControl* target);

/// Shows the windows that put characters and dates into a plain text.
class InsertWindows final : public InsertTools {
public:
    /// The App outlives the object, and from now on shows these windows through it.
    explicit InsertWindows(App& app);
    InsertWindows(const InsertWindows&) = delete;
    InsertWindows& operator=(const InsertWindows&) = delete;
    ~InsertWindows() override;

    std::optional<Text> ChooseDateTime() override;
    void ShowCharacters(TextBox& target) override;
    void ShowElements(TextBox& target) override;

private:
    App& app_;
};

} // namespace korvane
