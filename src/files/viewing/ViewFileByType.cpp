#include "files/viewing/ViewFileByType.h"

#include "common/path/PathStyle.h"
#include "common/text/CaseFold.h"
#include "context/App.h"
#include "context/Companions.h"
#include "context/Launching.h"
#include "context/StandardMessages.h"
#include "context/exchange/FileOperation.h"
#include "context/ports/PageViewer.h"
#include "context/ports/TextFileViewer.h"
#include "files/viewing/ConfirmLargeFile.h"
#include "platform/FileSystem.h"
#include "platform/MessageBoxes.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace korvane {

namespace {

/// Whether the file counts as taken.
using Opener = bool (*)(App& app, TextView path);

bool StartPdfViewer(App& app, TextView path) {
    LaunchProgram(app, app.Settings.PdfViewerPath, path);
    return true;
}

template <Companion companion>
bool StartCompanion(App& app, TextView path) {
    LaunchCompanion(app, companion, path);
    return true;
}

struct OfficeProgram {
    TextView extensions;
    TextView product;
    TextView executable;
};

constexpr OfficeProgram kWord{u".DOC(X)", u"Word", u"WINWORD.EXE"};
constexpr OfficeProgram kPowerpoint{u".PPT(X)", u"Powerpoint", u"POWERPNT.EXE"};
constexpr OfficeProgram kPublisher{u".PUB", u"Publisher", u"MSPUB.EXE"};
constexpr OfficeProgram kAccess{u".MDB / .ACCDB", u"Access", u"MSACCESS.EXE"};
constexpr OfficeProgram kExcel{u".XLS(X)", u"Excel", u"EXCEL.EXE"};

Answer Offer(App& app, const OfficeProgram& office, MessageButtons buttons, int defaultButton) {
    return app.Messages().Show({u"File has the extension " + Text(office.extensions) +
                                    u".\r\n\r\nLoad it with Microsoft " + Text(office.product) + u" ?",
                                MessageIcon::Question, buttons, defaultButton});
}

void StartOffice(App& app, const OfficeProgram& office, TextView document) {
    Text program = FindOfficeProgram(app, office.executable);
    if (!app.Files().FileExists(program)) return ShowCannotLocate(app, program);
    StartProgram(app, program, {Text(document)});
}

template <const OfficeProgram& office>
bool OfferOffice(App& app, TextView path) {
    if (Offer(app, office, MessageButtons::YesNo, 1) == Answer::Yes) StartOffice(app, office, path);
    return true;
}

bool ShowInTextWindow(App& app, TextView path) {
    if (!ConfirmLargeFile(app, app.Exchange<FileOperation>().FileOpName)) return true;
    if (auto* texts = app.Port<TextFileViewer>()) texts->View(path);
    return true;
}

bool OpenWordFile(App& app, TextView path) {
    constexpr std::int16_t kOfferWord = 1;
    if (app.Settings.TypeDispatchOpt != kOfferWord) return ShowInTextWindow(app, path);
    const Answer answer = Offer(app, kWord, MessageButtons::YesNoCancel, 2);
    // No ends the viewing in the rules of the other programs, and Cancel here doesn't. Kept for
    // compatibility: office-no-ends-viewing.
    if (answer == Answer::Cancel) return false;
    if (answer == Answer::No) return ShowInTextWindow(app, path);
    StartOffice(app, kWord, path);
    return true;
}

/// Its path as the browser gets it.
Text InFolderAtHand(const App& app, TextView path) {
    const PathStyle style = app.Files().Style();
    if (style.IsFullPath(path)) return Text(path);
    return style.JoinPath(style.DirectoryForChange(app.Exchange<FileOperation>().FileOpFolder), path);
}

bool ShowInBrowser(App& app, TextView path) {
    if (auto* pages = app.Port<PageViewer>()) pages->View(InFolderAtHand(app, path));
    return true;
}

struct FileType {
    TextView extension;
    /// How many characters of the name's end are compared with the extension.
    std::size_t taken;
    Opener open;
};

// ".PPTX" and ".XLSX" are compared with four characters and so never match. Kept for
// compatibility: long-office-extensions.
constexpr auto kFileTypes = std::to_array<FileType>({
    {u".PDF", 4, StartPdfViewer},
    {u".RTF", 4, StartCompanion<Companion::Dunmark>},
    {u".WAV", 4, StartCompanion<Companion::Nimbrel>},
    {u".MP3", 4, StartCompanion<Companion::Nimbrel>},
    {u".JPG", 4, StartCompanion<Companion::Tessaly>},
    {u".BMP", 4, StartCompanion<Companion::Tessaly>},
    {u".GIF", 4, StartCompanion<Companion::Tessaly>},
    {u".PNG", 4, StartCompanion<Companion::Tessaly>},
    {u".TIF", 4, StartCompanion<Companion::Tessaly>},
    {u".WMF", 4, StartCompanion<Companion::Tessaly>},
    {u".ICO", 4, StartCompanion<Companion::Tessaly>},
    {u".DOC", 4, OpenWordFile},
    {u".DOCX", 5, OpenWordFile},
    {u".PPT", 4, OfferOffice<kPowerpoint>},
    {u".PPTX", 4, OfferOffice<kPowerpoint>},
    {u".PPS", 4, OfferOffice<kPowerpoint>},
    {u".PUB", 4, OfferOffice<kPublisher>},
    {u".MDB", 4, OfferOffice<kAccess>},
    {u".ACCDB", 6, OfferOffice<kAccess>},
    {u".XLS", 4, OfferOffice<kExcel>},
    {u".XLSX", 4, OfferOffice<kExcel>},
    {u".HTM", 4, ShowInBrowser},
    {u".HTML", 5, ShowInBrowser},
    {u".XHTML", 6, ShowInBrowser},
    {u".ASP", 4, ShowInBrowser},
    {u".PHP", 4, ShowInBrowser},
    {u".CGI", 4, ShowInBrowser},
});

} // namespace

bool ViewFileByType(App& app, TextView path) {
    const Text upper = ToUpper(path);
    const auto* type = std::ranges::find_if(
        kFileTypes, [&upper](const FileType& each) { return Right(upper, each.taken) == each.extension; });
    return type != kFileTypes.end() && type->open(app, path);
}

} // namespace korvane
