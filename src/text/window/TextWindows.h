#pragma once

#include "context/ports/TextFileViewer.h"
#include "context/ports/TextWindow.h"

#include <functional>
#include <memory>

namespace korvane {

class App;
class frm_RTF_HTM;

/// The one rich-text window, for those that open it and write into it.
class TextWindows final : public TextWindow, public TextFileViewer {
public:
    /// The App outlives the object, and from now on has its text window.
    explicit TextWindows(App& app);
    TextWindows(const TextWindows&) = delete;
    TextWindows& operator=(const TextWindows&) = delete;
    ~TextWindows() override;

    void TextWindowInsert(TextView text) override;
    void TextWindowInsertRtf(std::string_view rtf) override;
    void TextWindowShow() override;
    void TextWindowShowUnsaved(const UnsavedText& text) override;
    /// A window that is open asks for its altered text, shows the file and comes to the front.
    void View(TextView path) override;

    /// Keeps an altered text for the next run, because nobody can be asked about it.
    void KeepNow();
    /// nullptr while the window is closed.
    frm_RTF_HTM* Open() const;

private:
    void MakeWindow(TextView path);
    void Write(const std::function<void(frm_RTF_HTM&)>& write);

    App& app_;
    std::unique_ptr<frm_RTF_HTM> window_;
};

} // namespace korvane
