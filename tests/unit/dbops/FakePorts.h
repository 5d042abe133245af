#pragma once

#include "context/App.h"
#include "context/Ports.h"
#include "controls/TextBox.h"

#include <optional>
#include <vector>

namespace korvane {

/// Takes down what was put into the text window.
class FakeTextWindow final : public TextWindow {
public:
    explicit FakeTextWindow(App& app) { app.TextWindow = this; }
    std::vector<Text> inserted;

    void TextWindowInsert(TextView text) override { inserted.emplace_back(text); }
};

/// Counts its openings, and retrieves the contents when told.
class FakeClipboardView final : public ClipboardView {
public:
    explicit FakeClipboardView(App& app) { app.ClipboardView = this; }
    int shown = 0;
    int offered = 0;
    bool retrieves = false;

    void Show() override { ++shown; }
    bool Choose() override {
        ++offered;
        return retrieves;
    }
};

/// Gives out a word, unless it has none.
class FakeWordList final : public WordList {
public:
    explicit FakeWordList(App& app) { app.WordList = this; }
    std::optional<Text> word;

    std::optional<Text> Choose() override { return word; }
};

/// Gives out a date, unless it has none, and writes characters and elements at the selection.
class FakeInsertTools final : public InsertTools {
public:
    explicit FakeInsertTools(App& app) { app.InsertTools = this; }
    std::optional<Text> dateTime;

    std::optional<Text> ChooseDateTime() override { return dateTime; }
    void ShowCharacters(TextBox& target) override { target.SetSelText(u"<character>"); }
    void ShowElements(TextBox& target) override { target.SetSelText(u"<element>"); }
};

/// Puts a bold pair round the selection.
class FakeMarkupPicker final : public MarkupPicker {
public:
    explicit FakeMarkupPicker(App& app) { app.MarkupPicker = this; }

    void InsertTagPair(TextBox& target) override { target.SetSelText(u"<B>" + target.SelText() + u"</B>"); }
};

/// Gives out a font, unless it has none.
class FakeFontPicker final : public FontPicker {
public:
    explicit FakeFontPicker(App& app) { app.FontPicker = this; }
    FontSpec offered;
    std::optional<FontSpec> font;

    std::optional<FontSpec> Choose(const FontSpec& present) override {
        offered = present;
        return font;
    }
};

} // namespace korvane
