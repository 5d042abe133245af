#include "render/Stage.h"

#include "SourceTree.h"
#include "context/exchange/CopyMoveRequest.h"
#include "context/exchange/FileOperation.h"
#include "context/exchange/InputQuestion.h"
#include "context/exchange/ListerRequest.h"
#include "context/exchange/MessageQuestion.h"
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

void Stage::FillRequests() {
    const Text path = InData(kSamples[0]);
    outside_.clipboard.SetText(u"Title\tAuthor\tYear\r\nThe garden of letters\tMarie Brook\t1987\r\n"
                               u"Notes on a river\tH. Lindqvist\t2004\r\n");
    outside_.files.ChangeDir(u"C:\\data");
    auto& file = app_.Exchange<FileOperation>();
    file.FileOpFolder = u"C:\\data";
    file.FileOpName = Text(kSamples[0]);
    app_.Exchange<ListerRequest>().ListerFolder = u"C:\\data";
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
