#include "render/Stage.h"

#include "SourceTree.h"
#include "context/exchange/CopyMoveRequest.h"
#include "context/exchange/FileOperation.h"
#include "context/exchange/FontChoice.h"
#include "context/exchange/InputQuestion.h"
#include "context/exchange/ListerRequest.h"
#include "context/exchange/MessageQuestion.h"
#include "context/exchange/OpenWithRequest.h"
#include "platform/qt/services/QtScreen.h"
#include "table/TableFile.h"

#include <QCoreApplication>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace korvane {

namespace {

namespace fs = std::filesystem;

constexpr TextView kSamples[] = {u"Address book.tbx", u"Books.tbx", u"Diary.tbx"};

std::string BytesOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

Text InData(TextView name) {
    return u"C:\\data\\" + Text(name);
}

} // namespace

Stage::Stage() {
    outside_.screen.SetDark(QtScreen().IsDark());
    FillFiles();
    Main().EnsureLoaded();
    Main().Show();
    for (const TextView name : kSamples)
        Main().Parts().pipeline.OpenDatabase(InData(name), LoadInto::NewTab);
    FillRequests();
    Settle();
}

void Stage::Settle() {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void Stage::FillFiles() {
    const fs::path tree(KORVANE_SOURCE_DIR);
    const Text folder = outside_.files.ProgramDir();
    outside_.files.AddDir(folder);
    outside_.files.AddFile(outside_.files.Style().JoinPath(folder, u"Korvane.ini"),
                           BytesOf(tree / "packaging" / "Korvane.ini"));
    for (const TextView name : kSamples)
        outside_.files.AddFile(InData(name), BytesOf(tree / "samples" / fs::path(name)));
}

void Stage::FillLists() {
    outside_.files.AddFile(u"C:\\Program Files\\LibreOffice\\program\\swriter.exe");
    outside_.files.AddFile(u"C:\\Program Files\\Gimp\\bin\\gimp.exe");
    outside_.files.AddFile(InData(u"programs.lst"),
                           "swriter.exe\r\nC:\\Program Files\\LibreOffice\\program\\\r\n"
                           "gimp.exe\r\nC:\\Program Files\\Gimp\\bin\\\r\n"
                           "WINWORD.EXE\r\nC:\\Program Files (x86)\\Microsoft Office\\OFFICE11\\\r\n"
                           "rundll32.exe\r\nshimgvw.dll,ImageView_Fullscreen\r\n");
    app_.Settings.OpenWithListFile = InData(u"programs.lst");
    constexpr std::string_view kFolders =
        "C:\\data\r\nC:\\data\\Letters\r\n\r\n\x97\x97\x97  Work  \x97\x97\x97\r\n"
        "C:\\data\\Work\\Accounts\r\nC:\\data\\Work\\Minutes\r\n";
    for (const TextView folder : {u"Letters", u"Work\\Accounts", u"Work\\Minutes"})
        outside_.files.AddDir(InData(folder));
    const PathStyle style = outside_.files.Style();
    outside_.files.AddFile(style.JoinPath(outside_.files.StateDir(), u"FavouriteLocations.lst"), kFolders);
    outside_.files.AddFile(InData(u"work.lst"), kFolders);
    app_.Settings.FoldersFile = InData(u"work.lst");
    FillWebsites();
}

void Stage::FillWebsites() {
    outside_.files.AddFile(InData(u"sites.lst"),
                           "Town library\r\nhttps://library.example/catalogue\r\n1\r\n"
                           "Weather\r\nhttps://weather.example\r\n1\r\n"
                           ".   .   .   .   .   .   .   .   .\r\n\r\n0\r\n"
                           "Gardening club\r\nhttp://www.gardening.example/news.html\r\n0\r\n***\r\n"
                           "https://library.example/catalogue https://weather.example\r\n");
    app_.Settings.WebListFile = InData(u"sites.lst");
    app_.Settings.WebListA = u"C:\\Program Files\\Browser\\browser.exe";
    outside_.files.AddFile(InData(u"Page.htm"),
                           "<h1>The garden</h1><p>What grows in it, and <a href='when.htm'>when</a>.</p>"
                           "<ul><li>Lilac</li><li>Roses</li></ul>");
}

void Stage::FillRequests() {
    const Text path = InData(kSamples[0]);
    FillLists();
    app_.Exchange<OpenWithRequest>().ViewWithFile = path;
    outside_.clipboard.SetText(u"Title\tAuthor\tYear\r\nThe garden of letters\tMarie Brook\t1987\r\n"
                               u"Notes on a river\tH. Lindqvist\t2004\r\n");
    outside_.files.ChangeDir(u"C:\\data");
    auto& file = app_.Exchange<FileOperation>();
    file.FileOpFolder = u"C:\\data";
    file.FileOpName = Text(kSamples[0]);
    app_.Exchange<ListerRequest>().ListerFolder = u"C:\\data";
    app_.Exchange<ListerRequest>().FileDialogFilter = u"*.*";
    app_.Settings.TreeFormLastPath = u"C:\\data";
    outside_.fonts.Set({u"Carlito", u"DejaVu Sans", u"DejaVu Sans Mono", u"DejaVu Serif", u"OpenSymbol"});
    app_.Exchange<FontChoice>().FontInits = {u"Carlito", u"14"};
    outside_.fileTypes.SetType(u".tbx", {u"Table", u"fileTable"});
    outside_.fileTypes.SetType(u".txt", {u"Text", u"fileText"});
    outside_.files.AddFile(InData(u"Notes on the garden.txt"), std::string(12345, 'x'));
    outside_.files.AddDir(u"C:\\data\\Letters\\2026");
    outside_.files.AddDir(u"C:\\Pictures");
    auto& copy = app_.Exchange<CopyMoveRequest>();
    copy = {.CopyMoveKind = 1,
            .CopySourceFolder = u"C:\\data",
            .lstMarkedFiles = {std::begin(kSamples), std::end(kSamples)},
            .LastCopyTarget = u"C:\\data\\Letters"};
    all_.copyMove.AskSource = path;
    all_.copyMove.AskTarget = InData(kSamples[1]);
    app_.Exchange<MessageQuestion>().MsgFilePath = path;
    app_.Exchange<InputQuestion>().InputCaption = u"Enter new name of column";
    app_.Exchange<InputQuestion>().InputInitial = u"Title";
    all_.facts = FactsOfFile(app_, path);
    all_.copy.rowsToCopy = 12;
    all_.child.Table().TxtDbFile = path;
    ReadTableData(all_.tab);
    // A record of a file that was deleted since then.
    Main().Parts().recents.AddToRecent(u"C:\\data\\Old list.tbx", 0, app_.Clock().Now());
}

} // namespace korvane
