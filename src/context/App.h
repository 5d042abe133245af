#pragma once

#include "common/settings/Settings.h"
#include "common/text/CodePage.h"
#include "common/text/Text.h"
#include "context/ListerRequest.h"
#include "grid/Grid.h"
#include "platform/Spreadsheet.h"
#include "platform/UserLocale.h"

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <utility>

namespace korvane {

class Clipboard;
class ClipboardView;
class Clock;
class ColourPicker;
class FilePicker;
class FileSystem;
class FileViewer;
class FontPicker;
class FormHost;
class InsertTools;
class InstanceChannel;
class MainWindow;
class MarkupPicker;
class MessageBoxes;
class Screen;
class Shell;
class SystemFileDialog;
class SystemFolders;
class TextWindow;
class WordList;

/// What is to become of an altered file.
enum class MsgAnswer : std::int16_t {
    /// The closing stops. What asks sets this beforehand.
    Cancel = -1,
    DoNotSave = 0,
    SaveUnderAName = 1,
    SaveDirectly = 100,
};

/// What every window reaches: the settings, the values through which windows tell each other things, the
/// outside and the ports. One per process; a test makes a fresh one.
class App {
public:
    /// The outside. Everything outlives the App.
    struct Platform {
        FileSystem& files;
        MessageBoxes& messages;
        Clipboard& clipboard;
        Clock& clock;
        Screen& screen;
        Shell& shell;
        InstanceChannel& instance;
        FormHost& forms;
        std::function<std::unique_ptr<Grid>()> makeGrid;
        /// In which all files stand.
        CodePage codePage = CodePage::Windows1252();
        /// Optional.
        const SystemFolders* folders = nullptr;
        /// Starts a spreadsheet application; nullptr when it can't be started. Optional.
        std::function<std::unique_ptr<Spreadsheet>()> makeSpreadsheet{};
        /// Optional: without it, dates are written as on every system.
        const UserLocale* locale = nullptr;
    };

    explicit App(Platform platform) : platform_(std::move(platform)) {}
    App(const App&) = delete;
    App& operator=(const App&) = delete;

    FileSystem& Files() const { return platform_.files; }
    MessageBoxes& Messages() const { return platform_.messages; }
    korvane::Clipboard& Clipboard() const { return platform_.clipboard; }
    korvane::Clock& Clock() const { return platform_.clock; }
    korvane::Screen& Screen() const { return platform_.screen; }
    korvane::Shell& Shell() const { return platform_.shell; }
    InstanceChannel& Instance() const { return platform_.instance; }
    FormHost& Forms() const { return platform_.forms; }
    std::unique_ptr<Grid> MakeGrid() const { return platform_.makeGrid(); }
    /// nullptr where there is no spreadsheet application.
    std::unique_ptr<Spreadsheet> MakeSpreadsheet() const {
        return platform_.makeSpreadsheet ? platform_.makeSpreadsheet() : nullptr;
    }
    const CodePage& Page() const { return platform_.codePage; }
    /// nullptr where nobody knows the system's folders.
    const SystemFolders* Folders() const { return platform_.folders; }

    const UserLocale& Locale() const {
        return platform_.locale == nullptr ? sameEverywhere_ : *platform_.locale;
    }

    korvane::Settings Settings;
    /// The outcome of the last modal window: 0 nothing or cancel, 1 done, others as the window says.
    std::int16_t DialogResult = 0;
    /// 1 while the text window stands open. Who asks for the clipboard's contents himself sets it to 0
    /// meanwhile.
    std::int16_t TextWindowOpen = 0;
    /// 1 while the closing question of a tab runs its save.
    std::int16_t ClosingTabSave = 0;
    /// What is to become of an altered file, and which file that is: the question of `frmMyMsgBox`.
    korvane::MsgAnswer MsgAnswer = korvane::MsgAnswer::Cancel;
    Text MsgFilePath;
    // What `frmMyInputBox` asks, the text that it offers, and the answer.
    Text InputCaption;
    Text InputInitial;
    Text InputResult;
    ListerRequest Lister;
    /// The name of the file at hand, for those that work on one file.
    Text FileOpName;
    /// The check box of `frmDelimiterType` that adds line breaks, 1 or 0: kept as long as the program runs.
    std::int16_t BreakAfterFieldThree = 0;
    // What `frmRowColour` keeps as long as the program runs: the index in its list, its check box (1 or 0)
    // and its option.
    std::int16_t RowColourIndex = 0;
    std::int16_t RemoveChecksAtStart = 0;
    CellFlag RowAttribute = CellFlag::Italic;

    /// 1 only in a start that found a running copy: nothing is saved then.
    std::int16_t SecondInstance = 0;
    /// -1 once a file arrived from a second start.
    std::int16_t LoadedByCommand = 0;
    /// -1 from the load of the main window to its first activation.
    std::int16_t FirstLoadPending = 0;
    Text HelpFilePath;
    Text IniFilePath;
    Text RecFilePath;
    // The system's folders, each with a separator at its end; empty where there is none.
    Text ProgramFilesDir;
    Text WindowsDir;
    Text SystemDir;
    Text FontsDir;
    Text DocumentsDir;
    /// Of the last drive that `ReadDriveInfo` looked at.
    Text DriveTypeText;
    Text DriveLabel;

    /// By the byte of a character: whether it ends a word in the text find.
    std::array<bool, 257> DelimiterTable{};
    /// The characters behind which a title goes on with a capital.
    Text TitlePunctuation;

    // The ports are set while the program is put together; nullptr where nobody answers, and the step that
    // asks then has no effect.
    korvane::FilePicker* FilePicker = nullptr;
    korvane::MainWindow* MainWindow = nullptr;
    korvane::TextWindow* TextWindow = nullptr;
    korvane::ClipboardView* ClipboardView = nullptr;
    korvane::WordList* WordList = nullptr;
    korvane::InsertTools* InsertTools = nullptr;
    korvane::MarkupPicker* MarkupPicker = nullptr;
    korvane::FontPicker* FontPicker = nullptr;
    korvane::ColourPicker* ColourPicker = nullptr;
    korvane::SystemFileDialog* SystemFileDialog = nullptr;
    korvane::FileViewer* FileViewer = nullptr;

private:
    Platform platform_;
    UserLocale sameEverywhere_;
};

} // namespace korvane
