#pragma once

#include "common/text/Text.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <variant>

namespace korvane {

/// The process-wide settings: any window reads and writes them, and they reach the disk once, at the end of a
/// run. Positions and sizes are twips, flags 1 or 0 (or -1 and 0), fonts names and points. A field without a
/// line of its own in the file doesn't belong here.
struct Settings {
    Text CurDrive;
    Text CurDirAtSave;
    std::int32_t MainLeft = 0;
    std::int32_t MainTop = 0;
    std::int32_t MainWidth = 0;
    std::int32_t MainHeight = 0;
    Text MenuFontName;
    std::int16_t MenuFontSize = 0;
    std::int16_t MenuFontBold = 0;
    std::int16_t TabStyle = 0;
    std::int32_t TreeFormLeft = 0;
    std::int32_t TreeFormTop = 0;
    std::int32_t TreeFormWidth = 0;
    std::int32_t TreeFormHeight = 0;
    Text FileDialogFilter;
    Text Spare16;
    std::int32_t FavLeft = 0;
    std::int32_t FavTop = 0;
    std::int32_t FavHeight = 0;
    std::int32_t FavWidth = 0;
    std::int32_t Spare21 = 0;
    std::int32_t Spare22 = 0;
    std::int32_t Spare23 = 0;
    std::int32_t Spare24 = 0;
    std::int32_t WordListLeft = 0;
    std::int32_t WordListTop = 0;
    std::int32_t WordListWidth = 0;
    std::int32_t WordListHeight = 0;
    std::int32_t SymbolsTop = 0;
    std::int32_t SymbolsLeft = 0;
    std::int32_t SymbolsWidth = 0;
    std::int32_t SymbolsHeight = 0;
    Text WordDelimiters;
    std::int32_t AsciiTop = 0;
    std::int32_t AsciiLeft = 0;
    std::int32_t AsciiHeight = 0;
    std::int32_t AsciiWidth = 0;
    Text WordPath;
    Text ExcelPath;
    Text PowerPointPath;
    Text PublisherPath;
    Text AccessPath;
    std::int16_t ShowRecentAtStart = 0;
    std::int16_t TabWidthValue = 0;
    std::int16_t SmartQuotes = 0;
    std::int32_t LoadListLeft = 0;
    std::int32_t LoadListTop = 0;
    std::int32_t LoadListWidth = 0;
    std::int32_t LoadListHeight = 0;
    Text FavCurrentFile;
    Text PdfViewerPath;
    std::int16_t RtfZoom = 0;
    std::int16_t TabUnitTwips = 0;
    Text Spare54;
    std::int16_t Spare55 = 0;
    std::int32_t Spare56 = 0;
    std::int32_t FindStringTop = 0;
    std::int32_t FindStringWidth = 0;
    std::int32_t FindStringLeft = 0;
    std::int16_t FindOptionA = 0;
    std::int16_t FindOptionB = 0;
    std::int16_t FindOptionC = 0;
    Text SymbolListFile;
    Text OpenWithListFile;
    std::int32_t CopyMoveGeo1 = 0;
    std::int32_t CopyMoveGeo2 = 0;
    std::int32_t CopyMoveGeo3 = 0;
    std::int32_t CopyMoveGeo4 = 0;
    std::int32_t FileListHeight = 0;
    std::int32_t FileListWidth = 0;
    std::int32_t FileListColA = 0;
    std::int32_t FileListColB = 0;
    std::int16_t FileListAllColumns = 0;
    std::int32_t FileListColour = 0;
    Text FileListFontName;
    std::int16_t FileListFontSize = 0;
    Text CtrlShiftReturnString;
    Text AltReturnString;
    Text Spare79;
    Text Spare80;
    Text WebmailUrl;
    Text TreeFormLastPath;
    std::int32_t ForeColour1 = 0;
    std::int32_t ForeColour2 = 0;
    std::int32_t ForeColour3 = 0;
    std::int32_t ForeColour4 = 0;
    std::int16_t Spare87 = 0;
    std::int32_t ForeColourTop = 0;
    std::int32_t ForeColourLeft = 0;
    Text ForeColourText;
    std::int16_t IndentOptionA = 0;
    std::int16_t IndentOptionB = 0;
    std::int16_t IndentOptionC = 0;
    std::int32_t ParaSpacingTop = 0;
    std::int32_t ParaSpacingLeft = 0;
    std::int32_t IndentTop = 0;
    std::int32_t IndentLeft = 0;
    std::int32_t ViewEditWidth = 0;
    std::int32_t ViewEditHeight = 0;
    std::int32_t ViewEditTop = 0;
    std::int32_t ViewEditLeft = 0;
    Text ViewEditFontName;
    std::int16_t ViewEditFontSize = 0;
    std::int16_t ViewEditFontStyle = 0;
    std::int16_t ViewEditOption = 0;
    std::int32_t Spare106 = 0;
    std::int32_t Spare107 = 0;
    std::int32_t Spare108 = 0;
    std::int32_t Spare109 = 0;
    std::int16_t UseCustomBrowser = 0;
    Text CustomBrowserPath;
    Text WebListFile;
    Text WebListA;
    Text WebListB;
    Text WebListC;
    std::int16_t WebListD = 0;
    std::int16_t MarkupOption = 0;
    std::int32_t Spare118 = 0;
    std::int16_t TabUnitKind = 0;
    Text PageSizeName;
    std::int32_t FieldsTop = 0;
    std::int32_t FieldsLeft = 0;
    std::int32_t FieldsWidth = 0;
    std::int16_t Spare124 = 0;
    std::int16_t Spare125 = 0;
    Text WallpaperFile;
    Text WallpaperNumber;
    Text ReturnPassword;
    Text YourProgramPath;
    std::int32_t RtfTop = 0;
    std::int32_t RtfLeft = 0;
    std::int32_t RtfWidth = 0;
    std::int32_t RtfHeight = 0;
    std::int16_t LoadListLongForm = 0;
    std::int16_t FindOptionCopy = 0;
    std::int16_t DialogWidth = 0;
    std::int32_t DateTypeTop = 0;
    std::int32_t PasteTop = 0;
    std::int32_t PasteLeft = 0;
    std::int32_t PasteWidth = 0;
    std::int32_t PasteHeight = 0;
    Text WordListFile;
    std::int32_t DateTypeLeft = 0;
    std::int32_t ElementsTop = 0;
    std::int32_t WebListGeo1 = 0;
    std::int32_t WebListGeo2 = 0;
    std::int32_t WebListGeo3 = 0;
    std::int32_t WebListGeo4 = 0;
    std::int32_t ColourChoiceA = 0;
    std::int32_t ColourChoiceB = 0;
    std::int32_t ElementsLeft = 0;
    std::int16_t FontDialogOptionA = 0;
    std::int16_t FontDialogOptionB = 0;
    std::int32_t ElementsWidth = 0;
    std::int32_t FontDialogTop = 0;
    std::int32_t FontDialogLeft = 0;
    std::int16_t OpenWithOption = 0;
    std::int32_t ViewCellWidth = 0;
    std::int32_t ViewCellHeight = 0;
    std::int32_t ViewCellTop = 0;
    std::int32_t ViewCellLeft = 0;
    std::int32_t ElementsHeight = 0;
    Text ViewCellFontName;
    std::int16_t ViewCellFontSize = 0;
    std::int16_t TypeDispatchOpt = 0;
    Text ViewCellText;
    Text SideBarFontName;
    std::int16_t SideBarFontSize = 0;
    std::int16_t SideBarFontBold = 0;
    std::int16_t SideBarVisible = 0;
    std::int16_t SideBarWidthStep = 0;
    Text FindText;
    Text ReplaceText;
    std::int16_t ReplaceOption = 0;
    std::int16_t TableOptionA = 0;
    std::int16_t TableOptionB = 0;
    std::int16_t TableOptionC = 0;
    std::int32_t TableValueA = 0;
    std::int32_t TableValueB = 0;
    std::int32_t TableValueC = 0;
    std::int16_t TableOptionD = 0;
    std::int32_t TableValueD = 0;
    std::int16_t TableOptionE = 0;
    std::int16_t AllowSorting = 0;
    std::int16_t ShowFileInfoAfterSave = 0;
    Text TreeFormPathB;
    std::int32_t TreeFormWidthB = 0;
    std::int16_t SymbolCellSize = 0;
    std::int32_t OpenWithHeight = 0;
    std::int16_t TabWidthCustom = 0;
    std::int16_t TabWidthOptionA = 0;
    std::int16_t TabWidthOptionB = 0;
    std::int32_t MsgBoxWidth = 0;
    std::int16_t ConfirmNoSave = 0;
    std::int32_t EnterNameA = 0;
    std::int16_t EnterNameB = 0;
    Text Spare197;
    std::int16_t Spare198 = 0;
    std::int32_t FavGeoTree = 0;
    std::int16_t HtmlOptionA = 0;
    std::int16_t Spare201 = 0;
    Text HtmlText;
    std::int16_t HtmlOptionB = 0;
    std::int32_t HtmlLeft = 0;
    std::int32_t HtmlTop = 0;
    std::int16_t ChooseRangeOption = 0;
    Text LastDbFindText;
    std::int16_t ShowFullPath = 0;
    Text FoldersFile;
    std::int32_t FoldersGeo1 = 0;
    std::int32_t FoldersGeo2 = 0;
    std::int32_t FoldersGeo3 = 0;
    std::int32_t FoldersGeo4 = 0;
    Text DelimiterString;
    std::int16_t ImportDelimiterType = 0;
};

/// How a line of the settings file relates to its field.
enum class SettingKind : std::uint8_t {
    Plain,
    /// The reader takes the leading number of the text: a name comes back as "0". Kept for compatibility:
    /// settings-numbers-as-text.
    NumberAsText,
};

using SettingMember = std::variant<Text Settings::*, std::int32_t Settings::*, std::int16_t Settings::*>;

/// One line of the settings file.
struct SettingLine {
    /// 1 to 215.
    int line;
    /// The field's name, for messages and tests.
    std::u16string_view name;
    SettingKind kind;
    /// Where the reader puts the line.
    SettingMember read;
    /// Where the writer takes the line from: the same field, but for three pairs.
    SettingMember written;
};

inline constexpr std::size_t kSettingLines = 215;

/// All lines in the order of the file.
const std::array<SettingLine, kSettingLines>& SettingsTable();

} // namespace korvane
