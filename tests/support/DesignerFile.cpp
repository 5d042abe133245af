#include "support/DesignerFile.h"

#include "SourceTree.h"
#include "controls/Timer.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace korvane {

namespace {

std::set<std::string> WidgetNames(const std::string& look) {
    std::set<std::string> names;
    for (const std::string& widget : Between(look, "<widget class=\"", ">"))
        names.merge(Between(widget, "name=\"", "\""));
    return names;
}

} // namespace

std::string LookOf(std::string_view folder, const std::string& window) {
    std::ifstream file(std::filesystem::path(KORVANE_SOURCE_DIR) / "src" / folder / (window + ".ui"));
    return {std::istreambuf_iterator<char>(file), {}};
}

std::set<std::string> Between(const std::string& text, const std::string& before, const std::string& after) {
    std::set<std::string> found;
    for (std::size_t at = text.find(before); at != std::string::npos; at = text.find(before, at)) {
        at += before.size();
        found.insert(text.substr(at, text.find(after, at) - at));
    }
    return found;
}

void ExpectLook(const Form& form, std::string_view folder, const std::set<std::string>& plainTexts) {
    const std::string look = LookOf(folder, form.Name());
    const auto names = WidgetNames(look);
    for (const Control* control : form.Controls()) {
        // A timer isn't seen.
        if (dynamic_cast<const Timer*>(control) != nullptr) continue;
        EXPECT_TRUE(names.contains(control->Name())) << form.Name() << ": no widget " << control->Name();
    }
    const auto texts = Between(look, "<string>", "</string>");
    for (const std::string& text : plainTexts)
        EXPECT_TRUE(texts.contains(text)) << form.Name() << ": no text " << text;
}

} // namespace korvane
