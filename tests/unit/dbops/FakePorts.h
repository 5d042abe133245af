#pragma once

#include "context/App.h"
#include "context/ports/ClipboardView.h"
#include "context/ports/FontPicker.h"
#include "context/ports/InsertTools.h"
#include "context/ports/MarkupPicker.h"
#include "context/ports/TextKeeper.h"
#include "context/ports/TextWindow.h"
#include "context/ports/WordList.h"
#include "controls/TextBox.h"

#include <optional>
#include <vector>

namespace korvane {

/// Records what was put into the text window.
class FakeTextWindow final : public TextWindow {
public:
    explicit FakeTextWindow(App& app) { app.SetPort<TextWindow>(this); }
    std::vector<Text> inserted;
    std::vector<std::string> insertedRtf;
    std::vector<Text> unsaved;
    int shown = 0;

    void TextWindowInsert(TextView text) override { inserted.emplace_back(text); }
    void TextWindowInsertRtf(std::string_view rtf) override { insertedRtf.emplace_back(rtf); }
    void TextWindowShow() override { ++shown; }
    void TextWindowShowUnsaved(const UnsavedText& text) override { unsaved.push_back(text.name); }
};

/// Counts its openings, and retrieves the contents when told.
class FakeClipboardView final : public ClipboardView {
public:
    explicit FakeClipboardView(App& app) { app.SetPort<ClipboardView>(this); }
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
    explicit FakeWordList(App& app) { app.SetPort<WordList>(this); }
    std::optional<Text> word;

    std::optional<Text> Choose() override { return word; }
    void Collect(TextView) override {}
};

/// Gives out a date, unless it has none, and writes characters and elements at the selection.
class FakeInsertTools final : public InsertTools {
public:
    explicit FakeInsertTools(App& app) { app.SetPort<InsertTools>(this); }
    std::optional<Text> dateTime;

    std::optional<Text> ChooseDateTime() override { return dateTime; }
    void ShowCharacters(TextBox& target) override { target.SetSelText(u"<character>"); }
    void ShowElements(TextBox& target) override { target.SetSelText(u"<element>"); }
};

/// Puts a bold pair round the selection.
class FakeMarkupPicker final : public MarkupPicker {
public:
    explicit FakeMarkupPicker(App& app) { app.SetPort<MarkupPicker>(this); }

    void InsertTagPair(TextBox& target) override { target.SetSelText(u"<B>" + target.SelText() + u"</B>"); }
};

/// Gives out a font, unless it has none.
class FakeFontPicker final : public FontPicker {
public:
    explicit FakeFontPicker(App& app) { app.SetPort<FontPicker>(this); }
    FontSpec offered;
    std::optional<FontSpec> font;

    std::optional<FontSpec> Choose(const FontSpec& present) override {
        offered = present;
        return font;
    }
};

} // namespace korvane
