#pragma once

#include "common/text/Text.h"
#include "context/ListerRequest.h"
#include "controls/Control.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace korvane {

class TextBox;

/// Lets the user choose files by the request block; returns when the choice is made or cancelled.
class FilePicker {
public:
    virtual ~FilePicker() = default;
    virtual void Choose(ListerRequest& request) = 0;
};

/// What windows below the main window ask of it.
class MainWindow {
public:
    virtual ~MainWindow() = default;
    /// Moves the keyboard between the grid and the sidebar.
    virtual void mnuSwitchFocus_Click() = 0;
    /// Shows the table's menu at the mouse pointer.
    virtual void ShowPopupMenu() = 0;
    /// Runs a command as if it were chosen in the menu.
    virtual void RunCommand(std::string_view name) = 0;
    /// The folder that the active tab's caption names; empty when it names none, and, with a message, when no
    /// tab is open.
    virtual Text GetActiveFolder() = 0;
};

/// The rich-text window, for those who write into it.
class TextWindow {
public:
    virtual ~TextWindow() = default;
    /// Puts the text in place of the window's selection and shows the window. One that wasn't open is opened
    /// before the text goes in, and this returns when it has closed; one that stands comes to the front.
    virtual void TextWindowInsert(TextView text) = 0;
};

/// The window that shows what the clipboard holds. Modal.
class ClipboardView {
public:
    virtual ~ClipboardView() = default;
    virtual void Show() = 0;
    /// Leaves what becomes of the contents to the caller: true when the user retrieved them.
    virtual bool Choose() = 0;
};

/// The list of words and phrases for repeated use.
class WordList {
public:
    virtual ~WordList() = default;
    /// What the user took from the list; nothing when the list was only closed.
    virtual std::optional<Text> Choose() = 0;
};

/// The small windows that put characters and dates into a text. `target` outlives the call.
class InsertTools {
public:
    virtual ~InsertTools() = default;
    /// A date, a time or both as text; nothing when the window was only closed.
    virtual std::optional<Text> ChooseDateTime() = 0;
    /// The table of the code page's characters, which writes at the selection of `target`.
    virtual void ShowCharacters(TextBox& target) = 0;
    /// Shapes and symbols, which are written at the selection of `target`.
    virtual void ShowElements(TextBox& target) = 0;
};

/// Offers the markup tags.
class MarkupPicker {
public:
    virtual ~MarkupPicker() = default;
    /// Puts the chosen pair of tags round the selection of `target`, which outlives the call.
    virtual void InsertTagPair(TextBox& target) = 0;
};

/// The colour dialog.
class ColourPicker {
public:
    /// What the dialog opens with: the ready colours alone, or what mixes others as well.
    enum class Extent : std::uint8_t { Simple, Full };

    virtual ~ColourPicker() = default;
    /// Opens on `start`; nothing on a cancel.
    virtual std::optional<Colour> Choose(Colour start, Extent extent) = 0;
};

/// The font dialog of the program.
class FontPicker {
public:
    virtual ~FontPicker() = default;
    /// The chosen font, in which what the user left open is as in `present`; nothing on a cancel.
    virtual std::optional<FontSpec> Choose(const FontSpec& present) = 0;
};

/// The system's own dialog for choosing one file.
class SystemFileDialog {
public:
    enum class Purpose : std::uint8_t { Open, Save };
    struct Request {
        Purpose purpose = Purpose::Open;
        /// Pairs of a name and its patterns, all separated by bars: "Programs (*.exe)|*.exe".
        Text filter;
        Text title;
        /// The name offered; empty for none.
        Text name{};
        /// What a chosen name without an extension gets ("xls"); empty for nothing.
        Text defaultExtension{};
        /// Where the dialog starts; empty for where it was left.
        Text folder{};

        bool operator==(const Request&) const = default;
    };

    virtual ~SystemFileDialog() = default;
    /// The path of the chosen file; nothing on a cancel.
    virtual std::optional<Text> Choose(const Request& request) = 0;
};

/// Shows files by their type.
class FileViewer {
public:
    virtual ~FileViewer() = default;
    /// Shows a file that is there in what is right for its type, mostly the text window, and returns when
    /// that has closed.
    virtual void View(TextView path) = 0;
    /// Lets the user choose one of his programs, which then opens the file.
    virtual void OpenWith(TextView path) = 0;
};

} // namespace korvane
