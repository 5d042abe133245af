#pragma once

#include "context/App.h"
#include "context/ports/ColourPicker.h"
#include "context/ports/FileViewer.h"
#include "context/ports/FontPicker.h"
#include "support/FakeSystemFileDialog.h"

#include <optional>
#include <vector>

namespace korvane {

/// Gives a font, or nothing, and remembers which font it was offered.
class FakeFontPicker final : public FontPicker {
public:
    explicit FakeFontPicker(App& app) { app.SetPort<FontPicker>(this); }
    std::optional<FontSpec> answer;
    std::vector<FontSpec> starts;

    std::optional<FontSpec> Choose(const FontSpec& present) override {
        starts.push_back(present);
        return answer;
    }
};

/// Does the same with colours.
class FakeColourPicker final : public ColourPicker {
public:
    explicit FakeColourPicker(App& app) { app.SetPort<ColourPicker>(this); }
    std::optional<Colour> answer;
    std::vector<Colour> starts;

    std::optional<Colour> Choose(Colour start, Extent) override {
        starts.push_back(start);
        return answer;
    }
};

/// Remembers which files were to be viewed or opened.
class FakeFileViewer final : public FileViewer {
public:
    explicit FakeFileViewer(App& app) { app.SetPort<FileViewer>(this); }
    std::vector<Text> viewed;
    std::vector<Text> opened;

    void View(TextView path) override { viewed.emplace_back(path); }
    void OpenWith(TextView path) override { opened.emplace_back(path); }
};

} // namespace korvane
