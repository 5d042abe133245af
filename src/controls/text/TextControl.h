#pragma once

#include "controls/Control.h"
#include "controls/text/TextDialogs.h"
#include "controls/text/TextFiles.h"
#include "controls/text/TextScroll.h"
#include "document/editing/TextEditing.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace korvane {

/// A text that the user is typing, before it is written.
struct TypedText {
    Text text;
    /// Keeps the text from being written.
    bool consumed = false;

    bool Is(char16_t character) const { return text == TextView(&character, 1); }
};

/// A formatted text with tables and fields. What can be done with the text is in `TextEditing`; this adds its
/// look, its files and the user.
///
/// An adaptor shows it so:
/// - `Aspect::Text` says that the text or its formats changed, `Aspect::Selection` that the program moved the
///   selection. The view then shows `SelStart` and `SelLength` and scrolls to them. `Aspect::Range` says that
///   the selection is wanted in the upper part of the view.
/// - What the user types goes to `Type`, a selection that the user makes to `MoveSelection`. A text is
/// deleted
///   by `MoveSelection` and `DeleteSelection`, and pasted by `SetSelText` or `SetSelTextRtf`.
/// - `KeyDown` sees every key first, as in all controls.
class TextControl : public Control, public doc::TextEditing {
public:
    /// A new control keeps its text in memory.
    TextControl(Form& owner, std::string_view name);

    /// Of the page, in per cent.
    Property<int> ZoomFactor{*this, Aspect::Value, 100};
    /// 0 lets the text flow in the width of the control, 2 shows pages.
    static constexpr int kFlow = 0;
    static constexpr int kPages = 2;
    Property<int> ViewMode{*this, Aspect::State, kFlow};
    /// How pages are shown: 1 on a light ground, 0 on a dark one.
    Property<int> PageViewStyle{*this, Aspect::State, 1};
    /// Whether the ends of paragraphs and tabs are shown.
    Property<bool> ControlChars{*this, Aspect::State};
    /// The unit of the ruler and of the control's windows.
    static constexpr int kInches = 0;
    static constexpr int kMillimetres = 1;
    Property<int> ScaleUnits{*this, Aspect::State, kInches};
    /// The background of the page. `kNoColour` leaves it to the look of the window.
    Property<Colour> BackColor{*this, Aspect::Colours, kNoColour};
    /// Whether the user can't change the text.
    Property<bool> Locked{*this, Aspect::Enabled};
    /// While this is off, the view shows what was there when it was turned off.
    Property<bool> Redraw{*this, Aspect::Visible, true};
    /// Shows the line where the selection begins in the upper part of the view.
    void ShowSelectionHigh() { Notify(Aspect::Range); }
    /// What the window leaves free at the left of the control. Its other sides belong to the layout.
    Property<Twips> Left{*this, Aspect::Place};
    /// Whether pictures are written into the file (1) or beside it.
    int ImageSaveMode = 1;

    // Events.

    /// The user is typing a text, also a tab or a Return.
    std::function<void(TypedText&)> KeyPress;
    /// The text or its formats changed in any way but by a typed space.
    std::function<void()> Change;
    /// The selection became another one, by the user or the program.
    std::function<void()> SelChange;
    /// What the reason contains when a file couldn't be written.
    static constexpr TextView kNotWritten = u"1d09";
    /// A step failed, with the reason.
    std::function<void(const Text&)> Error;
    std::function<void(int field)> FieldEntered;
    std::function<void()> FieldLeft;
    /// A field that isn't a hyperlink was clicked.
    std::function<void(int field)> FieldClicked;
    std::function<void(int field, int kind, const Text& link)> HyperlinkClicked;

    // What the user does.

    /// A text, mostly of one character, is typed at the selection. Return is CR. Characters that are typed
    /// one after the other are undone word by word.
    void Type(TextView text);
    /// Deletes the selection, which is the one character that a key deletes. What a row of such keys deletes
    /// is undone as one.
    void Erase();
    void MoveSelection(int start, int length);
    /// The mouse comes over a field, or leaves it for 0.
    void Hover(int field);
    void Click(int field);

    // Files. Without `Files`, none can be read or written.

    /// Outlives the control.
    TextFiles* Files = nullptr;
    /// Takes the place of the text. Nothing changes when the file can't be read.
    bool Load(TextView path, int format);
    /// Whether the last file that was loaded has more than a text can hold, so that its end isn't in the
    /// text.
    bool CutAtLoad() const { return cutAtLoad_; }
    bool Save(TextView path, int format);
    bool LoadFromMemory(std::string_view bytes, int format);
    /// The same for a text that only has more in it than the present one, such as pictures that came later.
    /// The selection and the seen part of the text stay.
    bool LoadMoreFromMemory(std::string_view bytes, int format);
    /// Empty when there is no such format in memory.
    std::string SaveToMemory(int format) const;
    /// The attributes 0 to 5 are the sizes of the page in the order of `Page::Size`. After a load they are
    /// those that the file told, and 0 for the others.
    int LoadSaveAttribute(int index) const;
    void SetLoadSaveAttribute(int index, int value) { attributes_[index] = value; }
    void SetLoadSaveAttribute(int index, TextView value) { attributes_[index] = Text(value); }

    /// Shows the beginning of the text.
    void ShowTop();
    /// Outlives the control, or is taken away. Without a view there is none.
    TextScroll* Scroll = nullptr;

    // Dialogs. Without `Dialogs`, none is shown.

    /// Outlives the control.
    TextDialogs* Dialogs = nullptr;
    void FindReplaceDialog(int mode) { Show(mode == 2 ? TextDialog::Replace : TextDialog::Find); }
    void ParagraphDialog() { Show(TextDialog::Paragraph); }
    void ListAttrDialog() { Show(TextDialog::List); }
    void PageSetupDialog() { Show(TextDialog::Page); }
    void TabDialog() { Show(TextDialog::Tabs); }
    void TableInsertDialog() { Show(TextDialog::InsertTable); }
    void TableAttrDialog() { Show(TextDialog::Table); }

protected:
    void Edited() override;
    void SelectionMoved() override;

private:
    void Show(TextDialog dialog);
    bool GoesOnTyping(TextView text) const;
    bool GoesOnErasing() const;
    void Take(doc::ReadResult read);
    bool Fail(TextView reason);

    std::map<int, std::variant<int, Text>> attributes_;
    bool cutAtLoad_ = false;
    bool spaceTyped_ = false;
    bool movedByUser_ = false;
    int hovered_ = 0;
    /// Counts the changes of the text.
    int edits_ = 0;
    /// What the user did last with single keys, which may go on.
    struct KeyRun {
        int edits = 0;
        int at = 0;
        /// The last typed text; empty after a deletion.
        Text typed{};
    };
    std::optional<KeyRun> run_;
};

} // namespace korvane
