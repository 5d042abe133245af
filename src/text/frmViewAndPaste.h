#pragma once

#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/Menu.h"
#include "controls/TextBox.h"
#include "controls/lists/ListBox.h"
#include "controls/text/TextControl.h"

#include <array>
#include <cstdint>
#include <functional>

namespace korvane {

class App;

/// Shows what the clipboard holds, in three renderings of which one is seen at a time. Modal; `DialogResult`
/// is 1 when the user retrieved the contents. They go into the text window if that is open, otherwise the
/// caller reads them from the clipboard.
class frmViewAndPaste : public Form {
public:
    /// The App outlives the window.
    explicit frmViewAndPaste(App& app);

    Menu OfficeMenu1;
    /// The commands of the window. Return and a double click run the current one.
    ListBox iGridListBar{*this, "iGridListBar"};
    /// Holds the renderings; its caption names the one that is seen.
    Panel Frame1{*this, "Frame1"};
    /// Has the colour of the rendering that is seen.
    Label lblLeftMargin{*this, "lblLeftMargin"};
    TextControl TXTextControl1{*this, "TXTextControl1"};
    TextControl RichTextBox1{*this, "RichTextBox1"};
    TextBox Text1{*this, "Text1"};
    /// This is never seen. It takes the contents before the renderings do.
    TextControl TmpTextCtrl{*this, "TmpTextCtrl"};

    /// Which rendering is seen: 0 full and 1 simple formatted text, 2 plain text. Any other value counts as
    /// 0.
    std::int16_t ClipViewMode = 2;

    void Load() override;
    void Activate() override;
    void Unload() override;
    void KeyDown(KeyEvent& key) override;

private:
    struct Tables;

    /// `ClipViewMode`, or 0 where it is none of the three.
    std::int16_t Mode() const;
    /// The renderings with formatting, which come first.
    std::array<TextControl*, 2> Formatted() { return {&TXTextControl1, &RichTextBox1}; }
    /// That of the two which the mode names.
    TextControl& FormattedInUse() { return Mode() == 0 ? TXTextControl1 : RichTextBox1; }
    void FillList();
    void FillRenderings();
    void FillWith(const std::function<void(TextControl&)>& fill);
    void ShowMode();
    void RunListed();
    void PutIntoTextWindow();

    void mnuRetrieve_Click();
    void mnuToggle_Click();
    void mnuClipViewer_Click();
    void mnuSave_Click();
    void mnuPinsey_Click();
    void mnuYourProgram_Click();
    void mnuExplorer_Click();
    void mnuBrowser_Click();
    void mnuDesktop_Click();

    App& app_;
    bool activated_ = false;
};

} // namespace korvane
